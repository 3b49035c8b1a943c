// SPDX-License-Identifier: GPL-3.0-or-later
#include "language/ItemLists.h"
#include "language/LanguageBlock.h"
#include "language/LanguageFile.h"
#include "language/Languages.h"
#include "language/ProgramTexts.h"
#include "text/Encoding.h"
#include "text/Lines.h"
#include "text/Numbers.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <set>

namespace kestrova {
namespace {

using enum ProgramText;

constexpr std::size_t kBlockLines = kFieldsAfterHeading + 1;

std::string Shipped() {
    std::ifstream file(SHIPPED_LANGUAGES, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

// Every language of the file, each with the program's own texts in it.
std::vector<StringTable> Tables() {
    std::vector<StringTable> tables;
    for (int i = 0; i < kFixedLanguages; ++i) {
        const auto read = ReadLanguage(Shipped(), i);
        EXPECT_TRUE(read) << i;
        tables.push_back(read ? read.Value() : StringTable{});
        tables.back().ProgramLanguage = i;
    }
    return tables;
}

bool IsPlaceholder(std::string_view text) {
    return text == "Unused" || text == "EndUnused" || text.empty();
}

// The number of the letter after "&", capital or small alike; 0 without one.
unsigned AccessKey(const std::string& caption) {
    const char* const key = caption.c_str() + std::min(caption.find('&') + 1, caption.size());
    const auto first = static_cast<unsigned char>(key[0]);
    const unsigned letter = first < 0x80 ? first : (first & 0x1FU) << 6U | (key[1] & 0x3FU);
    const bool isCapital = (letter >= 'A' && letter <= 'Z') || (letter >= 0x391 && letter <= 0x3A9);
    return caption.find('&') == std::string::npos ? 0 : letter + (isCapital ? 0x20U : 0U);
}

TEST(ShippedLanguagesTest, TheFileHoldsTheFixedLanguagesInOrder) {
    const std::string bytes = Shipped();
    LineReader reader(bytes);
    std::vector<std::string> lines;
    while (const auto line = reader.Next()) {
        lines.emplace_back(*line);
    }
    EXPECT_TRUE(FileOf(lines, "\r\n") == bytes);
    ASSERT_EQ(lines.size(), kFixedLanguages * kBlockLines);
    for (std::size_t i = 0; i < lines.size(); ++i) {
        SCOPED_TRACE(lines[i]);
        EXPECT_EQ(lines[i].find_first_of(",\"\r\t"), std::string::npos);
        EXPECT_LE(lines[i].size(), 300U);
        EXPECT_EQ(AsUtf8(lines[i]), lines[i]);
        if (i % kBlockLines == 0) {
            EXPECT_EQ(lines[i], std::string(FixedLanguages()[i / kBlockLines].Name) + " Language");
        }
        const std::string& english = lines[i % kBlockLines];
        EXPECT_TRUE(IsPlaceholder(english) ? lines[i] == english : !IsPlaceholder(lines[i]));
    }
}

TEST(ShippedLanguagesTest, EnglishIsTheBuiltInOneButForLeadingBlanks) {
    StringTable english = MsgDefaults();
    for (std::string& name : english.MonthNames) {
        name = Trim(name);
    }
    for (auto& group : english.Texts) {
        for (std::string& text : group) {
            text.erase(0, text.find_first_not_of(' '));
        }
    }
    EXPECT_TRUE(Tables()[0] == english);
}

TEST(ShippedLanguagesTest, ItemsOfAListAndAccessKeysOfAMenuDiffer) {
    const std::vector<ProgramText> menus[] = {
        {MenuFile, MenuMonth, MenuWeekStart, MenuLanguage, MenuGame},
        {MenuGameStart, MenuGameJigSaw, MenuGameSize, MenuGamePicture, MenuGameQuit},
        {MenuFullScreen, MenuRepeatMode, MenuSettings, MenuExit},
        {MenuManual, MenuAbout},
        {MenuNewEvent, MenuSearch, MenuDelete, MenuDeleteAll, MenuUndo, MenuExport, MenuImport,
         MenuAddNetUser, MenuRemoveNetUser, MenuCloseDay}};
    for (const StringTable& table : Tables()) {
        EXPECT_EQ(SharedItemText(table), std::nullopt);
        std::set<std::pair<std::size_t, unsigned>> seen;
        const auto expectNew = [&](std::size_t menu, const std::string& caption) {
            EXPECT_NE(AccessKey(caption), 0U) << caption;
            EXPECT_TRUE(seen.insert({menu, AccessKey(caption)}).second) << caption;
        };
        for (const std::string& month : table.MonthMenu) {
            expectNew(std::size(menus), month);
        }
        for (std::size_t menu = 0; menu < std::size(menus); ++menu) {
            for (const ProgramText entry : menus[menu]) {
                expectNew(menu, TextOf(table, entry));
            }
        }
    }
}

TEST(ShippedLanguagesTest, ProgramTextsKeepTheMarksOfTheEnglish) {
    for (const StringTable& table : Tables()) {
        for (int i = 0; i < static_cast<int>(ProgramText::Count); ++i) {
            const auto id = static_cast<ProgramText>(i);
            const std::string text = TextOf(table, id);
            for (const char mark : {'%', '&', '\n', '|', '*'}) {
                EXPECT_EQ(std::ranges::count(text, mark),
                          std::ranges::count(TextOf(MsgDefaults(), id), mark))
                    << text;
            }
            EXPECT_EQ(TextOf(table, id, "value").find('%'), std::string::npos) << text;
        }
    }
}

TEST(ShippedLanguagesTest, GreekIsInGreekLetters) {
    std::set<std::string> inLatin;
    const StringTable greek = Tables().back();
    for (const auto& group : greek.Texts) {
        for (const std::string& text : group) {
            if (!IsPlaceholder(text) && text.find_first_of("\xCE\xCF") == std::string::npos) {
                inLatin.insert(text);
            }
        }
    }
    EXPECT_EQ(inLatin,
              (std::set<std::string>{"Kestrova", "Com:1", "Com:2", "Com:3", "Com:4", "Email"}));
}

} // namespace
} // namespace kestrova
