// SPDX-License-Identifier: GPL-3.0-or-later
#include "calendar/CalendarDate.h"

#include <chrono>

namespace kestrova {

namespace {

namespace chrono = std::chrono;

chrono::sys_days DaysOf(const CalendarDate& date) {
    return chrono::year(date.Year) / chrono::month(static_cast<unsigned>(date.Month) + 1U) /
           chrono::day(static_cast<unsigned>(date.Day));
}

} // namespace

int NofDays(int year, int month) {
    if (month < 0 || month >= kMonths) {
        return 0;
    }
    const auto last =
        chrono::year(year) / chrono::month(static_cast<unsigned>(month) + 1U) / chrono::last;
    return static_cast<int>(static_cast<unsigned>(last.day()));
}

int WeekdayOf(const CalendarDate& date) {
    return static_cast<int>(chrono::weekday(DaysOf(date)).iso_encoding());
}

int GetStartDay(int year, int month, WeekStart weekStart) {
    return ColumnOfWeekday(WeekdayOf({year, month, 1}), weekStart) + 1;
}

int WeekdayOfColumn(int column, WeekStart weekStart) {
    const int shift = static_cast<int>(weekStart);
    return (column - shift + kDaysOfWeek) % kDaysOfWeek + 1;
}

int ColumnOfWeekday(int weekday, WeekStart weekStart) {
    return (weekday - 1 + static_cast<int>(weekStart)) % kDaysOfWeek;
}

CalendarDate AddDays(const CalendarDate& date, int days) {
    const chrono::year_month_day moved(DaysOf(date) + chrono::days(days));
    return {static_cast<int>(moved.year()),
            static_cast<int>(static_cast<unsigned>(moved.month())) - 1,
            static_cast<int>(static_cast<unsigned>(moved.day()))};
}

} // namespace kestrova
