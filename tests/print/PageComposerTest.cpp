// SPDX-License-Identifier: GPL-3.0-or-later
#include "print/PageComposer.h"

#include "print/PrintedMonth.h"
#include "print/WholeTwips.h"

#include <chrono>
#include <gtest/gtest.h>

namespace kestrova {
namespace {

const LayoutItem& Cell(const PageLayout& page, int day) {
    return page.LabDates[static_cast<std::size_t>(day - 1)];
}

TEST(PageComposerTest, HalvesGoToTheEvenTwip) {
    EXPECT_EQ(WholeTwips(1, 2), 0);
    EXPECT_EQ(WholeTwips(3, 2), 2);
    EXPECT_EQ(WholeTwips(-1, 2), 0);
    EXPECT_EQ(WholeTwips(-3, 2), -2);
    EXPECT_EQ(WholeTwips(-5, 3), -2);
    EXPECT_EQ(WholeTwips(10606, 7), 1515);
}

// February 2026 begins on a Sunday and takes four rows of a week that does.
TEST(PageComposerTest, APageWithoutAPictureIsLaidOutToTheTwip) {
    const PageLayout page = PrintedMonth(2026, 1, WeekStart::Sunday).Composed();
    EXPECT_EQ(BoxIn(page.Image1), (Box{500, 2000, 10606, 12538}));
    // 15 letters of 200 twips, the two blanks before them once more behind.
    EXPECT_EQ(page.LabCurMth.Caption, "  Month    2026");
    EXPECT_EQ(BoxIn(page.LabCurMth), (Box{4103, 2500, 3400, 400}));
    EXPECT_EQ(BoxIn(page.Image2), (Box{500, 3000, 10606, 0}));
    EXPECT_EQ(BoxIn(page.LabDays[0]), (Box{500, 3240, 1515, 240}));
    EXPECT_EQ(BoxIn(page.LabDays[4]), (Box{6561, 3240, 1515, 240}));
    EXPECT_EQ(page.LabDays[4].Caption, "C4");
    EXPECT_EQ(BoxIn(Cell(page, 1)), (Box{500, 3720, 1515, 1793}));
    EXPECT_EQ(BoxIn(Cell(page, 28)), (Box{9591, 3720 + 3 * 1793, 1515, 1793}));
    EXPECT_EQ(Cell(page, 28).Caption, "28");
    EXPECT_EQ(Cell(page, 28).FontSize, 14);
    EXPECT_TRUE(Cell(page, 28).Visible);
    EXPECT_FALSE(Cell(page, 29).Visible);
}

TEST(PageComposerTest, EveryDayStandsInItsColumnAndRow) {
    struct Row {
        int Year;
        int Month;
        WeekStart Week;
        int FirstColumn;
        int LastRow;
        int LastColumn;
    };
    for (const Row& row :
         {Row{2026, 1, WeekStart::Sunday, 0, 4, 6}, Row{2026, 1, WeekStart::Monday, 6, 5, 5},
          Row{2026, 1, WeekStart::Saturday, 1, 5, 0}, Row{2026, 7, WeekStart::Sunday, 6, 6, 1},
          Row{1900, 1, WeekStart::Monday, 3, 5, 2}, Row{2000, 1, WeekStart::Monday, 1, 5, 1}}) {
        SCOPED_TRACE(testing::Message() << row.Year << "-" << row.Month);
        const PageLayout page = PrintedMonth(row.Year, row.Month, row.Week).Composed();
        const int days = NofDays(row.Year, row.Month);
        const auto left = [&](int column) {
            return page.LabDays[static_cast<std::size_t>(column)].Left;
        };
        EXPECT_EQ(Cell(page, 1).Left, left(row.FirstColumn));
        EXPECT_EQ(Cell(page, 1).Top, 3720);
        EXPECT_EQ(Cell(page, days).Left, left(row.LastColumn));
        EXPECT_EQ(Cell(page, days).Top, 3720 + (row.LastRow - 1) * 1793);
    }
}

// What must hold for every day of a page, give or take the twip that rounding takes.
void CheckCells(const PageLayout& page, int month, int firstWeekday) {
    const auto first =
        std::chrono::weekday(std::chrono::sys_days(std::chrono::year(2026) / (month + 1) / 1));
    const int lead = (static_cast<int>(first.c_encoding()) - firstWeekday + 7) % 7;
    const LayoutItem& box = page.Image1;
    for (int day = 1; day <= NofDays(2026, month); ++day) {
        SCOPED_TRACE(day);
        const LayoutItem& cell = Cell(page, day);
        const LayoutItem& name = page.LabDays[static_cast<std::size_t>((lead + day - 1) % 7)];
        ASSERT_TRUE(cell.Visible);
        ASSERT_GT(cell.Width, 0);
        ASSERT_GT(cell.Height, 0);
        ASSERT_NEAR(cell.Left, name.Left + page.GridSpacing / 2, 1);
        ASSERT_LE(cell.Left + cell.Width, name.Left + name.Width + 1);
        ASSERT_GE(cell.Top, name.Top + name.Height);
        ASSERT_LE(cell.Left + cell.Width, box.Left + box.Width + 1);
        ASSERT_LE(cell.Top + cell.Height, box.Top + box.Height);
        const int row = (lead + day - 1) / 7;
        ASSERT_EQ(cell.Top, page.LabDays[0].Top + 2 * page.LabDays[0].Height +
                                row * (cell.Height + page.GridSpacing));
    }
}

TEST(PageComposerTest, CellsOfAnyMonthLieInTheBoxAndApart) {
    struct Week {
        WeekStart Start;
        int Weekday; // from Sunday
    };
    for (const Week& week :
         {Week{WeekStart::Sunday, 0}, Week{WeekStart::Monday, 1}, Week{WeekStart::Saturday, 6}}) {
        for (int month = 0; month < 12; ++month) {
            const PrintedMonth printed(2026, month, week.Start);
            for (const int spacing : {0, 150, 300, 450, 600}) {
                for (const int paper : {1, 3, 8, kPaperA4}) { // Letter, Tabloid, A3
                    for (const auto turned : {Orientation::Portrait, Orientation::Landscape}) {
                        SCOPED_TRACE(testing::Message() << month << ", " << spacing << ", " << paper
                                                        << ", " << int(turned));
                        const PageSize area = PrintableArea({paper, turned});
                        CheckCells(printed.Composed(nullptr, spacing, area), month, week.Weekday);
                    }
                }
            }
        }
    }
}

TEST(PageComposerTest, SpacingPartsTheCells) {
    const PageLayout page = PrintedMonth(2026, 1, WeekStart::Sunday).Composed(nullptr, 300);
    EXPECT_EQ(BoxIn(Cell(page, 1)), (Box{650, 3720, 1215, 1493}));
    EXPECT_EQ(BoxIn(Cell(page, 9)), (Box{2165, 3720 + 1793, 1215, 1493}));
}

TEST(PageComposerTest, ThePictureKeepsItsProportionsAndLeavesRoomForMessages) {
    struct Row {
        int Width;
        int Height;
        PageSize Surface;
        int Messages; // of the busiest day
        Box Expected;
    };
    const PageSize portrait{11606, 16538};
    const PageSize landscape{16538, 11606};
    for (const Row& row : {Row{400, 300, portrait, 0, {778, 3000, 10051, 7538}},
                           Row{400, 300, portrait, 2, {1671, 3000, 8264, 6198}},
                           Row{400, 300, portrait, 10, {3714, 3000, 4179, 3134}},
                           Row{3000, 1000, portrait, 2, {500, 3000, 10606, 3535}},
                           Row{300, 400, portrait, 2, {3479, 3000, 4648, 6198}},
                           Row{400, 300, landscape, 0, {6532, 3000, 3475, 2606}},
                           Row{400, 300, landscape, 2, {8269, 3000, 0, 0}},
                           Row{400, 300, {11606, 8091}, 0, {5803, 3000, 0, 0}}}) {
        SCOPED_TRACE(testing::Message() << row.Surface.Width << ", " << row.Messages);
        const auto picture = std::make_shared<FakePicture>(row.Width, row.Height);
        PrintedMonth month(2026, 1, WeekStart::Sunday);
        for (int slot = 1; slot <= row.Messages; ++slot) {
            month.Add(10, slot, "x");
        }
        const PageLayout page = month.Composed(picture, 0, row.Surface);
        EXPECT_EQ(BoxIn(page.Image2), row.Expected);
        if (row.Messages == 2) {
            const LayoutItem& second = page.LabEvent[1];
            EXPECT_LE(second.Top + second.Height, Cell(page, 17).Top);
        }
        const LayoutItem& last = Cell(page, 28);
        EXPECT_GT(last.Height, 0);
        EXPECT_LE(last.Top + last.Height, page.Image1.Top + page.Image1.Height);
    }
}

TEST(PageComposerTest, APictureThatWasMovedIsKeptInsideTheBackground) {
    const PrintedMonth month(2026, 1, WeekStart::Sunday);
    struct Row {
        Box Moved;
        Box Expected;
    };
    for (const Row& row : {Row{{-900, 0, 3000, 2000}, {500, 3000, 3000, 2000}},
                           Row{{9000, 14000, 3000, 2000}, {8106, 12538, 3000, 2000}},
                           Row{{0, 5000, 20000, 9999}, {500, 5000, 10606, 7538}}}) {
        PageLayout page = month.Composed();
        page.Image2.Left = row.Moved.Left;
        page.Image2.Top = row.Moved.Top;
        page.Image2.Width = row.Moved.Width;
        page.Image2.Height = row.Moved.Height;
        DoControls(page, month.Source(), month.Measure, FirstLayout::No);
        EXPECT_EQ(BoxIn(page.Image2), row.Expected);
        EXPECT_EQ(page.LabDays[0].Top, row.Expected.Top + row.Expected.Height + 240);
    }
}

TEST(PageComposerTest, MessagesFollowTheirSlotsUpToTheFirstFreeOne) {
    PrintedMonth month(2026, 1, WeekStart::Sunday);
    month.Add(1, 1, "one");
    month.Add(1, 2, "hidden", 10, 1);
    month.Add(1, 3, "three", 11);
    month.Add(2, 1, "before the gap");
    month.Add(2, 3, "behind the gap");
    month.Add(3, 2, "no first");
    for (int slot = 1; slot < kTableSlots; ++slot) {
        month.Add(28, slot, std::to_string(slot));
    }
    PageLayout page = month.Composed();
    ASSERT_EQ(page.LabEvent.size(), 3U + 11U);
    const LayoutItem& first = page.LabEvent[0];
    EXPECT_EQ(first.Caption, "one");
    EXPECT_EQ(BoxIn(first), (Box{550, 3720 + 300, 1415, 600}));
    EXPECT_EQ(first.FontSize, 8);
    EXPECT_EQ(first.ForeColor, 255);
    EXPECT_EQ(page.LabEvent[1].Caption, "three");
    EXPECT_EQ(BoxIn(page.LabEvent[1]), (Box{550, 3720 + 900, 1415, 893}));
    EXPECT_EQ(page.LabEvent[2].Caption, "before the gap");
    // Below the cell's bottom there is room for a line at least.
    EXPECT_EQ(BoxIn(page.LabEvent[13]), (Box{9641, Cell(page, 28).Top + 3300, 1415, 160}));

    // What the user has sized or written stays, though it moves with its cell.
    page.LabEvent[0].Width = 5000;
    page.LabEvent[0].Fitted = false;
    page.LabEvent[1].Caption = "mine";
    page.GridSpacing = 600;
    DoControls(page, month.Source(), month.Measure, FirstLayout::No);
    ASSERT_EQ(page.LabEvent.size(), 3U + 11U);
    EXPECT_EQ(BoxIn(page.LabEvent[0]), (Box{850, 4020, 5000, 600}));
    EXPECT_EQ(page.LabEvent[1].Caption, "mine");
    EXPECT_EQ(BoxIn(page.LabEvent[1]), (Box{850, 4620, 815, 293}));
}

TEST(PageComposerTest, AYearBeyondTheDiaryHasDatesOnly) {
    for (const int year : {2025, 2028, kFirstYear, kLastYear}) {
        PrintedMonth month(year, 0, WeekStart::Monday);
        const PageLayout page = month.Composed();
        EXPECT_TRUE(Cell(page, 31).Visible);
        EXPECT_TRUE(page.LabEvent.empty());
    }
    PrintedMonth next(2027, 0, WeekStart::Monday);
    next.Add(1, 1, "next year");
    EXPECT_EQ(next.Composed().LabEvent.size(), 1U);
}

// Whatever a settings file has held, there is a page.
TEST(PageComposerTest, OddFontsAreBroughtIntoRange) {
    PrintedMonth month(2026, 0, WeekStart::Monday);
    month.Settings.PrintStyles[0].Size = std::numeric_limits<float>::quiet_NaN();
    month.Settings.PrintStyles[2].Size = 1e30F;
    month.Settings.PrintStyles[2].Colour = -1;
    const PageLayout page = month.Composed();
    EXPECT_EQ(page.LabCurMth.FontSize, 1);
    EXPECT_EQ(Cell(page, 1).FontSize, 1638);
    EXPECT_EQ(Cell(page, 1).ForeColor, 0xFFFFFF);
}

} // namespace
} // namespace kestrova
