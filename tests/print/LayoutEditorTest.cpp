// SPDX-License-Identifier: GPL-3.0-or-later
#include "print/LayoutEditor.h"

#include "fakes/FakePrinter.h"
#include "fakes/MemoryFileStore.h"
#include "print/PrintedMonth.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <random>

namespace kestrova {
namespace {

using enum LayoutKind;

// The page of February 2026 as it is opened. Texts are 10 twips a letter and point wide.
class LayoutEditorTest : public testing::Test {
protected:
    LayoutEditorTest() {
        dates_.BaseYear = 2026;
        dates_.PageYear = 2026;
        dates_.PageMonth = 1;
        month_.Add(1, 1, "Dentist");
        monthPictures_.MonthPicture[1] = "/k/February.jpg";
        pictures_.Files["/k/February.jpg"] = {400, 300};
        pictures_.Files["/k/Tall.jpg"] = {100, 400};
        EXPECT_TRUE(desk_.Open());
        editor_.Forget();
        editor_.Changed = [this] { ++told_; };
    }

    [[nodiscard]] LayoutItem& Item(LayoutRef ref) { return *desk_.Page().Find(ref); }

    // A picture of the user's of 1000 by 500 at a place where nothing but the background lies, or
    // not even that.
    LayoutRef AddPicture(int left, int top) {
        EXPECT_TRUE(editor_.AddImage("/k/Tall.jpg"));
        const LayoutRef ref = *editor_.Selected();
        SetBox(Item(ref), {left, top, 1000, 500});
        return ref;
    }

    LayoutRef AddText(int left, int top) {
        editor_.AddText();
        const LayoutRef ref = *editor_.Selected();
        editor_.SpClear();
        Item(ref).Left = left;
        Item(ref).Top = top;
        return ref;
    }

    // Takes hold of an object near its corner and lets it go so far away.
    bool Drag(LayoutRef ref, int across, int down) {
        const LayoutItem& item = Item(ref);
        const int x = item.Left + 7;
        const int y = item.Top + 3;
        editor_.Ctrl_MouseDown(ref, x, y);
        return editor_.Drop(x + across, y + down);
    }

    // A point of an object at which it lies on top.
    [[nodiscard]] std::pair<int, int> CornerOf(LayoutRef ref) {
        return {Item(ref).Left + 5, Item(ref).Top + 5};
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
    LayoutEditor editor_{desk_, month_.Measure};
    int told_ = 0;
    const LayoutRef header_{LabCurMth, 0};
    const LayoutRef photo_{Image2, 0};
    const LayoutRef ground_{Image1, 0};
};

TEST_F(LayoutEditorTest, WhatLiesOnTopIsFound) {
    const auto [x, y] = CornerOf({LabEvent, 1});
    EXPECT_EQ(editor_.At(x, y), (LayoutRef{LabEvent, 1}));
    Item({LabEvent, 1}).Visible = false;
    EXPECT_EQ(editor_.At(x, y), (LayoutRef{LabDates, 0}));
    Item({LabDates, 0}).Enabled = false;
    EXPECT_EQ(editor_.At(x, y), ground_);
    EXPECT_EQ(editor_.At(10, 10), std::nullopt);
    // February has no 30th, whatever its cell says.
    SetBox(Item({LabDates, 29}), {0, 0, 100, 100});
    Item({LabDates, 29}).Visible = true;
    EXPECT_EQ(editor_.At(10, 10), std::nullopt);
}

TEST_F(LayoutEditorTest, ADropMovesByExactlyWhatTheMouseMoved) {
    const LayoutRef picture = AddPicture(0, 0);
    EXPECT_TRUE(Drag(picture, 300, 0));
    EXPECT_EQ(BoxOf(Item(picture)), (PageBox{300, 0, 1000, 500}));
    // On the background it comes to lie in the same way.
    EXPECT_TRUE(Drag(picture, 401, 2100));
    EXPECT_EQ(BoxOf(Item(picture)), (PageBox{701, 2100, 1000, 500}));
}

TEST_F(LayoutEditorTest, WhatIsUnderTheMouseDecidesWhetherADropIsTaken) {
    const auto [x, y] = CornerOf({LabDates, 9});
    const auto [px, py] = CornerOf(photo_);
    const auto moves = [&](LayoutRef ref, int toX, int toY) {
        const PageBox before = BoxOf(Item(ref));
        const bool moved = Drag(ref, toX - before.Left - 7, toY - before.Top - 3);
        EXPECT_EQ(moved, BoxOf(Item(ref)) != before);
        SetBox(Item(ref), before);
        return moved;
    };
    const LayoutRef picture = AddPicture(0, 0);
    const LayoutRef text = AddText(0, 1000);
    EXPECT_FALSE(moves(picture, x, y));
    EXPECT_TRUE(moves(picture, px, py));
    EXPECT_TRUE(moves(text, x, y));
    EXPECT_TRUE(moves(text, px, py));
    EXPECT_FALSE(moves(text, 5, 5)); // on the picture of the user's
    EXPECT_FALSE(moves(header_, px, py));
    EXPECT_TRUE(moves(ground_, px, py));
    EXPECT_FALSE(moves(picture, -20, 4000)); // beside the page
    EXPECT_FALSE(moves(picture, 4000, desk_.Page().Surface.Height));
}

TEST_F(LayoutEditorTest, SeveralMoveTogether) {
    const LayoutRef picture = AddPicture(0, 0);
    const LayoutRef text = AddText(5000, 100);
    editor_.Select(picture);
    editor_.Toggle(text);
    EXPECT_TRUE(Drag(picture, 100, 200));
    EXPECT_EQ(Item(picture).Top, 200);
    EXPECT_EQ(Item(text).Left, 5100);
    EXPECT_EQ(Item(text).Top, 300);
    EXPECT_EQ(editor_.Selected(), picture);
    editor_.Undo();
    EXPECT_EQ(Item(picture).Top, 0);
    EXPECT_EQ(Item(text).Left, 5000);
}

TEST_F(LayoutEditorTest, AutoPositionPutsThePictureBackIntoTheBox) {
    const PageBox before = BoxOf(Item(photo_));
    const int far = Item(ground_).Height;
    editor_.AutoPosition = true;
    Drag(photo_, 0, desk_.Page().Surface.Height - before.Top - 10);
    EXPECT_EQ(Item(photo_).Top + before.Height, Item(ground_).Top + far);
    editor_.Undo();
    EXPECT_EQ(BoxOf(Item(photo_)), before);
    // The background takes header and cells along.
    const int header = Item(header_).Left;
    editor_.Select(ground_);
    editor_.Nudge(150, 0);
    EXPECT_EQ(Item(header_).Left, header + 150);
    editor_.AutoPosition = false;
    editor_.Nudge(150, 0);
    EXPECT_EQ(Item(header_).Left, header + 150);
}

TEST_F(LayoutEditorTest, AHandleResizesAndEndsTheFitting) {
    const LayoutRef message{LabEvent, 1};
    const PageBox before = BoxOf(Item(message));
    ASSERT_TRUE(Item(message).Fitted);
    editor_.Select(message);
    editor_.GrabHandle(7, 100, 100);
    editor_.ResizeTo(400, 150, Proportions::Free);
    EXPECT_EQ(Item(message).Width, before.Width + 300);
    EXPECT_FALSE(Item(message).Fitted);
    editor_.BreakOff();
    EXPECT_EQ(BoxOf(Item(message)), before);
    EXPECT_TRUE(Item(message).Fitted);
    EXPECT_FALSE(editor_.CanUndo());
    editor_.GrabHandle(4, 0, 0);
    editor_.ResizeTo(90, 0, Proportions::Free);
    editor_.EndResize();
    editor_.Undo();
    EXPECT_EQ(BoxOf(Item(message)), before);
}

TEST_F(LayoutEditorTest, ATextTakesWhatWasTypedWhenTheEditEnds) {
    editor_.EditText(photo_);
    EXPECT_FALSE(editor_.Edited());
    editor_.EditText(header_);
    editor_.TypeText("Two\r\nlines");
    editor_.SetFont({"Serif", 12, true, false});
    editor_.SetColour(255);
    EXPECT_EQ(Item(header_).Caption, "  February    2026");
    editor_.Select(photo_);
    EXPECT_FALSE(editor_.Edited());
    EXPECT_EQ(Item(header_).Caption, "Two\r\nlines");
    EXPECT_EQ(Item(header_).Font(), (FontChoice{"Serif", 12, true, false}));
    EXPECT_EQ(Item(header_).ForeColor, 255);
    // Still in the middle, as wide and high as its text.
    EXPECT_EQ(Item(header_).Width, 5 * 120);
    EXPECT_EQ(Item(header_).Height, 2 * 240);
    const LayoutItem& box = Item(ground_);
    EXPECT_NEAR(Item(header_).Left + 300, box.Left + box.Width / 2, 1);

    editor_.EditText(header_);
    editor_.TypeText("Never mind");
    editor_.CancelText();
    EXPECT_EQ(Item(header_).Caption, "Two\r\nlines");
    editor_.Undo();
    EXPECT_EQ(Item(header_).Caption, "  February    2026");
}

TEST_F(LayoutEditorTest, ANewTextGrowsWithWhatIsTyped) {
    editor_.AddText();
    const LayoutRef text = *editor_.Selected();
    ASSERT_EQ(editor_.Edited(), text);
    EXPECT_EQ(Item(text).Caption, "New Text");
    const int width = Item(text).Width;
    editor_.TypeText("New Text New Text");
    editor_.CommitText();
    EXPECT_EQ(Item(text).Width, width / 8 * 17);
}

TEST_F(LayoutEditorTest, FontAndColourGoToAllTextsThatAreSelected) {
    editor_.Select({LabDays, 0});
    editor_.Toggle({LabDays, 1});
    editor_.Toggle(photo_);
    EXPECT_FALSE(editor_.TextSelected());
    EXPECT_FALSE(editor_.TextShown());
    editor_.Toggle({LabDays, 2});
    ASSERT_TRUE(editor_.TextShown());
    editor_.SetColour(77);
    for (const int i : {0, 1, 2}) {
        EXPECT_EQ(Item({LabDays, i}).ForeColor, 77);
    }
    EXPECT_NE(Item({LabDays, 3}).ForeColor, 77);
}

TEST_F(LayoutEditorTest, WhatIsDeletedIsGoneUntilItIsBroughtBack) {
    const LayoutItem before = Item(photo_);
    editor_.Select(photo_);
    editor_.Toggle({LabDates, 3});
    editor_.Delete();
    EXPECT_FALSE(Item(photo_).Enabled);
    EXPECT_EQ(Item(photo_).Picture, nullptr);
    EXPECT_FALSE(editor_.IsShown({LabDates, 3}));
    EXPECT_EQ(editor_.Selected(), std::nullopt);
    editor_.Undo();
    EXPECT_EQ(Item(photo_), before);
    EXPECT_TRUE(editor_.IsShown({LabDates, 3}));
}

TEST_F(LayoutEditorTest, BorderGridAndSpacing) {
    using enum LayoutEditor::BorderLook;
    const PageLayout& page = desk_.Page();
    editor_.SetBorder(Dotted);
    editor_.SetBorder(Wide); // which leaves the style as it is
    EXPECT_EQ(page.BorderDrawStyle, LineStyle::Dotted);
    EXPECT_EQ(page.BorderWidth, 4);
    editor_.SetBorder(Thin);
    EXPECT_EQ(page.BorderDrawStyle, LineStyle::Solid);
    EXPECT_EQ(page.BorderWidth, 1);
    const int width = page.LabDates[0].Width;
    editor_.SetSpacing(2);
    EXPECT_EQ(page.GridSpacing, 300);
    EXPECT_EQ(page.LabDates[0].Width, width - 300);
    editor_.ToggleGrid();
    EXPECT_TRUE(page.GridOn);
    for (int i = 0; i < 5; ++i) {
        editor_.Undo();
    }
    EXPECT_FALSE(editor_.CanUndo());
    EXPECT_FALSE(desk_.IsChanged());
}

TEST_F(LayoutEditorTest, APictureThatCannotBeReadLeavesNone) {
    EXPECT_FALSE(editor_.LoadPicture(Image1, "/k/Missing.jpg"));
    EXPECT_FALSE(editor_.CanUndo());
    EXPECT_TRUE(editor_.LoadPicture(Image1, "/k/Tall.jpg"));
    EXPECT_FALSE(editor_.LoadPicture(Image1, "/k/Missing.jpg"));
    EXPECT_EQ(desk_.Page().Image1.Picture, nullptr);
    editor_.Undo();
    EXPECT_NE(desk_.Page().Image1.Picture, nullptr);
    editor_.RemovePicture(Image1);
    EXPECT_EQ(desk_.Page().Image1.Picture, nullptr);
    EXPECT_EQ(desk_.Page().BackgroundPath, "/k/Tall.jpg");
}

TEST_F(LayoutEditorTest, ARunOfNudgesIsOneStep) {
    const LayoutRef text = AddText(1000, 1000);
    editor_.Forget();
    editor_.Select(text);
    editor_.Nudge(15, 0);
    editor_.Nudge(15, 0);
    editor_.Nudge(0, 150);
    editor_.SpClear();
    editor_.Select(text);
    editor_.Nudge(15, 0);
    EXPECT_EQ(Item(text).Left, 1045);
    editor_.Undo();
    EXPECT_EQ(Item(text).Left, 1030);
    editor_.Undo();
    EXPECT_EQ(Item(text).Left, 1000);
    EXPECT_EQ(Item(text).Top, 1000);
    editor_.Redo();
    EXPECT_EQ(Item(text).Left, 1030);
    // After something has been undone a run begins anew.
    editor_.Nudge(15, 0);
    EXPECT_FALSE(editor_.CanRedo());
    editor_.Undo();
    EXPECT_EQ(Item(text).Left, 1030);
    // Nothing is pushed off the page for good.
    for (int i = 0; i < 200; ++i) {
        editor_.Nudge(-150, 0);
    }
    EXPECT_GT(Item(text).Left + Item(text).Width, 0);
}

TEST_F(LayoutEditorTest, PaperAndOrientationAreUndoneToo) {
    const PageLayout before = desk_.Page();
    editor_.Select(photo_);
    editor_.SetOrientation(Orientation::Landscape);
    EXPECT_EQ(editor_.Selected(), std::nullopt);
    editor_.SetPaper(11);
    const PageLayout after = desk_.Page();
    editor_.Undo();
    editor_.Undo();
    EXPECT_EQ(desk_.Page(), before);
    EXPECT_EQ(desk_.Setup().Paper, kPaperA4);
    EXPECT_EQ(desk_.Setup().Turned, Orientation::Portrait);
    editor_.Redo();
    editor_.Redo();
    EXPECT_EQ(desk_.Page(), after);
    EXPECT_EQ(desk_.Setup().Turned, Orientation::Landscape);
}

TEST_F(LayoutEditorTest, TheKeyboardReachesEveryObjectOnce) {
    std::vector<LayoutRef> walked;
    for (editor_.SelectNext(LayoutEditor::Walk::Forth);
         walked.empty() || *editor_.Selected() != walked.front();
         editor_.SelectNext(LayoutEditor::Walk::Forth)) {
        walked.push_back(*editor_.Selected());
        ASSERT_LT(walked.size(), 100U);
    }
    EXPECT_EQ(walked.size(), 2U + 1 + 7 + 28 + 1); // February, with one message
    editor_.SelectNext(LayoutEditor::Walk::Back);
    EXPECT_EQ(*editor_.Selected(), walked.back());
    editor_.SelectAll();
    EXPECT_EQ(editor_.Selection().size(), walked.size());
    editor_.SpClear();
    editor_.SelectWithin(BoxOf(Item(header_)));
    EXPECT_THAT(editor_.Selection(), testing::ElementsAre(header_));
}

// Whatever is done, undoing all of it brings the page back, and redoing it the end.
TEST_F(LayoutEditorTest, EverythingCanBeUndoneAndDoneAgain) {
    const auto seed = std::random_device{}();
    SCOPED_TRACE(seed);
    std::mt19937 random(seed);
    const auto pick = [&random](int below) {
        return static_cast<int>(random() % static_cast<unsigned>(below));
    };
    const PageLayout before = desk_.Page();
    const std::function<void()> kDeeds[] = {
        [&] { editor_.SelectNext(LayoutEditor::Walk::Forth); },
        [&] { editor_.SelectAll(); },
        [&] { editor_.Nudge(pick(300) - 150, pick(300)); },
        [&] { editor_.AddText(); },
        [&] { static_cast<void>(editor_.AddImage(pick(2) == 0 ? "/k/Tall.jpg" : "none")); },
        [&] { editor_.TypeText("Typed"); },
        [&] { editor_.SetColour(pick(1000)); },
        [&] {
            editor_.SetFont({"Sans", 9, false, true});
        },
        [&] { editor_.SetBorderLines(pick(5)); },
        [&] { editor_.SetSpacing(pick(5)); },
        [&] { editor_.SetPaper(1 + pick(kPaperSizes)); },
        [&] { editor_.AutoPosition = !editor_.AutoPosition; },
        [&] {
            if (const auto at = editor_.At(pick(11000), pick(16000))) {
                Drag(*at, pick(4000) - 2000, pick(4000) - 2000);
            }
        },
        [&] {
            editor_.GrabHandle(static_cast<std::size_t>(pick(8)), 0, 0);
            editor_.ResizeTo(pick(900) - 450, pick(900) - 450, Proportions::Kept);
            editor_.EndResize();
        },
        [&] {
            if (pick(4) == 0) {
                editor_.Delete();
            }
        },
    };
    for (int i = 0; i < 80; ++i) {
        kDeeds[static_cast<std::size_t>(pick(std::size(kDeeds)))]();
    }
    editor_.CommitText();
    const PageLayout after = desk_.Page();
    int steps = 0;
    while (editor_.CanUndo()) {
        editor_.Undo();
        ++steps;
    }
    EXPECT_EQ(desk_.Page(), before);
    EXPECT_LE(steps, 100);
    while (editor_.CanRedo()) {
        editor_.Redo();
    }
    EXPECT_EQ(desk_.Page(), after);
}

TEST_F(LayoutEditorTest, OldStepsAreForgotten) {
    for (int i = 0; i < 250; ++i) {
        editor_.ToggleGrid();
    }
    int steps = 0;
    for (; editor_.CanUndo(); ++steps) {
        editor_.Undo();
    }
    EXPECT_EQ(steps, static_cast<int>(LayoutHistory::kMostSteps));
}

TEST_F(LayoutEditorTest, WhoShowsThePageIsTold) {
    told_ = 0;
    editor_.Select(photo_);
    EXPECT_GT(told_, 0);
    told_ = 0;
    editor_.Nudge(15, 0);
    EXPECT_GT(told_, 0);
}

// A key may come in the middle of what the mouse does.
TEST_F(LayoutEditorTest, WhateverComesWhileAHandleIsHeldLetsItGo) {
    const std::function<void()> deeds[] = {
        [this] { editor_.Delete(); }, [this] { editor_.SelectAll(); },
        [this] { editor_.SpClear(); }, [this] { editor_.AddText(); }, [this] { editor_.Undo(); }};
    for (const auto& deed : deeds) {
        const LayoutRef ref = AddPicture(300, 300);
        const PageBox box = BoxOf(Item(ref));
        const PageBox ground = BoxOf(Item({Image1, 0}));
        editor_.GrabHandle(7, 1300, 800);
        editor_.ResizeTo(1500, 900, Proportions::Free);
        deed();
        editor_.ResizeTo(2000, 1200, Proportions::Free);
        editor_.EndResize();
        if (const LayoutItem* const item = desk_.Page().Find(ref)) {
            EXPECT_EQ(BoxOf(*item), box);
        }
        EXPECT_EQ(BoxOf(Item({Image1, 0})), ground);
        editor_.SpClear();
    }
}

TEST_F(LayoutEditorTest, PaperIsUndoneWithoutAPrinterToo) {
    const PageLayout before = desk_.Page();
    editor_.SetOrientation(Orientation::Landscape);
    printer_.Outcome = Error{ErrorCode::Failed, "gone"};
    EXPECT_FALSE(desk_.Print());
    EXPECT_TRUE(desk_.PrintFault());
    editor_.Undo();
    EXPECT_EQ(desk_.Setup().Turned, Orientation::Portrait);
    EXPECT_EQ(desk_.Page(), before);
}

} // namespace
} // namespace kestrova
