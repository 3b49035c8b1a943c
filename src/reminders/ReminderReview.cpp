// SPDX-License-Identifier: GPL-3.0-or-later
#include "reminders/ReminderReview.h"

#include "language/ProgramTexts.h"
#include "phone/ModemScript.h"
#include "text/Numbers.h"

#include <algorithm>

namespace kestrova {

namespace {

constexpr std::chrono::seconds kAcknowledgeTime{20};
constexpr int kPauseBetweenCalls = 20; // seconds
constexpr int kDefaultRepeat = 15;
constexpr std::size_t kMediaFile = 1;                      // where Extra holds the path
constexpr std::array<std::size_t, 3> kNumbers = {1, 2, 3}; // where Extra holds the numbers

int RepeatPeriod(const std::string& text) {
    return ReadInt16(text).value_or(kDefaultRepeat);
}

// Whether a counter of examined reminders says that it is time again.
bool IsTurn(int count, const std::string& period) {
    return count == 0 || count > RepeatPeriod(period);
}

// The hour and minute as they are spoken: each after a blank.
std::string SpokenTime(const DiaryEvent& event) {
    return " " + std::to_string(event.Hour) + ": " + std::to_string(event.Minute);
}

// The slot of exactly this event; one whose reminder has changed since is another.
std::optional<int> FindExactly(const DiaryTable& table, const DayPlace& day,
                               const DiaryEvent& event) {
    for (int slot = 0; slot < kStoredSlots; ++slot) {
        if (table.At({slot, day}) == event) {
            return slot;
        }
    }
    return std::nullopt;
}

} // namespace

std::string ReminderLine(const DiaryEvent& event) {
    return EventTime(event) + "    " + event.Msg;
}

DayPlace ReminderReview::Today() const {
    return {rooms_.Dates.TodayDay, rooms_.Dates.TodayMonth, 0};
}

CalendarDate ReminderReview::TodaysDate() const {
    return {rooms_.Dates.BaseYear, rooms_.Dates.TodayMonth, rooms_.Dates.TodayDay};
}

std::vector<std::string> ReminderReview::Review(const WallTime& now, PassKind kind) {
    listed_.clear();
    // Yesterday's reminders do not come again, whatever the file says.
    std::erase_if(usedUp_, [this](const Known& used) { return used.Date < TodaysDate(); });
    // The diary may have been loaded anew before all marks could be written.
    ApplyMarks(rooms_.Store.Table());
    std::vector<DiaryEvent> events;
    events.reserve(kStoredSlots);
    for (int slot = 0; slot < kStoredSlots; ++slot) {
        events.push_back(rooms_.Store.Table().At({slot, Today()}));
    }
    const int minute = now.Hour * 60 + now.Minute;
    WakeSnoozed(minute);
    const std::string folder = rooms_.Store.Folder();
    for (const DiaryEvent& event : events) {
        if (ended_) {
            break; // what is due stays due for the next start
        }
        if (event.IsFree() || event.Key() > minute ||
            !FindExactly(rooms_.Store.Table(), Today(), event)) {
            continue;
        }
        // Clearing acknowledges what was on show, not what has fallen due since.
        const bool wasShown = std::find(shown_.begin(), shown_.end(),
                                        Known{folder, TodaysDate(), event}) != shown_.end();
        const bool fresh = kind == PassKind::Clearing && !wasShown;
        if (Deliver(event, fresh ? PassKind::Ordinary : kind) == Delivery::UsedUp) {
            MarkUsedUp(folder, event);
        }
    }
    return List();
}

// The lines for the window, without those that the user has sent away while a delivery waited.
std::vector<std::string> ReminderReview::List() {
    std::erase_if(listed_, [this](const Known& what) { return IsSnoozed(what); });
    shown_ = std::move(listed_);
    listed_.clear();
    std::vector<std::string> lines;
    lines.reserve(shown_.size());
    for (const Known& what : shown_) {
        lines.push_back(ReminderLine(what.Event));
    }
    return lines;
}

void ReminderReview::Snooze(const WallTime& now, int minutes) {
    constexpr int kLastMinute = 24 * 60 - 1;
    const int minute = now.Hour * 60 + now.Minute;
    const int begun = now.Second < 30 ? 0 : 1; // of the next minute, more is past than to come
    const int until = minute + begun + std::clamp(minutes, 1, kLongestSnooze);
    for (Known& what : shown_) {
        snoozed_.push_back({std::move(what), minute, std::min(until, kLastMinute)});
    }
    shown_.clear();
}

void ReminderReview::WakeSnoozed(int minute) {
    std::erase_if(snoozed_, [&](const Snoozed& snoozed) {
        return snoozed.What.Date != TodaysDate() || minute < snoozed.From ||
               minute >= snoozed.Until;
    });
}

bool ReminderReview::IsSnoozed(const Known& what) const {
    return std::any_of(snoozed_.begin(), snoozed_.end(),
                       [&](const Snoozed& snoozed) { return snoozed.What == what; });
}

void ReminderReview::MarkUsedUp(const std::string& folder, const DiaryEvent& event) {
    const std::string& none = ReminderCaption(rooms_.Texts, ReminderKind::None);
    if (event.Rmd == none) {
        return;
    }
    // While it was delivered, another diary may have been chosen.
    if (rooms_.Store.Folder() == folder) {
        const auto slot = FindExactly(rooms_.Store.Table(), Today(), event);
        if (!slot) {
            return;
        }
        rooms_.Store.Table().At({*slot, Today()}).Rmd = none;
    }
    usedUp_.push_back({folder, TodaysDate(), event});
}

bool ReminderReview::HasChanges() const {
    return std::any_of(usedUp_.begin(), usedUp_.end(),
                       [this](const Known& used) { return used.Folder == rooms_.Store.Folder(); });
}

void ReminderReview::ApplyMarks(DiaryTable& table) const {
    for (const Known& used : usedUp_) {
        const int year = used.Date.Year - rooms_.Dates.BaseYear;
        if (used.Folder != rooms_.Store.Folder() || year < 0 || year >= kDiaryYears) {
            continue;
        }
        const DayPlace day{used.Date.Day, used.Date.Month, year};
        if (const auto slot = FindExactly(table, day, used.Event)) {
            table.At({*slot, day}).Rmd = ReminderCaption(rooms_.Texts, ReminderKind::None);
        }
    }
}

ChangeResult ReminderReview::Save(SaveMessages messages) {
    const ChangeResult result = rooms_.Store.Change(
        [this](EventList& events) {
            ApplyMarks(events.Table());
            events.ReSortMsg(Today());
            return EditVerdict::Save;
        },
        messages);
    if (result == ChangeResult::Saved) {
        std::erase_if(usedUp_,
                      [this](const Known& used) { return used.Folder == rooms_.Store.Folder(); });
    }
    return result;
}

ReminderReview::Delivery ReminderReview::Deliver(const DiaryEvent& event, PassKind kind) {
    const auto reminder = ReminderKindOf(rooms_.Texts, event.Rmd);
    if (!reminder) {
        return Delivery::Pending;
    }
    switch (*reminder) {
    case ReminderKind::Screen: return Screen(event, kind);
    case ReminderKind::Speak: return Speak(event, kind);
    case ReminderKind::Phone: return Call(event, kind);
    case ReminderKind::Media:
        rooms_.Media.PlayReminder(event.Extra[kMediaFile]);
        return Delivery::UsedUp;
    case ReminderKind::Music: rooms_.Media.PlayCd(); return Delivery::UsedUp;
    case ReminderKind::Email:
        return rooms_.Mail.SendMail(event) == MailStatus::TryLater ? Delivery::Pending
                                                                   : Delivery::UsedUp;
    case ReminderKind::None: return Delivery::UsedUp;
    }
    return Delivery::Pending;
}

ReminderReview::Delivery ReminderReview::Screen(const DiaryEvent& event, PassKind kind) {
    if (kind != PassKind::Ordinary) {
        return Delivery::UsedUp;
    }
    if (Known what{rooms_.Store.Folder(), TodaysDate(), event}; !IsSnoozed(what)) {
        listed_.push_back(std::move(what));
    }
    return Delivery::Pending;
}

ReminderReview::Delivery ReminderReview::Speak(const DiaryEvent& event, PassKind kind) {
    if (kind == PassKind::FirstDraw) {
        return Delivery::UsedUp;
    }
    bool delivered = false;
    if (rooms_.Settings.SpeechEnabled != 0 &&
        IsTurn(speakRepeatCount_, rooms_.Settings.SpeakRepeat)) {
        delivered = Announce(event);
    }
    ++speakRepeatCount_;
    if (delivered) {
        speakRepeatCount_ = 0;
    }
    return delivered ? Delivery::UsedUp : Delivery::Pending;
}

// Speaks a reminder; true when the user has acknowledged it. Without a character there is nobody
// to acknowledge, so a beep has to do.
bool ReminderReview::Announce(const DiaryEvent& event) {
    Speaker& speech = rooms_.Speech;
    if (!speech.AgentLoaded()) {
        rooms_.Bell.Beep();
        return true;
    }
    const int clicks = speech.Clicks();
    speech.Show();
    for (const std::string& text :
         {TextOf(rooms_.Texts, ProgramText::ReminderService), event.Msg,
          TextOf(rooms_.Texts, ProgramText::SpokenAt), SpokenTime(event)}) {
        speech.Speak(text);
    }
    const bool acknowledged = rooms_.Loop.WaitUntil(
        [&] {
            if (speech.Clicks() != clicks) {
                return true;
            }
            if (!speech.IsVisible()) {
                speech.Show(); // other words have ended meanwhile, and taken it away
            }
            return false;
        },
        kAcknowledgeTime);
    if (speech.IsVisible()) {
        speech.Hide();
    }
    speech.SetStopSpeaking(false);
    return acknowledged;
}

ReminderReview::Delivery ReminderReview::Call(const DiaryEvent& event, PassKind kind) {
    if (kind == PassKind::FirstDraw) {
        return Delivery::UsedUp;
    }
    if (rooms_.Phone.Modem() != ModemState::On) {
        return Delivery::Pending;
    }
    bool done = false;
    if (IsTurn(phoneRepeatCount_, rooms_.Settings.PhoneRepeat)) {
        phoneRepeatCount_ = 0;
        done = CallNumbers(event);
    }
    ++phoneRepeatCount_;
    if (done) {
        phoneRepeatCount_ = 0;
    }
    return done ? Delivery::UsedUp : Delivery::Pending;
}

bool ReminderReview::CallNumbers(const DiaryEvent& event) {
    for (const std::size_t i : kNumbers) {
        const std::string& number = event.Extra[i];
        bool done = false;
        if (!number.empty()) {
            const bool is101 = rooms_.Settings.ModemName == kIs101Family;
            done = rooms_.Phone.SendMessage("ATD" + number + (is101 ? ";" : ""), event.Msg);
        }
        if (done || rooms_.Phone.WasStopped() || rooms_.Phone.Modem() != ModemState::On) {
            return done;
        }
        if (!number.empty() && i != kNumbers.back()) {
            rooms_.Phone.Delay(kPauseBetweenCalls);
        }
    }
    return false;
}

} // namespace kestrova
