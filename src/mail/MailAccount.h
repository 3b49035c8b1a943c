// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "mail/Letter.h"
#include "platform/MailTransport.h"

#include <optional>
#include <string>
#include <string_view>

namespace kestrova {

// The mail account of the user: where mail is handed in, and who sends it. The password is not part
// of it.
//
// Its file is UTF-8 text in lines that end in CR LF (LF alone is read, too): a heading, then one
// line for each field, all of them and in this order.
//
//     Kestrova Mail Account
//     Server: smtp.example.org
//     Port: 465
//     Security: TLS                  or STARTTLS, or None
//     User: jane
//     Name: Jane Doe
//     Address: jane@example.org
struct MailAccount {
    std::string Server;
    int Port = 465;
    MailSecurity Security = MailSecurity::Tls;
    std::string User; // empty: the server asks for none
    MailPerson Sender;

    bool operator==(const MailAccount&) const = default;
};

// The first thing that is wrong with an account.
enum class AccountFault { None, Server, Port, User, Sender };
[[nodiscard]] AccountFault FaultOf(const MailAccount& account);

// The port at which servers usually listen for mail that is handed in this way.
[[nodiscard]] int UsualPort(MailSecurity security);

// The name of its password in the keyring: "jane on smtp.example.org:465".
[[nodiscard]] std::string PasswordName(const MailAccount& account);

inline constexpr std::size_t kMailAccountLimit = 4096;
[[nodiscard]] std::string WriteMailAccount(const MailAccount& account);

// Nothing when the bytes are no account, or one with a fault.
[[nodiscard]] std::optional<MailAccount> ReadMailAccount(std::string_view bytes);

} // namespace kestrova
