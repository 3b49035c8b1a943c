// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Printer.h"
#include "platform/qt/print/PrintFactory.h"

#include <chrono>
#include <memory>
#include <string>

namespace kestrova {

// The printers of the system as the module beside the executable has them. It is loaded at the
// first need and stays loaded. Documents must be finished before this object goes.
class PrintModule : public Printer {
public:
    static constexpr std::chrono::milliseconds kLimit{5000};

    // Where the module lies beside the executable that is running.
    [[nodiscard]] static std::string ShippedPath();

    explicit PrintModule(std::string path, std::chrono::milliseconds limit = kLimit);

    // Without the module, NotFound.
    Status Check() override;
    [[nodiscard]] std::unique_ptr<PrintJob> Begin(const PrinterSetup& setup,
                                                  const std::string& title) override;

    // Why the module could not be loaded, in the words of the system; empty while it was not tried.
    [[nodiscard]] const std::string& Trouble() const { return trouble_; }

private:
    PrintFactory* Load();
    Status Send(PrintOrder order);
    [[nodiscard]] Status WaitFor(PrintQuestion& question) const;

    std::string path_;
    std::chrono::milliseconds limit_;
    PrintFactory* factory_ = nullptr; // the module's own
    std::string trouble_;
};

} // namespace kestrova
