// SPDX-License-Identifier: GPL-3.0-or-later
#include "diary/DiaryFile.h"

#include "diary/NoteName.h"

#include <gtest/gtest.h>

#include <random>

namespace kestrova {
namespace {

constexpr std::size_t kRecords = 2 * 13 * 32 * 11;

std::string FreeRecord() {
    return " 0 \r\n 0 \r\n\r\n\r\n\r\n 0 \r\n\r\n\r\n\r\n\r\n";
}

std::string FileWith(std::size_t record, const std::string& lines) {
    std::string bytes;
    for (std::size_t i = 0; i < kRecords; ++i) {
        bytes += i == record ? lines : FreeRecord();
    }
    return bytes;
}

// The number of a slot's record in the file.
std::size_t RecordOf(const SlotPlace& place) {
    return static_cast<std::size_t>(((place.Year * 13 + place.Month) * 32 + place.Day) * 11 +
                                    place.Slot);
}

TEST(DiaryFileTest, RecordsStandInTheFileByteForByte) {
    DiaryTable table;
    const SlotPlace place(3, 25, 11, 1);
    DiaryEvent event;
    event.Hour = 9;
    event.Minute = 5;
    event.Msg = "  \"Lunch\", with Bob";
    event.Rpt = "Weekly";
    event.Rmd = "Phone";
    event.Extra = {"a", "555", "", "last"};
    event.Hide = -1;
    table.At(place) = event;
    const std::string record = " 9 \r\n 5 \r\n  \"Lunch\", with Bob\r\nWeekly\r\nPhone\r\n-1 \r\n"
                               "a\r\n555\r\n\r\nlast\r\n";
    const std::string expected = FileWith(RecordOf(place), record);
    EXPECT_TRUE(WriteDiary(table) == expected);

    DiaryTable read;
    ASSERT_TRUE(ReadDiary(expected, read).Ok());
    EXPECT_EQ(read.At(place), event);
    EXPECT_TRUE(read == table);
}

TEST(DiaryFileTest, ReadsWhatOtherProgramsWrote) {
    const struct {
        const char* Name;
        std::string Record;
        const char* Msg;
    } rows[] = {
        {"LF alone", " 9 \n 5 \nx\nNever\nNone\n 0 \n\n\n\n\n", "x"},
        {"numbers without blanks", "9\r\n5\r\nx\r\nNever\r\nNone\r\n0\r\n\r\n\r\n\r\n\r\n", "x"},
        {"Windows-1252", " 9 \r\n 5 \r\nCaf\xE9 \x80\r\nNever\r\nNone\r\n 0 \r\n\r\n\r\n\r\n\r\n",
         "Café €"},
        {"UTF-8", " 9 \r\n 5 \r\nΚαφές\r\nNever\r\nNone\r\n 0 \r\n\r\n\r\n\r\n\r\n", "Καφές"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.Name);
        DiaryTable table;
        ASSERT_TRUE(ReadDiary(FileWith(RecordOf({1, 1, 0, 0}), row.Record), table).Ok());
        EXPECT_EQ(table.At({1, 1, 0, 0}).Msg, row.Msg);
        EXPECT_EQ(table.At({1, 1, 0, 0}).Minute, 5);
    }
    DiaryTable table;
    EXPECT_TRUE(ReadDiary("\xEF\xBB\xBF" + FileWith(0, FreeRecord()), table).Ok());
}

TEST(DiaryFileTest, DamageIsNoticed) {
    const std::string whole = FileWith(0, FreeRecord());
    const auto wrongHour = [](const std::string& hour) {
        return FileWith(RecordOf({1, 1, 0, 0}),
                        hour + "\r\n 5 \r\nx\r\n\r\n\r\n 0 \r\n\r\n\r\n\r\n\r\n");
    };
    const struct {
        const char* Name;
        std::string Bytes;
    } rows[] = {
        {"empty", ""},
        {"one line short", whole.substr(0, whole.size() - 2)},
        {"cut in the middle", whole.substr(0, whole.size() / 2)},
        {"a word for a number", wrongHour("nine")},
        {"no number", wrongHour("")},
        {"too large for 16 bits", wrongHour(" 32768 ")},
        {"a fraction", wrongHour(" 9.5 ")},
        {"NULs", std::string(whole.size(), '\0')},
        {"one endless line", std::string(1'000'000, 'x')},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.Name);
        DiaryTable table;
        const auto read = ReadDiary(row.Bytes, table);
        ASSERT_FALSE(read.Ok());
        EXPECT_EQ(read.Failure().Code, ErrorCode::Damaged);
    }
}

TEST(DiaryFileTest, LinesBeyondTheLastRecordAreReported) {
    DiaryTable table;
    const std::string whole = FileWith(0, FreeRecord());
    EXPECT_EQ(ReadDiary(whole, table).Value(), DiaryEnd::Exact);
    EXPECT_EQ(ReadDiary(whole + "more\r\n", table).Value(), DiaryEnd::MoreLines);
}

TEST(DiaryFileTest, SlotsThatAreNotStoredKeepTheirEvents) {
    DiaryTable table;
    table.At({11, 1, 0, 0}).Msg = "scratch";
    table.At({1, 1, 13, 0}).Msg = "month 13";
    const std::string bytes = WriteDiary(table);
    EXPECT_EQ(bytes.find("scratch"), std::string::npos);
    EXPECT_EQ(bytes.find("month 13"), std::string::npos);
    ASSERT_TRUE(ReadDiary(bytes, table).Ok());
    EXPECT_EQ(table.At({11, 1, 0, 0}).Msg, "scratch");
    EXPECT_EQ(table.At({1, 1, 13, 0}).Msg, "month 13");
}

TEST(DiaryFileTest, NoTextCanShiftTheRecordsAfterIt) {
    DiaryTable table;
    table.At({1, 1, 0, 0}).Msg = std::string("two\r\nlines\nand a NUL\0.", 22);
    table.At({2, 1, 0, 0}).Msg = "next";
    DiaryTable read;
    ASSERT_TRUE(ReadDiary(WriteDiary(table), read).Ok());
    EXPECT_EQ(read.At({1, 1, 0, 0}).Msg, "two  lines and a NUL .");
    EXPECT_EQ(read.At({2, 1, 0, 0}).Msg, "next");
}

TEST(DiaryFileTest, RandomTablesComeBackUnchanged) {
    const unsigned seed = std::random_device{}();
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 random(seed);
    const auto number = [&](int below) {
        return static_cast<int>(random() % static_cast<unsigned>(below));
    };
    const std::vector<std::string> texts = {"", " ", "\"", ",", "ä", "Κ", "a long message, really"};
    DiaryTable table;
    EachStoredSlot([&](const SlotPlace& place) {
        DiaryEvent& event = table.At(place);
        event.Hour = static_cast<std::int16_t>(number(65536) - 32768);
        event.Minute = static_cast<std::int16_t>(number(60));
        event.Msg = texts[static_cast<std::size_t>(number(7))];
        event.Extra[static_cast<std::size_t>(number(4))] =
            texts[static_cast<std::size_t>(number(7))];
    });
    const std::string bytes = WriteDiary(table);
    DiaryTable read;
    ASSERT_TRUE(ReadDiary(bytes, read).Ok());
    EXPECT_TRUE(read == table);
    EXPECT_TRUE(WriteDiary(read) == bytes);
}

TEST(NoteNameTest, PlacesHaveTheirNames) {
    EXPECT_EQ(GetFile({1, 1, 0, 0}), "BBAA.txt");
    EXPECT_EQ(GetFile({1, 25, 0, 0}), "b2aa.txt");
    EXPECT_EQ(GetFile({10, 31, 11, 1}), "k8lb.txt");
    EXPECT_EQ(GetFile({11, 24, 12, 1}), "LYMB.txt");
}

TEST(NoteNameTest, NoTwoPlacesShareAName) {
    std::set<std::string> names;
    EachStoredSlot([&](const SlotPlace& place) {
        std::string name = GetFile(place);
        EXPECT_TRUE(IsNoteName(name)) << name;
        for (char& c : name) {
            c = static_cast<char>(std::tolower(c));
        }
        EXPECT_TRUE(names.insert(name).second) << name;
    });
    for (const char* const other :
         {"Data.dat", "BBAA.tx", "bbaa.txt", "../a.txt", "BZAA.txt", ""}) {
        EXPECT_FALSE(IsNoteName(other)) << other;
    }
}

} // namespace
} // namespace kestrova
