// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Navigation.h"

#include "fakes/ScriptedDialogs.h"

#include <gtest/gtest.h>

namespace kestrova {
namespace {

Selection At(int year, int month, int day) {
    return {.BaseYear = 2026,
            .PageYear = year,
            .PageMonth = month,
            .PageDay = day,
            .TodayMonth = 10,
            .TodayDay = 22};
}

TEST(NavigationTest, EveryStepLeadsToItsDateOrNowhere) {
    using Move = bool (*)(Selection&, int);
    struct Row {
        const char* Name;
        Move Step;
        CalendarDate From;
        int By;
        CalendarDate To;
        bool OtherMonth;
    };
    const Row rows[] = {
        {"year forward in December", StepYear, {2026, 11, 5}, 1, {2027, 11, 5}, true},
        {"year back from a leap day", StepYear, {2028, 1, 29}, -1, {2027, 1, 28}, true},
        {"year back past the first", StepYear, {kFirstYear, 3, 5}, -1, {kFirstYear, 3, 5}, false},
        {"year past the last", StepYear, {kLastYear, 3, 5}, 1, {kLastYear, 3, 5}, false},
        {"month over the year's end", StepMonth, {2026, 11, 31}, 1, {2027, 0, 31}, true},
        {"month to a shorter one", StepMonth, {2026, 0, 31}, 1, {2026, 1, 28}, true},
        {"month past the last", StepMonth, {kLastYear, 11, 5}, 1, {kLastYear, 11, 5}, false},
        {"day within the month", StepDay, {2026, 10, 22}, 7, {2026, 10, 29}, false},
        {"day into the next", StepDay, {2026, 10, 30}, 1, {2026, 11, 1}, true},
        {"day into the year before", StepDay, {2026, 0, 1}, -1, {2025, 11, 31}, true},
        {"day past the last", StepDay, {kLastYear, 11, 31}, 1, {kLastYear, 11, 31}, false},
        {"month by name", ShowMonth, {2026, 0, 31}, 3, {2026, 3, 30}, true},
        {"the same month", ShowMonth, {2026, 3, 30}, 3, {2026, 3, 30}, false},
        {"another year", ShowYear, {2026, 0, 31}, 1999, {1999, 10, 30}, true},
        {"the same year from another month", ShowYear, {2026, 3, 5}, 2026, {2026, 10, 5}, true},
        {"the month on show", ShowYear, {2026, 10, 5}, 2026, {2026, 10, 5}, false},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.Name);
        Selection dates = At(row.From.Year, row.From.Month, row.From.Day);
        EXPECT_EQ(row.Step(dates, row.By), row.OtherMonth);
        EXPECT_EQ(dates.Page(), row.To);
        EXPECT_EQ(dates.TodayMonth, 10);
        EXPECT_EQ(dates.TodayDay, 22);
        EXPECT_EQ(dates.BaseYear, 2026);
    }
}

TEST(NavigationTest, TodayIsReachedFromAnywhere) {
    Selection dates = At(-300, 1, 3);
    EXPECT_TRUE(ShowToday(dates));
    EXPECT_EQ(dates.Page(), (CalendarDate{2026, 10, 22}));
    EXPECT_FALSE(ShowToday(dates));
}

TEST(NavigationTest, AYearIsAskedForUntilItCanBeShown) {
    using Inputs = std::deque<std::optional<std::string>>;
    struct Row {
        const char* Name;
        Inputs Answers;
        std::optional<int> Year;
        std::size_t Prompts;
    };
    const Row rows[] = {
        {"at once", {"1999"}, 1999, 1},
        {"with blanks", {"  1999 "}, 1999, 1},
        {"the last", {"32000"}, 32000, 1},
        {"the first", {"-31998"}, -31998, 1},
        {"zero", {"0"}, 0, 1},
        {"too far ahead", {"40000", "2030"}, 2030, 2},
        {"one too far", {"32001", "-31999", "2030"}, 2030, 3},
        {"beyond any number", {"99999999999999999999", "5"}, 5, 2},
        {"no number", {"next", "20 30", "2030"}, 2030, 3},
        {"empty", {""}, std::nullopt, 1},
        {"blanks", {"   "}, std::nullopt, 1},
        {"empty after a wrong one", {"40000", ""}, std::nullopt, 2},
        {"cancelled", {std::nullopt}, std::nullopt, 1},
        {"cancelled after a wrong one", {"40000", std::nullopt}, std::nullopt, 2},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.Name);
        ScriptedDialogs dialogs;
        dialogs.Inputs = row.Answers;
        EXPECT_EQ(AskYear(dialogs, MsgDefaults(), 2026), row.Year);
        EXPECT_EQ(dialogs.Prompts, std::vector<std::string>(row.Prompts, "Year ? 2026"));
    }
}

} // namespace
} // namespace kestrova
