// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calendar/CalendarDate.h"
#include "diary/DiaryTable.h"
#include "language/StringTable.h"

#include <array>
#include <optional>
#include <string>

namespace kestrova {

// A row of the day page; all empty for a free slot.
struct DayRow {
    std::string Time;
    std::string Message;
    std::string Repeat;
    std::string Reminder;
    bool Hidden = false;

    [[nodiscard]] bool IsFree() const { return Message.empty(); }
};

// The rows of a day, slot 1 first.
[[nodiscard]] std::array<DayRow, kEventsPerDay> DayRows(const DiaryTable& table,
                                                        const DayPlace& day);

// The date in words: weekday, day, month, year, parted by two blanks; the month name as the string
// table has it.
[[nodiscard]] std::string DayHeading(const StringTable& table, const CalendarDate& date);

// The message that marks a day on the month grid: that of its first event that is not hidden.
// Nothing when the day is not marked.
[[nodiscard]] std::optional<std::string> DayMark(const DiaryTable& table, const DayPlace& day);

} // namespace kestrova
