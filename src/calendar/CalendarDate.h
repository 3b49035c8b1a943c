// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <compare>

namespace kestrova {

inline constexpr int kMonths = 12;
inline constexpr int kDaysOfWeek = 7;
inline constexpr int kMaxDays = 31;

// The years that the calendar shows.
inline constexpr int kFirstYear = -31999;
inline constexpr int kLastYear = 32000;

// A day of the Gregorian calendar, carried on into the past without a break.
struct CalendarDate {
    int Year = 2000;
    int Month = 0; // 0 = January ... 11 = December
    int Day = 1;   // 1-31

    // clang-tidy 14 takes the zero in what the compiler makes of this for a pointer.
    auto operator<=>(const CalendarDate&) const = default; // NOLINT(modernize-use-nullptr)
};

// The day with which a week begins. The numbers stand in the settings file.
enum class WeekStart { Monday = 0, Sunday = 1, Saturday = 2 };

// Days in the month, 28-31; 0 for a month outside 0-11.
[[nodiscard]] int NofDays(int year, int month);

// Weekday of a date: 1 = Monday ... 7 = Sunday.
[[nodiscard]] int WeekdayOf(const CalendarDate& date);

// The column, 1-7, in which day 1 of the month stands in a grid whose first column is the week's
// first day.
[[nodiscard]] int GetStartDay(int year, int month, WeekStart weekStart);

// The weekday, 1 = Monday ... 7 = Sunday, that stands in a grid column 0-6, and the reverse.
[[nodiscard]] int WeekdayOfColumn(int column, WeekStart weekStart);
[[nodiscard]] int ColumnOfWeekday(int weekday, WeekStart weekStart);

// The date so many days later, or earlier for a negative number.
[[nodiscard]] CalendarDate AddDays(const CalendarDate& date, int days);

} // namespace kestrova
