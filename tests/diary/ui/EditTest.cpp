// SPDX-License-Identifier: GPL-3.0-or-later
#include "diary/ui/Edit.h"

#include "diary/ui/DayPageScene.h"
#include "language/ProgramTexts.h"
#include "ui/Twips.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace kestrova {
namespace {

// The row of an event whose note is open.
struct EditScene : DayPageScene {
    explicit EditScene(const std::string& note = {}) {
        Add("09", "mine");
        Files.Put(NotePath({1, kDay}), note);
        Window.DrawMainPage();
        Click("LabEvent(1)");
        Find<QPushButton>("ComInfo")->click();
    }

    void Type(const char* text) {
        NoteText()->moveCursor(QTextCursor::End);
        QTest::keyClicks(NoteText(), QLatin1String(text));
    }

    [[nodiscard]] std::string OnDisc1(int slot = 1) const {
        return Files.Content(NotePath({slot, kDay})).value_or("none");
    }
};

TEST(EditWindowTest, TheWindowShowsTheNoteOfTheRow) {
    DayPageScene page;
    auto* const button = page.Find<QPushButton>("ComInfo");
    EXPECT_EQ(button->text(), QStringLiteral("Event Details"));
    EXPECT_FALSE(button->isEnabled());
    EditScene scene("two\r\nlines\r\n");
    EXPECT_TRUE(scene.Find<QPushButton>("ComInfo")->isEnabled());
    ASSERT_TRUE(scene.NoteWindow()->isVisible());
    EXPECT_EQ(scene.NoteWindow()->windowTitle(), QStringLiteral("Text Editor"));
    EXPECT_FALSE(scene.NoteWindow()->isModal());
    EXPECT_EQ(scene.NoteText()->toPlainText(), QStringLiteral("two\nlines"));
    EXPECT_EQ(scene.NoteText()->placeholderText(), QStringLiteral("Enter Details Below"));
    EXPECT_EQ(scene.NoteText()->y(), Pixels(500));
    EXPECT_EQ(scene.NoteText()->height(), Pixels(Twips(scene.NoteWindow()->height()) - 1000));
    EXPECT_EQ(scene.NoteText()->width(), Pixels(Twips(scene.NoteWindow()->width()) - 100));
}

TEST(EditWindowTest, WhatIsTypedIsSavedWhenTheEditorIsLeftOrClosed) {
    const struct {
        std::function<void(EditScene&)> Leave;
        bool Editing, NoteOpen; // afterwards
    } rows[] = {
        {[](EditScene& scene) { scene.Find<QLineEdit>("TextMsg")->activateWindow(); }, true, true},
        {[](EditScene& scene) { scene.NoteWindow()->close(); }, true, false},
        {[](EditScene& scene) { QTest::keyClick(scene.NoteText(), Qt::Key_Escape); }, true, false},
        {[](EditScene& scene) {
             QTest::keyClick(scene.Find<QLineEdit>("TextMsg"), Qt::Key_Escape);
         },
         false, false},
        {[](EditScene& scene) { scene.Find<QPushButton>("ComDataAcpt")->click(); }, false, false},
        {[](EditScene& scene) { scene.Window.close(); }, false, false},
        {[](EditScene& scene) { EXPECT_TRUE(scene.Window.SaveNote(SaveMessages::Keep)); }, true,
         true},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(&row - rows);
        EditScene scene;
        scene.Type("typed");
        row.Leave(scene);
        EXPECT_TRUE(QTest::qWaitFor([&] { return scene.OnDisc1() == "typed\r\n"; }));
        EXPECT_EQ(scene.Window.IsEditing(), row.Editing);
        EXPECT_EQ(scene.NoteWindow()->isVisible(), row.NoteOpen);
    }
}

TEST(EditWindowTest, APageThatGoesSavesItsNote) {
    DiaryScene scene;
    Selection dates{2026, 2026, kDay.Month, kDay.Day, 4, 13};
    AppSettings settings = FirstSettings(scene.Texts);
    NoDetails details;
    EventEditor editor{{scene.Store, dates, scene.Texts, settings, scene.Boxes, details}};
    SharedDiaries shared{{scene.Files, scene.Clock, scene.OnDisc, scene.Texts, scene.Probe}};
    {
        Diary window(
            nullptr,
            {dates, scene.Texts, settings, scene.Store, shared, editor, scene.Clock, scene.Boxes},
            {[] {}, {}, {}, {}, {}, {}, {}});
        window.OpenPage();
        QTest::mouseClick(window.findChild<QLabel*>(QStringLiteral("LabEvent(0)")), Qt::LeftButton);
        window.findChild<QPushButton*>(QStringLiteral("ComInfo"))->click();
        window.findChild<QPlainTextEdit*>()->insertPlainText(QStringLiteral("typed"));
    }
    EXPECT_EQ(scene.Files.Content(scene.NotePath({kScratchSlot, kDay})), "typed\r\n");
}

TEST(EditWindowTest, AnUnmodifiedNoteIsNotWritten) {
    // Line ends and an encoding of other systems, and a blank that does not break.
    const std::string bytes = "no end\nCaf\xE9\nhard\xC2\xA0"
                              "blank\n\n";
    EditScene scene(bytes);
    const auto stamp = scene.Files.Stamp(scene.NotePath({1, kDay}));
    scene.NoteWindow()->close();
    EXPECT_EQ(scene.Files.Stamp(scene.NotePath({1, kDay})), stamp);
    scene.Find<QPushButton>("ComInfo")->click();
    scene.Type("!");
    scene.NoteWindow()->close();
    EXPECT_EQ(scene.OnDisc1(), "no end\r\nCaf\xC3\xA9\r\nhard\xC2\xA0"
                               "blank\r\n!\r\n");
}

TEST(EditWindowTest, TheNoteOfANewEventGoesWithItAndIsMarked) {
    DayPageScene page;
    page.Add("12", "late");
    EXPECT_EQ(page.Find<QLabel>("LabEvent(1)")->toolTip().contains(QStringLiteral("Has a note")),
              false)
        << "an empty note is none";
    page.Click("LabEvent(0)");
    page.Find<QPushButton>("ComInfo")->click();
    QTest::keyClicks(page.NoteText(), QStringLiteral("details"));
    QTest::keyClicks(page.Find<QLineEdit>("TextMsg"), QStringLiteral("early"));
    QTest::keyClick(page.Find<QLineEdit>("TextMsg"), Qt::Key_Return);
    EXPECT_EQ(page.Text("LabEvent(1)"), "early");
    EXPECT_EQ(page.Files.Content(page.NotePath({1, kDay})), "details\r\n");
    EXPECT_FALSE(page.Files.Content(page.NotePath({kScratchSlot, kDay})));
    EXPECT_FALSE(page.NoteWindow()->isVisible());
    auto* const row = dynamic_cast<RowLabel*>(page.Find<QLabel>("LabEvent(1)"));
    ASSERT_NE(row, nullptr);
    EXPECT_EQ(row->Mark(), NoteMark::Shown);
    EXPECT_TRUE(row->toolTip().contains(QStringLiteral("Has a note")));
    EXPECT_TRUE(row->accessibleName().contains(QStringLiteral("Has a note")));
}

TEST(EditWindowTest, GivingUpANewEventAsksBeforeItsNoteIsLost) {
    const std::function<void(DayPageScene&)> ends[] = {
        [](DayPageScene& page) {
            QTest::keyClick(page.Find<QLineEdit>("TextMsg"), Qt::Key_Escape);
        },
        [](DayPageScene& page) {
            QTest::keyClick(page.Find<QLineEdit>("TextMsg"), Qt::Key_Return);
        },
        [](DayPageScene& page) { page.Click("LabEvent(1)"); },
        [](DayPageScene& page) { page.Window.close(); },
    };
    for (const bool discard : {false, true}) {
        for (const auto& end : ends) {
            SCOPED_TRACE((discard ? 10 : 0) + (&end - ends));
            DayPageScene page;
            page.Add("12", "late");
            page.Click("LabEvent(0)");
            page.Find<QPushButton>("ComInfo")->click();
            QTest::keyClicks(page.NoteText(), QStringLiteral("details"));
            page.Boxes.Answers = {discard};
            end(page);
            ASSERT_EQ(page.Boxes.Asked.size(), 1U);
            EXPECT_EQ(page.Boxes.Asked[0].Text, TextOf(page.Texts, ProgramText::DiscardNote));
            EXPECT_EQ(page.NoteWindow()->isVisible(), !discard);
            if (discard) {
                EXPECT_FALSE(page.Files.Content(page.NotePath({kScratchSlot, kDay})));
            } else {
                EXPECT_TRUE(page.Window.IsEditing());
                EXPECT_EQ(page.NoteText()->toPlainText(), QStringLiteral("details"));
            }
        }
    }
}

TEST(EditWindowTest, ATextThatCannotBeSavedStaysInTheWindow) {
    EditScene scene;
    scene.Type("typed");
    scene.Files.FailWrites(Error{ErrorCode::Full, "No space left on device"});
    scene.NoteWindow()->close();
    ASSERT_GE(scene.Boxes.Shown.size(), 1U);
    EXPECT_EQ(scene.Boxes.Shown[0].Text, "A File Handling Error Occured");
    EXPECT_EQ(scene.Boxes.Shown[0].Title, "Kestrova Messenger");
    EXPECT_EQ(scene.Boxes.Shown[0].Icon, DialogIcon::Critical);
    ASSERT_TRUE(scene.NoteWindow()->isVisible());
    EXPECT_EQ(scene.NoteText()->toPlainText(), QStringLiteral("typed"));
    QTest::keyClick(scene.Find<QLineEdit>("TextMsg"), Qt::Key_Escape);
    EXPECT_TRUE(scene.Window.IsEditing()) << "its row stays, too";
    scene.Files.FailWrites({});
    scene.NoteWindow()->close();
    EXPECT_FALSE(scene.NoteWindow()->isVisible());
    EXPECT_EQ(scene.OnDisc1(), "typed\r\n");
}

TEST(EditWindowTest, NotesThatTheEditorCannotKeepAreNotOpened) {
    for (const std::string& bytes :
         {std::string("a\0b\r\n", 5), std::string("line \xE2\x80\xA8 separator\r\n"),
          std::string("paragraph \xE2\x80\xA9 separator\r\n"),
          std::string("frame \xEF\xB7\x90\r\n"), std::string("old\rlines")}) {
        SCOPED_TRACE(bytes);
        EditScene scene(bytes);
        EXPECT_FALSE(scene.NoteWindow()->isVisible());
        ASSERT_EQ(scene.Boxes.Shown.size(), 1U);
        EXPECT_EQ(scene.Boxes.Shown[0].Text, TextOf(scene.Texts, ProgramText::NoteIsNoText));
        scene.Window.close();
        EXPECT_EQ(scene.OnDisc1(), bytes);
    }
}

TEST(EditWindowTest, ALargeNoteOpensAndIsSavedQuickly) {
    std::string bytes;
    while (bytes.size() < 2'000'000) {
        bytes += "A line of a note that somebody has kept for years.\r\n";
    }
    const auto begin = std::chrono::steady_clock::now();
    EditScene scene(bytes);
    ASSERT_TRUE(scene.NoteWindow()->isVisible());
    scene.Type("!");
    scene.NoteWindow()->close();
    EXPECT_EQ(scene.OnDisc1().size(), bytes.size() + 1);
    EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(1));
}

TEST(EditWindowTest, TheLabelReadsTheNoteAloudWhenSpeechIsOn) {
    EditScene scene("two\r\nlines\r\n");
    auto* const label = scene.NoteWindow()->findChild<QLabel*>(QStringLiteral("Label1"));
    EXPECT_EQ(label->text(), QStringLiteral("Speech Not Installed"));
    EXPECT_FALSE(label->isEnabled());
    scene.Settings.SpeechEnabled = 1;
    scene.Window.LoadCaptions();
    EXPECT_EQ(label->text(), QStringLiteral("Talk To Me"));
    QTest::mouseClick(label, Qt::LeftButton);
    EXPECT_THAT(scene.Spoken, testing::ElementsAre("two\nlines"));
}

TEST(EditWindowTest, NothingTypedOrChosenIsLostWhenTheLanguageChanges) {
    EditScene scene("note\r\n");
    scene.Find<QComboBox>("CombRmd")->setCurrentIndex(1);
    QTest::keyClicks(scene.Find<QLineEdit>("TextMsg"), QStringLiteral("!"));
    scene.Type(" typed");
    scene.Texts.Texts[2][31] = "Sprechen";
    scene.Texts.Texts[2][40] = "Nie";
    scene.Texts.Texts[0][3] = "Texteditor";
    scene.Window.LoadCaptions();
    EXPECT_EQ(scene.Find<QComboBox>("CombRmd")->currentText(), QStringLiteral("Sprechen"));
    EXPECT_EQ(scene.Find<QComboBox>("CombRpt")->currentText(), QStringLiteral("Nie"));
    EXPECT_EQ(scene.Find<QLineEdit>("TextMsg")->text(), QStringLiteral("mine!"));
    EXPECT_EQ(scene.NoteText()->toPlainText(), QStringLiteral("note typed"));
    EXPECT_EQ(scene.NoteWindow()->windowTitle(), QStringLiteral("Texteditor"));

    // What was not changed still counts as that: nobody is asked.
    scene.Find<QComboBox>("CombRmd")->setCurrentIndex(0);
    scene.Find<QLineEdit>("TextMsg")->setText(QStringLiteral("mine"));
    scene.Window.close();
    EXPECT_TRUE(scene.Boxes.Asked.empty());
    EXPECT_FALSE(scene.Window.isVisible());
    EXPECT_EQ(scene.OnDisc1(), "note typed\r\n");
}

} // namespace
} // namespace kestrova
