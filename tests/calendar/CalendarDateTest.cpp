// SPDX-License-Identifier: GPL-3.0-or-later
#include "calendar/CalendarDate.h"

#include <gtest/gtest.h>

namespace kestrova {
namespace {

// The calendar once more, as one would do it by hand: count days from month to month.
bool IsLeap(int year) {
    return (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
}

int DaysByHand(int year, int month) {
    constexpr int kDays[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    return kDays[month] + (month == 1 && IsLeap(year) ? 1 : 0);
}

// Weekday index, 0 = Monday, of 1 January of the first year: counted back from 1 January 2000,
// which was a Saturday.
int FirstWeekday() {
    int days = 0;
    for (int year = kFirstYear; year < 2000; ++year) {
        days += IsLeap(year) ? 366 : 365;
    }
    return ((5 - days) % 7 + 7) % 7;
}

TEST(CalendarDateTest, EveryMonthOfEveryYearAgreesWithACountOfDays) {
    int weekday = FirstWeekday();
    for (int year = kFirstYear; year <= kLastYear; ++year) {
        for (int month = 0; month < 12; ++month) {
            const int days = DaysByHand(year, month);
            ASSERT_EQ(NofDays(year, month), days) << year << " month " << month;
            ASSERT_EQ(WeekdayOf({year, month, 1}), weekday + 1) << year << " month " << month;
            ASSERT_EQ(GetStartDay(year, month, WeekStart::Monday), weekday + 1);
            ASSERT_EQ(GetStartDay(year, month, WeekStart::Sunday), (weekday + 1) % 7 + 1);
            ASSERT_EQ(GetStartDay(year, month, WeekStart::Saturday), (weekday + 2) % 7 + 1);
            weekday = (weekday + days) % 7;
        }
    }
}

TEST(CalendarDateTest, KnownDatesFallOnTheirWeekdays) {
    struct Row {
        CalendarDate Date;
        int Weekday;
    };
    const Row rows[] = {
        {{1582, 9, 15}, 5}, // the first day of the Gregorian calendar, a Friday
        {{1815, 5, 18}, 7}, // Waterloo, a Sunday
        {{1969, 6, 20}, 7}, // the first steps on the Moon, a Sunday
        {{1999, 0, 1}, 5},   {{2000, 0, 1}, 6},  {{2000, 1, 29}, 2},
        {{2026, 11, 31}, 4}, {{1600, 1, 29}, 2},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.Date.Year);
        EXPECT_EQ(WeekdayOf(row.Date), row.Weekday);
    }
    EXPECT_EQ(GetStartDay(2000, 0, WeekStart::Monday), 6);
    EXPECT_EQ(GetStartDay(2000, 0, WeekStart::Sunday), 7);
    EXPECT_EQ(GetStartDay(2000, 0, WeekStart::Saturday), 1);
}

TEST(CalendarDateTest, AMonthOutsideTheYearHasNoDays) {
    for (const int month : {-1, 12, 13, 1000}) {
        EXPECT_EQ(NofDays(2026, month), 0) << month;
    }
}

TEST(CalendarDateTest, ColumnsAndWeekdaysAreEachOthersReverse) {
    struct Row {
        WeekStart Start;
        int Leftmost;
    };
    for (const Row row :
         {Row{WeekStart::Monday, 1}, Row{WeekStart::Sunday, 7}, Row{WeekStart::Saturday, 6}}) {
        SCOPED_TRACE(row.Leftmost);
        EXPECT_EQ(WeekdayOfColumn(0, row.Start), row.Leftmost);
        for (int column = 0; column < 7; ++column) {
            EXPECT_EQ(WeekdayOfColumn(column, row.Start), (row.Leftmost - 1 + column) % 7 + 1);
            EXPECT_EQ(ColumnOfWeekday(WeekdayOfColumn(column, row.Start), row.Start), column);
        }
    }
}

TEST(CalendarDateTest, AddingDaysFollowsTheCalendarDayByDay) {
    const CalendarDate first{1895, 11, 30};
    CalendarDate walked = first;
    for (int days = 0; walked.Year < 2105; ++days) {
        ASSERT_EQ(AddDays(first, days), walked) << days;
        ASSERT_EQ(AddDays(walked, -days), first) << days;
        if (++walked.Day > DaysByHand(walked.Year, walked.Month)) {
            walked.Day = 1;
            walked.Month = (walked.Month + 1) % 12;
            walked.Year += walked.Month == 0 ? 1 : 0;
        }
    }
}

TEST(CalendarDateTest, DatesAreOrderedByYearMonthAndDay) {
    EXPECT_LT((CalendarDate{2025, 11, 31}), (CalendarDate{2026, 0, 1}));
    EXPECT_LT((CalendarDate{2026, 0, 31}), (CalendarDate{2026, 1, 1}));
    EXPECT_LT((CalendarDate{-1, 11, 31}), (CalendarDate{0, 0, 1}));
}

} // namespace
} // namespace kestrova
