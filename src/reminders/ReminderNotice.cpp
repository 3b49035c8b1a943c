// SPDX-License-Identifier: GPL-3.0-or-later
#include "reminders/ReminderNotice.h"

#include "language/ProgramTexts.h"
#include "language/Texts.h"

#include <algorithm>

namespace kestrova {

namespace {

constexpr const char* kDefault = "default";
constexpr const char* kShow = "show";
constexpr const char* kSnooze = "snooze";

} // namespace

ReminderNotice::ReminderNotice(Notifier& desktop, const StringTable& texts, Hooks hooks)
    : desktop_(desktop), texts_(texts), hooks_(std::move(hooks)) {
    desktop_.OnAction([this](const std::string& key) { Chosen(key); });
}

void ReminderNotice::Shown(const std::vector<std::string>& lines) {
    const bool news = std::any_of(lines.begin(), lines.end(), [this](const std::string& line) {
        return std::find(known_.begin(), known_.end(), line) == known_.end();
    });
    known_ = lines;
    if (!news) {
        return;
    }
    std::string body;
    for (const std::string& line : lines) {
        body += (body.empty() ? "" : "\n") + line;
    }
    const std::string show = TextOf(texts_, ProgramText::NoticeShow);
    desktop_.Show(
        {texts_.Text(texts::kMessengerTitle),
         body,
         {{kDefault, show},
          {kShow, show},
          {kSnooze, TextOf(texts_, ProgramText::NoticeSnooze, std::to_string(kUsualSnooze))}}});
}

void ReminderNotice::Done() {
    known_.clear();
    desktop_.Close();
}

void ReminderNotice::Chosen(const std::string& key) {
    if (key == kSnooze) {
        hooks_.Snooze(kUsualSnooze);
    } else if (key == kShow || key == kDefault) {
        hooks_.Show();
    }
}

} // namespace kestrova
