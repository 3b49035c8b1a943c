// SPDX-License-Identifier: GPL-3.0-or-later
#include "language/LanguageFile.h"

#include "language/LanguageBlock.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace kestrova {
namespace {

using Lines = std::vector<std::string>;

const std::string& TextAt(const StringTable& table, int group, int entry) {
    return table.Text({static_cast<TextGroup>(group), entry});
}

Lines operator+(Lines lines, const Lines& more) {
    lines.insert(lines.end(), more.begin(), more.end());
    return lines;
}

TEST(LanguageFileTest, EveryLineOfABlockHasItsPlace) {
    const Lines block = LanguageBlock("Deutsch Language", "De");
    ASSERT_EQ(block.size(), 342U);
    for (const char* const end : {"\r\n", "\n"}) {
        SCOPED_TRACE(testing::PrintToString(end));
        const auto read = ReadLanguage(FileOf(block, end), 0);
        ASSERT_TRUE(read);
        const StringTable& table = read.Value();
        EXPECT_EQ(table.LanguageFont, "De Font");
        EXPECT_EQ(table.Title, (TitleFont{13.5F, true, false}));
        for (std::size_t month = 0; month < 12; ++month) {
            EXPECT_EQ(table.MonthNames[month], "De month " + std::to_string(month + 1));
            EXPECT_EQ(table.MonthMenu[month], "De &menu " + std::to_string(month + 1));
        }
        EXPECT_EQ(table.DayName(0, WeekStart::Monday), "De Mo");
        EXPECT_EQ(table.DayName(0, WeekStart::Sunday), "De Su");
        EXPECT_EQ(table.DayName(0, WeekStart::Saturday), "De Sa");
        for (int group = 0; group < 6; ++group) {
            for (int entry = 0; entry < 51; ++entry) {
                ASSERT_EQ(TextAt(table, group, entry),
                          "De " + std::to_string(group) + "." + std::to_string(entry));
            }
        }
    }
}

TEST(LanguageFileTest, HeadingsEndInLanguage) {
    struct Row {
        std::string Heading;
        Lines Names;
    };
    const Row rows[] = {
        {"English Language", {"English "}},
        {"Klingon Language", {"Klingon "}},
        {"Greek Language", {"Greek "}},
        {"\"Greek Language\"", {"Greek "}},
        {"   Deutsch   Language", {"Deutsch   "}},
        {"Fran\xE7"
         "ais Language",
         {"Fran\xC3\xA7"
          "ais "}},
        {"Fran\xC3\xA7"
         "ais Language",
         {"Fran\xC3\xA7"
          "ais "}},
        {"\xEF\xBB\xBF"
         "English Language",
         {"English "}},
        {"EnglishLanguage", {"English"}},
        {"Language", {""}},
        {"English language", {}},
        {"English LANGUAGE", {}},
        {"English Languages", {}},
        {"English", {}},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.Heading);
        const std::string bytes = FileOf(LanguageBlock(row.Heading, "X"));
        EXPECT_EQ(LanguageNames(bytes), row.Names);
        EXPECT_EQ(ReadLanguage(bytes, 0).Ok(), !row.Names.empty());
    }
}

TEST(LanguageFileTest, BlocksAreNumberedByTheirHeadings) {
    // A text that looks like a heading belongs to its block; lines between blocks are passed over.
    Lines english = LanguageBlock("English Language", "En");
    english[LineOfText(3, 20)] = "Choose a Language";
    const std::string bytes =
        FileOf(Lines{"", "stray line"} + english + Lines{"between"} +
               LanguageBlock("Deutsch Language", "De") + LanguageBlock("Klingon Language", "Kl"));
    EXPECT_EQ(LanguageNames(bytes), (Lines{"English ", "Deutsch ", "Klingon "}));
    const char* const marks[] = {"En", "De", "Kl"};
    for (int block = 0; block < 3; ++block) {
        const auto read = ReadLanguage(bytes, block);
        ASSERT_TRUE(read);
        EXPECT_EQ(TextAt(read.Value(), 5, 50), std::string(marks[block]) + " 5.50");
    }
    for (const int block : {3, 1000, -1}) {
        const auto read = ReadLanguage(bytes, block);
        ASSERT_FALSE(read);
        EXPECT_EQ(read.Failure().Code, ErrorCode::NotFound);
    }
}

TEST(LanguageFileTest, ACommaShiftsEveryLaterFieldOfItsBlock) {
    Lines shifted = LanguageBlock("English Language", "En");
    shifted[LineOfText(3, 2)] = "Message, event";
    Lines quoted = LanguageBlock("Deutsch Language", "De");
    quoted[LineOfText(3, 2)] = "\"Nachricht, Termin\"";
    const std::string bytes = FileOf(shifted + quoted);

    const auto english = ReadLanguage(bytes, 0);
    ASSERT_TRUE(english);
    EXPECT_EQ(TextAt(english.Value(), 3, 1), "En 3.1");
    EXPECT_EQ(TextAt(english.Value(), 3, 2), "Message");
    EXPECT_EQ(TextAt(english.Value(), 3, 3), "event");
    EXPECT_EQ(TextAt(english.Value(), 3, 4), "En 3.3");
    EXPECT_EQ(TextAt(english.Value(), 4, 0), "En 3.50");
    EXPECT_EQ(TextAt(english.Value(), 5, 50), "En 5.49");

    // The next block is found all the same.
    EXPECT_EQ(LanguageNames(bytes), (Lines{"English ", "Deutsch "}));
    const auto german = ReadLanguage(bytes, 1);
    ASSERT_TRUE(german);
    EXPECT_EQ(TextAt(german.Value(), 3, 2), "Nachricht, Termin");
    EXPECT_EQ(TextAt(german.Value(), 3, 3), "De 3.3");
    EXPECT_EQ(TextAt(german.Value(), 5, 50), "De 5.50");
}

TEST(LanguageFileTest, BlocksCutShortAreDamagedAndNotListed) {
    const Lines english = LanguageBlock("English Language", "En");
    const Lines german = LanguageBlock("Deutsch Language", "De");
    for (const std::size_t lines : {1U, 2U, 5U, 6U, 29U, 36U, 100U, 341U}) {
        SCOPED_TRACE(lines);
        const Lines cut(german.begin(), german.begin() + static_cast<std::ptrdiff_t>(lines));
        const std::string bytes = FileOf(english + cut);
        EXPECT_EQ(LanguageNames(bytes), Lines{"English "});
        EXPECT_TRUE(ReadLanguage(bytes, 0));
        const auto read = ReadLanguage(bytes, 1);
        ASSERT_FALSE(read);
        EXPECT_EQ(read.Failure().Code, ErrorCode::Damaged);
    }
}

TEST(LanguageFileTest, TheTitleFontMustBeNumberAndTruths) {
    struct Row {
        std::size_t Line; // in the block, from 0
        const char* Field;
        bool Good;
    };
    const Row rows[] = {
        {2, "8.25", true},    {2, " 12 ", true},   {2, "", false},     {2, "big", false},
        {2, "0", false},      {2, "-12", false},   {2, "nan", false},  {2, "inf", false},
        {2, "100000", false}, {3, " True ", true}, {3, "False", true}, {3, "Yes", false},
        {3, "", false},       {4, "False ", true}, {4, "True", true},  {4, "0", false},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(std::to_string(row.Line) + " '" + row.Field + "'");
        Lines lines = LanguageBlock("English Language", "En");
        lines[row.Line] = row.Field;
        const auto read = ReadLanguage(FileOf(lines), 0);
        EXPECT_EQ(read.Ok(), row.Good);
        EXPECT_TRUE(row.Good || read.Failure().Code == ErrorCode::Damaged);
    }
}

TEST(LanguageFileTest, WhatIsEmptyIsEnglish) {
    Lines lines = LanguageBlock("Deutsch Language", "De");
    for (const std::size_t line :
         {std::size_t{5}, std::size_t{6}, std::size_t{29}, LineOfText(1, 2), LineOfText(3, 25)}) {
        lines[line] = "  ";
    }
    const auto read = ReadLanguage(FileOf(lines), 0);
    ASSERT_TRUE(read);
    const StringTable english = MsgDefaults();
    EXPECT_EQ(read.Value().MonthNames[0], english.MonthNames[0]);
    EXPECT_EQ(read.Value().MonthMenu[0], "&Jan");
    EXPECT_EQ(read.Value().WeekdayNames[0], "Monday");
    EXPECT_EQ(TextAt(read.Value(), 1, 2), "SAVE EVENT");
    EXPECT_EQ(TextAt(read.Value(), 3, 25), "");
    EXPECT_EQ(TextAt(read.Value(), 3, 26), "De 3.26");
}

TEST(LanguageFileTest, ProgramTextsFollowTheNameOfTheLanguage) {
    for (const auto& [heading, language] :
         {std::pair{"Deutsch Language", 2}, {"Greek Language", 7}, {"Klingon Language", 0}}) {
        const auto read = ReadLanguage(FileOf(LanguageBlock(heading, "x")), 0);
        ASSERT_TRUE(read);
        EXPECT_EQ(read.Value().ProgramLanguage, language) << heading;
    }
}

TEST(LanguageFileTest, OnlyATextThatNeedsQuotesGetsThem) {
    const struct {
        const char* Text;
        const char* Field;
    } rows[] = {{"Save", "Save"},
                {"say \"no\"", "say \"no\""},
                {"now, later", "\"now, later\""},
                {"\"quoted\" text", "\"\xE2\x80\x9Dquoted\xE2\x80\x9D text\""},
                {"  \"x", "\"  \xE2\x80\x9Dx\""},
                {"two\r\nlines", "two  lines"},
                {"", ""}};
    for (const auto& row : rows) {
        EXPECT_EQ(AsField(row.Text), row.Field);
    }
}

// A language with every awkward text that a translator might type.
StringTable AwkwardLanguage() {
    StringTable table = MsgDefaults();
    table.Texts[1][2] = "Oui, enregistrer";
    table.Texts[3][0] = "Say, \"please\", twice";
    table.Texts[5][10] = "\xCE\x91,\xCE\x92";
    table.MonthNames[0] = "J,anuary";
    table.WeekdayNames[6] = ",";
    table.LanguageFont = "A, B";
    table.Title = {13.25F, false, true};
    return table;
}

TEST(LanguageFileTest, ALanguageReadsBackAsItWasWritten) {
    const StringTable written = AwkwardLanguage();
    const std::string bytes = PutLanguage("", " Tok, Pisin ", written);
    EXPECT_EQ(LanguageNames(bytes), Lines{"Tok, Pisin "});
    const auto read = ReadLanguage(bytes, 0);
    ASSERT_TRUE(read);
    EXPECT_EQ(read.Value().Title, written.Title);
    EXPECT_EQ(read.Value().LanguageFont, "A, B");
    EXPECT_EQ(read.Value().MonthNames[0], "J,anuary");
    EXPECT_EQ(read.Value().WeekdayNames, written.WeekdayNames);
    EXPECT_EQ(TextAt(read.Value(), 1, 2), "Oui, enregistrer");
    EXPECT_EQ(TextAt(read.Value(), 3, 0),
              "Say, \xE2\x80\x9Dplease\xE2\x80\x9D, twice"); // the file has no other quote
    EXPECT_EQ(TextAt(read.Value(), 5, 50), TextAt(written, 5, 50));
    // Only blanks before a text are lost on the way, once.
    EXPECT_EQ(ReadLanguage(PutLanguage("", "Tok, Pisin", read.Value()), 0).Value(), read.Value());
}

TEST(LanguageFileTest, PuttingALanguageTouchesNoOther) {
    const StringTable table = AwkwardLanguage();
    const std::string block = PutLanguage("", "Deutsch", table);
    const std::string english = FileOf(LanguageBlock("English Language", "En"), "\n");
    const std::string german = FileOf(LanguageBlock("Deutsch Language", "De"));
    const std::string latin = FileOf(LanguageBlock("Fran\xE7"
                                                   "ais Language",
                                                   "Fr \xE9"));
    const std::string cut = "Greek Language\r\nArial\r\n";
    const std::string rubbish = "no heading\r\n";
    const struct {
        std::string Before;
        std::string After;
    } rows[] = {{english + german + latin, english + block + latin},
                {english + latin, english + latin + block},
                {rubbish + german + latin, rubbish + block + latin},
                {"\xEF\xBB\xBF" + german + latin, "\xEF\xBB\xBF" + block + latin},
                {english.substr(0, english.size() - 1),
                 english.substr(0, english.size() - 1) + "\r\n" + block},
                // What a block cut short swallows is lost, so it stays the last.
                {english + cut, english + block + cut}};
    for (const auto& row : rows) {
        SCOPED_TRACE(&row - rows);
        EXPECT_EQ(PutLanguage(row.Before, "Deutsch", table), row.After);
        EXPECT_THAT(LanguageNames(row.After), testing::Contains("Deutsch "));
    }
}

} // namespace
} // namespace kestrova
