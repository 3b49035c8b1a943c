// SPDX-License-Identifier: GPL-3.0-or-later
#include "language/ui/LanEditor.h"

#include "fakes/MemoryFileStore.h"
#include "fakes/ScriptedDialogs.h"
#include "language/LanguageBlock.h"
#include "language/LanguageFile.h"
#include "platform/qt/QtText.h"

#include <QTest>

#include <gtest/gtest.h>

namespace kestrova {
namespace {

constexpr const char* kFile = "/k/Lan.dat";

// The editor, opened on the German block of a file of two.
struct EditorScene {
    MemoryFileStore Files;
    StringTable Texts;
    Languages Tongues{Files, kFile, Texts};
    ScriptedDialogs Boxes;
    int Changes = 0;
    int Saves = 0;
    int Closings = 0;
    LanEditor Window{
        nullptr,
        {Texts, Tongues, Boxes},
        {[this](const StringTable&) { ++Changes; }, [this] { ++Saves; }, [this] { ++Closings; }}};

    explicit EditorScene(WeekStart week = WeekStart::Monday) {
        Files.Put(kFile, English() + German());
        int index = 1;
        Tongues.GetLanguage(index);
        Window.Open("Deutsch ", week);
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&Window));
    }

    static std::string English() { return FileOf(LanguageBlock("English Language", "En")); }
    static std::string German() { return FileOf(LanguageBlock("Deutsch Language", "De")); }

    [[nodiscard]] QLineEdit* Box(const char* name) const {
        auto* const box = Window.findChild<QLineEdit*>(QLatin1String(name));
        EXPECT_NE(box, nullptr) << name;
        return box;
    }

    // Types into a box as a user does, with what is not on the keyboard pasted.
    void Type(const char* name, const QString& text) const {
        Box(name)->setFocus();
        Box(name)->selectAll();
        Box(name)->insert(text);
        Box(name)->setModified(true);
    }

    void Show(TextGroup group, int entry) const {
        for (const auto& [name, index] :
             {std::pair{"CombTop", static_cast<int>(group)}, {"CombSel", entry}}) {
            auto* const list = Window.findChild<QComboBox*>(QLatin1String(name));
            list->setFocus();
            QTest::keyClick(list, Qt::Key_Home);
            for (int i = 0; i < index; ++i) {
                QTest::keyClick(list, Qt::Key_Down);
            }
        }
    }

    void Click(const char* name) const {
        QTest::mouseClick(Window.findChild<QPushButton*>(QLatin1String(name)), Qt::LeftButton);
    }

    [[nodiscard]] StringTable OnFile(int block) const {
        const auto read = ReadLanguage(Files.Content(kFile).value_or(""), block);
        return read ? read.Value() : StringTable();
    }
};

TEST(LanEditorTest, TheBoxesHoldTheLanguageInUse) {
    const EditorScene scene(WeekStart::Sunday);
    EXPECT_EQ(scene.Box("TexName")->text(), QStringLiteral("Deutsch"));
    EXPECT_EQ(scene.Box("TexMon(0)")->text(), QStringLiteral("De month 1"));
    EXPECT_EQ(scene.Box("TexMn(11)")->text(), QStringLiteral("De &menu 12"));
    EXPECT_EQ(scene.Box("TexDay(0)")->text(), QStringLiteral("De Su"));
    scene.Show(TextGroup::Messages, 50);
    EXPECT_EQ(scene.Box("TexTrans")->text(), QStringLiteral("De 5.50"));
}

TEST(LanEditorTest, ATextIsInUseAsSoonAsItsBoxIsLeft) {
    EditorScene scene;
    scene.Show(TextGroup::Buttons, 2);
    scene.Type("TexTrans", QStringLiteral("Ja, sichern"));
    EXPECT_EQ(scene.Changes, 0);
    scene.Box("TexName")->setFocus();
    EXPECT_EQ(scene.Changes, 1);
    EXPECT_EQ(scene.Texts.Texts[1][2], "Ja, sichern");

    // An empty text is English, and a text cannot make itself a placeholder.
    scene.Type("TexTrans", QString());
    scene.Box("TexName")->setFocus();
    EXPECT_EQ(scene.Texts.Texts[1][2], "SAVE EVENT");
    scene.Type("TexTrans", QStringLiteral("Unused"));
    scene.Show(TextGroup::Buttons, 3);
    EXPECT_EQ(scene.Texts.Texts[1][2], "SAVE EVENT");
    EXPECT_EQ(scene.Box("TexTrans")->text(), QStringLiteral("De 1.3"));
}

TEST(LanEditorTest, APlaceholderCannotBeEdited) {
    EditorScene scene;
    scene.Texts.Texts[0][9] = "Unused";
    scene.Show(TextGroup::Captions, 9);
    EXPECT_FALSE(scene.Box("TexTrans")->isEnabled());
    scene.Show(TextGroup::Captions, 10);
    EXPECT_TRUE(scene.Box("TexTrans")->isEnabled());
}

TEST(LanEditorTest, SavingReplacesTheBlockOfTheName) {
    for (const WeekStart week : {WeekStart::Monday, WeekStart::Sunday, WeekStart::Saturday}) {
        SCOPED_TRACE(static_cast<int>(week));
        EditorScene scene(week);
        scene.Type("TexMon(4)", QString::fromUtf8("Mai, sch\xC3\xB6n"));
        scene.Type("TexDay(2)", QStringLiteral("Mitte"));
        scene.Show(TextGroup::Labels, 1);
        scene.Type("TexTrans", QStringLiteral("\"Uhr\""));
        scene.Boxes.Fonts = {FontChoice{"Serif", 15, false, true}};
        scene.Click("ComFont");
        scene.Click("ComSave");
        EXPECT_EQ(scene.Saves, 1);
        EXPECT_EQ(scene.Closings, 1);
        EXPECT_FALSE(scene.Window.isVisible());
        EXPECT_TRUE(scene.Files.Content(kFile)->starts_with(EditorScene::English()));
        const StringTable saved = scene.OnFile(1);
        EXPECT_EQ(saved.MonthNames[4], "Mai, sch\xC3\xB6n");
        EXPECT_EQ(saved.DayName(2, week), "Mitte");
        EXPECT_EQ(saved.DayName(3, week), scene.Texts.DayName(3, week));
        EXPECT_EQ(saved.Texts[3][1], "\xE2\x80\x9DUhr\xE2\x80\x9D");
        EXPECT_EQ(saved.Texts[5][50], "De 5.50");
        EXPECT_EQ(saved.LanguageFont, "Serif");
        EXPECT_EQ(saved.Title, (TitleFont{15, false, true}));
    }
}

TEST(LanEditorTest, ANewNameAddsALanguageAndATakenOneIsAskedAbout) {
    EditorScene scene;
    scene.Type("TexName", QStringLiteral("  Klingon "));
    scene.Click("ComSave");
    EXPECT_EQ(*scene.Files.Content(kFile), EditorScene::English() + EditorScene::German() +
                                               PutLanguage("", "Klingon", scene.OnFile(2)));

    scene.Window.Open("Deutsch ", WeekStart::Monday);
    scene.Type("TexName", QStringLiteral("English"));
    scene.Click("ComSave"); // the user does not want that
    ASSERT_EQ(scene.Boxes.Asked.size(), 1U);
    EXPECT_EQ(scene.OnFile(0).Texts[0][0], "En 0.0");
    EXPECT_TRUE(scene.Window.isVisible());
    scene.Boxes.Answers = {true};
    scene.Click("ComSave");
    EXPECT_EQ(scene.OnFile(0).Texts[0][0], "De 0.0");
}

TEST(LanEditorTest, WhatCannotBeUsedIsNotSaved) {
    EditorScene scene;
    const auto before = scene.Files.Content(kFile);
    scene.Type("TexName", QStringLiteral("  "));
    scene.Click("ComSave");
    scene.Type("TexName", QStringLiteral("Deutsch"));
    scene.Show(TextGroup::Selectors, 31);
    scene.Type("TexTrans", QStringLiteral("De 2.30")); // two reminder kinds of one name
    scene.Box("TexName")->setFocus();
    EXPECT_EQ(scene.Texts.Texts[2][31], "De 2.31");
    scene.Files.FailWrites(Error{ErrorCode::Full, "disc full"});
    scene.Click("ComSave");
    EXPECT_EQ(scene.Boxes.Shown.size(), 3U);
    EXPECT_NE(scene.Boxes.Shown.back().Text.find("disc full"), std::string::npos);
    EXPECT_EQ(scene.Files.Content(kFile), before);
    EXPECT_EQ(scene.Saves, 0);
    EXPECT_TRUE(scene.Window.isVisible());
}

TEST(LanEditorTest, CancellingAsksNothingAndClosingDoes) {
    EditorScene scene;
    scene.Type("TexMon(0)", QStringLiteral("Jenner"));
    scene.Click("ComCancel");
    EXPECT_EQ(scene.Boxes.Asked.size(), 0U);
    EXPECT_EQ(scene.Closings, 1);

    scene.Window.Open("Deutsch ", WeekStart::Monday);
    scene.Window.close(); // nothing has been changed
    EXPECT_EQ(scene.Boxes.Asked.size(), 0U);
    scene.Window.Open("Deutsch ", WeekStart::Monday);
    scene.Type("TexMon(0)", QStringLiteral("Jenner"));
    QTest::keyClick(&scene.Window, Qt::Key_Escape); // and once more, at the question
    EXPECT_TRUE(scene.Window.isVisible());
    scene.Boxes.Answers = {true};
    scene.Window.close();
    EXPECT_EQ(scene.Boxes.Asked.size(), 2U);
    EXPECT_EQ(scene.OnFile(1).MonthNames[0], "Jenner");
    EXPECT_FALSE(scene.Window.isVisible());
}

} // namespace
} // namespace kestrova
