// SPDX-License-Identifier: GPL-3.0-or-later
#include "text/Numbers.h"

#include <gtest/gtest.h>

namespace kestrova {
namespace {

TEST(NumbersTest, SixteenBitNumbersAreReadWholeOrNotAtAll) {
    struct Row {
        const char* Text;
        std::optional<std::int16_t> Expected;
    };
    const Row rows[] = {
        {" 9 ", 9},
        {"9", 9},
        {"  007 ", 7},
        {"-12 ", -12},
        {"+12", 12},
        {"\t 5\t", 5},
        {"32767", 32767},
        {"-32768", -32768},
        {"32768", std::nullopt},
        {"-32769", std::nullopt},
        {"99999999999999999999", std::nullopt},
        {"", std::nullopt},
        {"   ", std::nullopt},
        {"+", std::nullopt},
        {"-", std::nullopt},
        {"+-5", std::nullopt},
        {"--5", std::nullopt},
        {"- 5", std::nullopt},
        {"1 2", std::nullopt},
        {"12x", std::nullopt},
        {"0x10", std::nullopt},
        {"1.0", std::nullopt},
        {"1,000", std::nullopt},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(std::string("text '") + row.Text + "'");
        EXPECT_EQ(ReadInt16(row.Text), row.Expected);
    }
}

TEST(NumbersTest, ThirtyTwoBitNumbersHoldEveryColour) {
    EXPECT_EQ(ReadInt32(" 16777215 "), 0xFFFFFF);
    EXPECT_EQ(ReadInt32("-2147483648"), std::numeric_limits<std::int32_t>::min());
    EXPECT_EQ(ReadInt32("2147483648"), std::nullopt);
}

TEST(NumbersTest, FractionsHaveAPointInEveryLanguage) {
    EXPECT_EQ(ReadFloat(" 13.5 "), 13.5F);
    EXPECT_EQ(ReadFloat("8"), 8.0F);
    EXPECT_EQ(ReadFloat("-0.25"), -0.25F);
    EXPECT_EQ(ReadFloat(".5"), 0.5F);
    for (const char* const text : {"", "8,25", "8.2.5", "eight", "8pt", "+-1"}) {
        SCOPED_TRACE(text);
        EXPECT_EQ(ReadFloat(text), std::nullopt);
    }
}

TEST(NumbersTest, WrittenNumbersStandBetweenSignAndBlank) {
    struct Row {
        std::int32_t Number;
        const char* Expected;
    };
    const Row rows[] = {{9, " 9 "},
                        {0, " 0 "},
                        {-1, "-1 "},
                        {16777215, " 16777215 "},
                        {std::numeric_limits<std::int32_t>::min(), "-2147483648 "}};
    for (const Row& row : rows) {
        std::string text = "before";
        AppendNumber(text, row.Number);
        EXPECT_EQ(text, std::string("before") + row.Expected);
    }
}

TEST(NumbersTest, TwoDigitsNeverCutALongerNumber) {
    EXPECT_EQ(TwoDigits(0), "00");
    EXPECT_EQ(TwoDigits(9), "09");
    EXPECT_EQ(TwoDigits(10), "10");
    EXPECT_EQ(TwoDigits(123), "123");
    EXPECT_EQ(TwoDigits(-5), "-5");
}

TEST(NumbersTest, TrimTakesBlanksAndTabsFromBothEndsOnly) {
    EXPECT_EQ(Trim("  January  "), "January");
    EXPECT_EQ(Trim("\t a  b \t"), "a  b");
    EXPECT_EQ(Trim(" \t "), "");
    EXPECT_EQ(Trim(""), "");
}

} // namespace
} // namespace kestrova
