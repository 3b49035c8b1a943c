// SPDX-License-Identifier: GPL-3.0-or-later
#include "language/StringTable.h"

#include "diary/Digest.h"
#include "language/Texts.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace kestrova {
namespace {

// Saved diaries and language files rest on these bytes, doubled blanks and misspellings included.
// The digest is that of the 306 texts, a line each.
TEST(BuiltInEnglishTest, TextsReadExactlyAsTheyAlwaysHave) {
    std::string all;
    for (const auto& group : MsgDefaults().Texts) {
        for (const std::string& text : group) {
            all += text + "\n";
        }
    }
    EXPECT_EQ(Digest(all), 0x760f05f10db251e5U);
    const StringTable table = MsgDefaults();
    EXPECT_EQ(table.Texts[0][8], "                  Version");
    EXPECT_EQ(table.Texts[3][25], "");
    EXPECT_EQ(table.Texts[5][18], "Loose  All  Existing  Data!");
    EXPECT_EQ(table.Texts[5][32], " The Files Will Be  Re-Formatted ");
}

TEST(BuiltInEnglishTest, MonthsAndDaysAreNamedInOrder) {
    const StringTable table = MsgDefaults();
    EXPECT_THAT(table.MonthNames,
                testing::ElementsAre("  January  ", "  February  ", "  March  ", "  April  ",
                                     "  May  ", "  June  ", "  July  ", "  August  ",
                                     "  September  ", "  October  ", "  November  ",
                                     "  December  "));
    EXPECT_THAT(table.MonthMenu,
                testing::ElementsAre("&Jan", "F&eb", "&Mar", "&Apr", "Ma&y", "J&un", "Ju&l", "Au&g",
                                     "&Sep", "&Oct", "&Nov", "&Dec"));
    EXPECT_EQ(table.DayName(0, WeekStart::Monday), "Monday");
    EXPECT_EQ(table.DayName(6, WeekStart::Monday), "Sunday");
    EXPECT_EQ(table.DayName(0, WeekStart::Sunday), "Sunday");
    EXPECT_EQ(table.DayName(6, WeekStart::Sunday), "Saturday");
    EXPECT_EQ(table.DayName(0, WeekStart::Saturday), "Saturday");
    EXPECT_EQ(table.DayName(2, WeekStart::Saturday), "Monday");
    EXPECT_EQ(EnglishMonthName(0), "January");
    EXPECT_EQ(EnglishMonthName(11), "December");
}

TEST(BuiltInEnglishTest, TextsThatCodeAsksForAreThere) {
    const StringTable table = MsgDefaults();
    EXPECT_EQ(table.Text(texts::kChimeIntervals), "Never");
    EXPECT_EQ(table.Text(texts::kModemPorts), "None");
    EXPECT_EQ(table.Text(texts::kReminderKinds), "Screen");
    EXPECT_EQ(table.Text(texts::kNoMonthlyAbove28),
              "Cannot Set Monthly Repeats For Dates Above The 28th");
    EXPECT_EQ(table.Text(texts::kNoAnnualLeapDay), "Cannot Repeat Leap Days Annually");
    EXPECT_EQ(table.Text(texts::kSaveFailed), "An Error Occurred During This Save");
    EXPECT_EQ(table.Text(texts::kDiaryCorrupt), "Your Diary Data Files Are Corrupt or Missing");
    EXPECT_EQ(table.Text(texts::kEnableModem), "Enable Modem in Kestrova Settings");
    EXPECT_EQ(table.Text(texts::kEnableSpeech), "Enable Speech in Kestrova Settings Window.");
}

} // namespace
} // namespace kestrova
