// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/ui/FormCal.h"

#include "diary/DiaryScene.h"
#include "fakes/CountingBeeper.h"
#include "fakes/FakeMedia.h"
#include "fakes/SilentSpeaker.h"
#include "platform/qt/QtText.h"

#include <QAction>
#include <QApplication>
#include <QMenu>
#include <QTemporaryDir>
#include <QTest>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace kestrova {
namespace {

struct RecordingShell : Shell {
    std::vector<std::string> Pages;

    Status OpenPage(const std::string& path) override {
        Pages.push_back(path);
        return Error{ErrorCode::NotFound, path};
    }
};

struct NotedSpeaker : SilentSpeaker {
    std::vector<std::string> Said;

    void Talk(const std::string& text, AfterSpeaking /*after*/) override { Said.push_back(text); }
};

// The main window on 14 May 2026, shown.
struct MonthScene : DiaryScene {
    Selection Dates{2026, 2026, 4, 14, 4, 14};
    AppSettings Settings = FirstSettings(Texts);
    Languages Tongues{Files, "/home/me/Lan.dat", Texts};
    PictureTable Pictures;
    std::string Folder = kFolder;
    NotedSpeaker Speech;
    FakeMediaDevices Devices;
    CountingBeeper Bell;
    std::vector<std::string> Told;
    MediaService Media{{Devices, Files, Bell, Texts, Settings},
                       [this](const std::string& text) { Told.push_back(text); }};
    RecordingShell Desktop;
    PieceFiles Pieces{Files, PlainScratchWriter(Files), kFolder};
    std::vector<int> Opened;
    int Searches = 0;
    int SettingsOpened = 0;
    int SettingsSaved = 0;
    int FirstDrawn = 0;
    int Countdown = 0;
    int PicturesAsked = 0;
    int PicturesSaved = 0;
    int Quits = 0;
    FormCal Window{{Dates, Texts, Settings, Store, Tongues, Pictures, Folder, Speech, Media, Boxes,
                    Desktop, Clock, Pieces, Files},
                   {[this](int day) { Opened.push_back(day); }, [this] { ++Searches; },
                    [this] { ++SettingsOpened; }, [this] { ++SettingsSaved; },
                    [this] { ++SettingsSaved; }, [] {}, [](int) {},
                    [this] { Window.LoadCaptions(); }, [this] { ++FirstDrawn; },
                    [this](int minutes) { Countdown = minutes; }, [] {},
                    [this] { ++PicturesAsked; }, [this] { ++PicturesSaved; }, [] {}, [] {}, [] {},
                    [] {}, [](bool) {}, [this] { return ++Quits > 0; }}};

    void Show() {
        Window.LoadCaptions();
        Window.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&Window));
    }

    template<typename Control> [[nodiscard]] Control* Find(const QString& name) const {
        auto* const control = Window.findChild<Control*>(name);
        EXPECT_NE(control, nullptr) << FromQt(name);
        return control;
    }

    [[nodiscard]] DateLabel* Date(int day) const {
        return static_cast<DateLabel*>(Find<QLabel>(QStringLiteral("LabDates(%1)").arg(day - 1)));
    }

    [[nodiscard]] std::string Title() const {
        return FromQt(Find<QLabel>(QStringLiteral("LabCurMth"))->text().simplified());
    }

    [[nodiscard]] int VisibleDates() const {
        int count = 0;
        for (int day = 1; day <= kMaxDays; ++day) {
            count += Date(day)->isVisible() ? 1 : 0;
        }
        return count;
    }

    void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::keyClick(QApplication::focusWidget() != nullptr ? QApplication::focusWidget()
                                                               : &Window,
                        key, modifiers);
    }
};

TEST(FormCalTest, NothingIsDrawnBeforeTheWindowIsShown) {
    MonthScene scene;
    scene.Window.Redraw(4);
    EXPECT_EQ(scene.FirstDrawn, 0);
    scene.Show();
    EXPECT_EQ(scene.FirstDrawn, 1);
    EXPECT_EQ(scene.Title(), "May 2026");
    scene.Window.hide();
    scene.Window.show();
    EXPECT_EQ(scene.FirstDrawn, 1);
}

TEST(FormCalTest, DatesStandInTheirCellsForEveryWeekStart) {
    const struct {
        WeekStart Week;
        int Column; // of 1 May 2026, a Friday
        const char* First;
    } rows[] = {{WeekStart::Monday, 4, "Monday"},
                {WeekStart::Sunday, 5, "Sunday"},
                {WeekStart::Saturday, 6, "Saturday"}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.First);
        MonthScene scene;
        scene.Settings.Week = row.Week;
        scene.Show();
        const auto* const heading = scene.Find<QLabel>(QStringLiteral("LabDays(0)"));
        EXPECT_EQ(FromQt(heading->accessibleName()), row.First);
        const auto* const above = scene.Find<QLabel>(QStringLiteral("LabDays(%1)").arg(row.Column));
        EXPECT_NEAR(scene.Date(1)->geometry().center().x(), above->geometry().center().x(), 2);
        EXPECT_EQ(scene.Date(8)->x(), scene.Date(1)->x()) << "a week is a row";
        EXPECT_GT(scene.Date(8)->y(), scene.Date(1)->y());
        EXPECT_EQ(scene.VisibleDates(), 31);
    }
}

TEST(FormCalTest, MonthsHaveTheirDays) {
    MonthScene scene;
    scene.Show();
    const struct {
        int Year, Month, Days;
    } rows[] = {{2003, 1, 28}, {2004, 1, 29}, {2026, 10, 30}, {-31999, 1, 28}, {32000, 1, 29}};
    for (const auto& row : rows) {
        scene.Dates.PageYear = row.Year;
        scene.Window.Redraw(row.Month);
        EXPECT_EQ(scene.VisibleDates(), row.Days) << row.Year;
        EXPECT_TRUE(
            scene.Find<QAction>(QStringLiteral("MNU_Day(%1)").arg(row.Days - 1))->isVisible());
        if (row.Days < kMaxDays) {
            EXPECT_FALSE(
                scene.Find<QAction>(QStringLiteral("MNU_Day(%1)").arg(row.Days))->isVisible());
        }
    }
}

TEST(FormCalTest, ColoursSayWhatADayHolds) {
    MonthScene scene;
    scene.Insert({20, 4, 0}, MakeEvent(9, 0, "<b>Dentist</b>"));
    DiaryEvent hidden = MakeEvent(9, 0, "hidden");
    hidden.Hide = 1;
    scene.Insert({21, 4, 0}, hidden);
    scene.Insert({14, 4, 0}, MakeEvent(9, 0, "today"));
    scene.Show();
    const auto colour = [&](int day) {
        return scene.Date(day)->palette().color(QPalette::WindowText);
    };
    EXPECT_EQ(colour(1), QColor(0, 0, 0));
    EXPECT_EQ(colour(20), QColor(0, 0, 255));
    EXPECT_EQ(colour(21), QColor(0, 0, 0));
    EXPECT_EQ(colour(14), QColor(255, 0, 0)) << "today comes before its events";
    EXPECT_TRUE(scene.Date(20)->toolTip().contains(QStringLiteral("&lt;b&gt;Dentist")));
    EXPECT_EQ(scene.Date(21)->toolTip(), QString());
    scene.Window.Redraw(5);
    EXPECT_EQ(colour(14), QColor(0, 0, 0)) << "another month has no today";
}

TEST(FormCalTest, KeysAndArrowsMoveTheDate) {
    MonthScene scene;
    scene.Show();
    scene.Press(Qt::Key_Right);
    EXPECT_EQ(scene.Dates.PageDay, 15);
    scene.Press(Qt::Key_Down);
    scene.Press(Qt::Key_Down);
    EXPECT_EQ(scene.Dates.Page(), (CalendarDate{2026, 4, 29}));
    scene.Press(Qt::Key_Down);
    EXPECT_EQ(scene.Title(), "June 2026");
    scene.Press(Qt::Key_PageUp);
    EXPECT_EQ(scene.Title(), "May 2026");
    scene.Press(Qt::Key_PageDown, Qt::ControlModifier);
    EXPECT_EQ(scene.Title(), "May 2027");
    scene.Press(Qt::Key_Home);
    EXPECT_EQ(scene.Dates.Page(), (CalendarDate{2026, 4, 14}));
    scene.Press(Qt::Key_Return);
    EXPECT_THAT(scene.Opened, testing::ElementsAre(14));
    QTest::mouseClick(scene.Find<QWidget>(QStringLiteral("LabYrAdv")), Qt::LeftButton);
    EXPECT_EQ(scene.Title(), "May 2027");
    QTest::mouseClick(scene.Find<QWidget>(QStringLiteral("LabYrRtd")), Qt::LeftButton);
    EXPECT_EQ(scene.Title(), "May 2026");
}

TEST(FormCalTest, ADoubleClickAndTheDayMenuOpenTheDiary) {
    MonthScene scene;
    scene.Show();
    QTest::mouseDClick(scene.Date(9), Qt::LeftButton);
    scene.Find<QAction>(QStringLiteral("MNU_Day(30)"))->trigger();
    EXPECT_THAT(scene.Opened, testing::ElementsAre(9, 31));
}

TEST(FormCalTest, TheMonthMenuComesBackAfterAWhile) {
    MonthScene scene;
    scene.Show();
    scene.Find<QAction>(QStringLiteral("MNU_Mon(11)"))->trigger();
    EXPECT_EQ(scene.Title(), "December 2026");
    EXPECT_EQ(scene.Countdown, 7);
    QTest::mouseClick(scene.Find<QWidget>(QStringLiteral("LabYrAdv")), Qt::LeftButton);
    EXPECT_EQ(scene.Title(), "December 2027");
}

TEST(FormCalTest, TheYearPromptShowsTheCurrentMonthOfThatYear) {
    MonthScene scene;
    scene.Show();
    scene.Window.Redraw(0);
    auto* const title = scene.Find<QLabel>(QStringLiteral("LabCurMth"));
    scene.Boxes.Inputs = {std::nullopt};
    QTest::mouseDClick(title, Qt::LeftButton);
    EXPECT_EQ(scene.Title(), "January 2026");
    scene.Boxes.Inputs = {"40000", "1999"};
    QTest::mouseDClick(title, Qt::LeftButton);
    EXPECT_EQ(scene.Title(), "May 1999");
    EXPECT_THAT(scene.Boxes.Prompts,
                testing::ElementsAre("Year ? 2026", "Year ? 2026", "Year ? 2026"));
}

TEST(FormCalTest, TheWeekStartMenuIsKept) {
    MonthScene scene;
    scene.Show();
    scene.Find<QAction>(QStringLiteral("MNU_WeekSt(1)"))->trigger();
    EXPECT_EQ(scene.Settings.Week, WeekStart::Sunday);
    EXPECT_EQ(scene.SettingsSaved, 1);
    EXPECT_TRUE(scene.Find<QAction>(QStringLiteral("MNU_WeekSt(1)"))->isChecked());
    EXPECT_FALSE(scene.Find<QAction>(QStringLiteral("MNU_WeekSt(2)"))->isChecked());
    EXPECT_EQ(scene.Find<QAction>(QStringLiteral("MNU_WeekSt(0)"))->text(),
              QStringLiteral("Saturday"));
    EXPECT_EQ(scene.Find<QLabel>(QStringLiteral("LabDays(0)"))->accessibleName(),
              QStringLiteral("Sunday"));
}

TEST(FormCalTest, ClosingHidesOrEnds) {
    MonthScene scene;
    scene.Show();
    scene.Window.close();
    EXPECT_FALSE(scene.Window.isVisible());
    EXPECT_EQ(scene.Quits, 0);
    scene.Window.ShowNormal();
    EXPECT_TRUE(scene.Window.isVisible());
    scene.Settings.ReminderOnClose = 0;
    scene.Find<QAction>(QStringLiteral("MNU_Exit"))->trigger();
    EXPECT_EQ(scene.Quits, 1);
}

TEST(FormCalTest, TheWindowFitsScreensFromSmallToLarge) {
    for (const QSize size :
         {QSize(800, 600), QSize(640, 900), QSize(1920, 1080), QSize(3840, 2160)}) {
        SCOPED_TRACE(std::to_string(size.width()) + " x " + std::to_string(size.height()));
        MonthScene scene;
        scene.Dates.PageMonth = 7; // six rows: 1 August 2026 is a Saturday
        scene.Show();
        scene.Window.resize(size);
        QApplication::processEvents();
        const QRect last = scene.Date(31)->geometry();
        EXPECT_GE(last.height(), 20);
        EXPECT_LE(last.bottom(), scene.Date(31)->parentWidget()->height());
        const auto* const picture = scene.Find<QWidget>(QStringLiteral("Image1"));
        EXPECT_GE(picture->width(), 240);
        EXPECT_GE(picture->height(), 180);
        EXPECT_LE(scene.Window.width(), size.width()) << "nothing pushes the window wider";
    }
}

TEST(FormCalTest, APictureIsShownAndAMissingOneIsNoTrouble) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("May.jpg"));
    QImage picture(400, 300, QImage::Format_RGB32);
    picture.fill(Qt::green);
    ASSERT_TRUE(picture.save(path));
    MonthScene scene;
    scene.Pictures.MonthPicture[4] = FromQt(path);
    scene.Pictures.MonthPicture[5] = "/nowhere/June.jpg";
    scene.Show();
    auto* const box = static_cast<PictureBox*>(scene.Find<QWidget>(QStringLiteral("Image1")));
    ASSERT_TRUE(QTest::qWaitFor([&] { return box->HasPicture(); }));
    const auto centre = [&] {
        const QImage shown = box->grab().toImage();
        return shown.pixelColor(shown.width() / 2, shown.height() / 2);
    };
    EXPECT_GT(centre().green(), 240);
    scene.Press(Qt::Key_PageDown);
    QTest::qWait(50);
    EXPECT_GT(centre().green(), 240) << "the picture before it stays";
}

TEST(FormCalTest, AMissingHelpPageIsSaid) {
    MonthScene scene;
    scene.Show();
    QTest::mouseClick(scene.Find<QLabel>(QStringLiteral("LabHelp")), Qt::LeftButton);
    EXPECT_THAT(scene.Desktop.Pages, testing::ElementsAre("/home/me/Help.htm"));
    EXPECT_EQ(scene.Boxes.Shown.size(), 1U);
}

TEST(FormCalTest, PictureMenuAndKeysOpenTheSettingsAndTheSearch) {
    MonthScene scene;
    scene.Show();
    QTest::mouseDClick(scene.Find<QWidget>(QStringLiteral("Image1")), Qt::LeftButton);
    scene.Find<QAction>(QStringLiteral("MNU_Settings"))->trigger();
    scene.Press(Qt::Key_Comma, Qt::ControlModifier);
    EXPECT_EQ(scene.SettingsOpened, 3);
    scene.Press(Qt::Key_F, Qt::ControlModifier);
    EXPECT_EQ(scene.Searches, 1);
}

TEST(FormCalTest, TipsGoAndComeBack) {
    MonthScene scene;
    scene.Show();
    auto* const picture = scene.Find<QWidget>(QStringLiteral("Image1"));
    EXPECT_EQ(picture->toolTip(), QStringLiteral("Double click here to open settings window."));
    scene.Settings.HelpTextOn = 0;
    scene.Window.LoadTips();
    EXPECT_EQ(picture->toolTip(), QString());
    scene.Settings.HelpTextOn = 1;
    scene.Window.LoadTips();
    EXPECT_NE(picture->toolTip(), QString());
}

TEST(FormCalTest, ADateAndAPictureAreReadAloudWhereTheSettingsSaySo) {
    MonthScene scene;
    const DayPlace today{14, 4, 0};
    scene.Insert(today, {7, 5, "Dentist", {}, {}, {}, 0});
    scene.Insert(today, {12, 0, "hidden", {}, {}, {}, 1});
    scene.Insert(today, {19, 30, "Choir", {}, {}, {}, 0});
    scene.Files.Put("/home/me/Speech/June.txt", "The year\x92s middle");
    scene.Pictures.MonthSpeech[5] = "/home/me/Speech/June.txt";
    scene.Show();
    const auto heard = [&](std::size_t count) {
        return QTest::qWaitFor([&] { return scene.Speech.Said.size() >= count; }, 3000);
    };
    QTest::mouseClick(scene.Date(14), Qt::LeftButton);
    scene.Settings.SpeakDate = 1;
    scene.Settings.SpeakPicture = 1;
    QTest::mouseClick(scene.Date(15), Qt::LeftButton); // nothing to say
    QTest::mouseDClick(scene.Date(14), Qt::LeftButton);
    QTest::mouseClick(scene.Date(14), Qt::LeftButton);
    EXPECT_TRUE(heard(1));
    scene.Press(Qt::Key_PageDown); // June
    EXPECT_TRUE(heard(2));
    EXPECT_THAT(scene.Speech.Said,
                testing::ElementsAre("Message 1\r\n7:05, Dentist\r\nMessage 2\r\n19:30, Choir",
                                     "The year\xE2\x80\x99s middle"));
    EXPECT_THAT(scene.Opened, testing::ElementsAre(14));
}

} // namespace
} // namespace kestrova
