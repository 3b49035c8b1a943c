// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calendar/CalendarDate.h"
#include "diary/DiaryTable.h"
#include "settings/AppSettings.h"

#include <array>
#include <string>

namespace kestrova {

// Which of the settings' print styles is for what.
enum class PrintStyleRole { Header = 0, DayName = 1, Date = 2, Event = 3 };

// The month that a page is made of, borrowed for as long as one call lasts.
struct MonthSource {
    int Year = 2000;
    int Month = 0; // 0-11
    const AppSettings& Settings;
    const DiaryTable& Table;
    int BaseYear = 2000;                           // the table's year index 0
    std::array<std::string, kDaysOfWeek> DayNames; // by column, in the user's language
    std::string
        MonthCaption; // the month's name, two blanks and the year, as the main window has it

    [[nodiscard]] const PrintStyle& Style(PrintStyleRole role) const {
        return Settings.PrintStyles[static_cast<std::size_t>(role)];
    }
};

} // namespace kestrova
