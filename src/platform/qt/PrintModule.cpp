// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/qt/PrintModule.h"

#include "platform/qt/PdfJob.h"
#include "platform/qt/QtEventLoop.h"
#include "platform/qt/QtText.h"

#include <QCoreApplication>
#include <QLibrary>

namespace kestrova {

std::string PrintModule::ShippedPath() {
    return FromQt(QCoreApplication::applicationDirPath() + QStringLiteral("/kestrova_print.so"));
}

PrintModule::PrintModule(std::string path, std::chrono::milliseconds limit)
    : path_(std::move(path)), limit_(limit) {}

PrintFactory* PrintModule::Load() {
    if (factory_ != nullptr || !trouble_.empty()) {
        return factory_;
    }
    QLibrary library(ToQt(path_));
    // A thread that waits for the printing system may outlive this object.
    library.setLoadHints(QLibrary::PreventUnloadHint);
    const auto entry = reinterpret_cast<PrintEntry>(library.resolve(kPrintEntryName));
    if (entry == nullptr) {
        trouble_ = FromQt(library.errorString());
        return nullptr;
    }
    factory_ = entry();
    return factory_;
}

Status PrintModule::WaitFor(PrintQuestion& question) const {
    QtEventLoop().WaitUntil([&question] { return question.IsAnswered(); }, limit_);
    return question.Take();
}

Status PrintModule::Check() {
    PrintFactory* const factory = Load();
    if (factory == nullptr) {
        return Error{ErrorCode::NotFound, trouble_};
    }
    return WaitFor(*factory->AskForPrinter(limit_));
}

Status PrintModule::Send(PrintOrder order) {
    PrintFactory* const factory = Load();
    if (factory == nullptr) {
        return Error{ErrorCode::NotFound, trouble_};
    }
    return WaitFor(*factory->Send(std::move(order), limit_));
}

std::unique_ptr<PrintJob> PrintModule::Begin(const PrinterSetup& setup, const std::string& title) {
    return std::make_unique<PdfJob>(setup, title, [this, setup, title](std::string pdf) {
        return Send({std::move(pdf), title, setup});
    });
}

} // namespace kestrova
