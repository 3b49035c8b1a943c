// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calendar/Selection.h"
#include "diary/DiaryStore.h"
#include "platform/Dialogs.h"
#include "settings/SettingsStore.h"

#include <string>

namespace kestrova {

// Keeps the diary's year in step with the clock's: rolls the diary over exactly once for each new
// year, at start-up or while the program runs, whatever crashes in between, and
// however many programs use the diary.
class YearTurn {
public:
    struct Rooms {
        DiaryStore& Store;
        SettingsStore& SettingsFile;
        AppSettings& Settings;
        Selection& Dates;
        Dialogs& Boxes;
        const StringTable& Texts;
        const std::string& DataFolder;
    };

    explicit YearTurn(const Rooms& rooms) : rooms_(rooms) {}

    // The base year is that of the clock.
    void SetBaseYear(int clockYear) { rooms_.Dates.BaseYear = clockYear; }

    // At start-up, after the diary has been loaded: brings it forward from the year that the
    // settings hold when that lies behind. The year of the last roll-over stands beside the diary
    // too, so one that a crash has parted from the settings is not done again. A diary that cannot
    // be brought forward now keeps its year. So does one that is ahead of the clock, unless the
    // user says that the clock is right.
    void YearUpdate();

    // The clock has reached another year while the program runs. Tried in silence: while the diary
    // cannot be saved, the base year stays what it is, and the next pass tries again.
    void Turn(int year);

private:
    [[nodiscard]] bool BringForward(int from, int to, SaveMessages messages);
    void Settle(int year);
    void SettleWithClockBehind(int dataYear, int clockYear);

    Rooms rooms_;
};

} // namespace kestrova
