// SPDX-License-Identifier: GPL-3.0-or-later
#include "print/LineBreaks.h"

#include "fakes/FakeMeasure.h"
#include "text/Encoding.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <random>

namespace kestrova {
namespace {

using testing::ElementsAre;

constexpr int kLetter = 80; // twips a letter is wide
constexpr int kLine = 160;

LayoutItem Item(const std::string& caption, int letters, int lines) {
    LayoutItem item;
    item.FontSize = 8;
    item.Caption = caption;
    item.Width = letters * kLetter;
    item.Height = lines * kLine;
    return item;
}

std::vector<std::string> Lines(const std::string& caption, int letters, int lines,
                               LayoutKind kind = LayoutKind::LabUser) {
    return ItemLines(Item(caption, letters, lines), kind, FakeMeasure());
}

TEST(LineBreaksTest, ATextThatFitsIsPrintedAsItStands) {
    EXPECT_THAT(Lines("New  Text ", 10, 1), ElementsAre("New  Text "));
    EXPECT_THAT(Lines("", 10, 1), ElementsAre(""));
    EXPECT_THAT(Lines("one\r\n\r\n three\nfour\r\n", 6, 1),
                ElementsAre("one", "", " three", "four", ""));
}

TEST(LineBreaksTest, OnlyMessagesAndTheUsersTextsAreBroken) {
    EXPECT_THAT(Lines("one two", 3, 2, LayoutKind::LabEvent), ElementsAre("one", "two"));
    EXPECT_THAT(Lines("one two", 0, 2), ElementsAre("one two"));
    for (const LayoutKind kind :
         {LayoutKind::LabCurMth, LayoutKind::LabDays, LayoutKind::LabDates}) {
        EXPECT_THAT(Lines("one two", 3, 2, kind), ElementsAre("one two"));
    }
}

TEST(LineBreaksTest, WideLinesAreBrokenAsFarAsTheBoxGoes) {
    EXPECT_THAT(Lines("meet the whole family", 9, 3), ElementsAre("meet the", "whole", "family"));
    EXPECT_THAT(Lines("meet the whole family", 9, 2),
                ElementsAre("meet the", "whole fa\xE2\x80\xA6"));
    EXPECT_THAT(Lines("meet the whole family", 9, 0), ElementsAre("meet the\xE2\x80\xA6"));
    EXPECT_THAT(Lines("meet   the", 5, 2), ElementsAre("meet", "the"));
    EXPECT_THAT(Lines("incomprehensible", 6, 3), ElementsAre("incomp", "rehens", "ible"));
    EXPECT_THAT(Lines("an incomprehensible x", 6, 4),
                ElementsAre("an", "incomp", "rehens", "ible x"));
    EXPECT_THAT(Lines("word     ", 4, 1), ElementsAre("word"));
}

// The text's own lines come first; what room is left goes to those that are too wide.
TEST(LineBreaksTest, OwnLinesAreAllThere) {
    EXPECT_THAT(Lines("one two\r\nthree\r\nfour", 5, 4),
                ElementsAre("one", "two", "three", "four"));
    EXPECT_THAT(Lines("one two\r\nthree\r\nfour", 5, 3),
                ElementsAre("one\xE2\x80\xA6", "three", "four"));
    EXPECT_THAT(Lines("a\r\nb\r\nc", 5, 1), ElementsAre("a", "b", "c"));
}

TEST(LineBreaksTest, ABoxNarrowerThanALetterStillHasALine) {
    LayoutItem item = Item("ab c", 1, 3);
    item.Width = 1;
    EXPECT_THAT(ItemLines(item, LayoutKind::LabUser, FakeMeasure()),
                ElementsAre("a", "b", "\xE2\x80\xA6"));
}

// Random texts of blanks, letters of one to four bytes, marks and joined figures: every line is
// whole characters, none is wider than the box unless it is a single one, and nothing is lost.
TEST(LineBreaksTest, CharactersAreNeverCut) {
    const std::vector<std::string> pieces = {" ",
                                             "a",
                                             "bc",
                                             "\xC3\xA9",
                                             "e\xCC\x81",
                                             "\xE2\x82\xAC",
                                             "\xE6\x9C\x88",
                                             "\xF0\x9F\x91\xA9\xE2\x80\x8D\xF0\x9F\x9A\x80",
                                             "\xF0\x9F\x91\x8D\xF0\x9F\x8F\xBD",
                                             "\xEF\xB8\x8F"};
    std::minstd_rand random(4711);
    for (int round = 0; round < 500; ++round) {
        SCOPED_TRACE(round);
        std::string text;
        for (auto left = random() % 400; left > 0; --left) {
            text += pieces[random() % pieces.size()];
        }
        const int width = static_cast<int>(random() % 40) * kLetter;
        std::string joined;
        for (const std::string& line :
             BreakLine(text, width, 100'000, {"", 8, false, false}, FakeMeasure())) {
            ASSERT_TRUE(IsUtf8(line)) << line;
            EXPECT_FALSE(line.starts_with("\xCC\x81") || line.starts_with("\xE2\x80\x8D") ||
                         line.ends_with("\xE2\x80\x8D") || line.starts_with("\xF0\x9F\x8F\xBD"))
                << line;
            joined += line;
        }
        const auto bare = [](std::string some) {
            std::erase(some, ' ');
            return some;
        };
        EXPECT_EQ(bare(joined), bare(text));
    }
}

// The first lines are the same, however many are asked for, and no more is measured for them.
TEST(LineBreaksTest, TheFirstLinesAloneAreThoseOfTheWhole) {
    for (const int room : {1, 3, 9, 20}) {
        const LayoutItem item = Item("meet the whole  \r\nfamily\r\n\r\nat the station", 6, room);
        const auto all = ItemLines(item, LayoutKind::LabUser, FakeMeasure());
        for (std::size_t first = 0; first <= all.size() + 1; ++first) {
            EXPECT_THAT(
                ItemLines(item, LayoutKind::LabUser, FakeMeasure(), first),
                testing::ElementsAreArray(all.begin(), all.begin() + std::min(first, all.size())))
                << room << ", " << first;
        }
    }
    std::string words;
    std::string feeds;
    for (int i = 0; i < 10'000; ++i) {
        words += "x ";
        feeds += "x\r\n";
    }
    for (const std::string& caption : {words, feeds}) {
        const FakeMeasure measure;
        LayoutItem item = Item(caption, 3, 10'000);
        item.Top = 100;
        EXPECT_EQ(LinesOnPage(item, LayoutKind::LabUser, measure, 100 + 9 * kLine).size(), 10U);
        EXPECT_EQ(LinesOnPage(item, LayoutKind::LabUser, measure, 99 + 9 * kLine).size(), 9U);
        EXPECT_EQ(LinesOnPage(item, LayoutKind::LabDates, measure, 99).size(), 0U);
        EXPECT_LT(measure.MeasuredBytes, 10'000U);
    }
}

// A text longer than any line is not measured again and again.
TEST(LineBreaksTest, LongTextsAreMeasuredAsFarAsTheyShow) {
    const FakeMeasure measure;
    std::string words;
    for (int i = 0; i < 20'000; ++i) {
        words += "word ";
    }
    EXPECT_EQ(ItemLines(Item(words, 20, 10), LayoutKind::LabEvent, measure).size(), 10U);
    EXPECT_EQ(
        ItemLines(Item(std::string(100'000, 'x'), 20, 10), LayoutKind::LabEvent, measure).size(),
        10U);
    EXPECT_LT(measure.MeasuredBytes, 20'000U);
    std::string marks = "a";
    for (int i = 0; i < 50'000; ++i) {
        marks += "\xCC\x81";
    }
    EXPECT_THAT(Lines(marks + "b", 20, 10), ElementsAre(marks, "b"));
}

} // namespace
} // namespace kestrova
