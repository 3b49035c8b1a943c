// SPDX-License-Identifier: GPL-3.0-or-later
#include "calendar/MonthSheet.h"

#include <gtest/gtest.h>

#include <string>

namespace kestrova {
namespace {

// The sheet as one would draw it: six rows of seven fields of three characters.
std::string Drawn(int year, int month, WeekStart weekStart) {
    std::string sheet;
    for (int row = 0; row < kSheetRows; ++row) {
        sheet += std::string(21, ' ') + "|\n";
    }
    for (const SheetCell& cell : MonthSheet(year, month, weekStart)) {
        const std::string day = std::to_string(cell.Day);
        const auto end = static_cast<std::size_t>(cell.Row * 23 + cell.Column * 3 + 3);
        sheet.replace(end - day.size(), day.size(), day);
    }
    return sheet;
}

TEST(MonthSheetTest, SheetsLookLikeAWallCalendar) {
    // 31 days that begin in the last column need the sixth row.
    EXPECT_EQ(Drawn(2022, 9, WeekStart::Sunday), "                    1|\n"
                                                 "  2  3  4  5  6  7  8|\n"
                                                 "  9 10 11 12 13 14 15|\n"
                                                 " 16 17 18 19 20 21 22|\n"
                                                 " 23 24 25 26 27 28 29|\n"
                                                 " 30 31               |\n");
    // A February of four full weeks leaves two rows empty.
    EXPECT_EQ(Drawn(2010, 1, WeekStart::Monday), "  1  2  3  4  5  6  7|\n"
                                                 "  8  9 10 11 12 13 14|\n"
                                                 " 15 16 17 18 19 20 21|\n"
                                                 " 22 23 24 25 26 27 28|\n"
                                                 "                     |\n"
                                                 "                     |\n");
    EXPECT_EQ(Drawn(2000, 1, WeekStart::Saturday), "           1  2  3  4|\n"
                                                   "  5  6  7  8  9 10 11|\n"
                                                   " 12 13 14 15 16 17 18|\n"
                                                   " 19 20 21 22 23 24 25|\n"
                                                   " 26 27 28 29         |\n"
                                                   "                     |\n");
}

TEST(MonthSheetTest, EveryDayHasACellOfItsWeekdayOnTheSheet) {
    for (const WeekStart start : {WeekStart::Monday, WeekStart::Sunday, WeekStart::Saturday}) {
        for (int month = 0; month < 400 * kMonths; ++month) {
            const int year = 1900 + month / kMonths;
            const auto cells = MonthSheet(year, month % kMonths, start);
            ASSERT_EQ(static_cast<int>(cells.size()), NofDays(year, month % kMonths));
            int row = 0;
            for (std::size_t i = 0; i < cells.size(); ++i) {
                const SheetCell& cell = cells[i];
                row += i > 0 && cell.Column == 0 ? 1 : 0;
                ASSERT_EQ(cell.Day, static_cast<int>(i) + 1);
                ASSERT_EQ(cell.Row, row);
                ASSERT_LT(cell.Row, kSheetRows);
                ASSERT_EQ(WeekdayOfColumn(cell.Column, start),
                          WeekdayOf({year, month % kMonths, cell.Day}));
            }
        }
    }
}

TEST(MonthSheetTest, AStepOfMonthsKeepsTheDayOrTakesTheLast) {
    struct Row {
        CalendarDate From;
        int Months;
        std::optional<CalendarDate> Expected;
    };
    const Row rows[] = {
        {{2026, 0, 31}, 1, CalendarDate{2026, 1, 28}},
        {{2028, 0, 31}, 1, CalendarDate{2028, 1, 29}},
        {{2026, 2, 31}, -1, CalendarDate{2026, 1, 28}},
        {{2026, 4, 31}, 1, CalendarDate{2026, 5, 30}},
        {{2028, 1, 29}, 12, CalendarDate{2029, 1, 28}},
        {{2028, 1, 29}, 48, CalendarDate{2032, 1, 29}},
        {{2026, 11, 15}, 1, CalendarDate{2027, 0, 15}},
        {{2026, 0, 15}, -1, CalendarDate{2025, 11, 15}},
        {{2026, 6, 15}, 0, CalendarDate{2026, 6, 15}},
        {{0, 0, 31}, -1, CalendarDate{-1, 11, 31}},
        {{-1, 11, 31}, 1, CalendarDate{0, 0, 31}},
        {{-5, 5, 1}, -18, CalendarDate{-7, 11, 1}},
        {{kLastYear, 11, 1}, 1, std::nullopt},
        {{kLastYear, 10, 1}, 1, CalendarDate{kLastYear, 11, 1}},
        {{kFirstYear, 0, 1}, -1, std::nullopt},
        {{kFirstYear, 1, 1}, -1, CalendarDate{kFirstYear, 0, 1}},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(std::to_string(row.From.Year) + "/" + std::to_string(row.From.Month) + " + " +
                     std::to_string(row.Months));
        EXPECT_EQ(StepMonths(row.From, row.Months), row.Expected);
    }
}

TEST(MonthSheetTest, AStepOfDaysStaysWithinTheYearsShown) {
    EXPECT_EQ(StepDays({2026, 11, 31}, 1), (CalendarDate{2027, 0, 1}));
    EXPECT_EQ(StepDays({2024, 2, 7}, -7), (CalendarDate{2024, 1, 29}));
    EXPECT_EQ(StepDays({kLastYear, 11, 25}, 7), std::nullopt);
    EXPECT_EQ(StepDays({kLastYear, 11, 24}, 7), (CalendarDate{kLastYear, 11, 31}));
    EXPECT_EQ(StepDays({kFirstYear, 0, 7}, -7), std::nullopt);
    EXPECT_EQ(StepDays({kFirstYear, 0, 8}, -7), (CalendarDate{kFirstYear, 0, 1}));
}

} // namespace
} // namespace kestrova
