// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "mail/MailAccount.h"

#include <cstddef>
#include <string>

namespace kestrova {

// How the `Email` window closes. The numbers are those of the shared flag of this name.
enum class MailWindowMode {
    Details = 0,   // checks both boxes and keeps the details of the reminder
    Unchecked = 1, // just closes
    Invited = 2    // as the first: so the window is left by an invitation
};

// What the log-on dialog begins with.
struct LogOnOffer {
    MailAccount Account;
    bool PasswordKnown = false; // an empty password box leaves the password as it is
};

// The windows of the mail, as the service behind them uses them.
class MailWindows {
public:
    virtual ~MailWindows() = default;

    // Shows a reminder's recipient in the `Email` window and gives back what its boxes then hold.
    // While the user is at that window, it is left to them, and the recipient comes back as given.
    virtual MailPerson ShowReminder(const MailPerson& recipient) = 0;
    virtual void HideReminder() = 0;

    // The invitation to one friend is being sent, or has been.
    virtual void ShowSending(const std::string& address) = 0;
    virtual void ShowSent(std::size_t friendNumber) = 0;
    virtual void SetMailWindowMode(MailWindowMode mode) = 0;

    // Shows the log-on dialog, which hands what the user types to `MailService::TakeAccount`, and
    // handles events until it is closed. False when the user has cancelled.
    virtual bool AskLogOn(const LogOnOffer& offer) = 0;

    [[nodiscard]] virtual bool IsLogOnOpen() const = 0;

    // Shows it without waiting and without taking the keyboard: perhaps nobody is there. Nothing
    // happens when it is open already. Cancelling tells `MailService::LogOnCancelled`.
    virtual void OfferLogOn(const LogOnOffer& offer) = 0;
};

} // namespace kestrova
