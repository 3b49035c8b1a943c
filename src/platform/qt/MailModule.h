// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/MailTransport.h"
#include "platform/PasswordStore.h"
#include "platform/qt/mail/MailFactory.h"

#include <chrono>
#include <memory>
#include <optional>
#include <string>

namespace kestrova {

// Mail and the keyring as the module beside the executable has them. It is loaded at the first need
// and stays loaded. A keyring that has not answered in time is asked nothing more until it has.
class MailModule : public MailTransport, public PasswordStore {
public:
    static constexpr std::chrono::milliseconds kKeyringLimit{5000};

    // Where the module lies beside the executable that is running.
    [[nodiscard]] static std::string ShippedPath();

    explicit MailModule(std::string path, MailRules rules = {},
                        std::chrono::milliseconds keyringLimit = kKeyringLimit);

    [[nodiscard]] bool IsThere() override { return Load() != nullptr; }
    [[nodiscard]] std::unique_ptr<MailSession> SignOn(const MailServer& server) override;
    Result<std::string> Read(const std::string& name) override;
    Status Write(const std::string& name, const std::string& password) override;

    // Why the module could not be loaded, in the words of the system; empty while it was not tried.
    [[nodiscard]] const std::string& Trouble() const { return trouble_; }

private:
    struct Pending {
        std::unique_ptr<KeyringQuestion> Question;
        std::string Wanted; // the name of the password; empty when one was to be kept
    };

    MailFactory* Load();
    [[nodiscard]] bool StillAsked() const;
    Result<std::string> WaitFor(Pending asked);

    std::string path_;
    MailRules rules_;
    std::chrono::milliseconds keyringLimit_;
    MailFactory* factory_ = nullptr; // the module's own
    std::unique_ptr<MailTransport> transport_;
    std::string trouble_;
    std::optional<Pending> pending_; // what the keyring owes an answer
};

} // namespace kestrova
