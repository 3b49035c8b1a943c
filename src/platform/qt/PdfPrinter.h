// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/FileStore.h"
#include "platform/Printer.h"

namespace kestrova {

// A file in a printer's place. There always is one, once it is known where: whoever prints asks the
// user first.
class PdfPrinter : public Printer {
public:
    explicit PdfPrinter(FileStore& files) : files_(files) {}

    // The file of the document that is begun next, which may exist: it stands as it was until the
    // new one is whole. One document only: nobody has agreed to lose it to another.
    void SetTarget(std::string path) { target_ = std::move(path); }

    // Success, always.
    Status Check() override { return Done{}; }

    // Finish answers as FileStore::Replace does; without a target, NotFound.
    [[nodiscard]] std::unique_ptr<PrintJob> Begin(const PrinterSetup& setup,
                                                  const std::string& title) override;

private:
    FileStore& files_;
    std::string target_;
};

} // namespace kestrova
