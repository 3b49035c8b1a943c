// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/qt/MailModule.h"

#include "platform/qt/QtEventLoop.h"
#include "platform/qt/QtText.h"

#include <QCoreApplication>
#include <QLibrary>

#include <utility>

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

bool MailModule::StillAsked() const {
    return pending_ && !pending_->Question->Answer();
}

Result<std::string> MailModule::WaitFor(Pending asked) {
    std::optional<Result<std::string>> answer;
    QtEventLoop().WaitUntil(
        [&] {
            answer = asked.Question->Answer();
            return answer.has_value();
        },
        keyringLimit_);
    if (!answer) {
        pending_ = std::move(asked);
        return Error{ErrorCode::Busy, {}};
    }
    return *answer;
}

Result<std::string> MailModule::Read(const std::string& name) {
    MailFactory* const factory = Load();
    if (factory == nullptr) {
        return Error{ErrorCode::Failed, trouble_};
    }
    if (StillAsked()) {
        return Error{ErrorCode::Busy, {}};
    }
    if (const auto late = std::exchange(pending_, std::nullopt); late && late->Wanted == name) {
        return *late->Question->Answer();
    }
    return WaitFor({factory->ReadPassword(name), name});
}

Status MailModule::Write(const std::string& name, const std::string& password) {
    MailFactory* const factory = Load();
    if (factory == nullptr) {
        return Error{ErrorCode::Failed, trouble_};
    }
    if (StillAsked()) {
        return Error{ErrorCode::Busy, {}};
    }
    pending_.reset();
    const Result<std::string> written = WaitFor({factory->WritePassword(name, password), {}});
    return written ? Status(Done{}) : Status(written.Failure());
}

} // namespace kestrova
