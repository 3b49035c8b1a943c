// SPDX-License-Identifier: GPL-3.0-or-later
#include "calendar/Selection.h"

#include <gtest/gtest.h>

namespace kestrova {
namespace {

TEST(SelectionTest, TodayIsReadAsGivenOrExchanged) {
    struct Row {
        const char* Name;
        int Month;
        int Day;
        DayMonthOrder Order;
        int TodayMonth;
        int TodayDay;
    };
    const Row rows[] = {
        {"as given", 10, 3, DayMonthOrder::AsGiven, 10, 3},
        {"as given, late in the month", 1, 28, DayMonthOrder::AsGiven, 1, 28},
        {"11 March is meant as 3 November", 2, 11, DayMonthOrder::Swapped, 10, 3},
        {"12 January is meant as 1 December", 0, 12, DayMonthOrder::Swapped, 11, 1},
        {"5 May both ways", 4, 5, DayMonthOrder::Swapped, 4, 5},
        {"13 November cannot be meant otherwise", 10, 13, DayMonthOrder::Swapped, 10, 13},
        {"31 December cannot be meant otherwise", 11, 31, DayMonthOrder::Swapped, 11, 31},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.Name);
        Selection dates;
        ReadToday(dates, row.Month, row.Day, row.Order);
        EXPECT_EQ(dates.TodayMonth, row.TodayMonth);
        EXPECT_EQ(dates.TodayDay, row.TodayDay);
    }
}

TEST(SelectionTest, TheDiaryReachesThisYearAndTheNext) {
    Selection dates;
    dates.BaseYear = 2026;
    for (const auto& [year, index] : {std::pair<int, std::optional<int>>{2025, std::nullopt},
                                      {2026, 0},
                                      {2027, 1},
                                      {2028, std::nullopt},
                                      {-2026, std::nullopt}}) {
        SCOPED_TRACE(year);
        dates.PageYear = year;
        EXPECT_EQ(dates.PageYearIndex(), index);
    }
}

TEST(SelectionTest, TodayIsShownOnlyInItsOwnMonthAndYear) {
    Selection dates{.BaseYear = 2026, .PageYear = 2026, .PageMonth = 10, .TodayMonth = 10};
    EXPECT_TRUE(dates.ShowsToday());
    dates.PageYear = 2027;
    EXPECT_FALSE(dates.ShowsToday());
    dates = {.BaseYear = 2026, .PageYear = 2026, .PageMonth = 9, .TodayMonth = 10};
    EXPECT_FALSE(dates.ShowsToday());
}

} // namespace
} // namespace kestrova
