// SPDX-License-Identifier: GPL-3.0-or-later
#include "media/PictureTable.h"

#include "fakes/MemoryFileStore.h"

#include <gtest/gtest.h>

namespace kestrova {
namespace {

constexpr Selection kMarch15{.BaseYear = 2026, .TodayMonth = 2, .TodayDay = 15};

PictureTable Scan(const std::vector<std::string>& paths, const Selection& today = kMarch15) {
    MemoryFileStore files;
    for (const std::string& path : paths) {
        files.Put("/k/" + path, "x");
    }
    return ScanPictures(files, "/k/", today);
}

TEST(PictureTableTest, MonthsTakeThePictureOfTheirName) {
    struct Row {
        const char* Name;
        std::vector<std::string> Files;
        const char* Picture; // of January
    };
    const Row rows[] = {
        {"nothing", {}, ""},
        {"a bitmap", {"Images/January.bmp"}, "/k/Images/January.bmp"},
        {"the first by name",
         {"Images/January.jpg", "Images/January.gif"},
         "/k/Images/January.gif"},
        {"a daily picture is not the month's", {"Images/January15.jpg"}, ""},
        {"a longer name", {"Images/January at home.jpg", "Images/Januaryjpg"}, ""},
        {"a file half written", {"Images/January.jpg.Xy12Zz"}, ""},
        {"a backup folder", {"Images/Original/January.jpg"}, ""},
        {"another case", {"Images/january.JPG"}, "/k/Images/january.JPG"},
        {"the right case first",
         {"Images/JANUARY.bmp", "Images/January.jpg", "Images/january.gif"},
         "/k/Images/January.jpg"},
        {"another folder", {"Speech/January.jpg", "January.jpg"}, ""},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.Name);
        EXPECT_EQ(Scan(row.Files).MonthPicture[0], row.Picture);
    }
}

TEST(PictureTableTest, EveryMonthHasItsOwnPictureAndText) {
    const char* const names[] = {"January",   "February", "March",    "April",
                                 "May",       "June",     "July",     "August",
                                 "September", "October",  "November", "December"};
    std::vector<std::string> files;
    PictureTable expected;
    for (std::size_t month = 0; month < 12; ++month) {
        const std::string name = names[month];
        files.insert(files.end(), {"Images/" + name + ".jpg", "Speech/" + name + ".txt"});
        expected.MonthPicture[month] = "/k/Images/" + name + ".jpg";
        expected.MonthSpeech[month] = "/k/Speech/" + name + ".txt";
    }
    EXPECT_EQ(Scan(files), expected);
}

TEST(PictureTableTest, AMonthsTextIsATextFile) {
    EXPECT_EQ(Scan({"Speech/May.wav"}).MonthSpeech[4], "");
    EXPECT_EQ(Scan({"Speech/MAY.TXT"}).MonthSpeech[4], "/k/Speech/MAY.TXT");
    EXPECT_EQ(Scan({"Speech/May.txt", "Speech/May.wav"}).MonthSpeech[4], "/k/Speech/May.txt");
}

TEST(PictureTableTest, TheLatestDailyPictureUpToTodayTakesTheMonthsPlace) {
    struct Row {
        const char* Name;
        std::vector<std::string> Daily;
        const char* Picture; // of March, on the 15th
    };
    const Row rows[] = {
        {"an earlier day", {"Images/March3.jpg"}, "/k/Images/March3.jpg"},
        {"today", {"Images/March3.jpg", "Images/March15.jpg"}, "/k/Images/March15.jpg"},
        {"the latest", {"Images/March9.jpg", "Images/March10.jpg"}, "/k/Images/March10.jpg"},
        {"the first of the month", {"Images/March1.bmp"}, "/k/Images/March1.bmp"},
        {"a day to come", {"Images/March16.jpg"}, "/k/Images/March.jpg"},
        {"another month", {"Images/April3.jpg"}, "/k/Images/March.jpg"},
        {"a leading zero", {"Images/March03.jpg"}, "/k/Images/March.jpg"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.Name);
        auto files = row.Daily;
        files.insert(files.end(), {"Images/March.jpg", "Images/April.jpg"});
        const PictureTable table = Scan(files);
        EXPECT_EQ(table.MonthPicture[2], row.Picture);
        EXPECT_EQ(table.MonthPicture[3], "/k/Images/April.jpg");
    }
}

TEST(PictureTableTest, ADailyPictureBringsItsOwnTextOrLeavesTheMonths) {
    const std::vector<std::string> month = {"Images/March.jpg", "Speech/March.txt",
                                            "Images/March3.jpg"};
    EXPECT_EQ(Scan(month).MonthSpeech[2], "/k/Speech/March.txt");
    auto files = month;
    files.emplace_back("Speech/March3.txt");
    EXPECT_EQ(Scan(files).MonthSpeech[2], "/k/Speech/March3.txt");
    files = month;
    files.emplace_back("Speech/March2.txt");
    EXPECT_EQ(Scan(files).MonthSpeech[2], "/k/Speech/March.txt");
}

} // namespace
} // namespace kestrova
