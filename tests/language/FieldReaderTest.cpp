// SPDX-License-Identifier: GPL-3.0-or-later
#include "language/FieldReader.h"

#include <gtest/gtest.h>

#include <vector>

namespace kestrova {
namespace {

std::vector<std::string> FieldsOf(std::string_view bytes) {
    std::vector<std::string> fields;
    FieldReader reader(bytes);
    while (auto field = reader.Next()) {
        fields.push_back(std::move(*field));
    }
    return fields;
}

TEST(FieldReaderTest, FieldsEndAtCommasAndLineEnds) {
    struct Row {
        const char* Name;
        std::string Bytes;
        std::vector<std::string> Expected;
    };
    const Row rows[] = {
        {"one a line", "one\r\ntwo\nthree", {"one", "two", "three"}},
        {"a comma parts", "one,two\r\nthree\r\n", {"one", "two", "three"}},
        {"leading blanks go", "   one,  two\r\n", {"one", "two"}},
        {"blanks inside stay", "Loose  All  Data!\r\n", {"Loose  All  Data!"}},
        {"empty lines are empty fields", "\r\n\r\none\r\n", {"", "", "one"}},
        {"a line of blanks", "   \r\none\r\n", {"", "one"}},
        {"a comma at the end", "one,\r\ntwo\r\n", {"one", "", "two"}},
        {"quotes go", "\"one\"\r\ntwo\r\n", {"one", "two"}},
        {"a comma in quotes stays", "\"one, two\"\r\nthree\r\n", {"one, two", "three"}},
        {"blanks in quotes stay", "  \"  January  \"\r\n", {"  January  "}},
        {"two quoted on a line", "\"a,b\",\"c\"\r\nd\r\n", {"a,b", "c", "d"}},
        {"blanks behind a quote go", "\"one\"  ,two\r\n\"three\" \r\n", {"one", "two", "three"}},
        {"an empty quoted field", "\"\"\r\none\r\n", {"", "one"}},
        {"a quote inside is a character", "5\" disc\r\n", {"5\" disc"}},
        {"an open quote ends with its line", "\"one, two\r\nthree\r\n", {"one, two", "three"}},
        {"a mark at the front",
         "\xEF\xBB\xBF"
         "one\r\n",
         {"one"}},
        {"older bytes",
         "Fran\xE7"
         "ais\r\nM\xC3\xA4rz\r\n",
         {"Fran\xC3\xA7"
          "ais",
          "M\xC3\xA4rz"}},
        {"nothing", "", {}},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.Name);
        EXPECT_EQ(FieldsOf(row.Bytes), row.Expected);
    }
}

TEST(FieldReaderTest, SkippingCountsFieldsAndNotLines) {
    FieldReader fields("a,b\r\n\"c,d\"\r\n\r\ne\r\n");
    EXPECT_TRUE(fields.Skip(4));
    EXPECT_EQ(fields.Next(), "e");
    EXPECT_TRUE(fields.Skip(0));
    EXPECT_FALSE(fields.Skip(1));
}

} // namespace
} // namespace kestrova
