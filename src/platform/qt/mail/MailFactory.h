// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/MailTransport.h"
#include "platform/Result.h"

#include <chrono>
#include <memory>
#include <optional>
#include <string>

namespace kestrova {

// How long a server may take, and whom it may be vouched for by.
struct MailRules {
    std::chrono::milliseconds Connect{30'000}; // until it has greeted us and let us in
    std::chrono::milliseconds Whole{120'000};  // for one letter
    std::string CaFile;                        // empty: the authorities that the system trusts
};

// A question to the keyring. It may be left behind unanswered.
class KeyringQuestion {
public:
    virtual ~KeyringQuestion() = default;

    // The password that was asked for (empty after writing); nothing while there is no answer.
    [[nodiscard]] virtual std::optional<Result<std::string>> Answer() const = 0;
};

// What the mail module gives to the program that has loaded it: the libraries for mail and for the
// keyring are large, and most starts of the program send no mail.
class MailFactory {
public:
    virtual ~MailFactory() = default;

    [[nodiscard]] virtual std::unique_ptr<MailTransport> MakeTransport(const MailRules& rules) = 0;
    [[nodiscard]] virtual std::unique_ptr<KeyringQuestion>
    ReadPassword(const std::string& name) = 0;
    [[nodiscard]] virtual std::unique_ptr<KeyringQuestion>
    WritePassword(const std::string& name, const std::string& password) = 0;
};

// The one function that the module exports; what it returns lives as long as the process. Whoever
// changes one of the interfaces above changes the number in the name, so that a module of another
// version is refused instead of called.
using MailEntry = MailFactory* (*)();
inline constexpr const char* kMailEntryName = "KestrovaMail1";

} // namespace kestrova
