// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "mail/Invitation.h"
#include "mail/MailAccountStore.h"
#include "mail/MailWindows.h"
#include "mail/ReminderMail.h"
#include "platform/EventLoop.h"
#include "platform/MailTransport.h"
#include "platform/PasswordStore.h"

#include "language/StringTable.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>

namespace kestrova {

inline constexpr std::string_view kReminderSubject = "Kestrova Messenger";

// Sends reminders and invitations by mail. What waits handles events meanwhile; a second mail that
// is to be sent while one is on its way is put off.
//
// A mail that fails sets `MailFailed`, which is never cleared while the program runs: no reminder
// is sent after that, and the event editor does not offer mail. The user is told once. An
// invitation is the user's own doing and is tried all the same, with the log-on dialog before it
// when it was signing on that failed; its success does not bring the reminders back before the next
// start.
//
// An account that is not there yet is no failure: a reminder shows the log-on dialog, does not wait
// for it and stays due, as nobody may be sitting there. Cancelling that dialog is one, or it would
// come back every minute. A keyring that the user does not open is not asked again for the same
// reason: the dialog then asks for the password.
class MailService : public ReminderMail {
public:
    struct Rooms {
        MailTransport& Transport;
        PasswordStore& Passwords;
        MailAccountStore& Accounts;
        EventLoop& Loop;
        MailWindows& Windows;
        const StringTable& Texts;
        std::function<void(const std::string& text)> Tell; // what has failed; need not wait
    };

    explicit MailService(const Rooms& rooms) : rooms_(rooms) {}

    [[nodiscard]] bool MailFailed() const override { return mailFailed_; }

    // A reminder (status 0).
    MailStatus SendMail(const DiaryEvent& event) override;

    // An invitation (status 5) from `name`, to every address that is not empty. Friends that it
    // has reached are reported one by one, so that a second try need not write to them again.
    MailStatus SendInvitation(const std::string& name, const InvitedFriends& friends);

    // Why the last invitation has not been sent, for the user; empty when the user broke it off.
    [[nodiscard]] const std::string& Complaint() const { return invitationComplaint_; }

    // Breaks off what is under way.
    void BreakOff() { brokenOff_ = true; }

    // Whether mail could be sent without asking for an account first.
    [[nodiscard]] bool HasAccount() { return rooms_.Accounts.Load().has_value(); }

    // What to begin the log-on dialog with. Handles events while the keyring answers.
    [[nodiscard]] LogOnOffer Offer();

    // The user's account as the log-on dialog has it. An empty password leaves the known one. A
    // failure is that of writing the account file; a keyring that takes no password is told.
    Status TakeAccount(const MailAccount& account, const std::string& password);
    void LogOnCancelled();

private:
    enum class LogOnDialog { Wait, LeaveOpen };

    void MailIni();
    void LogOn(bool& loggedOn, LogOnDialog dialog);
    void LogOff() { mapSess_.reset(); }
    bool ComposeMail(const std::string& name, const std::string& address, const std::string& text,
                     std::string_view subject);

    // What is sent, the busy flag being up.
    MailStatus Invite(const std::string& name, const InvitedFriends& friends);

    [[nodiscard]] std::optional<MailServer> KnownServer();
    [[nodiscard]] std::optional<std::string> KnownPassword(const MailAccount& account);
    [[nodiscard]] bool AskUntilKnown(std::optional<MailServer>& server);
    [[nodiscard]] bool Succeeds(const std::string& recipient);
    void Fail(const MailOutcome& outcome, const std::string& recipient);
    void SendToFriends(const std::string& name, const InvitedFriends& friends);

    Rooms rooms_;
    bool mailFailed_ = false;
    bool busy_ = false;
    bool brokenOff_ = false;
    bool askAgain_ = false; // signing on has failed with the account as it is
    std::string complaint_; // about the mail under way
    std::string invitationComplaint_;

    std::unique_ptr<MailSession> mapSess_; // nobody is signed on without it
    Letter mapMess_;
    std::string server_; // of the session
    std::string passwordName_;
    std::string password_;               // of that name, for this run
    std::optional<std::string> refused_; // the name for which the keyring has not been opened
};

} // namespace kestrova
