// SPDX-License-Identifier: GPL-3.0-or-later
#include "language/StringTable.h"

#include "language/Texts.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace kestrova {
namespace {

TEST(BuiltInEnglishTest, TextsReadExactlyAsTheyAlwaysHave) {
    struct Row {
        int Group;
        int Entry;
        const char* Text;
    };
    const Row rows[] = {
        {0, 0, "Kestrova"},
        {0, 1, "Kestrova Messenger"},
        {0, 7, "Unused"},
        {0, 8, "                  Version"},
        {0, 19, "EndUnused"},
        {0, 25, "Media Settings"},
        {0, 40, "EndUnused"},
        {1, 2, "SAVE EVENT"},
        {1, 11, "Unused"},
        {1, 16, "Date"},
        {1, 31, "Start in Full Screen mode"},
        {1, 39, "EndUnused"},
        {1, 44, "Today's Colour"},
        {1, 45, "Event Colour"},
        {2, 0, "Speech"},
        {2, 2, "None"},
        {2, 3, "Unused"},
        {2, 9, "EndUnused"},
        {2, 14, "Every Five Minutes"},
        {2, 21, "Com:1"},
        {2, 24, "Com:4"},
        {2, 36, "None"},
        {2, 40, "Never"},
        {2, 44, "Annually"},
        {2, 45, "Unused"},
        {3, 0, "<<Double Click Here To Add An Event>>"},
        {3, 9,
         "Remmeber to set your dial up connection to connect automatically and hang up after "
         "send and receive. See help for more information."},
        {3, 17, " R   G    B"},
        {3, 25, ""},
        {3, 31, "Screen"},
        {3, 49, "Unused"},
        {3, 50, "EndUnused"},
        {4, 0, "Click here to change month. Double click to print month."},
        {4, 15, "Enables/Disables the speech system."},
        {4, 18, "Enables/Disables the speech system."},
        {4, 26, "Clock speech farewell statment."},
        {4, 33, "Use the scroll bars to adjust the colour highlighting today's date."},
        {4, 35, "Double Click for Full Screen 'Esc' to Return"},
        {4, 50, "EndUnused"},
        {5, 2, "Unused"},
        {5, 10, "A File Handling Error Occured"},
        {5, 15, "Check carefully as wrong numbers will cause a nuisance "},
        {5, 18, "Loose  All  Existing  Data!"},
        {5, 20, " At The Moment"},
        {5, 28, "Unused"},
        {5, 30, "Your Settings File Is Corrupt : Restoring Defaults"},
        {5, 32, " The Files Will Be  Re-Formatted "},
        {5, 33, "Can Only Enter Diary Events for the Rest of This Year and Next Year."},
        {5, 36, "Unused"},
        {5, 37, "Error"},
        {5, 49, "EndUnused"},
        {5, 50, "Please Fill in Both Boxes"},
    };
    const StringTable table = MsgDefaults();
    for (const Row& row : rows) {
        SCOPED_TRACE(std::to_string(row.Group) + "." + std::to_string(row.Entry));
        EXPECT_EQ(table.Text({static_cast<TextGroup>(row.Group), row.Entry}), row.Text);
    }
}

TEST(BuiltInEnglishTest, EachGroupHasAsManyTextsAsWindowsShow) {
    constexpr int kTextsInGroup[] = {17, 37, 30, 33, 37, 32};
    const StringTable table = MsgDefaults();
    for (std::size_t group = 0; group < 6; ++group) {
        const auto& texts = table.Texts[group];
        const auto unused = std::count(texts.begin(), texts.end(), "Unused");
        EXPECT_EQ(static_cast<int>(texts.size()) - unused, kTextsInGroup[group])
            << "group " << group;
    }
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
