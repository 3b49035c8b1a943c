// SPDX-License-Identifier: GPL-3.0-or-later
#include "print/PrintDesk.h"

#include "fakes/FakePrinter.h"
#include "fakes/MemoryFileStore.h"
#include "print/PrintedMonth.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace kestrova {
namespace {

constexpr const char* kPlan = "/k/Plan.kly";

class PrintDeskTest : public testing::Test {
protected:
    PrintDeskTest() {
        dates_.BaseYear = 2026;
        dates_.PageYear = 2026;
        dates_.PageMonth = 1;
        month_.Add(1, 1, "Dentist");
        monthPictures_.MonthPicture[1] = "/k/February.jpg";
        pictures_.Files["/k/February.jpg"] = {400, 300};
        pictures_.Files["/k/Other.jpg"] = {300, 300};
    }

    MemoryFileStore files_;
    FakePrinter printer_;
    FakePictures pictures_;
    PrintedMonth month_{2026, 1, WeekStart::Sunday};
    Selection dates_;
    StringTable texts_ = MsgDefaults();
    PictureTable monthPictures_;
    PrintDesk desk_{{files_, [this]() -> Printer& { return printer_; }, pictures_, month_.Measure,
                     dates_, texts_, month_.Settings, monthPictures_,
                     [this]() -> const DiaryTable& { return month_.Table; },
                     [this] { return month_.Source().DayNames; }}};
};

TEST_F(PrintDeskTest, OpensTheMonthOnShowAsANewPage) {
    month_.Settings.PrintNumber2 = 11;
    ASSERT_TRUE(desk_.Open());
    EXPECT_EQ(desk_.Setup().Paper, 11);
    const PageLayout& page = desk_.Page();
    EXPECT_EQ(page.Surface, PrintableArea(desk_.Setup()));
    EXPECT_EQ(page.LabCurMth.Caption, "  February    2026");
    EXPECT_EQ(page.PicturePath, "/k/February.jpg");
    ASSERT_NE(page.Image2.Picture, nullptr);
    ASSERT_EQ(page.LabEvent.size(), 1U);
    EXPECT_EQ(page.LabEvent[0].Caption, "Dentist");
    EXPECT_EQ(desk_.DaysShown(), 28);
    EXPECT_FALSE(desk_.IsChanged());
}

TEST_F(PrintDeskTest, AnotherMonthTakesOverBackgroundBorderAndPaper) {
    ASSERT_TRUE(desk_.Open());
    ASSERT_TRUE(desk_.LoadPicture(LayoutKind::Image1, "/k/Other.jpg"));
    desk_.Page().BorderLines = 3;
    desk_.SetPaper(8);
    desk_.SetOrientation(Orientation::Landscape);
    desk_.AddText();
    dates_.PageMonth = 2;
    ASSERT_TRUE(desk_.Open());
    EXPECT_EQ(desk_.Setup().Turned, Orientation::Portrait);
    EXPECT_EQ(desk_.Setup().Paper, 8);
    EXPECT_EQ(desk_.Page().BackgroundPath, "/k/Other.jpg");
    EXPECT_NE(desk_.Page().Image1.Picture, nullptr);
    EXPECT_EQ(desk_.Page().Image2.Picture, nullptr) << "March has none";
    EXPECT_EQ(desk_.Page().BorderLines, 3);
    EXPECT_TRUE(desk_.Page().LabUser.empty());
    EXPECT_TRUE(desk_.Page().LabEvent.empty());

    desk_.Close();
    EXPECT_EQ(month_.Settings.PrintNumber2, 8);
    ASSERT_TRUE(desk_.Open());
    EXPECT_EQ(desk_.Page().BorderLines, 1);
    EXPECT_EQ(desk_.Page().Image1.Picture, nullptr);
}

TEST_F(PrintDeskTest, WithoutAPrinterThereIsNoPage) {
    ASSERT_TRUE(desk_.Open());
    printer_.There = Error{ErrorCode::NotFound, "none"};
    EXPECT_FALSE(desk_.Open());
    EXPECT_TRUE(desk_.PrintFault());
    EXPECT_EQ(desk_.Page(), PageLayout());
    desk_.SetPaper(3);
    desk_.Redraw();
    desk_.DoControls();
    EXPECT_EQ(desk_.Page(), PageLayout());
    EXPECT_TRUE(desk_.Print());
    EXPECT_TRUE(printer_.Printed.empty());
    printer_.There = Done{};
    EXPECT_TRUE(desk_.Open());
    EXPECT_FALSE(desk_.PrintFault());
}

TEST_F(PrintDeskTest, TurningThePaperIsNoChangeOfTheUsers) {
    ASSERT_TRUE(desk_.Open());
    const LayoutRef text = desk_.AddText();
    desk_.Page().Find(text)->Left = 11000;
    desk_.Page().Find(text)->Top = 16000;
    EXPECT_TRUE(desk_.IsChanged());
    ASSERT_TRUE(desk_.Save(kPlan));
    desk_.SetOrientation(Orientation::Landscape);
    desk_.Activate();
    EXPECT_FALSE(desk_.IsChanged());
    EXPECT_EQ(desk_.Page().Image1.Width, 15538);
    EXPECT_GT(desk_.Page().Image2.Height, 0);
    EXPECT_EQ(desk_.Page().Find(text)->Left, 11000);
    EXPECT_EQ(desk_.Page().Find(text)->Top, 11606 - 160) << "still on the page";
    EXPECT_EQ(desk_.Page().LabEvent.size(), 1U);

    desk_.Page().BorderLines = 2;
    desk_.SetPaper(1);
    EXPECT_TRUE(desk_.IsChanged()) << "what the user has changed is still to be saved";
}

// The messages are those of the moment in which the page was opened.
TEST_F(PrintDeskTest, AnEditOfTheDiaryDoesNotShiftMessagesToOtherDays) {
    month_.Add(5, 1, "Choir");
    ASSERT_TRUE(desk_.Open());
    const LayoutItem choir = desk_.Page().LabEvent[1];
    month_.Add(3, 1, "New");
    desk_.DoControls();
    EXPECT_EQ(desk_.Page().LabEvent[1], choir);
}

TEST_F(PrintDeskTest, PrintsThePageAndTheDiary) {
    ASSERT_TRUE(desk_.Open());
    desk_.SetQuality(PrintQuality::Draft);
    ASSERT_TRUE(desk_.Print());
    dates_.PageMonth = 3;
    ASSERT_TRUE(desk_.PrintDiary());
    ASSERT_EQ(printer_.Printed.size(), 2U);
    EXPECT_EQ(printer_.Printed[0].Title, "February 2026");
    EXPECT_EQ(printer_.Printed[0].Pages, 1);
    EXPECT_EQ(printer_.Printed[0].Setup.Quality, PrintQuality::Draft);
    FakeSurface preview;
    desk_.DrawPage(preview);
    EXPECT_EQ(printer_.Printed[0].All.size(), preview.All.size());
    EXPECT_EQ(printer_.Printed[1].Title, "April 2026");
    EXPECT_EQ(printer_.Printed[1].All[0].Text, "  April    2026");
    EXPECT_EQ(desk_.Page().LabCurMth.Caption, "  February    2026");

    printer_.Outcome = Error{ErrorCode::Busy, "no answer"};
    EXPECT_EQ(desk_.Print().Failure().Code, ErrorCode::Busy);
    EXPECT_TRUE(desk_.PrintFault());
    EXPECT_FALSE(desk_.PrintDiary()) << "it is tried in spite of the fault";
    EXPECT_TRUE(desk_.PrintFault());
    printer_.Outcome = Done{};
    EXPECT_TRUE(desk_.PrintDiary());
    EXPECT_FALSE(desk_.PrintFault());
}

TEST_F(PrintDeskTest, ThePagesPictureIsPlacedUnlessTheUserHasSizedIt) {
    monthPictures_.MonthPicture[1].clear();
    ASSERT_TRUE(desk_.Open());
    ASSERT_EQ(desk_.Page().Image2.Height, 0);
    ASSERT_TRUE(desk_.LoadPicture(LayoutKind::Image2, "/k/Other.jpg"));
    LayoutItem& picture = desk_.Page().Image2;
    EXPECT_EQ(picture.Height, picture.Width);
    EXPECT_EQ(desk_.Page().LabDays[0].Top, picture.Top + picture.Height + 240);
    picture.Width = 1000;
    picture.Fitted = false;
    ASSERT_TRUE(desk_.LoadPicture(LayoutKind::Image2, "/k/February.jpg"));
    EXPECT_EQ(picture.Width, 1000);
    EXPECT_FALSE(desk_.LoadPicture(LayoutKind::Image2, "/k/missing.jpg"));
    EXPECT_EQ(picture.Picture, nullptr);
    EXPECT_EQ(desk_.Page().PicturePath, "/k/February.jpg");
}

TEST_F(PrintDeskTest, AddedPicturesAreScaledAndTextsAreLimited) {
    struct Row {
        PageSize Pixels;
        PageSize Expected;
    };
    for (const Row& row :
         {Row{{100, 80}, {1500, 1200}}, Row{{400, 200}, {4000, 2000}},
          Row{{1000, 200}, {5000, 1000}}, Row{{90000, 1}, {5000, 1}}, Row{{1, 90000}, {1, 2000}}}) {
        pictures_.Files["/k/new.jpg"] = row.Pixels;
        const auto added = desk_.AddImage("/k/new.jpg");
        ASSERT_TRUE(added.Trouble);
        const LayoutItem* const item = desk_.Page().Find(added.Ref);
        EXPECT_EQ((PageSize{item->Width, item->Height}), row.Expected);
    }
    const auto missing = desk_.AddImage("/k/missing.jpg");
    EXPECT_FALSE(missing.Trouble);
    EXPECT_EQ(missing.Ref, (LayoutRef{LayoutKind::ImgUser, 6}));
    EXPECT_EQ(desk_.Page().ImagePaths[6], "/k/missing.jpg");
    for (int i = 0; i < 120; ++i) {
        (void)desk_.AddImage("/k/new.jpg");
    }
    for (int i = 1; i <= kMaxLabels; ++i) {
        ASSERT_NE(desk_.Page().Find(desk_.AddText()), nullptr);
    }
    EXPECT_EQ(desk_.Page().Find(desk_.AddText()), nullptr);
    EXPECT_EQ(desk_.Page().LabUser[399].Width, 8 * 80);
}

TEST_F(PrintDeskTest, ALayoutIsSavedAndOpenedAgain) {
    ASSERT_TRUE(desk_.Open());
    desk_.Page().Find(desk_.AddText())->Caption = "Mine";
    ASSERT_TRUE(desk_.AddImage("/k/Other.jpg").Trouble);
    desk_.Page().BorderLines = 4;
    desk_.Page().GridOn = true;
    files_.FailWrites(Error{ErrorCode::Full, "full"});
    EXPECT_EQ(desk_.Save(kPlan).Failure().Code, ErrorCode::Full);
    EXPECT_TRUE(desk_.LayoutFileName().empty());
    EXPECT_TRUE(desk_.IsChanged());
    files_.FailWrites({});
    ASSERT_TRUE(desk_.Save(kPlan));
    EXPECT_EQ(desk_.LayoutFileName(), kPlan);
    EXPECT_FALSE(desk_.IsChanged());

    ASSERT_TRUE(desk_.Open());
    desk_.AddText();
    const Status read = desk_.Load(kPlan);
    ASSERT_TRUE(read) << read.Failure().Text;
    EXPECT_FALSE(desk_.IsChanged());
    const PageLayout& page = desk_.Page();
    EXPECT_TRUE(page.LabEvent.empty());
    ASSERT_EQ(page.LabUser.size(), 2U);
    EXPECT_EQ(page.LabUser[0].Caption, "Dentist");
    EXPECT_EQ(page.LabUser[1].Caption, "Mine");
    ASSERT_EQ(page.ImgUser.size(), 1U);
    EXPECT_NE(page.ImgUser[0].Picture, nullptr);
    EXPECT_EQ(page.BorderLines, 4);
    EXPECT_TRUE(page.GridOn);
    EXPECT_TRUE(page.LabDates[0].Visible);
    EXPECT_FALSE(page.LabDates[30].Visible);
}

TEST_F(PrintDeskTest, ALayoutThatCannotBeReadIsKeptBesideTheOneThatReplacesIt) {
    ASSERT_TRUE(desk_.Open());
    const std::string damaged = "\"\"\r\n-1\r\nfive\r\n";
    files_.Put(kPlan, damaged);
    files_.Put("/k/Plan damaged.kly", "of another time");
    desk_.AddText();
    EXPECT_EQ(desk_.Load(kPlan).Failure().Text, "line 3");
    EXPECT_EQ(desk_.LayoutFileName(), kPlan);
    EXPECT_TRUE(desk_.Page().LabUser.empty());
    desk_.Activate(); // as when a message about it has been closed
    EXPECT_TRUE(desk_.LayoutFileName().empty());
    ASSERT_TRUE(desk_.Save(kPlan));
    EXPECT_EQ(files_.Content("/k/Plan damaged 2.kly"), damaged);
    EXPECT_TRUE(desk_.Load(kPlan));
    ASSERT_TRUE(desk_.Save(kPlan));
    EXPECT_EQ(files_.Paths().size(), 3U) << "a sound one is not kept";

    EXPECT_EQ(desk_.Load("/k/none.kly").Failure().Code, ErrorCode::NotFound);
    EXPECT_TRUE(desk_.Save("/k/none.kly"));
    desk_.Page().LabCurMth.Caption.assign(40000, 'x');
    EXPECT_EQ(desk_.Save(kPlan).Failure().Code, ErrorCode::TooLarge);
}

} // namespace
} // namespace kestrova
