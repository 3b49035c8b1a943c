// SPDX-License-Identifier: GPL-3.0-or-later
#include "reminders/ClockTick.h"

#include "reminders/Chimes.h"

namespace kestrova {

namespace {

constexpr int kSecondsBetweenLooks = 10;

WallTime MinuteOf(WallTime time) {
    time.Second = 0;
    return time;
}

// Sets a flag for as long as a pass runs, however it ends.
class PassGuard {
public:
    explicit PassGuard(bool& flag) : flag_(flag) { flag_ = true; }
    ~PassGuard() { flag_ = false; }
    PassGuard(const PassGuard&) = delete;
    PassGuard& operator=(const PassGuard&) = delete;

private:
    bool& flag_;
};

} // namespace

void ClockTick::Timer1_Timer() {
    rooms_.Windows.EmptyRunCheck();
    if (!begun_ || inPass_) {
        // A message is open during start-up, or a delivery waits. The minute that begins meanwhile
        // has its pass afterwards.
        return;
    }
    const WallTime now = rooms_.Time.Now();
    const bool newMinute = lastMinute_ && *lastMinute_ != MinuteOf(now);
    lastMinute_ = MinuteOf(now);
    if (newMinute) {
        minuteLatch_ = false;
    }
    // Two ticks fall into one second; the second look at a file is to come ten seconds later.
    if (now.Second % kSecondsBetweenLooks == 0 && lastLook_ != now) {
        lastLook_ = now;
        // Loading may show a message, during which no other tick is to do the same.
        const PassGuard guard(inPass_);
        LookAtFile();
    }
    if (rooms_.Windows.DayPageVisible()) {
        return;
    }
    const bool repeated = now.Second == 0 && minuteLatch_;
    if (IsPassDue(now, newMinute)) {
        {
            const PassGuard guard(inPass_);
            Pass(now, repeated);
        }
        TellTrouble();
    }
}

bool ClockTick::IsPassDue(const WallTime& now, bool newMinute) {
    if (now.Second != 0 && !forcePass_ && !newMinute) {
        minuteLatch_ = false;
        return false;
    }
    // What the user has cleared must not come back because the pass of this second has run.
    if (minuteLatch_ && !clearing_) {
        forcePass_ = false;
        return false;
    }
    minuteLatch_ = true;
    return true;
}

void ClockTick::DoTimer() {
    forcePass_ = true;
    Timer1_Timer();
}

void ClockTick::ClearReminders() {
    clearing_ = true;
    DoTimer();
}

void ClockTick::LookAtFile() {
    switch (rooms_.Store.Refresh()) {
    case DiaryNews::Same: break;
    case DiaryNews::Reloaded:
        rooms_.Windows.DiaryReloaded();
        rooms_.Windows.ShowMainWindow();
        break;
    case DiaryNews::FolderGone: rooms_.Windows.DiaryFolderGone(); break;
    }
}

void ClockTick::Pass(const WallTime& now, bool repeated) {
    if (!repeated) {
        Chime(now);
    }
    RefreshToday(now);
    const PassKind kind = firstDraw_  ? PassKind::FirstDraw
                          : clearing_ ? PassKind::Clearing
                                      : PassKind::Ordinary;
    clearing_ = false;
    // A clock that shows a year before the diary's is wrong, and today is not known.
    if (now.Year == rooms_.Dates.BaseYear) {
        const auto lines = rooms_.Review.Review(now, kind);
        if (!lines.empty()) {
            rooms_.Windows.ShowReminders(lines);
            rooms_.Bell.Beep();
        }
    }
    if (rooms_.Review.HasChanges() && !firstDraw_) {
        SaveUsedUp();
    }
    CountDownReturn();
    forcePass_ = clearing_; // asked for while this pass was waiting
}

void ClockTick::Chime(const WallTime& now) {
    const auto interval = ChimeIntervalOf(rooms_.Settings, rooms_.Texts);
    if (!interval || !ChimeDue(*interval, now.Minute)) {
        return;
    }
    const auto type = ChimeTypeOf(rooms_.Settings, rooms_.Texts);
    if (type == ChimeType::Speech) {
        rooms_.Speech.TellTime(TimeSentence(rooms_.Settings, now.Hour, now.Minute),
                               AfterSpeaking::Hide);
    } else if (type == ChimeType::Chime) {
        rooms_.Media.MakeSound(rooms_.Settings.ChimeSound);
    }
}

void ClockTick::RefreshToday(const WallTime& now) {
    Selection& dates = rooms_.Dates;
    if (now.Year < dates.BaseYear || (firstDraw_ && lastDay_ == dates.TodayDay)) {
        return;
    }
    const bool wasShown = dates.ShowsToday();
    const int month = dates.TodayMonth;
    const int day = dates.TodayDay;
    if (now.Year > dates.BaseYear) {
        rooms_.Windows.YearTurned(now.Year);
    }
    lastDay_ = dates.TodayDay;
    ReadToday(dates, now.Month, now.Day, DayMonthOrder::AsGiven);
    if (dates.TodayMonth != month || dates.TodayDay != day) {
        rooms_.Windows.TodayMoved(wasShown);
    }
}

// Only the user's own diary is written by the clock: a friend's is the friend's to keep.
void ClockTick::SaveUsedUp() {
    if (rooms_.Store.Folder() != rooms_.DataFolder) {
        return;
    }
    const ChangeResult result = rooms_.Review.Save(SaveMessages::Keep);
    if (result != ChangeResult::NotSaved) {
        trouble_ = Trouble::None;
    } else if (trouble_ == Trouble::None) {
        trouble_ = Trouble::New;
    }
}

// A save that failed is told once, after the pass: passes go on while the message is open.
void ClockTick::TellTrouble() {
    if (trouble_ == Trouble::New) {
        trouble_ = Trouble::Told;
        (void)rooms_.Review.Save(SaveMessages::Show);
    }
}

void ClockTick::CountDownReturn() {
    if (returnCountdown_ == 0) {
        return;
    }
    --returnCountdown_;
    if (returnCountdown_ == 1 && !rooms_.Media.ShowsVideo()) {
        rooms_.Windows.ReturnToToday();
    }
}

} // namespace kestrova
