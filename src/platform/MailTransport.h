// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>
#include <optional>
#include <string>

namespace kestrova {

// How the way to a mail server is protected.
enum class MailSecurity {
    Tls,      // from the first byte
    StartTls, // switched on before anything is said that matters
    None
};

// Where mail is handed in, and as whom. A server without a user is told none.
struct MailServer {
    std::string Host;
    int Port = 465;
    MailSecurity Security = MailSecurity::Tls;
    std::string User;
    std::string Password;
};

// A letter in its envelope: two bare addresses, and the headers and body as they travel, in lines
// that end in CR LF. The transport puts the date and an id of its own before it.
struct MailEnvelope {
    std::string Sender;
    std::string Recipient;
    std::string Letter;
};

// What can go wrong, as far as the user is told different things.
enum class MailTrouble {
    None,
    NoLibrary,   // mail cannot be sent on this machine
    Unreachable, // no such server, or none that listens
    Silent,      // it does not answer in time, or has gone in the middle
    NotSecure,   // protection was asked for and is not to be had
    Untrusted,   // its certificate is not to be trusted
    Password,    // user or password refused
    Sender,      // an address refused
    Recipient,
    Refused // anything else that the server does not like
};

struct MailOutcome {
    MailTrouble Trouble = MailTrouble::None;
    std::string Words; // the server's own, in one line; often empty, and never with the password
};

// A connection with a mail server, signed on by being made and signed off by going. Whatever is
// under way then is broken off. No function waits.
class MailSession {
public:
    virtual ~MailSession() = default;

    // What became of the last thing asked: of signing on at first, then of each letter. Nothing
    // while it is under way, which it is for a bounded time.
    [[nodiscard]] virtual std::optional<MailOutcome> Outcome() const = 0;

    // Begins to send a letter. Only when nothing is under way, and after a sign-on that succeeded.
    virtual void Send(const MailEnvelope& envelope) = 0;
};

// The way by which mail leaves this machine.
class MailTransport {
public:
    virtual ~MailTransport() = default;

    // Whether mail can be sent on this machine at all.
    [[nodiscard]] virtual bool IsThere() = 0;

    // Begins to sign on. Protection that was asked for is never given up: without it, nothing but
    // the greeting is exchanged. Only where mail can be sent.
    [[nodiscard]] virtual std::unique_ptr<MailSession> SignOn(const MailServer& server) = 0;
};

} // namespace kestrova
