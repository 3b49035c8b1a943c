// SPDX-License-Identifier: GPL-3.0-or-later
#include "language/Captions.h"

#include "language/ProgramTexts.h"

#include <gtest/gtest.h>

#include <set>

namespace kestrova {
namespace {

TEST(CaptionsTest, EveryControlShowsOneTextThatIsNoPlaceholder) {
    const StringTable table = MsgDefaults();
    for (const auto rows : {CaptionRows(), TipRows()}) {
        std::set<std::pair<std::string_view, std::string_view>> seen;
        for (const CaptionRow& row : rows) {
            SCOPED_TRACE(std::string(row.Window) + "." + std::string(row.Control));
            EXPECT_TRUE(seen.insert({row.Window, row.Control}).second);
            ASSERT_GE(row.Text.Entry, 0);
            ASSERT_LT(row.Text.Entry, kTextsPerGroup);
            EXPECT_NE(table.Text(row.Text), "Unused");
            EXPECT_NE(table.Text(row.Text), "EndUnused");
        }
    }
}

TEST(CaptionsTest, TipsComeFromTheGroupOfTips) {
    for (const CaptionRow& row : TipRows()) {
        EXPECT_EQ(row.Text.Group, TextGroup::Tips) << row.Control;
    }
}

TEST(ProgramTextsTest, AValueTakesItsPlaceInTheText) {
    const std::string text = TextOf(MsgDefaults(), ProgramText::ClockBehind, "1999");
    EXPECT_NE(text.find("shows the year 1999, which"), std::string::npos);
    EXPECT_EQ(text.find('%'), std::string::npos);
    EXPECT_EQ(TextOf(MsgDefaults(), ProgramText::YearPrompt, "1999"), "Year ?");
}

} // namespace
} // namespace kestrova
