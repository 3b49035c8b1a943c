// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "mail/ReminderMail.h"

namespace kestrova {

// The mail of a program that cannot send any.
class UnavailableMail : public ReminderMail {
public:
    [[nodiscard]] bool MailFailed() const override { return true; }
    MailStatus SendMail(const DiaryEvent& /*event*/) override { return MailStatus::TryLater; }
};

} // namespace kestrova
