// SPDX-License-Identifier: GPL-3.0-or-later
#include "mail/MailAccount.h"

#include "text/Encoding.h"
#include "text/Lines.h"
#include "text/Numbers.h"

#include <algorithm>
#include <array>

namespace kestrova {

namespace {

constexpr std::string_view kHeading = "Kestrova Mail Account";
constexpr std::array<std::string_view, 6> kFields = {"Server", "Port", "Security",
                                                     "User",   "Name", "Address"};
constexpr std::array<std::string_view, 3> kSecurities = {"TLS", "STARTTLS", "None"};
constexpr int kGreatestPort = 65535;
constexpr std::size_t kLongestServer = 253;
constexpr std::size_t kLongestLine = 1024;

// A name or an address of a machine. It goes into an address of the transport's, so nothing else
// may be in it; the brackets are those of an address of many colons.
bool IsServer(std::string_view server) {
    const bool bracketed = server.starts_with('[') && server.ends_with(']');
    const std::string_view inner = bracketed ? server.substr(1, server.size() - 2) : server;
    return !inner.empty() && server.size() <= kLongestServer && inner.front() != '-' &&
           std::all_of(inner.begin(), inner.end(), [bracketed](char c) {
               return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') ||
                      c == '.' || c == '-' || (bracketed && c == ':');
           });
}

bool IsLine(std::string_view text) {
    return text.size() <= kLongestLine && IsUtf8(text) &&
           std::none_of(text.begin(), text.end(),
                        [](char c) { return static_cast<unsigned char>(c) < 0x20U || c == 0x7F; });
}

} // namespace

AccountFault FaultOf(const MailAccount& account) {
    if (!IsServer(account.Server)) {
        return AccountFault::Server;
    }
    if (account.Port < 1 || account.Port > kGreatestPort) {
        return AccountFault::Port;
    }
    if (!IsLine(account.User)) {
        return AccountFault::User;
    }
    return IsLine(account.Sender.Name) && IsMailAddress(account.Sender.Address)
               ? AccountFault::None
               : AccountFault::Sender;
}

int UsualPort(MailSecurity security) {
    switch (security) {
    case MailSecurity::Tls: return 465;
    case MailSecurity::StartTls: return 587;
    case MailSecurity::None: return 25;
    }
    return 0;
}

std::string PasswordName(const MailAccount& account) {
    return account.User + " on " + account.Server + ":" + std::to_string(account.Port);
}

std::string WriteMailAccount(const MailAccount& account) {
    const std::array<std::string, kFields.size()> values = {
        account.Server,
        std::to_string(account.Port),
        std::string(kSecurities[static_cast<std::size_t>(account.Security)]),
        account.User,
        account.Sender.Name,
        account.Sender.Address};
    std::string out = std::string(kHeading).append(kLineEnd);
    for (std::size_t i = 0; i < kFields.size(); ++i) {
        out.append(kFields[i]).append(": ").append(values[i]).append(kLineEnd);
    }
    return out;
}

std::optional<MailAccount> ReadMailAccount(std::string_view bytes) {
    LineReader lines(bytes);
    if (bytes.size() > kMailAccountLimit || lines.Next() != kHeading) {
        return std::nullopt;
    }
    std::array<std::string_view, kFields.size()> values;
    for (std::size_t i = 0; i < kFields.size(); ++i) {
        const auto line = lines.Next();
        if (!line || !line->starts_with(kFields[i]) ||
            !line->substr(kFields[i].size()).starts_with(": ")) {
            return std::nullopt;
        }
        values[i] = line->substr(kFields[i].size() + 2);
    }
    const auto security = std::find(kSecurities.begin(), kSecurities.end(), values[2]);
    if (security == kSecurities.end()) {
        return std::nullopt;
    }
    const MailAccount account{std::string(values[0]),
                              ReadInt32(values[1]).value_or(0),
                              static_cast<MailSecurity>(security - kSecurities.begin()),
                              std::string(values[3]),
                              {std::string(values[4]), std::string(values[5])}};
    return FaultOf(account) == AccountFault::None ? std::optional(account) : std::nullopt;
}

} // namespace kestrova
