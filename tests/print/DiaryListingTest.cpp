// SPDX-License-Identifier: GPL-3.0-or-later
#include "print/DiaryListing.h"

#include "fakes/FakeSurface.h"
#include "print/PrintedMonth.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace kestrova {
namespace {

using testing::ElementsAre;

// Fonts are in the default sizes: heading 400 twips a line, day 280, event 160, and two empty lines
// of 240 each after a week.
class DiaryListingTest : public testing::Test {
protected:
    PrintedMonth month_{2026, 1, WeekStart::Sunday};
    FakeJob job_;

    void List() {
        LayoutItem heading;
        DoHeader(heading, month_.Source(), month_.Measure);
        DoDiary(job_, month_.Source(), heading);
    }

    // The texts of a page as "x,y text".
    [[nodiscard]] std::vector<std::string> Page(int page) const {
        std::vector<std::string> texts;
        for (const Drawn& drawn : job_.All) {
            if (drawn.Page == page) {
                texts.push_back(std::to_string(drawn.X) + "," + std::to_string(drawn.Y) + " " +
                                drawn.Text);
            }
        }
        return texts;
    }
};

TEST_F(DiaryListingTest, AMonthWithoutEventsIsALineForEachDay) {
    List();
    ASSERT_EQ(job_.Pages, 1);
    const auto page = Page(1);
    ASSERT_EQ(page.size(), 1U + 2 * 28);
    EXPECT_EQ(page[0], "4103,500   Month    2026");
    EXPECT_EQ(page[1], "100,900 C0");
    EXPECT_EQ(page[2], "2100,900 1");
    EXPECT_EQ(page[3], "100,1180 C1");
    EXPECT_EQ(page[15], "100,3340 C0") << "900 + 7 x 280 + 2 x 240";
    EXPECT_FALSE(job_.Finished);
}

TEST_F(DiaryListingTest, EveryEventIsListedHiddenOnesToo) {
    month_.Add(1, 1, "Dentist", 7);
    month_.Add(1, 3, "Choir", 19, 1);
    List();
    const auto page = Page(1);
    // A print zone is 14 letters of 80 twips: 1120; the time ends at 3100 + 400.
    EXPECT_EQ(page[3], "3100,1180 07:00");
    EXPECT_EQ(page[4], "4480,1180 Dentist");
    EXPECT_EQ(page[5], "3100,1340 19:00");
    EXPECT_EQ(page[6], "4480,1340 Choir");
    EXPECT_EQ(page[7], "100,1500 C1");
}

TEST_F(DiaryListingTest, AWideMessageGoesOnAtItsPrintZone) {
    job_.Size = {5400, 16538}; // leaves 10 letters
    month_.Add(1, 1, "meet the whole family");
    List();
    const auto page = Page(1);
    EXPECT_THAT((std::vector<std::string>(page.begin() + 3, page.begin() + 8)),
                ElementsAre("3100,1180 09:00", "4480,1180 meet the", "4480,1340 whole",
                            "4480,1500 family", "100,1660 C1"));
}

// At or below the page's height less 100 and 2000 a day begins on a new page.
TEST_F(DiaryListingTest, ADayNeedsRoom) {
    for (const int spare : {-1, 0, 1}) {
        FakeJob job;
        job.Size.Height = 900 + 3 * 280 + 2100 + spare;
        LayoutItem heading;
        DoHeader(heading, month_.Source(), month_.Measure);
        DoDiary(job, month_.Source(), heading);
        const auto texts = job.Texts();
        // With a twip to spare, the fourth day is on the first page still.
        EXPECT_EQ(texts[7].Page, spare > 0 ? 1 : 2) << spare;
        EXPECT_EQ(texts[spare > 0 ? 7 : 8].Text, "C3") << spare;
    }
}

// Dates in 60 points are 1200 twips high: the first ends at 2100. Below the page's height less 100
// and 1000, and not at it, its events begin on a new page.
TEST_F(DiaryListingTest, EventsBelowAHighDateNeedRoom) {
    month_.Settings.PrintStyles[static_cast<std::size_t>(PrintStyleRole::Date)].Size = 60;
    month_.Add(1, 1, "one");
    for (const int spare : {-1, 0}) {
        SCOPED_TRACE(spare);
        job_ = {};
        job_.Size.Height = 2100 + 1100 + spare;
        List();
        if (spare == 0) {
            EXPECT_THAT(Page(1), ElementsAre("4103,500   Month    2026", "100,900 C0", "2100,900 1",
                                             "3100,2100 09:00", "4480,2100 one"));
        } else {
            EXPECT_EQ(Page(1).size(), 3U);
            EXPECT_THAT(Page(2)[1], "3100,900 09:00");
        }
    }
}

TEST_F(DiaryListingTest, ADayThatRunsPastThePageIsNamedAgainOnTheNext) {
    month_.Add(1, 1, "one");
    month_.Add(1, 2, "two");
    month_.Add(1, 3, "three");
    job_.Size.Height = 1180 + 320 + 2100;
    List();
    EXPECT_THAT(Page(1), ElementsAre("4103,500   Month    2026", "100,900 C0", "2100,900 1",
                                     "3100,1180 09:00", "4480,1180 one", "3100,1340 09:00",
                                     "4480,1340 two"));
    const auto next = Page(2);
    EXPECT_THAT((std::vector<std::string>(next.begin(), next.begin() + 5)),
                ElementsAre("4103,500   Month    2026", "100,900 C0", "2100,900 1",
                            "3100,1180 09:00", "4480,1180 three"));
}

TEST_F(DiaryListingTest, AWeekNeedsMoreRoomThanADay) {
    for (const int spare : {0, 1}) {
        FakeJob job;
        job.Size.Height = 3340 + 3600 + spare;
        LayoutItem heading;
        DoHeader(heading, month_.Source(), month_.Measure);
        DoDiary(job, month_.Source(), heading);
        EXPECT_EQ(job.Texts()[15].Page, spare == 0 ? 2 : 1) << spare;
    }
}

TEST_F(DiaryListingTest, NoTextLeavesThePage) {
    std::string novel;
    for (int i = 0; i < 3000; ++i) {
        novel += "word" + std::to_string(i) + " ";
    }
    for (int slot = 1; slot <= kEventsPerDay; ++slot) {
        for (int day = 1; day <= 28; ++day) {
            month_.Add(day, slot, day % 9 == 0 ? novel : "short");
        }
    }
    List();
    int words = 0;
    for (const Drawn& drawn : job_.All) {
        EXPECT_LE(drawn.Y + job_.LineHeight(drawn.Font), job_.PageHeight());
        EXPECT_LE(drawn.X + job_.TextWidth(drawn.Font, drawn.Text), job_.PageWidth());
        words += drawn.Text.find("word2999") != std::string::npos ? 1 : 0;
    }
    EXPECT_EQ(words, 3 * kEventsPerDay) << "each to its end";
}

TEST_F(DiaryListingTest, AYearBeyondTheDiaryHasDaysOnly) {
    month_ = PrintedMonth(2030, 1, WeekStart::Monday);
    List();
    EXPECT_EQ(Page(1).size(), 1U + 2 * 28);
    EXPECT_EQ(Page(1)[1], "100,900 C4");
}

} // namespace
} // namespace kestrova
