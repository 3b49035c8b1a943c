// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/qt/MailModule.h"

#include "platform/qt/QtEventLoop.h"
#include "platform/qt/QtText.h"

#include <QCoreApplication>
#include <QLibrary>

namespace kestrova {

std::string MailModule::ShippedPath() {
    return FromQt(QCoreApplication::applicationDirPath() + QStringLiteral("/kestrova_mail.so"));
}

MailModule::MailModule(std::string path, MailRules rules, std::chrono::milliseconds keyringLimit)
    : path_(std::move(path)), rules_(std::move(rules)), keyringLimit_(keyringLimit) {}

MailFactory* MailModule::Load() {
    if (factory_ != nullptr || !trouble_.empty()) {
        return factory_;
    }
    QLibrary library(ToQt(path_));
    // A thread that waits for a server or for the keyring may outlive this object.
    library.setLoadHints(QLibrary::PreventUnloadHint);
    const auto entry = reinterpret_cast<MailEntry>(library.resolve(kMailEntryName));
    if (entry == nullptr) {
        trouble_ = FromQt(library.errorString());
        return nullptr;
    }
    factory_ = entry();
    return factory_;
}

std::unique_ptr<MailSession> MailModule::SignOn(const MailServer& server) {
    if (!IsThere()) {
        return nullptr;
    }
    if (!transport_) {
        transport_ = factory_->MakeTransport(rules_);
    }
    return transport_->SignOn(server);
}

Result<std::string> MailModule::WaitFor(std::unique_ptr<KeyringQuestion> question) {
    std::optional<Result<std::string>> answer;
    QtEventLoop().WaitUntil(
        [&] {
            answer = question->Answer();
            return answer.has_value();
        },
        keyringLimit_);
    if (!answer) {
        keyringDead_ = true;
        return Error{ErrorCode::Failed, {}};
    }
    return *answer;
}

Result<std::string> MailModule::Read(const std::string& name) {
    MailFactory* const factory = keyringDead_ ? nullptr : Load();
    return factory == nullptr ? Result<std::string>(Error{ErrorCode::Failed, trouble_})
                              : WaitFor(factory->ReadPassword(name));
}

Status MailModule::Write(const std::string& name, const std::string& password) {
    MailFactory* const factory = keyringDead_ ? nullptr : Load();
    if (factory == nullptr) {
        return Error{ErrorCode::Failed, trouble_};
    }
    const Result<std::string> written = WaitFor(factory->WritePassword(name, password));
    return written ? Status(Done{}) : Status(written.Failure());
}

} // namespace kestrova
