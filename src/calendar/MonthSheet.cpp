// SPDX-License-Identifier: GPL-3.0-or-later
#include "calendar/MonthSheet.h"

#include <algorithm>

namespace kestrova {

namespace {

bool IsShown(int year) {
    return year >= kFirstYear && year <= kLastYear;
}

} // namespace

std::vector<SheetCell> MonthSheet(int year, int month, WeekStart weekStart) {
    const int start = GetStartDay(year, month, weekStart) - 1;
    std::vector<SheetCell> cells;
    for (int day = 1; day <= NofDays(year, month); ++day) {
        const int cell = start + day - 1;
        cells.push_back({day, cell / kDaysOfWeek, cell % kDaysOfWeek});
    }
    return cells;
}

std::optional<CalendarDate> StepDays(const CalendarDate& date, int days) {
    const CalendarDate moved = AddDays(date, days);
    return IsShown(moved.Year) ? std::optional(moved) : std::nullopt;
}

std::optional<CalendarDate> StepMonths(const CalendarDate& date, int months) {
    const int count = date.Year * kMonths + date.Month + months;
    const int month = ((count % kMonths) + kMonths) % kMonths;
    const int year = (count - month) / kMonths;
    if (!IsShown(year)) {
        return std::nullopt;
    }
    return CalendarDate{year, month, std::min(date.Day, NofDays(year, month))};
}

} // namespace kestrova
