// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "diary/DiaryEvent.h"

namespace kestrova {

// What became of a mail. The numbers are the statuses of the mail window.
enum class MailStatus {
    Sent = 0,
    TryLater = 2 // not sent; to be tried again
};

// Reminders by mail, as the rest of the program uses them.
class ReminderMail {
public:
    virtual ~ReminderMail() = default;

    // Whether a mail has failed since the program started; none is tried after that.
    [[nodiscard]] virtual bool MailFailed() const = 0;

    // Sends the event's message to the address in its details. Handles events while it works.
    virtual MailStatus SendMail(const DiaryEvent& event) = 0;
};

} // namespace kestrova
