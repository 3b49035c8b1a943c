// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "diary/ReminderDetails.h"
#include "mail/MailService.h"
#include "platform/Dialogs.h"

#include <functional>
#include <memory>
#include <string>

namespace kestrova {

class Email;
class MailLogOn;

// All that the program has to do with mail: the service, and its windows, which are made at their
// first use.
class MailDesk : private MailWindows {
public:
    struct Rooms {
        MailTransport& Transport;
        PasswordStore& Passwords;
        FileStore& Files;
        const Clock& Time;
        EventLoop& Loop;
        Dialogs& Boxes;
        const StringTable& Texts;
    };

    // `tell` is given what has failed, in a sentence, and must not wait for the user.
    MailDesk(const Rooms& rooms, std::string accountPath,
             std::function<void(const std::string& text)> tell);
    ~MailDesk() override;

    [[nodiscard]] ReminderMail& Reminders() { return service_; }
    [[nodiscard]] const ReminderMail& Reminders() const { return service_; }

    // Lets the user give the name and address of a mail reminder and, where there is no account
    // yet, the account; returns when the windows are closed.
    DetailsAnswer AskMailAddress(ReminderExtra& extra);

    // Opens the invitation to friends.
    void TellAFriend();

    // Lets the user change the account.
    void OpenAccount();

    void LoadCaptions();

private:
    MailPerson ShowReminder(const MailPerson& recipient) override;
    void HideReminder() override;
    void ShowSending(const std::string& address) override;
    void ShowSent(std::size_t friendNumber) override;
    void SetMailWindowMode(MailWindowMode mode) override;
    bool AskLogOn(const LogOnOffer& offer) override;
    [[nodiscard]] bool IsLogOnOpen() const override;
    void OfferLogOn(const LogOnOffer& offer) override;

    Email& MailWindow();
    MailLogOn& LogOnWindow();
    bool SendInvitation(const std::string& name, const InvitedFriends& friends);

    Rooms rooms_;
    MailAccountStore accounts_;
    MailService service_;
    std::unique_ptr<Email> email_;
    std::unique_ptr<MailLogOn> logOn_;
};

} // namespace kestrova
