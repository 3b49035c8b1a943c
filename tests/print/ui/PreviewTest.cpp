// SPDX-License-Identifier: GPL-3.0-or-later
#include "print/ui/Preview.h"

#include "fakes/FakePrinter.h"
#include "fakes/MemoryFileStore.h"
#include "fakes/ScriptedDialogs.h"
#include "language/FixedLanguages.h"
#include "platform/qt/PageImage.h"

#include <QGraphicsObject>
#include <QMenuBar>
#include <QScrollBar>
#include <QTest>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>

namespace kestrova {
namespace {

// Pictures of one colour, for every path but one.
class PlainPictures : public PagePictures {
public:
    [[nodiscard]] Result<PagePicturePtr> Load(const std::string& path) override {
        if (path == "/k/Broken.jpg") {
            return Error{ErrorCode::Damaged, path};
        }
        QImage image(120, 80, QImage::Format_RGB32);
        image.fill(Qt::darkGreen);
        return PagePicturePtr(std::make_shared<PageImage>(image));
    }
};

// By how much two images differ where they differ most, of 255.
int Difference(const QImage& a, const QImage& b) {
    int most = a.size() == b.size() ? 0 : 255;
    for (int y = 0; most < 255 && y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            const QRgb p = a.pixel(x, y);
            const QRgb q = b.pixel(x, y);
            most = std::max({most, std::abs(qRed(p) - qRed(q)), std::abs(qGreen(p) - qGreen(q)),
                             std::abs(qBlue(p) - qBlue(q))});
        }
    }
    return most;
}

// A printer during whose work other things happen.
class BusyPrinter : public FakePrinter {
public:
    std::function<void()> WhileAsked;

    [[nodiscard]] std::unique_ptr<PrintJob> Begin(const PrinterSetup& setup,
                                                  const std::string& title) override {
        if (WhileAsked) {
            WhileAsked();
        }
        return FakePrinter::Begin(setup, title);
    }
};

class PreviewTest : public testing::Test {
protected:
    PreviewTest() {
        SetDefault(settings_);
        dates_.BaseYear = 2026;
        dates_.PageYear = 2026;
        dates_.PageMonth = 1;
        table_.At({1, 1, 1, 0}).Msg = "Dentist";
        monthPictures_.MonthPicture[1] = "/k/February.jpg";
    }

    void Open() {
        window_.OpenMonth();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&window_));
    }

    template<typename Type> [[nodiscard]] Type& Find(const QString& name) {
        auto* const found = window_.findChild<Type*>(name);
        EXPECT_NE(found, nullptr) << FromQt(name);
        return *found;
    }
    [[nodiscard]] QAction& Entry(const char* name) { return Find<QAction>(QLatin1String(name)); }
    [[nodiscard]] PageView& View() { return Find<PageView>(QStringLiteral("Picture1")); }
    [[nodiscard]] TextBox& TextEdit() { return Find<TextBox>(QStringLiteral("TextEdit")); }
    [[nodiscard]] QGraphicsObject& Sp(int index) {
        return Find<QGraphicsObject>(QStringLiteral("Sp(%1)").arg(index));
    }
    [[nodiscard]] const PageLayout& Page() const { return desk_.Page(); }

    [[nodiscard]] QPoint Pixel(int x, int y) { return View().mapFromScene(x, y); }
    [[nodiscard]] QPoint Inside(const LayoutItem& item) {
        return Pixel(item.Left + item.Width / 2, item.Top + std::min(item.Height / 2, 60));
    }
    void Click(const LayoutItem& item, Qt::KeyboardModifiers keys = {}) {
        QTest::mouseClick(View().viewport(), Qt::LeftButton, keys, Inside(item));
    }
    void Edit(const LayoutItem& item) {
        Click(item);
        QTest::mouseDClick(View().viewport(), Qt::LeftButton, {}, Inside(item));
        ASSERT_TRUE(TextEdit().isVisible());
    }
    // As a hand does it: press, move away, move on, let go.
    void Drag(const QPoint& from, const QPoint& by) {
        QWidget* const page = View().viewport();
        const auto send = [&](QEvent::Type type, const QPoint& at, Qt::MouseButton button) {
            QMouseEvent event(type, at, page->mapToGlobal(at), button,
                              type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton,
                              Qt::NoModifier);
            QApplication::sendEvent(page, &event);
        };
        send(QEvent::MouseButtonPress, from, Qt::LeftButton);
        send(QEvent::MouseMove, from + by / 2, Qt::NoButton);
        send(QEvent::MouseMove, from + by, Qt::NoButton);
        send(QEvent::MouseButtonRelease, from + by, Qt::LeftButton);
    }
    [[nodiscard]] std::string Title() const { return FromQt(window_.windowTitle()); }
    [[nodiscard]] std::string LastShown() const {
        return boxes_.Shown.empty() ? "" : boxes_.Shown.back().Text;
    }

    MemoryFileStore files_;
    BusyPrinter printer_;
    PlainPictures pictures_;
    PaperMeasure measure_;
    AppSettings settings_;
    DiaryTable table_;
    Selection dates_;
    StringTable texts_ = MsgDefaults();
    PictureTable monthPictures_;
    PrintDesk desk_{{files_, [this]() -> Printer& { return printer_; }, pictures_, measure_, dates_,
                     texts_, settings_, monthPictures_,
                     [this]() -> const DiaryTable& { return table_; },
                     [] {
                         return std::array<std::string, kDaysOfWeek>{"Mon", "Tue", "Wed", "Thu",
                                                                     "Fri", "Sat", "Sun"};
                     }}};
    ScriptedDialogs boxes_;
    std::string folder_ = "/k/";
    int closed_ = 0;
    std::vector<std::string> pdfs_;
    Status pdf_ = Done{};
    Preview window_{{desk_, texts_, settings_, boxes_, folder_, measure_},
                    {[this](const std::string& path) {
                         pdfs_.push_back(path);
                         return pdf_;
                     },
                     [this] { return ready_; }, [this] { ++closed_; }}};
    bool ready_ = true;
};

TEST_F(PreviewTest, WithoutAPrinterThereIsAMessageAndNoWindow) {
    printer_.There = Error{ErrorCode::NotFound, "no queue"};
    window_.OpenMonth();
    EXPECT_FALSE(window_.isVisible());
    ASSERT_EQ(boxes_.Shown.size(), 1U);
    EXPECT_EQ(boxes_.Shown[0].Text, "Cannot Access Your Printer");
    EXPECT_EQ(boxes_.Shown[0].Title, "Kestrova");
    EXPECT_EQ(boxes_.Shown[0].Icon, DialogIcon::Critical);
    printer_.There = Done{};
    Open();
    EXPECT_TRUE(window_.isVisible());
}

TEST_F(PreviewTest, OpensOnTheWholePageOfTheMonth) {
    settings_.PrintNumber2 = 11;
    Open();
    EXPECT_EQ(Title(), "Kestrova Print Preview");
    EXPECT_TRUE(Entry("MNU_Size(10)").isChecked());
    EXPECT_TRUE(Entry("MNU_Qul(3)").isChecked());
    EXPECT_TRUE(Entry("MNU_Normal").isChecked());
    EXPECT_TRUE(Entry("MNU_Line(1)").isChecked());
    for (int i = 0; i < 8; ++i) {
        EXPECT_FALSE(Sp(i).isVisible());
    }
    const QRect seen = View().viewport()->rect();
    EXPECT_TRUE(seen.contains(Pixel(0, 0)));
    EXPECT_TRUE(seen.contains(Pixel(Page().Surface.Width, Page().Surface.Height)));
}

TEST_F(PreviewTest, TheMouseMovesAPictureByWhatItIsMoved) {
    Open();
    View().SetZoom(1);
    boxes_.Files = {"/k/Free.jpg"};
    Entry("MNU_AddImage").trigger();
    EXPECT_EQ(boxes_.Prompts.back(), "Pictures|*.jpg;*.bmp;*.gif;*.wmf;*.emf;*.ico");
    ASSERT_EQ(Page().ImgUser.size(), 1U);
    const LayoutItem& item = Page().ImgUser[0];
    EXPECT_TRUE(Sp(0).isVisible());
    Drag(Inside(item), {20, 0});
    EXPECT_EQ(item.Left, 300);
    EXPECT_EQ(item.Top, 0);
    // By the lower right handle, which lies outside the box.
    const PageBox before = BoxOf(item);
    Drag(Pixel(before.Right() + 50, before.Bottom() + 50), {10, 20});
    EXPECT_EQ(BoxOf(item), (PageBox{300, 0, before.Width + 150, before.Height + 300}));
    // Onto a text, which takes no pictures.
    Drag(Inside(item), Inside(Page().LabCurMth) - Inside(item));
    EXPECT_EQ(item.Left, 300);
    EXPECT_TRUE(desk_.IsChanged());
}

TEST_F(PreviewTest, TheEntriesOfTheEditMenuKnowWhatIsSelected) {
    Open();
    const auto enabled = [&](const char* name) { return Entry(name).isEnabled(); };
    EXPECT_FALSE(enabled("MNU_Text") || enabled("MNU_Font") || enabled("MNU_TextColor"));
    Click(Page().Image2);
    EXPECT_FALSE(enabled("MNU_Text") || enabled("MNU_Font") || enabled("MNU_TextColor"));
    EXPECT_TRUE(enabled("MNU_Delete"));
    Click(Page().LabCurMth);
    EXPECT_TRUE(enabled("MNU_Text") && enabled("MNU_Font") && enabled("MNU_TextColor"));
    boxes_.Colours = {0xFF0000};
    Entry("MNU_TextColor").trigger();
    EXPECT_EQ(Page().LabCurMth.ForeColor, 0xFF0000);
    boxes_.Fonts = {FontChoice{"Serif", 30, true, true}};
    Entry("MNU_Font").trigger();
    EXPECT_EQ(Page().LabCurMth.Font(), (FontChoice{"Serif", 30, true, true}));
}

TEST_F(PreviewTest, ATextIsEditedInItsPlace) {
    Open();
    Edit(Page().LabCurMth);
    EXPECT_EQ(FromQt(TextEdit().toPlainText()), "  February    2026");
    const QRect box = TextEdit().geometry();
    EXPECT_TRUE(box.contains(Inside(Page().LabCurMth)));
    QTest::keyClicks(&TextEdit(), QStringLiteral("Our"));
    QTest::keyClick(&TextEdit(), Qt::Key_Return);
    QTest::keyClicks(&TextEdit(), QStringLiteral("month"));
    boxes_.Fonts = {FontChoice{"Serif", 18, false, false}};
    boxes_.Colours = {255};
    QTest::mouseDClick(TextEdit().viewport(), Qt::LeftButton);
    EXPECT_TRUE(TextEdit().isVisible());
    Click(Page().Image2);
    EXPECT_FALSE(TextEdit().isVisible());
    EXPECT_EQ(Page().LabCurMth.Caption, "Our\r\nmonth");
    EXPECT_EQ(Page().LabCurMth.FontSize, 18);
    EXPECT_EQ(Page().LabCurMth.ForeColor, 255);

    Edit(Page().LabDays[2]);
    QTest::keyClicks(&TextEdit(), QStringLiteral("x"));
    QTest::keyClick(&TextEdit(), Qt::Key_Escape);
    EXPECT_FALSE(TextEdit().isVisible());
    EXPECT_EQ(Page().LabDays[2].Caption, "Wed");
    Edit(Page().LabDays[2]);
    QTest::keyClicks(&TextEdit(), QStringLiteral("x"));
    QTest::keyClick(&TextEdit(), Qt::Key_Return, Qt::ControlModifier);
    EXPECT_FALSE(TextEdit().isVisible());
    EXPECT_EQ(Page().LabDays[2].Caption, "x");
    Entry("MNU_AddText").trigger();
    EXPECT_TRUE(TextEdit().isVisible());
    EXPECT_EQ(FromQt(TextEdit().toPlainText()), "New Text");
}

TEST_F(PreviewTest, TheKeyboardSelectsMovesDeletesAndUndoes) {
    Open();
    View().setFocus();
    QTest::keyClick(&View(), Qt::Key_Tab);
    QTest::keyClick(&View(), Qt::Key_Tab);
    const LayoutItem before = Page().Image2;
    QTest::keyClick(&View(), Qt::Key_Right);
    QTest::keyClick(&View(), Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_EQ(Page().Image2.Left, before.Left + 15);
    EXPECT_EQ(Page().Image2.Top, before.Top + 150);
    QTest::keyClick(&window_, Qt::Key_Delete);
    EXPECT_FALSE(Page().Image2.Enabled);
    QTest::keyClick(&window_, Qt::Key_Z, Qt::ControlModifier);
    QTest::keyClick(&window_, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Page().Image2, before);
    EXPECT_FALSE(Entry("MNU_Undo").isEnabled());
    QTest::keyClick(&window_, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(Page().Image2.Left, before.Left + 15);
    QTest::keyClick(&View(), Qt::Key_Escape);
    EXPECT_FALSE(Sp(0).isVisible());
}

TEST_F(PreviewTest, ThePrintIsSeenAsThePageWasArranged) {
    Open();
    constexpr int kAntiAliasing = 2;
    Entry("MNU_GridOn").trigger();
    const QImage arranged = View().grab().toImage();
    Click(Page().Image2);
    Entry("MNU_Preview").trigger();
    EXPECT_EQ(Title(), "Kestrova Print Preview");
    EXPECT_FALSE(Find<QMenu>(QStringLiteral("MNU_Edit")).isEnabled());
    EXPECT_FALSE(Find<QMenu>(QStringLiteral("MNU_View")).isEnabled());
    EXPECT_FALSE(Sp(0).isVisible());
    EXPECT_LE(Difference(View().grab().toImage(), arranged), kAntiAliasing);
    Click(Page().Image2);
    EXPECT_FALSE(Sp(0).isVisible());
    Entry("MNU_Landscape").trigger();
    EXPECT_GT(Difference(View().grab().toImage(), arranged), kAntiAliasing);
    Entry("MNU_Normal").trigger();
    Entry("MNU_Preview").trigger();
    EXPECT_EQ(Title(), "Kestrova Print Layout");
    EXPECT_TRUE(Find<QMenu>(QStringLiteral("MNU_Edit")).isEnabled());
    EXPECT_LE(Difference(View().grab().toImage(), arranged), kAntiAliasing);
}

TEST_F(PreviewTest, TheScrollBarsCountInTwips) {
    Open();
    auto& across = Find<QScrollBar>(QStringLiteral("HScroll1"));
    EXPECT_FALSE(across.isVisible());
    View().SetZoom(3);
    ASSERT_TRUE(across.isVisible());
    across.setValue(0);
    EXPECT_EQ(Pixel(0, 0).x(), 0);
    across.setValue(1000);
    EXPECT_EQ(Pixel(1000, 0).x(), 0);
    const int seen = View().viewport()->width() * 15 / 3;
    EXPECT_NEAR(across.maximum(), Page().Surface.Width - seen, 600); // and some of the desk
    View().FitPage();
    EXPECT_FALSE(across.isVisible());
}

TEST_F(PreviewTest, OrientationPaperQualityAndColourReachThePrinter) {
    Open();
    const PageSize before = Page().Surface;
    Entry("MNU_Landscape").trigger();
    EXPECT_EQ(Page().Surface, (PageSize{before.Height, before.Width}));
    Entry("MNU_Size(7)").trigger();
    Entry("MNU_Qul(0)").trigger();
    Entry("MNU_BW").trigger();
    Find<QPushButton>(QStringLiteral("ComPrint")).click();
    ASSERT_EQ(printer_.Printed.size(), 1U);
    EXPECT_EQ(
        printer_.Printed[0].Setup,
        (PrinterSetup{8, Orientation::Landscape, PrintQuality::Draft, PrintColour::Monochrome}));
    Entry("MNU_PrDiary").trigger();
    EXPECT_EQ(printer_.Printed.size(), 2U);
    EXPECT_TRUE(boxes_.Shown.empty());
}

TEST_F(PreviewTest, ARefusedPrintIsToldAndEndsPrinting) {
    Open();
    printer_.Outcome = Error{ErrorCode::Failed, "refused"};
    Entry("MNU_Print").trigger();
    EXPECT_EQ(LastShown(), "Cannot Access Your Printer");
    EXPECT_FALSE(Entry("MNU_Print").isEnabled());
    EXPECT_FALSE(Entry("MNU_Landscape").isEnabled());
    EXPECT_FALSE(Find<QPushButton>(QStringLiteral("ComPrint")).isEnabled());
    printer_.Outcome = Done{};
    window_.OpenMonth();
    EXPECT_TRUE(Entry("MNU_Print").isEnabled());
}

TEST_F(PreviewTest, APdfIsWrittenByWhoOwnsTheWindow) {
    Open();
    boxes_.Files = {std::nullopt, "/k/Page.pdf", "/k/Full.pdf"};
    Entry("MNU_SavePdf").trigger();
    EXPECT_TRUE(pdfs_.empty());
    Entry("MNU_SavePdf").trigger();
    EXPECT_THAT(pdfs_, testing::ElementsAre("/k/Page.pdf"));
    EXPECT_TRUE(boxes_.Shown.empty());
    pdf_ = Error{ErrorCode::Full, "disc"};
    Entry("MNU_SavePdf").trigger();
    EXPECT_EQ(LastShown(), "The PDF file could not be written. There is no room left on the disc.");
}

TEST_F(PreviewTest, ALayoutIsSavedUnderTheNameThatItHas) {
    Open();
    boxes_.Files = {"/k/Plan.kly"};
    Entry("MNU_Save").trigger();
    EXPECT_EQ(boxes_.Prompts.back(), "Kestrova Layout|*.kly");
    const auto asked = boxes_.Prompts.size();
    Entry("MNU_GridOn").trigger();
    Entry("MNU_Save").trigger();
    EXPECT_EQ(boxes_.Prompts.size(), asked);
    EXPECT_FALSE(desk_.IsChanged());
    Entry("MNU_GridOn").trigger();
    boxes_.Files = {"/k/Plan.kly"};
    boxes_.Choices = {1}; // what has changed may be lost
    Entry("MNU_Load").trigger();
    EXPECT_EQ(boxes_.Prompts.back(), "Kestrova Layout; *.kly|*.kly");
    EXPECT_TRUE(Page().GridOn);
    EXPECT_TRUE(Entry("MNU_GridOn").isChecked());
    EXPECT_FALSE(Entry("MNU_Undo").isEnabled());
    EXPECT_TRUE(boxes_.Shown.empty());
}

TEST_F(PreviewTest, WhatCannotBeReadOrSavedIsToldWithItsReason) {
    Open();
    files_.Put("/k/Bad.kly", "\"\"\r\n-1\r\n");
    boxes_.Files = {"/k/Bad.kly", "/k/Missing.kly", "/k/Broken.jpg"};
    Entry("MNU_Load").trigger();
    EXPECT_THAT(LastShown(), testing::HasSubstr("The file is damaged"));
    Entry("MNU_Load").trigger();
    EXPECT_THAT(LastShown(), testing::HasSubstr("does not exist"));
    Entry("MNU_PicLoad").trigger();
    EXPECT_EQ(LastShown(), "The file \"Broken.jpg\" is not a picture that can be shown.");
    EXPECT_TRUE(Entry("MNU_PicNone").isChecked());
}

TEST_F(PreviewTest, AChangedLayoutIsNotLostUnasked) {
    Open();
    EXPECT_FALSE(window_.close());
    EXPECT_FALSE(window_.isVisible()); // nothing has changed
    EXPECT_EQ(closed_, 1);
    EXPECT_TRUE(boxes_.Asked.empty());
    Open();
    Entry("MNU_Size(10)").trigger();
    Edit(Page().LabCurMth);
    QTest::keyClicks(&TextEdit(), QStringLiteral("Ours"));
    window_.close(); // the answer is the last: go on
    ASSERT_EQ(boxes_.Asked.size(), 1U);
    EXPECT_EQ(boxes_.Asked[0].Text, "The changes to this layout have not been saved.");
    EXPECT_TRUE(window_.isVisible());
    EXPECT_EQ(Page().LabCurMth.Caption, "Ours");
    boxes_.Choices = {2};
    window_.OpenMonth();
    EXPECT_EQ(Page().LabCurMth.Caption, "Ours");
    boxes_.Choices = {0};
    boxes_.Files = {std::nullopt}; // saved after all? no
    window_.close();
    EXPECT_TRUE(window_.isVisible());
    boxes_.Choices = {0};
    boxes_.Files = {"/k/Plan.kly"};
    window_.close();
    EXPECT_FALSE(window_.isVisible());
    EXPECT_TRUE(files_.Read("/k/Plan.kly", 100'000));
    EXPECT_EQ(settings_.PrintNumber2, 11);
    EXPECT_EQ(closed_, 2);
}

TEST_F(PreviewTest, TheViewMenuShowsWhatItHasDone) {
    Open();
    boxes_.Colours = {0x00FF00};
    boxes_.Files = {"/k/Back.jpg"};
    for (const char* const name : {"MNU_BorderColor", "MNU_Wide", "MNU_Line(3)", "MNU_Space(2)",
                                   "MNU_BackLoad", "MNU_Auto", "MNU_PicNone"}) {
        Entry(name).trigger();
    }
    EXPECT_EQ(Page().BorderColor, 0x00FF00);
    EXPECT_EQ(Page().BorderLines, 3);
    EXPECT_EQ(Page().GridSpacing, 300);
    EXPECT_EQ(Page().BackgroundPath, "/k/Back.jpg");
    EXPECT_EQ(Page().Image2.Picture, nullptr);
    const char* const kChecked[] = {"MNU_Wide", "MNU_Line(3)", "MNU_Space(2)", "MNU_Auto",
                                    "MNU_PicNone"};
    for (const char* const name : kChecked) {
        EXPECT_TRUE(Entry(name).isChecked()) << name;
    }
    for (const char* const name : {"MNU_Thin", "MNU_Line(1)", "MNU_Space(0)", "MNU_BackNone"}) {
        EXPECT_FALSE(Entry(name).isChecked()) << name;
    }
    Entry("MNU_Line(3)").trigger(); // one of them is always the one
    EXPECT_TRUE(Entry("MNU_Line(3)").isChecked());
}

TEST_F(PreviewTest, NothingIsDoneWhileThePrinterIsWaitedFor) {
    Open();
    printer_.WhileAsked = [&] {
        Entry("MNU_GridOn").trigger();
        Entry("MNU_Print").trigger();
        QTest::mouseClick(View().viewport(), Qt::LeftButton, {}, Inside(Page().Image2));
        window_.close();
        window_.OpenMonth();
    };
    Entry("MNU_Print").trigger();
    EXPECT_EQ(printer_.Printed.size(), 1U);
    EXPECT_FALSE(Page().GridOn);
    EXPECT_FALSE(Sp(0).isVisible());
    EXPECT_TRUE(window_.isVisible());
    EXPECT_EQ(closed_, 0);
}

TEST_F(PreviewTest, AnotherMonthBeginsAnew) {
    Open();
    Entry("MNU_AddText").trigger();
    Entry("MNU_Preview").trigger();
    Entry("MNU_Preview").trigger();
    QTest::keyClick(&View(), Qt::Key_Backtab); // the new text
    ASSERT_TRUE(Sp(0).isVisible());
    boxes_.Choices = {1};
    dates_.PageMonth = 2;
    window_.OpenMonth();
    EXPECT_FALSE(Sp(0).isVisible());
    EXPECT_EQ(Title(), "Kestrova Print Preview");
    EXPECT_EQ(Page().LabCurMth.Caption, "  March    2026");
    EXPECT_FALSE(Entry("MNU_Undo").isEnabled());
}

TEST_F(PreviewTest, AccessKeysOfAMenuDifferInEveryLanguage) {
    // These captions are the program's own since its first version.
    const std::set<std::string> kTwice = {"MNU_Background", "MNU_Size(9)", "MNU_Line(3)",
                                          "MNU_Space(3)"};
    for (int language = 0; language < kFixedLanguages; ++language) {
        SCOPED_TRACE(FixedLanguages()[static_cast<std::size_t>(language)].Name);
        texts_.ProgramLanguage = language;
        window_.LoadCaptions();
        EXPECT_LE(window_.menuBar()->sizeHint().width(), window_.minimumWidth());
        EXPECT_LE(window_.centralWidget()->minimumSizeHint().width(), window_.minimumWidth());
        for (const QMenu* const menu : window_.findChildren<QMenu*>()) {
            std::set<QString> keys;
            for (const QAction* const action : menu->actions()) {
                const std::string name =
                    FromQt(action->menu() != nullptr ? action->menu()->objectName()
                                                     : action->objectName());
                const qsizetype mark = action->text().indexOf(u'&');
                const bool shared = menu->objectName() == QStringLiteral("MNU_Zoom") ||
                                    (language == 0 && kTwice.contains(name));
                if (!action->isSeparator() && !shared && name != "MNU_Auto") {
                    EXPECT_GE(mark, 0) << name;
                    EXPECT_TRUE(keys.insert(action->text().mid(mark + 1, 1).toLower()).second)
                        << name << " " << FromQt(action->text());
                }
            }
        }
    }
}

} // namespace
} // namespace kestrova
