// SPDX-License-Identifier: GPL-3.0-or-later
#include "text/Lines.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace kestrova {
namespace {

using Lines = std::vector<std::string>;

Lines LinesOf(std::string_view bytes) {
    Lines lines;
    LineReader reader(bytes);
    while (const auto line = reader.Next()) {
        lines.emplace_back(*line);
    }
    return lines;
}

TEST(LinesTest, LinesAreCutAtBothKindsOfEnd) {
    struct Row {
        std::string Bytes;
        Lines Expected;
    };
    const Row rows[] = {
        {"", {}},
        {"one", {"one"}},
        {"one\r\ntwo\r\n", {"one", "two"}},
        {"one\ntwo", {"one", "two"}},
        {"one\r\ntwo\nthree\r\n", {"one", "two", "three"}},
        {"\r\n\r\n", {"", ""}},
        {"\n", {""}},
        {"one\r", {"one"}},
        {"a\rb\r\n", {"a\rb"}},
        {"a\r\r\n", {"a\r"}},
        {"  kept  \r\n", {"  kept  "}},
        {std::string("a\0b\r\n", 5), {std::string("a\0b", 3)}},
        {"\xEF\xBB\xBFone\r\n", {"one"}},
        {"\xEF\xBB\xBF", {}},
        {"\xEF\xBB", {"\xEF\xBB"}},
        {"one\r\n\xEF\xBB\xBFtwo\r\n", {"one", "\xEF\xBB\xBFtwo"}},
    };
    for (std::size_t i = 0; i < std::size(rows); ++i) {
        SCOPED_TRACE("row " + std::to_string(i));
        EXPECT_EQ(LinesOf(rows[i].Bytes), rows[i].Expected);
    }
}

TEST(LinesTest, TheRestBeginsBehindTheLinesRead) {
    LineReader reader("one\r\ntwo\r\nthree");
    (void)reader.Next();
    EXPECT_EQ(reader.Rest(), "two\r\nthree");
    (void)reader.Next();
    (void)reader.Next();
    EXPECT_EQ(reader.Rest(), "");
    EXPECT_EQ(reader.Next(), std::nullopt);
    EXPECT_EQ(reader.Next(), std::nullopt);
}

TEST(LinesTest, OneLineHoldsNothingThatWouldEndIt) {
    EXPECT_EQ(AsOneLine("a\r\nb\nc\rd"), "a  b c d");
    EXPECT_EQ(AsOneLine(std::string_view("a\0b", 3)), "a b");
    EXPECT_EQ(AsOneLine("  tab\tand blanks "), "  tab\tand blanks ");
}

} // namespace
} // namespace kestrova
