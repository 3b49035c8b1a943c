// SPDX-License-Identifier: GPL-3.0-or-later
#include "diary/ui/DiaryFinder.h"

#include "diary/DiaryScene.h"
#include "platform/qt/QtText.h"

#include <QTest>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <atomic>
#include <thread>

namespace kestrova {
namespace {

using testing::ElementsAre;

// Today is 14 May 2026. The notes are there as soon as the test says so.
struct FinderScene : DiaryScene {
    Selection Dates{2026, 2026, 4, 14, 4, 14};
    std::shared_ptr<std::atomic<bool>> NotesRead = std::make_shared<std::atomic<bool>>(true);
    NoteTexts Notes;
    std::vector<std::string> Shown;
    std::unique_ptr<DiaryFinder> Window;

    void Open() {
        Window = std::make_unique<DiaryFinder>(
            nullptr, DiaryFinder::Rooms{Dates, Texts, Store},
            DiaryFinder::Hooks{[this](const DiarySearch::Event& event) {
                                   EXPECT_FALSE(Window->isVisible());
                                   Shown.push_back(std::to_string(event.Date.Year) + "-" +
                                                   std::to_string(event.Date.Month + 1) + " " +
                                                   event.Holds.Msg);
                               },
                               [read = NotesRead, notes = Notes](const auto&, const auto&,
                                                                 const std::stop_token& stop) {
                                   while (!read->load() && !stop.stop_requested()) {
                                       std::this_thread::yield();
                                   }
                                   return notes;
                               }});
        Window->Open(nullptr);
        EXPECT_TRUE(QTest::qWaitForWindowExposed(Window.get()));
    }

    [[nodiscard]] QLineEdit* Line() const { return Window->findChild<QLineEdit*>(); }
    [[nodiscard]] QListView* List() const { return Window->findChild<QListView*>(); }
    [[nodiscard]] std::string Says(const char* label) const {
        return FromQt(Window->findChild<QLabel*>(QLatin1String(label))->text());
    }
    [[nodiscard]] int Rows() const { return List()->model()->rowCount(); }
    [[nodiscard]] std::string Current() const {
        return FromQt(List()->currentIndex().data(Qt::AccessibleTextRole).toString());
    }
    void Type(const char* text) { QTest::keyClicks(Line(), QLatin1String(text)); }
};

TEST(DiaryFinderTest, KeysGoThroughTheListAndEnterShowsTheDay) {
    FinderScene scene;
    scene.Insert({1, 0, 0}, MakeEvent(9, 0, "Zahnarzt past"));
    scene.Insert({2, 7, 0}, MakeEvent(9, 0, "Zahnärztin next"));
    scene.Insert({3, 1, 1}, MakeEvent(9, 5, "ZAHN last"));
    scene.Open();
    EXPECT_EQ(scene.Says("LabAdvice"), "Type a word from the message or the note of an event.");
    EXPECT_EQ(scene.Says("LabState"), "");
    scene.Type("zahn");
    EXPECT_TRUE(QTest::qWaitFor([&] { return scene.Says("LabState") == "Events found: 3"; }));
    EXPECT_EQ(scene.Current(), "Sunday 2 August 2026, 09:00, Zahnärztin next");
    QTest::keyClick(scene.Line(), Qt::Key_Down);
    EXPECT_EQ(scene.Current(), "Wednesday 3 February 2027, 09:05, ZAHN last");
    QTest::keyClick(scene.Line(), Qt::Key_Return);
    EXPECT_THAT(scene.Shown, ElementsAre("2027-2 ZAHN last"));

    // It comes again as it was left, over whatever window asks for it.
    scene.Window->Open(nullptr);
    QWidget page;
    scene.Window->Open(&page);
    EXPECT_EQ(scene.Window->parentWidget(), &page);
    scene.Window->Open(nullptr);
    EXPECT_TRUE(scene.Window->isVisible());
    EXPECT_EQ(scene.Line()->selectedText(), QStringLiteral("zahn"));
    EXPECT_EQ(scene.Current(), "Wednesday 3 February 2027, 09:05, ZAHN last");
    QTest::keyClick(scene.List(), Qt::Key_Up);
    QTest::keyClick(scene.List(), Qt::Key_Enter);
    EXPECT_EQ(scene.Shown.back(), "2026-8 Zahnärztin next");

    scene.Window->Open(nullptr);
    scene.List()->setFocus();
    scene.Type("zx");
    EXPECT_EQ(scene.Says("LabAdvice"), "No event and no note has “zx” in it.");
    QTest::keyClick(scene.Line(), Qt::Key_Return);
    EXPECT_TRUE(scene.Window->isVisible()) << "there is nowhere to go";
    QTest::keyClick(scene.Line(), Qt::Key_Escape);
    EXPECT_FALSE(scene.Window->isVisible());
    EXPECT_EQ(scene.Shown.size(), 2U);
}

TEST(DiaryFinderTest, NotesJoinInWhenTheyHaveBeenRead) {
    FinderScene scene;
    scene.Insert({1, 5, 0}, MakeEvent(9, 0, "Dentist"));
    scene.Insert({2, 5, 0}, MakeEvent(9, 0, "Card game"));
    scene.Notes = {{{GetFile({1, 1, 5, 0}), SearchedNote("Take the card along.")}}, false};
    scene.NotesRead->store(false);
    scene.Open();
    scene.Type("card");
    EXPECT_EQ(scene.Rows(), 1);
    EXPECT_EQ(scene.Says("LabState"), "Events found: 1   The notes are still being read ...");
    scene.NotesRead->store(true);
    EXPECT_TRUE(QTest::qWaitFor([&] { return scene.Rows() == 2; }));
    EXPECT_EQ(scene.Current(), "Tuesday 2 June 2026, 09:00, Card game") << "one stays where one is";
    EXPECT_EQ(scene.Says("LabState"), "Events found: 2   Not all notes could be searched.");
    QTest::keyClick(scene.Line(), Qt::Key_Up);
    EXPECT_EQ(scene.Current(), "Monday 1 June 2026, 09:00, Dentist: Take the card along.");
    scene.NotesRead->store(false);
    scene.Window->hide();
    scene.Window->Open(nullptr);
    scene.Window.reset(); // while they are read
}

TEST(DiaryFinderTest, TheListFollowsTheDiaryAndTheLanguage) {
    FinderScene scene;
    scene.Open();
    EXPECT_EQ(scene.Says("LabAdvice"), "There are no events in this diary yet.");
    scene.Insert({20, 4, 0}, MakeEvent(9, 0, "tea"));
    scene.Insert({21, 4, 0}, MakeEvent(9, 0, "tea"));
    scene.Window->Reload();
    scene.Type("tea");
    EXPECT_EQ(scene.Rows(), 2);
    QTest::keyClick(scene.Line(), Qt::Key_Down);
    scene.WriteFromOutside({20, 4, 0}, {MakeEvent(8, 0, "coffee")});
    EXPECT_EQ(scene.Store.Refresh(), DiaryNews::Reloaded);
    scene.Window->Reload();
    EXPECT_EQ(scene.Rows(), 1);
    EXPECT_EQ(scene.Current(), "Thursday 21 May 2026, 09:00, tea");
    scene.Texts.WeekdayNames[3] = "Donnerstag";
    scene.Window->LoadCaptions();
    EXPECT_EQ(scene.Current(), "Donnerstag 21 May 2026, 09:00, tea");
}

} // namespace
} // namespace kestrova
