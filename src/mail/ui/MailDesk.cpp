// SPDX-License-Identifier: GPL-3.0-or-later
#include "mail/ui/MailDesk.h"

#include "language/ProgramTexts.h"
#include "language/Texts.h"
#include "mail/ui/Email.h"
#include "mail/ui/MailLogOn.h"
#include "platform/qt/QtText.h"

namespace kestrova {

MailDesk::MailDesk(const Rooms& rooms, std::string accountPath,
                   std::function<void(const std::string& text)> tell)
    : rooms_(rooms), accounts_(rooms.Files, rooms.Time, std::move(accountPath)),
      service_({rooms.Transport, rooms.Passwords, accounts_, rooms.Loop, *this, rooms.Texts,
                std::move(tell)}) {}

MailDesk::~MailDesk() = default;

Email& MailDesk::MailWindow() {
    if (!email_) {
        email_ = std::make_unique<Email>(
            rooms_.Texts, rooms_.Boxes,
            Email::Hooks{[this](const std::string& name, const InvitedFriends& friends) {
                             return SendInvitation(name, friends);
                         },
                         [this] { service_.BreakOff(); }, [this] { OpenAccount(); }});
    }
    return *email_;
}

MailLogOn& MailDesk::LogOnWindow() {
    if (!logOn_) {
        logOn_ = std::make_unique<MailLogOn>(
            rooms_.Texts, rooms_.Boxes,
            MailLogOn::Hooks{[this](const MailAccount& account, const std::string& password) {
                                 return service_.TakeAccount(account, password);
                             },
                             [this] { service_.LogOnCancelled(); }});
    }
    return *logOn_;
}

void MailDesk::LoadCaptions() {
    if (email_) {
        email_->LoadCaptions();
    }
    if (logOn_) {
        logOn_->LoadCaptions();
    }
}

DetailsAnswer MailDesk::AskMailAddress(ReminderExtra& extra) {
    const DetailsAnswer answer = MailWindow().AskDetails(extra);
    if (answer == DetailsAnswer::Given && !service_.HasAccount()) {
        // Now somebody is there who knows it. Who does not care yet is asked again in time.
        (void)AskLogOn(service_.Offer());
    }
    return answer;
}

void MailDesk::TellAFriend() {
    const auto account = accounts_.Load();
    MailWindow().OpenInvitation(account ? account->Sender.Name : std::string());
}

void MailDesk::OpenAccount() {
    (void)AskLogOn(service_.Offer());
}

bool MailDesk::SendInvitation(const std::string& name, const InvitedFriends& friends) {
    const bool sent = service_.SendInvitation(name, friends) == MailStatus::Sent;
    const std::string text =
        sent ? TextOf(rooms_.Texts, ProgramText::MailInvitationSent) : service_.Complaint();
    if (!text.empty()) {
        rooms_.Boxes.Show({rooms_.Texts.Text(texts::kMessengerTitle), text,
                           sent ? DialogIcon::None : DialogIcon::Critical});
    }
    return sent;
}

// A reminder's trouble is shown in a box of its own: a clock pass that waited for an answer would
// give no other reminder.
MailPerson MailDesk::ShowReminder(const MailPerson& recipient) {
    return MailWindow().ShowReminder(recipient);
}

void MailDesk::HideReminder() {
    MailWindow().HideReminder();
}

void MailDesk::ShowSending(const std::string& address) {
    MailWindow().ShowSending(address);
}

void MailDesk::ShowSent(std::size_t friendNumber) {
    MailWindow().ShowSent(friendNumber);
}

void MailDesk::SetMailWindowMode(MailWindowMode mode) {
    MailWindow().SetMailWindowMode(mode);
}

bool MailDesk::AskLogOn(const LogOnOffer& offer) {
    return LogOnWindow().Ask(offer);
}

bool MailDesk::IsLogOnOpen() const {
    return logOn_ && logOn_->isVisible();
}

void MailDesk::OfferLogOn(const LogOnOffer& offer) {
    LogOnWindow().ShowOffer(offer);
}

} // namespace kestrova
