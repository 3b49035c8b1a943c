// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calendar/Selection.h"
#include "diary/DiaryStore.h"
#include "platform/Dialogs.h"
#include "settings/SettingsStore.h"

#include <string>

namespace kestrova {

// Keeps the diary's year in step with the clock's: rolls the diary over exactly once for each new
// year, at start-up or while the program runs, whatever crashes in between.
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

    // Sets the base year for a clock that shows this year. A clock that is behind the diary is
    // wrong: the user is told, and the diary keeps its year.
    void SetBaseYear(int clockYear);

    // At start-up, after the diary has been loaded: brings it forward from the year that the
    // settings hold when that lies behind, and finishes a roll-over that a crash has cut short.
    void YearUpdate();

    // The clock has reached another year while the program runs.
    void Turn(int year);

private:
    void BringForward(int from, int to);
    void Settle(int year);

    Rooms rooms_;
};

} // namespace kestrova
