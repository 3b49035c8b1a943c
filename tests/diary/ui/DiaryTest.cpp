// SPDX-License-Identifier: GPL-3.0-or-later
#include "diary/ui/Diary.h"

#include "diary/ui/DayPageScene.h"
#include "ui/Twips.h"

#include <QAction>
#include <QApplication>
#include <QTest>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace kestrova {
namespace {

TEST(DiaryWindowTest, AnEmptyDayShowsTenEmptyRowsAndTheAddLine) {
    DayPageScene page;
    EXPECT_EQ(page.Text("LabHead"), "Thursday  14    May    2026");
    EXPECT_EQ(page.Text("LabEvent(0)"), "<<Double Click Here To Add An Event>>");
    EXPECT_TRUE(page.Find<QLabel>("LabEvent(0)")->font().bold());
    for (int row = 1; row <= kEventsPerDay; ++row) {
        const std::string name = "LabEvent(" + std::to_string(row) + ")";
        EXPECT_EQ(page.Text(name.c_str()), "");
        EXPECT_TRUE(page.Find<QLabel>(name.c_str())->isVisible());
    }
    EXPECT_FALSE(page.Find<QPushButton>("ComDataAcpt")->isEnabled());
    EXPECT_EQ(page.Find<QPushButton>("ComDataAcpt")->text(), QStringLiteral("SAVE EVENT"));
    page.Click("LabEvent(3)");
    EXPECT_FALSE(page.Window.IsEditing()) << "an empty row is not edited";
}

TEST(DiaryWindowTest, ControlsStandAtTheirPlaces) {
    DayPageScene page;
    const QWidget* const sheet = page.Find<QLabel>("LabHead")->parentWidget();
    const int width = Twips(sheet->width());
    const struct {
        const char* Name;
        int Left, Top, Width; // twips; -1: not given
    } rows[] = {
        {"LabMsg", 1000, 840, width - 3900},    {"LabHide", width - 600, 840, -1},
        {"LabTime(1)", 300, 1155, 900},         {"LabEvent(1)", 1300, 1155, width - 4500},
        {"LabRpt(4)", width - 3100, 2100, -1},  {"LabRmd(10)", width - 1700, 3990, -1},
        {"ChkHide(10)", width - 600, 3990, -1}, {"LabNum(0)", -1, 1140, -1},
        {"LabEvent(0)", 1300, 4305, -1},        {"ComDataAcpt", -1, 5000, -1},
        {"CombNet", width - 2800, 4620, 2500},  {"ComInfo", -1, 5000, -1},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.Name);
        const QWidget* const control = page.Find<QWidget>(row.Name);
        EXPECT_EQ(control->y(), Pixels(row.Top));
        if (row.Left >= 0) {
            EXPECT_EQ(control->x(), Pixels(row.Left));
        }
        if (row.Width >= 0) {
            EXPECT_EQ(control->width(), Pixels(row.Width));
        }
    }
    page.Click("LabEvent(0)");
    EXPECT_EQ(page.Find<QWidget>("TextTme")->y(), Pixels(11 * 315 + 840));
}

TEST(DiaryWindowTest, EventsAreTypedAcceptedAndListedByTime) {
    DayPageScene page;
    page.Add("10", "ten");
    page.Add("7", "seven");
    EXPECT_EQ(page.Text("LabTime(1)"), "07:00");
    EXPECT_EQ(page.Text("LabEvent(1)"), "seven");
    EXPECT_EQ(page.Text("LabRpt(1)"), "Never");
    EXPECT_EQ(page.Text("LabRmd(1)"), "Screen");
    EXPECT_EQ(page.Text("LabEvent(2)"), "ten");
    EXPECT_EQ(page.Changes, 2);
    EXPECT_EQ(Messages(page.OnFile(), kDay), "seven ten");
    EXPECT_FALSE(page.Window.IsEditing());
}

TEST(DiaryWindowTest, PicturesAreChangedWhileNoRowIsEdited) {
    DayPageScene scene;
    auto* const month = scene.Find<QPushButton>("ComMonPic");
    auto* const day = scene.Find<QPushButton>("ComDayPic");
    month->click();
    day->click();
    EXPECT_EQ(scene.PicturesAsked, "MD");
    scene.Click("LabEvent(0)");
    EXPECT_FALSE(month->isEnabled());
    EXPECT_FALSE(day->isEnabled());
}

TEST(DiaryWindowTest, EscapeLeavesTheRowAsItWas) {
    DayPageScene page;
    page.Add("10", "ten");
    page.Click("LabEvent(1)");
    ASSERT_TRUE(page.Window.IsEditing());
    EXPECT_FALSE(page.Find<QLabel>("LabEvent(1)")->isVisible());
    EXPECT_EQ(page.Find<QLineEdit>("TextTme")->text(), QStringLiteral("10"));
    QTest::keyClicks(page.Find<QLineEdit>("TextMsg"), QStringLiteral(" changed"));
    QTest::keyClick(page.Find<QLineEdit>("TextMsg"), Qt::Key_Escape);
    EXPECT_FALSE(page.Window.IsEditing());
    EXPECT_TRUE(page.Window.isVisible());
    EXPECT_EQ(page.Text("LabEvent(1)"), "ten");
    EXPECT_EQ(Messages(page.OnFile(), kDay), "ten");
    QTest::keyClick(&page.Window, Qt::Key_Escape);
    EXPECT_FALSE(page.Window.isVisible());
}

TEST(DiaryWindowTest, ClosingAsksBeforeTypedTextIsLost) {
    for (const bool save : {true, false}) {
        SCOPED_TRACE(save);
        DayPageScene page;
        page.Click("LabEvent(0)");
        QTest::keyClicks(page.Find<QLineEdit>("TextMsg"), QStringLiteral("typed"));
        page.Boxes.Answers = {save};
        page.Window.close();
        EXPECT_EQ(page.Boxes.Asked.size(), 1U);
        EXPECT_NE(page.Window.isVisible(), save) << "what was typed stays, saved or in its editor";
        EXPECT_EQ(page.Window.IsEditing(), !save);
        EXPECT_EQ(Messages(page.OnFile(), kDay), save ? "typed" : "");
    }
    DayPageScene untouched;
    untouched.Click("LabEvent(0)");
    untouched.Window.close();
    EXPECT_TRUE(untouched.Boxes.Asked.empty());
}

TEST(DiaryWindowTest, TimeBoxesRefuseWhatIsNoTime) {
    DayPageScene page;
    page.Click("LabEvent(0)");
    auto* const hour = page.Find<QLineEdit>("TextTme");
    hour->setText(QStringLiteral("2"));
    QTest::keyClicks(hour, QStringLiteral("4"));
    EXPECT_EQ(hour->text(), QStringLiteral("2"));
    QTest::keyClicks(hour, QStringLiteral("x3"));
    EXPECT_EQ(hour->text(), QStringLiteral("23"));
    auto* const minute = page.Find<QLineEdit>("TextTmm");
    minute->setText(QString());
    minute->setFocus();
    page.Find<QLineEdit>("TextMsg")->setFocus();
    EXPECT_EQ(minute->text(), QStringLiteral("00"));
}

TEST(DiaryWindowTest, OnTodaysPageANewEventBeginsNow) {
    DayPageScene page;
    page.Clock.Time = {2026, 4, 14, 16, 5, 0};
    page.Click("LabEvent(0)");
    EXPECT_EQ(page.Find<QLineEdit>("TextTme")->text(), QStringLiteral("00"));
    QTest::keyClick(&page.Window, Qt::Key_Escape);
    page.Dates.TodayDay = 14;
    page.Click("LabEvent(0)");
    EXPECT_EQ(page.Find<QLineEdit>("TextTme")->text(), QStringLiteral("16"));
    EXPECT_EQ(page.Find<QLineEdit>("TextTmm")->text(), QStringLiteral("05"));
}

TEST(DiaryWindowTest, TheKeyboardReachesEveryRow) {
    DayPageScene page;
    page.Add("10", "ten");
    page.Add("11", "eleven");
    QTest::keyClick(&page.Window, Qt::Key_Down);
    QTest::keyClick(&page.Window, Qt::Key_Down);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    EXPECT_TRUE(page.Window.IsEditing());
    QTest::keyClick(page.Find<QLineEdit>("TextMsg"), Qt::Key_Escape);
    page.Find<QLabel>("LabEvent(1)")->setFocus();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Delete);
    EXPECT_EQ(Messages(page.OnFile(), kDay), "eleven");
    page.Find<QAction>("MNU_Undo")->trigger();
    EXPECT_EQ(Messages(page.OnFile(), kDay), "ten eleven");
    EXPECT_EQ(page.Text("LabEvent(1)"), "ten");
}

TEST(DiaryWindowTest, DeleteEntriesAreThereWhileARowIsEdited) {
    DayPageScene page;
    page.Add("10", "ten");
    auto* const menu = page.Find<QMenu>("MNU_File");
    const auto enabled = [&](const char* name) {
        Q_EMIT menu->aboutToShow();
        return page.Find<QAction>(name)->isEnabled();
    };
    EXPECT_FALSE(enabled("MNU_Delete"));
    EXPECT_FALSE(enabled("MNU_DelAll"));
    page.Click("LabEvent(1)");
    EXPECT_TRUE(enabled("MNU_Delete"));
    EXPECT_TRUE(enabled("MNU_DelAll"));
    page.Find<QAction>("MNU_DelAll")->trigger();
    EXPECT_EQ(Messages(page.OnFile(), kDay), "");
    EXPECT_EQ(page.Text("LabEvent(1)"), "");
}

// A row that is edited is not lost over a calendar file.
TEST(DiaryWindowTest, CalendarFilesWaitForTheEditToEnd) {
    DayPageScene page;
    page.Add("9", "tea");
    page.Find<QAction>("MNU_Export")->trigger();
    page.Click("LabEvent(1)");
    page.Find<QLineEdit>("TextMsg")->setText(QStringLiteral("tea with ada"));
    page.Find<QAction>("MNU_Import")->trigger(); // goes on editing
    EXPECT_TRUE(page.Window.IsEditing());
    page.Boxes.Answers = {true};
    page.Find<QAction>("MNU_Import")->trigger();
    EXPECT_FALSE(page.Window.IsEditing());
    EXPECT_EQ(Messages(page.OnFile(), kDay), "tea with ada");
    EXPECT_EQ(page.Exchanges, "EI");
}

TEST(DiaryWindowTest, AClickElsewhereGoesThereUnlessSomethingWasTyped) {
    DayPageScene page;
    page.Add("10", "ten");
    page.Add("11", "eleven");
    page.Click("LabEvent(1)");
    page.Click("LabEvent(2)");
    EXPECT_EQ(page.Find<QLineEdit>("TextMsg")->text(), QStringLiteral("eleven"));
    QTest::keyClicks(page.Find<QLineEdit>("TextMsg"), QStringLiteral("!"));
    page.Click("LabEvent(1)");
    EXPECT_EQ(page.Find<QLineEdit>("TextMsg")->text(), QStringLiteral("eleven!"));
}

TEST(DiaryWindowTest, AClickGoesToTheEventThatTheRowShows) {
    const struct {
        std::vector<DiaryEvent> Now; // in the diary, which was loaded anew during the edit
        const char* Edited;          // nullptr: none
    } rows[] = {
        {{MakeEvent(8, 0, "early"), MakeEvent(10, 0, "ten"), MakeEvent(11, 0, "eleven")}, "eleven"},
        {{MakeEvent(8, 0, "early"), MakeEvent(10, 0, "ten")}, nullptr},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(&row - rows);
        DayPageScene page;
        page.Add("10", "ten");
        page.Add("11", "eleven");
        page.Click("LabEvent(1)");
        page.WriteFromOutside(kDay, row.Now);
        EXPECT_EQ(page.Store.Refresh(), DiaryNews::Reloaded);
        page.Click("LabEvent(2)");
        EXPECT_EQ(page.Window.IsEditing(), row.Edited != nullptr);
        if (row.Edited != nullptr) {
            EXPECT_EQ(page.Find<QLineEdit>("TextMsg")->text(), QLatin1String(row.Edited));
        }
    }
}

TEST(DiaryWindowTest, EnterAcceptsFromEveryControlOfTheRow) {
    for (const char* const name : {"TextTme", "TextTmm", "CombRpt", "CombRmd", "ChkHide(0)"}) {
        SCOPED_TRACE(name);
        DayPageScene page;
        page.Click("LabEvent(0)");
        QTest::keyClicks(page.Find<QLineEdit>("TextMsg"), QStringLiteral("x"));
        QTest::keyClick(page.Find<QWidget>(name), Qt::Key_Return);
        EXPECT_EQ(Messages(page.OnFile(), kDay), "x");
        page.Click("LabEvent(1)");
        QTest::keyClick(page.Find<QWidget>(name), Qt::Key_Escape);
        EXPECT_FALSE(page.Window.IsEditing());
        EXPECT_TRUE(page.Window.isVisible());
    }
}

TEST(DiaryWindowTest, UserTextsAreNeverMarkup) {
    DayPageScene page;
    page.Add("10", "<b>bold</b>");
    EXPECT_EQ(page.Find<QLabel>("LabEvent(1)")->textFormat(), Qt::PlainText);
    EXPECT_TRUE(page.Find<QLabel>("LabEvent(1)")->toolTip().contains(QStringLiteral("&lt;b&gt;")));
}

TEST(DiaryWindowTest, ARefusalKeepsWhatWasTyped) {
    DayPageScene page;
    page.Click("LabEvent(0)");
    QTest::keyClicks(page.Find<QLineEdit>("TextMsg"), QStringLiteral("typed"));
    page.Files.HoldLock(kDataPath);
    QTest::keyClick(page.Find<QLineEdit>("TextMsg"), Qt::Key_Return);
    EXPECT_TRUE(page.Window.IsEditing());
    EXPECT_EQ(page.Find<QLineEdit>("TextMsg")->text(), QStringLiteral("typed"));
    page.Files.ReleaseLock(kDataPath);
    page.Find<QPushButton>("ComDataAcpt")->click();
    EXPECT_EQ(Messages(page.OnFile(), kDay), "typed");
}

TEST(DiaryWindowTest, AnEventSavedInAnotherLanguageOpensWithTheFirstItems) {
    DayPageScene page;
    page.WriteFromOutside(kDay, {MakeEvent(9, 0, "x", "Täglich", "Bildschirm")});
    page.Store.Refresh();
    page.Window.DrawMainPage();
    EXPECT_EQ(page.Text("LabRpt(1)"), "Täglich");
    page.Click("LabEvent(1)");
    EXPECT_EQ(page.Find<QComboBox>("CombRpt")->currentText(), QStringLiteral("Never"));
    EXPECT_EQ(page.Find<QComboBox>("CombRmd")->currentText(), QStringLiteral("Screen"));
    QTest::keyClick(page.Find<QLineEdit>("TextMsg"), Qt::Key_Return);
    EXPECT_EQ(page.OnFile().At({1, kDay}).Rpt, "Täglich") << "nothing was changed";
}

TEST(DiaryWindowTest, ThePageAsksForASearchAndShowsWhatItFound) {
    DayPageScene page;
    page.Add("10", "mine");
    page.Find<QAction>("MNU_Search")->trigger();
    EXPECT_EQ(page.Searches, 1);
    page.Window.ShowEvent(MakeEvent(10, 0, "mine", "other", "words"), 1);
    EXPECT_TRUE(page.Find<QLabel>("LabEvent(1)")->hasFocus());
    page.Window.ShowEvent(MakeEvent(11, 0, "gone"), 1);
    EXPECT_TRUE(page.Find<QLabel>("LabEvent(0)")->hasFocus());
}

TEST(DiaryWindowTest, AReloadLeavesTheKeyboardOnItsEvent) {
    DayPageScene page;
    page.Add("10", "mine");
    page.Find<QLabel>("LabEvent(1)")->setFocus();
    page.WriteFromOutside(kDay, {MakeEvent(8, 0, "another's"), MakeEvent(10, 0, "mine")});
    EXPECT_EQ(page.Store.Refresh(), DiaryNews::Reloaded);
    page.Window.Reload();
    EXPECT_TRUE(page.Find<QLabel>("LabEvent(2)")->hasFocus());
    QTest::keyClick(page.Find<QLabel>("LabEvent(2)"), Qt::Key_Delete);
    EXPECT_EQ(Messages(page.Store.Table(), kDay), "another's");
}

} // namespace
} // namespace kestrova
