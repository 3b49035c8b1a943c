// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/qt/print/CupsQueue.h"
#include "platform/qt/print/PrintFactory.h"
#include "platform/qt/print/PrintWorker.h"

namespace kestrova {

namespace {

class LinuxPrint : public PrintFactory {
public:
    std::unique_ptr<PrintQuestion> AskForPrinter(std::chrono::milliseconds limit) override {
        return worker_.Put(FindQueue, limit);
    }

    std::unique_ptr<PrintQuestion> Send(PrintOrder order,
                                        std::chrono::milliseconds limit) override {
        return worker_.Put([order = std::move(order)](auto end) { return SendToQueue(order, end); },
                           limit);
    }

private:
    PrintWorker worker_;
};

} // namespace

extern "C" [[gnu::visibility("default")]] PrintFactory* KestrovaPrint1() {
    static LinuxPrint print;
    return &print;
}

} // namespace kestrova
