// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/qt/print/PrintFactory.h"

#include <chrono>
#include <functional>
#include <memory>

namespace kestrova {

// What has been found out, and how to take back what was done, which is called when it has failed
// or when nobody waits for it any more.
struct PrintFinding {
    Status Answer;
    std::function<void()> Undo;
};

// What is to be done; it is to be over at `end`, or as soon after that as can be.
using PrintWork = std::function<PrintFinding(std::chrono::steady_clock::time_point end)>;

// Does one piece of work at a time, in a thread of its own. A thread that is held up by the system
// is left behind: it shares with this object only what outlives both.
class PrintWorker {
public:
    PrintWorker();
    ~PrintWorker();
    PrintWorker(const PrintWorker&) = delete;
    PrintWorker& operator=(const PrintWorker&) = delete;
    PrintWorker(PrintWorker&&) = delete;
    PrintWorker& operator=(PrintWorker&&) = delete;

    [[nodiscard]] std::unique_ptr<PrintQuestion> Put(PrintWork work,
                                                     std::chrono::milliseconds limit);

private:
    struct Desk;

    std::shared_ptr<Desk> desk_;
};

} // namespace kestrova
