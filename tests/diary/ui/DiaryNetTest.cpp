// SPDX-License-Identifier: GPL-3.0-or-later
#include "diary/ui/DayPageScene.h"
#include "language/ProgramTexts.h"

#include <QWheelEvent>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace kestrova {
namespace {

using testing::ElementsAre;

constexpr const char* kRegister = "/home/me/NetUsers.txt";
constexpr const char* kOwnPair = "/home/me/\r\nMy Diary\r\n";

// One event of one's own, and one of Bob's, who is registered.
struct NetScene : DayPageScene {
    NetScene() {
        Insert(kDay, MakeEvent(8, 0, "mine"));
        Files.Put(kBobsPath, WriteDiary(DiaryTable()));
        WriteFromOutside(kDay, {MakeEvent(9, 0, "bob's")}, kBobsPath);
        Files.Put(kRegister, std::string(kOwnPair) + "/net/bob/\r\nBob\r\n");
        Window.OpenPage();
        Changes = 0;
    }

    [[nodiscard]] QComboBox* List() const { return Find<QComboBox>("CombNet"); }

    [[nodiscard]] std::vector<std::string> Items() const {
        std::vector<std::string> items;
        for (int i = 0; i < List()->count(); ++i) {
            items.push_back(FromQt(List()->itemText(i)));
        }
        return items;
    }

    // Chooses an item as a user does: in the open list.
    void Choose(int index) {
        List()->setFocus();
        QTest::keyClick(List(), Qt::Key_Home);
        QWidget* const view = List()->view();
        for (int i = List()->view()->currentIndex().row(); i > 0; --i) {
            QTest::keyClick(view, Qt::Key_Up);
        }
        for (int i = 0; i < index; ++i) {
            QTest::keyClick(view, Qt::Key_Down);
        }
        QTest::keyClick(view, Qt::Key_Return);
    }

    [[nodiscard]] std::string Chosen() const { return FromQt(List()->currentText()); }
};

TEST(DiaryNetTest, TheFirstPageMakesARegister) {
    DayPageScene page;
    EXPECT_EQ(page.Files.Content(kRegister), kOwnPair);
    EXPECT_EQ(page.Find<QComboBox>("CombNet")->accessibleName(), QStringLiteral("Diary shown"));
    EXPECT_FALSE(page.Find<QAction>("MNU_Remove")->isEnabled());
}

TEST(DiaryNetTest, ChoosingADiaryShowsItAndComesBack) {
    NetScene page;
    EXPECT_THAT(page.Items(), ElementsAre("My Diary", "Bob", "Add Net User"));
    page.Choose(1);
    EXPECT_EQ(page.Text("LabEvent(1)"), "bob's");
    EXPECT_EQ(page.Store.Folder(), kBobsFolder);
    EXPECT_EQ(page.Chosen(), "Bob");
    EXPECT_EQ(page.Changes, 1) << "the month is drawn anew";
    EXPECT_TRUE(page.Find<QAction>("MNU_Remove")->isEnabled());
    page.Add("10", "for bob");
    EXPECT_EQ(Messages(page.OnFile(kBobsPath), kDay), "bob's for bob");
    page.Choose(0);
    EXPECT_EQ(page.Text("LabEvent(1)"), "mine");
    EXPECT_EQ(page.Text("LabEvent(2)"), "");
    EXPECT_TRUE(page.Boxes.Shown.empty());
}

TEST(DiaryNetTest, TheWheelAndSingleKeysChooseNothing) {
    NetScene page;
    page.List()->setFocus();
    QTest::keyClick(page.List(), Qt::Key_Down);
    QTest::keyClick(page.List()->view(), Qt::Key_Escape);
    QTest::keyClick(page.List(), Qt::Key_B);
    QTest::keyClick(page.List()->view(), Qt::Key_Escape);
    QWheelEvent wheel(QPointF(5, 5), page.List()->mapToGlobal(QPointF(5, 5)), QPoint(),
                      QPoint(0, -120), Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(page.List(), &wheel);
    EXPECT_EQ(page.Store.Folder(), kFolder);
    EXPECT_EQ(page.Chosen(), "My Diary");
}

TEST(DiaryNetTest, ChoosingAsksBeforeTypedTextIsLost) {
    for (const bool save : {true, false}) {
        SCOPED_TRACE(save);
        NetScene page;
        page.Click("LabEvent(1)");
        QTest::keyClicks(page.Find<QLineEdit>("TextMsg"), QStringLiteral("!"));
        page.Boxes.Answers = {save};
        page.Choose(1);
        EXPECT_EQ(page.Boxes.Asked.size(), 1U);
        EXPECT_EQ(page.Chosen(), save ? "Bob" : "My Diary");
        EXPECT_EQ(page.Window.IsEditing(), !save);
        EXPECT_EQ(Messages(page.OnFile(), kDay), save ? "mine!" : "mine");
        EXPECT_EQ(Messages(page.OnFile(kBobsPath), kDay), "bob's");
    }
}

TEST(DiaryNetTest, AUserIsAddedAndOfferedAtOnce) {
    NetScene page;
    page.Choose(1);
    page.Files.Put("/net/ann/diarydat/DATA.DAT", WriteDiary(DiaryTable()));
    page.Boxes.Files = {"/net/ann/diarydat/DATA.DAT"};
    page.Boxes.Inputs = {"Ann"};
    page.Boxes.Prompts.clear();
    page.Choose(2);
    EXPECT_THAT(page.Boxes.Prompts,
                ElementsAre("Data.dat |*Data.dat;*data.dat;*DATA.DAT", "Input User Name "));
    EXPECT_EQ(page.Files.Content(kRegister),
              std::string(kOwnPair) + "/net/bob/\r\nBob\r\n/net/ann/\r\nAnn\r\n");
    EXPECT_THAT(page.Items(), ElementsAre("My Diary", "Bob", "Ann", "Add Net User"));
    EXPECT_EQ(page.Chosen(), "My Diary");
    EXPECT_EQ(page.Store.Folder(), kFolder);
}

TEST(DiaryNetTest, WhatCannotBeAddedIsRefusedWithItsReason) {
    const struct {
        std::optional<std::string> File;
        std::optional<std::string> Name;
        std::optional<ProgramText> Message;
    } rows[] = {
        {std::nullopt, "x", std::nullopt},
        {kBobsPath, std::nullopt, std::nullopt},
        {kBobsPath, "  ", std::nullopt},
        {kBobsPath, "Bob", ProgramText::NameTaken},
        {"/net/bob/letter.dat", "x", ProgramText::NoDiaryThere},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(&row - rows);
        NetScene page;
        const auto before = page.Files.Content(kRegister);
        page.Boxes.Files = {row.File};
        page.Boxes.Inputs = {row.Name};
        page.Find<QAction>("MNU_New")->trigger();
        EXPECT_EQ(page.Files.Content(kRegister), before);
        ASSERT_EQ(page.Boxes.Shown.size(), row.Message ? 1U : 0U);
        if (row.Message) {
            EXPECT_EQ(page.Boxes.Shown[0].Text, TextOf(page.Texts, *row.Message, "Bob"));
        }
    }
}

TEST(DiaryNetTest, RemovingAUserBringsBackTheOwnDiary) {
    NetScene page;
    page.Choose(1);
    page.Find<QAction>("MNU_Remove")->trigger();
    ASSERT_EQ(page.Boxes.Shown.size(), 1U);
    EXPECT_EQ(page.Boxes.Shown[0].Text, "Net User Bob Removed");
    EXPECT_EQ(page.Boxes.Shown[0].Title, "Kestrova");
    EXPECT_EQ(page.Boxes.Shown[0].Icon, DialogIcon::None);
    EXPECT_THAT(page.Items(), ElementsAre("My Diary", "Add Net User"));
    EXPECT_EQ(page.Files.Content(kRegister), kOwnPair);
    EXPECT_EQ(page.Text("LabEvent(1)"), "mine");
    EXPECT_TRUE(page.Files.Content(kBobsPath)) << "only the register has changed";
}

TEST(DiaryNetTest, ADiaryThatHasGoneGivesWayToTheOwnOneAndIsOfferedWhenItComesBack) {
    NetScene page;
    page.Choose(1);
    *page.Network = false;
    page.Changes = 0;
    page.Window.DoNetUsers();
    EXPECT_EQ(page.Text("LabEvent(1)"), "mine");
    EXPECT_EQ(page.Changes, 1);
    EXPECT_THAT(page.Items(), ElementsAre("My Diary", "Add Net User"));
    EXPECT_TRUE(page.Boxes.Shown.empty());
    *page.Network = true;
    page.Window.DoNetUsers();
    EXPECT_THAT(page.Items(), ElementsAre("My Diary", "Bob", "Add Net User"));
    EXPECT_EQ(page.Chosen(), "My Diary");
}

TEST(DiaryNetTest, ADiaryThatHasGoneStaysUntilTheEditIsOver) {
    NetScene page;
    page.Choose(1);
    page.Click("LabEvent(1)");
    QTest::keyClicks(page.Find<QLineEdit>("TextMsg"), QStringLiteral("!"));
    *page.Network = false;
    page.Window.DoNetUsers();
    EXPECT_EQ(page.Chosen(), "Bob");
    QTest::keyClick(page.Find<QLineEdit>("TextMsg"), Qt::Key_Return);
    EXPECT_EQ(page.Boxes.Shown.size(), 1U);
    EXPECT_TRUE(page.Window.IsEditing());
    EXPECT_EQ(page.Find<QLineEdit>("TextMsg")->text(), QStringLiteral("bob's!"));
    QTest::keyClick(page.Find<QLineEdit>("TextMsg"), Qt::Key_Escape);
    EXPECT_EQ(page.Chosen(), "My Diary");
    EXPECT_EQ(page.Text("LabEvent(1)"), "mine");
}

TEST(DiaryNetTest, ADiaryThatIsOutOfReachWhenChosenIsNotShown) {
    NetScene page;
    page.List()->showPopup();
    *page.Network = false;
    page.List()->hidePopup();
    Q_EMIT page.List()->activated(1);
    EXPECT_EQ(page.Boxes.Shown.size(), 1U);
    EXPECT_EQ(page.Chosen(), "My Diary");
    EXPECT_EQ(page.Text("LabEvent(1)"), "mine");
}

TEST(DiaryNetTest, ItemsAreKnownByPlaceWhateverTheLanguage) {
    NetScene page;
    page.Choose(1);
    page.Texts.ProgramLanguage = 2;
    page.Window.LoadCaptions();
    EXPECT_THAT(page.Items(), ElementsAre(TextOf(page.Texts, ProgramText::MyDiary), "Bob",
                                          TextOf(page.Texts, ProgramText::AddNetUser)));
    EXPECT_EQ(page.Chosen(), "Bob");
    page.Choose(0);
    EXPECT_EQ(page.Store.Folder(), kFolder);
    EXPECT_EQ(page.Files.Content(kRegister), std::string(kOwnPair) + "/net/bob/\r\nBob\r\n");
}

TEST(DiaryNetTest, ADiaryThatHasGoneWaitsInSilenceForABusyOwnOne) {
    NetScene page;
    page.Choose(1);
    *page.Network = false;
    page.Files.HoldLock(kDataPath);
    for (int look = 0; look < 3; ++look) {
        page.Window.DoNetUsers();
        EXPECT_EQ(page.Chosen(), "Bob");
        EXPECT_EQ(page.Text("LabEvent(1)"), "bob's");
    }
    EXPECT_TRUE(page.Boxes.Shown.empty());
    EXPECT_EQ(page.Files.Waited.count(), 0);
    page.Files.ReleaseLock(kDataPath);
    page.Window.DoNetUsers();
    EXPECT_EQ(page.Chosen(), "My Diary");
    EXPECT_EQ(page.Text("LabEvent(1)"), "mine");
}

TEST(DiaryNetTest, ADiaryThatGetsDamagedGivesWayToTheOwnOneAndIsOfferedStill) {
    NetScene page;
    page.Choose(1);
    page.Files.Put(kBobsPath, "no diary");
    (void)page.Store.Refresh();
    (void)page.Store.Refresh();
    page.Window.DoNetUsers();
    EXPECT_EQ(page.Chosen(), "My Diary");
    EXPECT_EQ(page.Text("LabEvent(1)"), "mine");
    EXPECT_THAT(page.Items(), ElementsAre("My Diary", "Bob", "Add Net User"));
    EXPECT_TRUE(page.Boxes.Shown.empty());
}

TEST(DiaryNetTest, ADiaryOfAnotherYearIsRefused) {
    NetScene page;
    page.Files.Put("/net/bob/DiaryDat/Year.dat", "2025\r\n");
    page.Choose(1);
    ASSERT_EQ(page.Boxes.Shown.size(), 1U);
    EXPECT_EQ(page.Boxes.Shown[0].Text, TextOf(page.Texts, ProgramText::OtherYear, "2025"));
    EXPECT_EQ(page.Boxes.Shown[0].Title, "Kestrova Messenger");
    EXPECT_EQ(page.Chosen(), "My Diary");
    EXPECT_EQ(page.Text("LabEvent(1)"), "mine");
}

TEST(DiaryNetTest, TheDeleteKeyDeletesNoEventFromTheList) {
    NetScene page;
    page.Find<QLabel>("LabEvent(1)")->setFocus();
    page.List()->setFocus();
    QTest::keyClick(page.List(), Qt::Key_Delete);
    EXPECT_EQ(Messages(page.OnFile(), kDay), "mine");
}

} // namespace
} // namespace kestrova
