// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/qt/PdfPrinter.h"

#include "platform/qt/PdfJob.h"

#include <utility>

namespace kestrova {

std::unique_ptr<PrintJob> PdfPrinter::Begin(const PrinterSetup& setup, const std::string& title) {
    return std::make_unique<PdfJob>(
        setup, title,
        [this, target = std::exchange(target_, {})](const std::string& pdf) -> Status {
            if (target.empty()) {
                return Error{ErrorCode::NotFound, {}};
            }
            return files_.Replace(target, pdf);
        });
}

} // namespace kestrova
