// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calendar/CalendarDate.h"

#include <optional>
#include <vector>

namespace kestrova {

inline constexpr int kSheetRows = 6;

// Where a day stands on the sheet of a month.
struct SheetCell {
    int Day = 1;
    int Row = 0;    // 0-5 from the top
    int Column = 0; // 0-6 from the left
};

// The days of a month, first to last, each with its cell in the grid of six rows of seven.
[[nodiscard]] std::vector<SheetCell> MonthSheet(int year, int month, WeekStart weekStart);

// The day reached from `date` by so many days, or nothing when it lies outside the years shown.
[[nodiscard]] std::optional<CalendarDate> StepDays(const CalendarDate& date, int days);

// The same day so many months away, or the month's last when it has no such day; nothing when it
// lies outside the years shown.
[[nodiscard]] std::optional<CalendarDate> StepMonths(const CalendarDate& date, int months);

} // namespace kestrova
