// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calendar/CalendarDate.h"

#include <optional>

namespace kestrova {

// The date on show and the date of today: one instance, shared by all who need it.
struct Selection {
    int BaseYear = 2000; // the current year; year index 0 of the diary
    int PageYear = 2000; // the month on show
    int PageMonth = 0;   // 0-11
    int PageDay = 1;     // the day of the day page, and the keyboard's day in the grid
    int TodayMonth = 0;  // today, as the clock's last pass saw it
    int TodayDay = 1;

    [[nodiscard]] CalendarDate Page() const { return {PageYear, PageMonth, PageDay}; }

    // Whether the month on show is the one that today belongs to.
    [[nodiscard]] bool ShowsToday() const {
        return PageMonth == TodayMonth && PageYear == BaseYear;
    }

    // The diary's year index of the year on show: 0 or 1, or nothing when the diary does not reach
    // that far.
    [[nodiscard]] std::optional<int> PageYearIndex() const {
        const int index = PageYear - BaseYear;
        return index == 0 || index == 1 ? std::optional(index) : std::nullopt;
    }
};

// Day and month of today as the clock gives them, or exchanged for a user whose clock confuses the
// two. A month that the exchange puts outside the year is exchanged back.
enum class DayMonthOrder { AsGiven, Swapped };
void ReadToday(Selection& selection, int month, int day, DayMonthOrder order);

} // namespace kestrova
