// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "language/StringTable.h"
#include "platform/Notifier.h"

#include <functional>
#include <string>
#include <vector>

namespace kestrova {

// For how long reminders are sent away by those who do not say.
inline constexpr int kUsualSnooze = 10; // minutes

// The desktop's notification beside the reminder window, for a user who looks elsewhere. The window
// comes again each minute; the notification only when there is something new in it.
class ReminderNotice {
public:
    struct Hooks {
        std::function<void()> Show; // the reminder window is to come to the front
        std::function<void(int minutes)> Snooze;
    };

    ReminderNotice(Notifier& desktop, const StringTable& texts, Hooks hooks);

    // The reminder window shows these lines.
    void Shown(const std::vector<std::string>& lines);

    // The user has cleared the lines or sent them away: when they come again, they are new.
    void Done();

    // The window has made room for another; its lines are known to the user.
    void Withdraw() { desktop_.Close(); }

private:
    void Chosen(const std::string& key);

    Notifier& desktop_;
    const StringTable& texts_;
    Hooks hooks_;
    std::vector<std::string> known_; // the lines that the user has been told of
};

} // namespace kestrova
