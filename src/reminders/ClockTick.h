// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "reminders/ReminderReview.h"

#include <optional>
#include <string>
#include <vector>

namespace kestrova {

// What the clock asks of the windows.
class ClockWindows {
public:
    virtual ~ClockWindows() = default;

    // Empties the single-instance item, so that the next poke is a change again.
    virtual void EmptyRunCheck() = 0;

    [[nodiscard]] virtual bool DayPageVisible() const = 0;
    virtual void ShowMainWindow() = 0;

    // The diary in memory is another than before: what shows it must be drawn anew.
    virtual void DiaryReloaded() = 0;

    // The folder of the diary shown cannot be reached: the list of diaries is to be made anew.
    virtual void DiaryFolderGone() = 0;

    // Shows these lines in the reminder window.
    virtual void ShowReminders(const std::vector<std::string>& lines) = 0;

    // Another day has begun: its mark is to move. `wasShown` tells whether the month on show was
    // the current one, in which case it follows.
    virtual void TodayMoved(bool wasShown) = 0;

    // Another year has begun while the program runs: the diary is to be brought forward to it.
    virtual void YearTurned(int year) = 0;

    // Brings back the month of today.
    virtual void ReturnToToday() = 0;
};

// The timer's handler: every 500 ms a tick, once a minute a pass that chimes, keeps today current
// and delivers reminders.
class ClockTick {
public:
    struct Rooms {
        const Clock& Time;
        DiaryStore& Store;
        Selection& Dates;
        const StringTable& Texts;
        const AppSettings& Settings;
        const std::string& DataFolder;
        ReminderReview& Review;
        Speaker& Speech;
        MediaPanel& Media;
        Beeper& Bell;
        ClockWindows& Windows;
    };

    explicit ClockTick(const Rooms& rooms) : rooms_(rooms) {}

    // One tick. A pass runs in the second in which a minute begins, or as soon as possible when
    // that second was missed (the machine slept, the clock was set).
    void Timer1_Timer();

    // Start-up has come to its end: from now on a tick does more than empty the item.
    void Begin() { begun_ = true; }

    // Asks for a pass now, whatever the second.
    void DoTimer();

    // A pass by which the reminders on show become delivered.
    void ClearReminders();

    // The reminders on show are to come back in so many minutes.
    void SnoozeReminders(int minutes) { rooms_.Review.Snooze(rooms_.Time.Now(), minutes); }

    // The main window has not yet been drawn for the first time: reminders are not delivered.
    void SetFirstDraw(bool first) { firstDraw_ = first; }

    // Minutes until the grid returns to the current month, plus one; 0 for never.
    void SetReturnCountdown(int minutes) { returnCountdown_ = minutes; }

private:
    // What the user knows of saves that fail.
    enum class Trouble { None, New, Told };

    void LookAtFile();
    bool IsPassDue(const WallTime& now, bool newMinute);
    void Pass(const WallTime& now, bool repeated);
    void Chime(const WallTime& now);
    void RefreshToday(const WallTime& now);
    void SaveUsedUp();
    void TellTrouble();
    void CountDownReturn();

    Rooms rooms_;
    bool begun_ = false;
    bool minuteLatch_ = false; // MinuteLatch
    bool forcePass_ = false;   // ForcePass
    bool inPass_ = false;
    bool clearing_ = false; // ClearingReminders
    bool firstDraw_ = false;
    Trouble trouble_ = Trouble::None;
    int returnCountdown_ = 0;            // ReturnCountdown
    std::optional<int> lastDay_;         // LastDay
    std::optional<WallTime> lastLook_;   // at the diary's file
    std::optional<WallTime> lastMinute_; // of the last tick, seconds left out
};

} // namespace kestrova
