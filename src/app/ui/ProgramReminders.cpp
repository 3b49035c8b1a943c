// SPDX-License-Identifier: GPL-3.0-or-later
// The reminder window and the notification beside it.
#include "app/ui/Program.h"

namespace kestrova {

void Program::ShowReminders(const std::vector<std::string>& lines) {
    if (!screenReminder_) {
        screenReminder_ = std::make_unique<ScreenReminder>(
            texts_, ScreenReminder::Hooks{[this] { ClearReminders(); },
                                          [this](int minutes) { SnoozeReminders(minutes); }});
    }
    screenReminder_->ShowLines(lines);
    reminderNotice_.Shown(lines);
}

// The pass may bring up at once what has fallen due since.
void Program::ClearReminders() {
    reminderNotice_.Done();
    tick_.ClearReminders();
}

void Program::SnoozeReminders(int minutes) {
    reminderNotice_.Done();
    tick_.SnoozeReminders(minutes);
}

} // namespace kestrova
