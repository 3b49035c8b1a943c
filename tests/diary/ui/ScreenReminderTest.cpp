// SPDX-License-Identifier: GPL-3.0-or-later
#include "diary/ui/ScreenReminder.h"

#include "ui/Twips.h"

#include <QFrame>
#include <QInputDialog>
#include <QMenu>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

namespace kestrova {
namespace {

TEST(ScreenReminderTest, TheWindowGrowsWithItsLinesAndIsCleared) {
    const StringTable texts = MsgDefaults();
    int cleared = 0;
    ScreenReminder window(texts, {[&] { ++cleared; }, [](int) {}});
    window.ShowLines({"09:00    a", "09:01    b", "09:02    c"});
    ASSERT_TRUE(window.isVisible());
    auto* const clear = window.findChild<QPushButton*>(QStringLiteral("ComClear"));
    EXPECT_EQ(window.height(), Pixels(2470));
    EXPECT_EQ(clear->y(), Pixels(1620));
    EXPECT_EQ(clear->text(), QStringLiteral("Clear Messages"));
    EXPECT_EQ(window.windowTitle(), QStringLiteral("Kestrova Messenger"));
    EXPECT_EQ(window.findChild<QFrame*>(QStringLiteral("Frame1"))->height(), Pixels(4 * 255 + 500));
    const auto line = [&](int i) {
        return window.findChild<QLabel*>(QStringLiteral("LabRemind(%1)").arg(i));
    };
    EXPECT_EQ(line(3)->text(), QStringLiteral("09:02    c"));
    EXPECT_TRUE(line(3)->isVisible());
    EXPECT_FALSE(line(4)->isVisible());

    QTest::mouseClick(clear, Qt::LeftButton);
    EXPECT_EQ(cleared, 1);
    EXPECT_FALSE(window.isVisible());
    EXPECT_FALSE(window.isEnabled());
    window.ShowLines({"10:00    d"});
    EXPECT_TRUE(window.isEnabled());
    EXPECT_EQ(line(1)->text(), QStringLiteral("10:00    d"));
    EXPECT_FALSE(line(2)->isVisible());
    EXPECT_EQ(window.height(), Pixels(2 * 255 + 1450));
}

// A reminder window with two lines, and what it has been asked to do.
struct ReminderScene {
    StringTable Texts = MsgDefaults();
    int Cleared = 0;
    std::vector<int> Snoozed;
    ScreenReminder Window{
        Texts, {[this] { ++Cleared; }, [this](int minutes) { Snoozed.push_back(minutes); }}};
    QPushButton* Button = Window.findChild<QPushButton*>(QStringLiteral("ComSnooze"));
    QList<QAction*> Entries = Window.findChild<QMenu*>(QStringLiteral("MNU_Snooze"))->actions();

    ReminderScene() { Window.ShowLines({"09:00    a", "09:01    b"}); }
};

TEST(ScreenReminderTest, LinesAreSentAwayForAsLongAsTheUserSays) {
    ReminderScene scene;
    for (int i = 0; i < 5; ++i) {
        scene.Window.ShowLines({"09:00    a"});
        scene.Entries[i]->trigger();
        EXPECT_FALSE(scene.Window.isVisible());
    }
    EXPECT_EQ(scene.Snoozed, (std::vector<int>{5, 10, 15, 30, 60}));
    EXPECT_EQ(scene.Entries[1]->text(), QStringLiteral("1&0 minutes"));

    scene.Window.ShowLines({"09:00    a"});
    scene.Entries.back()->trigger();
    auto* const ask = scene.Window.findChild<QInputDialog*>();
    ASSERT_NE(ask, nullptr);
    scene.Window.ShowLines({"09:00    a", "09:01    b"}); // a minute later
    EXPECT_TRUE(ask->isVisible());
    ask->setIntValue(100'000);
    ask->accept();
    EXPECT_EQ(scene.Snoozed.back(), 24 * 60 - 1);
    EXPECT_EQ(scene.Cleared, 0);

    scene.Window.ShowLines({"09:00    a"});
    scene.Entries.back()->trigger();
    scene.Window.StandBack(); // the day page has been opened
    EXPECT_FALSE(ask->isVisible());
    EXPECT_EQ(scene.Snoozed.size(), 6U);
}

TEST(ScreenReminderTest, KeysDoWhatTheyDidAndSnoozeHasItsOwn) {
    ReminderScene scene;
    QTest::keyClick(&scene.Window, Qt::Key_Return);
    EXPECT_EQ(scene.Cleared, 1);
    scene.Window.BringUp();
    EXPECT_FALSE(scene.Window.isVisible()) << "there is nothing in it";

    scene.Window.ShowLines({"09:00    a"});
    QTest::keyClick(&scene.Window, Qt::Key_Escape);
    EXPECT_FALSE(scene.Window.isVisible());
    scene.Window.BringUp();
    EXPECT_TRUE(scene.Window.isVisible());
    EXPECT_TRUE(
        scene.Button->geometry().left() >
        scene.Window.findChild<QPushButton*>(QStringLiteral("ComClear"))->geometry().right());

    scene.Button->setFocus();
    auto* const menu = scene.Button->menu();
    QTimer::singleShot(100, menu, [menu] { QTest::keyClick(menu, Qt::Key_0); });
    QTest::keyClick(scene.Button, Qt::Key_Return);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !scene.Snoozed.empty(); }));
    EXPECT_EQ(scene.Snoozed, std::vector<int>{10});
    EXPECT_EQ(scene.Cleared, 1) << "Enter on one button is not the other's";
}

} // namespace
} // namespace kestrova
