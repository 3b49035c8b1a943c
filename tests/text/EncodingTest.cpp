// SPDX-License-Identifier: GPL-3.0-or-later
#include "text/Encoding.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <random>

namespace kestrova {
namespace {

// The table of well-formed sequences, row by row: a lead, then what each following byte may be.
bool IsWellFormed(std::string_view bytes) {
    struct Span {
        unsigned Low;
        unsigned High;
    };
    struct Row {
        Span Lead;
        std::vector<Span> Rest;
    };
    static const std::vector<Row> kRows = {
        {{0x00, 0x7F}, {}},
        {{0xC2, 0xDF}, {{0x80, 0xBF}}},
        {{0xE0, 0xE0}, {{0xA0, 0xBF}, {0x80, 0xBF}}},
        {{0xE1, 0xEC}, {{0x80, 0xBF}, {0x80, 0xBF}}},
        {{0xED, 0xED}, {{0x80, 0x9F}, {0x80, 0xBF}}},
        {{0xEE, 0xEF}, {{0x80, 0xBF}, {0x80, 0xBF}}},
        {{0xF0, 0xF0}, {{0x90, 0xBF}, {0x80, 0xBF}, {0x80, 0xBF}}},
        {{0xF1, 0xF3}, {{0x80, 0xBF}, {0x80, 0xBF}, {0x80, 0xBF}}},
        {{0xF4, 0xF4}, {{0x80, 0x8F}, {0x80, 0xBF}, {0x80, 0xBF}}},
    };
    const auto within = [bytes](std::size_t at, Span span) {
        const auto byte = at < bytes.size() ? static_cast<unsigned char>(bytes[at]) : 0x100U;
        return byte >= span.Low && byte <= span.High;
    };
    std::size_t at = 0;
    while (at < bytes.size()) {
        const auto row = std::find_if(kRows.begin(), kRows.end(),
                                      [&](const Row& r) { return within(at, r.Lead); });
        if (row == kRows.end()) {
            return false;
        }
        ++at;
        for (const Span span : row->Rest) {
            if (!within(at++, span)) {
                return false;
            }
        }
    }
    return true;
}

TEST(EncodingTest, OnlyWellFormedBytesAreUtf8) {
    struct Row {
        std::string Bytes;
        bool Expected;
    };
    const Row rows[] = {
        {"", true},
        {"plain ASCII, longer than a machine word", true},
        {"caf\xC3\xA9", true},
        {"\xCE\x95\xCE\xBB\xCE\xBB\xCE\xB7\xCE\xBD\xCE\xB9\xCE\xBA\xCE\xAC", true},
        {"\xF0\x9F\x98\x80", true},
        {"\xF4\x8F\xBF\xBF", true},
        {"caf\xE9", false},
        {"eight by\xE9", false},
        {"\xC0\x80", false},
        {"\xC1\xBF", false},
        {"\xE0\x9F\xBF", false},
        {"\xF0\x8F\xBF\xBF", false},
        {"\xED\xA0\x80", false},
        {"\xF4\x90\x80\x80", false},
        {"\xF5\x80\x80\x80", false},
        {"\x80", false},
        {"\xC3", false},
        {"\xE2\x82", false},
        {"\xC3\xC3\xA9", false},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(testing::PrintToString(row.Bytes));
        EXPECT_EQ(IsUtf8(row.Bytes), row.Expected);
    }
}

TEST(EncodingTest, Windows1252HasAMeaningForEveryByte) {
    EXPECT_EQ(Utf8FromWindows1252("Fran\xE7"
                                  "ais"),
              "Fran\xC3\xA7"
              "ais");
    EXPECT_EQ(Utf8FromWindows1252("\x80\x93\x94\x99\x9F"),
              "\xE2\x82\xAC\xE2\x80\x9C\xE2\x80\x9D\xE2\x84\xA2\xC5\xB8");
    EXPECT_EQ(Utf8FromWindows1252("\x81\x8D\x8F\x90\x9D"),
              "\xC2\x81\xC2\x8D\xC2\x8F\xC2\x90\xC2\x9D");
    EXPECT_EQ(Utf8FromWindows1252("\xA0\xFF"), "\xC2\xA0\xC3\xBF");
    std::string all;
    for (int byte = 0; byte < 256; ++byte) {
        all += static_cast<char>(byte);
    }
    const std::string text = Utf8FromWindows1252(all);
    EXPECT_TRUE(IsUtf8(text));
    EXPECT_EQ(text.substr(0, 128), all.substr(0, 128));
}

TEST(EncodingTest, BytesThatAreUtf8AlreadyAreLeftAlone) {
    EXPECT_EQ(AsUtf8("gr\xC3\xBC\xC3\x9F"), "gr\xC3\xBC\xC3\x9F");
    EXPECT_EQ(AsUtf8("gr\xFC\xDF"), "gr\xC3\xBC\xC3\x9F");
    EXPECT_EQ(AsUtf8("gr\xC3\xBC\xDF"), "gr\xC3\x83\xC2\xBC\xC3\x9F");
}

TEST(EncodingTest, RandomBytesAreJudgedByTheTableOfSequences) {
    const auto seed = std::random_device{}();
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 random(seed);
    // Bytes at the edges of every row of the table, so that many draws are well-formed.
    constexpr unsigned char kEdges[] = {0x41, 0x7F, 0x80, 0x8F, 0x90, 0x9F, 0xA0, 0xBF, 0xC1, 0xC2,
                                        0xDF, 0xE0, 0xE1, 0xEC, 0xED, 0xEF, 0xF0, 0xF3, 0xF4, 0xF5};
    std::uniform_int_distribution<std::size_t> edge(0, std::size(kEdges) - 1);
    std::uniform_int_distribution<std::size_t> length(0, 6);
    std::uniform_int_distribution<std::size_t> ascii(0, 17);
    int wellFormed = 0;
    for (int round = 0; round < 100'000; ++round) {
        std::string bytes(ascii(random), 'a');
        const std::size_t count = length(random);
        for (std::size_t i = 0; i < count; ++i) {
            bytes += static_cast<char>(kEdges[edge(random)]);
        }
        const bool expected = IsWellFormed(bytes);
        wellFormed += expected ? 1 : 0;
        ASSERT_EQ(IsUtf8(bytes), expected) << testing::PrintToString(bytes);
        const std::string text = AsUtf8(bytes);
        ASSERT_TRUE(IsWellFormed(text)) << testing::PrintToString(bytes);
        ASSERT_EQ(AsUtf8(text), text);
        ASSERT_EQ(text == bytes, expected) << testing::PrintToString(bytes);
    }
    EXPECT_GT(wellFormed, 1000);
}

} // namespace
} // namespace kestrova
