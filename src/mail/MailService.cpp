// SPDX-License-Identifier: GPL-3.0-or-later
#include "mail/MailService.h"

#include "mail/MailTexts.h"
#include "text/Numbers.h"

#include <utility>

namespace kestrova {

namespace {

constexpr std::chrono::seconds kShowReminder{10};
// Longer than any transport takes: who has no outcome by then is being ended.
constexpr std::chrono::minutes kLongest{10};
constexpr std::size_t kName = 1; // where Extra holds the name and the address
constexpr std::size_t kAddress = 2;

// Holds a flag up, wherever the function is left.
class Raised {
public:
    explicit Raised(bool& flag) : flag_(flag) { flag_ = true; }
    ~Raised() { flag_ = false; }
    Raised(const Raised&) = delete;
    Raised& operator=(const Raised&) = delete;
    Raised(Raised&&) = delete;
    Raised& operator=(Raised&&) = delete;

private:
    bool& flag_;
};

// Whether it is the account that has to be looked at, not the letter.
bool IsSignOnTrouble(MailTrouble trouble) {
    return trouble != MailTrouble::Recipient && trouble != MailTrouble::Refused;
}

} // namespace

// The session and message objects. What makes them is loaded now, and may not be there.
void MailService::MailIni() {
    complaint_.clear();
    brokenOff_ = false;
    mapSess_.reset();
    mapMess_ = {};
    if (!rooms_.Transport.IsThere()) {
        Fail({MailTrouble::NoLibrary, {}}, {});
    }
}

std::optional<std::string> MailService::KnownPassword(const MailAccount& account) {
    const std::string name = PasswordName(account);
    if (name == passwordName_) {
        return password_;
    }
    if (name == refused_) {
        return std::nullopt;
    }
    const auto kept = rooms_.Passwords.Read(name);
    if (!kept && kept.Failure().Code == ErrorCode::Failed) {
        refused_ = name;
    }
    if (!kept || kept.Value().empty()) {
        return std::nullopt;
    }
    passwordName_ = name;
    password_ = kept.Value();
    return password_;
}

// Nothing when the account or its password is not known.
std::optional<MailServer> MailService::KnownServer() {
    const auto account = rooms_.Accounts.Load();
    if (!account) {
        return std::nullopt;
    }
    const auto password = account->User.empty() ? std::string() : KnownPassword(*account);
    if (!password) {
        return std::nullopt;
    }
    mapMess_.From = account->Sender;
    return MailServer{account->Server, account->Port, account->Security, account->User, *password};
}

LogOnOffer MailService::Offer() {
    const auto account = rooms_.Accounts.Load();
    if (!account) {
        return {};
    }
    return {*account, !account->User.empty() && KnownPassword(*account).has_value()};
}

Status MailService::TakeAccount(const MailAccount& account, const std::string& password) {
    const Status saved = rooms_.Accounts.Save(account);
    if (!saved) {
        return saved;
    }
    askAgain_ = false;
    if (!password.empty()) {
        passwordName_ = PasswordName(account);
        password_ = password;
        if (!rooms_.Passwords.Write(passwordName_, password)) {
            rooms_.Tell(TextOf(rooms_.Texts, ProgramText::MailKeyringMissing));
        }
    }
    return Done{};
}

void MailService::LogOnCancelled() {
    if (!std::exchange(mailFailed_, true)) {
        rooms_.Tell(TextOf(rooms_.Texts, ProgramText::MailRemindersWait));
    }
}

// Shows the dialog until there is an account; false when the user has had enough.
bool MailService::AskUntilKnown(std::optional<MailServer>& server) {
    while (askAgain_ || !server) {
        if (!rooms_.Windows.AskLogOn(Offer())) {
            brokenOff_ = true;
            return false;
        }
        server = KnownServer();
    }
    return true;
}

void MailService::LogOn(bool& loggedOn, LogOnDialog dialog) {
    if (mapSess_) {
        loggedOn = true;
        return;
    }
    auto server = KnownServer();
    if (!server && dialog == LogOnDialog::LeaveOpen) {
        if (!rooms_.Windows.IsLogOnOpen()) {
            rooms_.Windows.OfferLogOn(Offer());
        }
        return;
    }
    if (dialog == LogOnDialog::Wait && !AskUntilKnown(server)) {
        return;
    }
    server_ = server->Host;
    mapSess_ = rooms_.Transport.SignOn(*server);
    loggedOn = Succeeds({});
}

// Waits for what is under way. What has no outcome has been broken off, by the user or by the end
// of the program, which is no failure.
bool MailService::Succeeds(const std::string& recipient) {
    std::optional<MailOutcome> outcome;
    rooms_.Loop.WaitUntil(
        [&] {
            outcome = mapSess_->Outcome();
            return outcome.has_value() || brokenOff_;
        },
        kLongest);
    if (outcome && outcome->Trouble == MailTrouble::None) {
        return true;
    }
    if (outcome) {
        Fail(*outcome, recipient);
    }
    brokenOff_ = brokenOff_ || !outcome;
    // A friend whom the server does not know leaves the session as it is.
    if (!outcome || outcome->Trouble != MailTrouble::Recipient) {
        mapSess_.reset();
    }
    return false;
}

void MailService::Fail(const MailOutcome& outcome, const std::string& recipient) {
    mailFailed_ = true;
    askAgain_ = askAgain_ || IsSignOnTrouble(outcome.Trouble);
    complaint_ = MailComplaint(rooms_.Texts, outcome, server_, recipient);
}

bool MailService::ComposeMail(const std::string& name, const std::string& address,
                              const std::string& text, std::string_view subject) {
    mapMess_ = {mapMess_.From, {name, std::string(Trim(address))}, std::string(subject), text};
    if (!IsMailAddress(mapMess_.To.Address)) {
        Fail({MailTrouble::Recipient, {}}, address);
        return false;
    }
    mapSess_->Send({mapMess_.From.Address, mapMess_.To.Address, WriteLetter(mapMess_)});
    return Succeeds(mapMess_.To.Address);
}

MailStatus MailService::SendMail(const DiaryEvent& event) {
    if (mailFailed_ || busy_) {
        return MailStatus::TryLater;
    }
    const Raised busy(busy_);
    bool loggedOn = false;
    MailIni();
    if (!mailFailed_) {
        LogOn(loggedOn, LogOnDialog::LeaveOpen);
    }
    bool sent = false;
    if (loggedOn) {
        const MailPerson to =
            rooms_.Windows.ShowReminder({event.Extra[kName], event.Extra[kAddress]});
        sent = ComposeMail(to.Name, to.Address, event.Msg, kReminderSubject);
        rooms_.Loop.WaitUntil([] { return false; }, kShowReminder);
        rooms_.Windows.HideReminder();
    }
    LogOff();
    if (!complaint_.empty()) {
        rooms_.Tell(complaint_ + "\n\n" + TextOf(rooms_.Texts, ProgramText::MailRemindersWait));
    }
    return sent ? MailStatus::Sent : MailStatus::TryLater;
}

void MailService::SendToFriends(const std::string& name, const InvitedFriends& friends) {
    const std::string text = InvitationText(name);
    for (std::size_t i = 0; i < friends.size() && mapSess_; ++i) {
        if (friends[i].empty()) {
            continue;
        }
        rooms_.Windows.ShowSending(friends[i]);
        if (ComposeMail(name, friends[i], text, kInvitationSubject)) {
            rooms_.Windows.ShowSent(i);
        }
    }
}

MailStatus MailService::SendInvitation(const std::string& name, const InvitedFriends& friends) {
    if (busy_) {
        invitationComplaint_ = TextOf(rooms_.Texts, ProgramText::MailBusy);
        return MailStatus::TryLater;
    }
    const Raised busy(busy_);
    const MailStatus status = Invite(name, friends);
    invitationComplaint_ = complaint_;
    return status;
}

MailStatus MailService::Invite(const std::string& name, const InvitedFriends& friends) {
    const bool failedBefore = mailFailed_;
    bool loggedOn = false;
    MailIni();
    if (complaint_.empty()) {
        LogOn(loggedOn, LogOnDialog::Wait);
    }
    if (loggedOn) {
        SendToFriends(name, friends);
        rooms_.Windows.SetMailWindowMode(MailWindowMode::Invited);
    }
    LogOff();
    if (mailFailed_ && !failedBefore) {
        complaint_ += "\n\n" + TextOf(rooms_.Texts, ProgramText::MailRemindersWait);
    }
    return complaint_.empty() && !brokenOff_ ? MailStatus::Sent : MailStatus::TryLater;
}

} // namespace kestrova
