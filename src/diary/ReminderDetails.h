// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "settings/ModemState.h"

#include <array>
#include <string>

namespace kestrova {

// The details of a reminder as they are gathered while an event is edited (RmdExtra); saving the
// event copies them into its Extra.
using ReminderExtra = std::array<std::string, 4>;

// What has become of asking the user for the details of a reminder.
enum class DetailsAnswer {
    Given,
    SwitchedOff, // the user does without this reminder
    NotNow       // nobody could be asked, of which the user has been told
};

// What the event editor asks of those who deliver reminders, without knowing them.
class ReminderDetails {
public:
    virtual ~ReminderDetails() = default;

    [[nodiscard]] virtual ModemState Modem() const = 0;
    [[nodiscard]] virtual bool MailWorks() const = 0;
    [[nodiscard]] virtual bool SoundWorks() const = 0;
    [[nodiscard]] virtual bool VideoWorks() const = 0;
    [[nodiscard]] virtual bool CdWorks() const = 0;

    // Lets the user give telephone numbers or a mail address; returns when that window is closed.
    virtual DetailsAnswer AskPhoneNumbers(ReminderExtra& extra) = 0;
    virtual DetailsAnswer AskMailAddress(ReminderExtra& extra) = 0;

    // Plays a wave file once.
    virtual void Preview(const std::string& path) = 0;
};

} // namespace kestrova
