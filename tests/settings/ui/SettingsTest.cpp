// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/ui/Settings.h"

#include "fakes/MemoryFileStore.h"
#include "fakes/ScriptedDialogs.h"
#include "language/LanguageBlock.h"
#include "language/LanguageFile.h"
#include "platform/qt/QtText.h"
#include "settings/ListChoices.h"
#include "settings/SettingsRules.h"

#include <QAbstractItemView>
#include <QTest>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace kestrova {
namespace {

// A program that remembers what the settings window has asked of it.
struct AskedActions : SettingsActions {
    std::vector<std::string> Asked;
    std::vector<std::string> Voices = {"merlin.acs", "robby.acs"};
    bool CharacterLoads = true;
    bool Saves = true;
    bool Sounds = true;
    std::optional<std::string> Modem;

    void DoColor() override { Asked.emplace_back("colour"); }
    void ShowChoices() override { Asked.emplace_back("choices"); }
    void DateOrderChanged() override { Asked.emplace_back("date order"); }
    void ChangeLanguage(int index) override {
        Asked.push_back("language " + std::to_string(index));
    }
    void OpenLanguageEditor() override { Asked.emplace_back("editor"); }
    [[nodiscard]] std::vector<std::string> Characters() const override { return Voices; }
    bool LoadCharacter() override { return CharacterLoads; }
    void Talk(const std::string& text) override { Asked.push_back("talk " + text); }
    Result<std::string> FindModem() override {
        return Modem ? Result<std::string>(*Modem) : Error{ErrorCode::NotFound, "port taken"};
    }
    void PortChosen() override {}
    void CheckCharacter() override {}
    void CheckSpeech() override {}
    std::vector<std::string> LeftOut;
    std::vector<std::string> LeftOutCharacters() const override { return LeftOut; }
    bool SoundWorks() const override { return Sounds; }
    void MakeSound(const std::string& path) override { Asked.push_back("sound " + path); }
    void ChangeYear() override { Asked.emplace_back("year"); }
    void FormatData() override { Asked.emplace_back("format"); }
    bool SaveSettings() override {
        Asked.emplace_back("save");
        return Saves;
    }
};

struct SettingsScene {
    StringTable Texts = MsgDefaults();
    AppSettings Record = FirstSettings(Texts);
    MemoryFileStore Files;
    Languages Tongues{Files, "/k/Lan.dat", Texts};
    ScriptedDialogs Boxes;
    AskedActions Actions;
    std::unique_ptr<Settings> Window;

    SettingsScene() {
        Files.Put("/k/Lan.dat", FileOf(LanguageBlock("English Language", "En")) +
                                    FileOf(LanguageBlock("Deutsch Language", "De")));
        int index = 5; // a language that the file does not have: the texts stay
        Tongues.GetLanguage(index);
    }

    void Open() {
        Window = std::make_unique<Settings>(
            nullptr, Settings::Rooms{Record, Texts, Tongues, Files, Boxes, Actions});
        Window->ShowSettings();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(Window.get()));
        Actions.Asked.clear();
    }

    template<typename Control> [[nodiscard]] Control* Find(const char* name) const {
        auto* const control = Window->findChild<Control*>(QLatin1String(name));
        EXPECT_NE(control, nullptr) << name;
        return control;
    }

    void Click(const char* name) const {
        auto* const control = Find<QAbstractButton>(name);
        control->setFocus();
        QTest::keyClick(control, Qt::Key_Space);
    }

    // Chooses an item of an open list with the keyboard, as a user does.
    void Choose(const char* list, int index) const {
        auto* const box = Find<QComboBox>(list);
        box->showPopup();
        QTest::keyClick(box->view(), Qt::Key_Home);
        for (int i = 0; i < index; ++i) {
            QTest::keyClick(box->view(), Qt::Key_Down);
        }
        QTest::keyClick(box->view(), Qt::Key_Return);
    }
};

TEST(SettingsTest, EachBoxWritesItsSetting) {
    const struct {
        const char* Box;
        std::int16_t AppSettings::*Field;
    } rows[] = {
        {"Check1", &AppSettings::KeepAspect},       {"Check2", &AppSettings::StartMaximised},
        {"Check3", &AppSettings::ReminderOnClose},  {"Check5", &AppSettings::SpeechEnabled},
        {"Check6", &AppSettings::SpeakPicture},     {"Check7", &AppSettings::SpeakWeekDay},
        {"Check8", &AppSettings::SpeakDate},        {"Check10", &AppSettings::HelpTextOn},
        {"ChkFscr", &AppSettings::VideoFullScreen}, {"ChkRep", &AppSettings::VideoRepeat}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.Box);
        SettingsScene scene;
        scene.Record.SpeechEnabled = row.Field == &AppSettings::SpeechEnabled ? 0 : 1;
        const std::int16_t before = scene.Record.*row.Field;
        scene.Open();
        EXPECT_EQ(scene.Find<QCheckBox>(row.Box)->isChecked(), before != 0);
        scene.Click(row.Box);
        EXPECT_EQ(scene.Record.*row.Field, 1 - before);
    }
}

TEST(SettingsTest, TheBarsShowTheColourUpsideDownAndChangeIt) {
    SettingsScene scene;
    scene.Record.Colours[1] = {0, 255, 16};
    scene.Open();
    scene.Click("OptionText");
    auto* const red = scene.Find<QScrollBar>("VSRed");
    EXPECT_EQ(red->value(), 256);
    EXPECT_EQ(scene.Find<QScrollBar>("VSGreen")->value(), 1);
    EXPECT_EQ(scene.Find<QScrollBar>("VSBlue")->value(), 240);
    red->setSliderDown(true);
    red->setSliderPosition(56); // while the bar still moves
    EXPECT_EQ(scene.Record.Colours[1], (Colour{200, 255, 16}));
    EXPECT_EQ(scene.Actions.Asked, std::vector<std::string>{"colour"});

    scene.Find<QRadioButton>("OptionEvent")->setFocus();
    EXPECT_EQ(red->value(), 256 - scene.Record.Colours[3].Red);
    EXPECT_EQ(scene.Record.Colours[1].Red, 200);
    EXPECT_EQ(scene.Find<QScrollBar>("VSPitch")->value(), 400);
    EXPECT_EQ(scene.Find<QScrollBar>("VSpeed")->value(), 200);
    scene.Find<QScrollBar>("VSpeed")->setValue(120);
    EXPECT_EQ(scene.Record.SpeechSpeed, 180);
}

TEST(SettingsTest, AValueOutOfABarsRangeStaysWhatItIs) {
    SettingsScene scene;
    scene.Record.SpeechPitch = 9999;
    scene.Open();
    EXPECT_EQ(scene.Record.SpeechPitch, 9999);
}

TEST(SettingsTest, RepeatMinutesThatAreNoneAreRefused) {
    SettingsScene scene;
    scene.Open();
    auto* const box = scene.Find<QLineEdit>("TextRpt");
    const auto type = [&](const char* keys) {
        box->selectAll();
        QTest::keyClicks(box, QLatin1String(keys));
        return FromQt(box->text());
    };
    EXPECT_EQ(type("2"), "2");
    EXPECT_EQ(type("1"), "2");
    EXPECT_EQ(type("9999"), "999");
    EXPECT_EQ(scene.Record.SpeakRepeat, "999");
    QTest::keyClick(box, Qt::Key_Up);
    EXPECT_EQ(box->text(), QStringLiteral("999"));
    QTest::keyClick(box, Qt::Key_Down);
    EXPECT_EQ(scene.Record.SpeakRepeat, "998");
}

TEST(SettingsTest, AChimeIsAWaveFile) {
    const std::string wave("RIFF\0\0\0\0WAVE", 12);
    const struct {
        std::optional<std::string> Chosen;
        std::string Type; // afterwards
        std::size_t Messages;
    } rows[] = {{"/s/bell.wav", "Chime", 0}, {"/s/BELL.WAV", "Chime", 0},
                {"/s/song.mp3", "None", 1},  {"/s/text.wav", "None", 1},
                {"/s/gone.wav", "None", 1},  {"/s/ding, dong.wav", "None", 1},
                {std::nullopt, "None", 0}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.Chosen.value_or("cancelled"));
        SettingsScene scene;
        for (const char* const path :
             {"/s/bell.wav", "/s/BELL.WAV", "/s/song.mp3", "/s/ding, dong.wav"}) {
            scene.Files.Put(path, wave);
        }
        scene.Files.Put("/s/text.wav", "no sound");
        scene.Record.ChimeType = "None";
        scene.Open();
        scene.Boxes.Files = {row.Chosen};
        scene.Choose("CombChimes", 1);
        EXPECT_EQ(scene.Record.ChimeType, row.Type);
        EXPECT_EQ(scene.Find<QComboBox>("CombChimes")->currentText(), ToQt(row.Type));
        EXPECT_EQ(scene.Boxes.Shown.size(), row.Messages);
        if (row.Type == "Chime") {
            EXPECT_EQ(scene.Record.ChimeSound, *row.Chosen);
            EXPECT_EQ(scene.Actions.Asked, std::vector<std::string>{"sound " + *row.Chosen});
        }
    }
}

TEST(SettingsTest, TheModemIsTestedOnlyWhereAPortIsChosen) {
    SettingsScene scene;
    scene.Open();
    auto* const test = scene.Find<QPushButton>("ComModem");
    EXPECT_FALSE(test->isEnabled());
    scene.Choose("CombCom", 2);
    EXPECT_EQ(scene.Record.ModemPort, "Com:2");
    ASSERT_TRUE(test->isEnabled());
    scene.Click("ComModem");
    ASSERT_EQ(scene.Boxes.Shown.size(), 1U);
    EXPECT_EQ(scene.Boxes.Shown[0].Text, "Suitable Modem Not Found\nport taken");
    scene.Actions.Modem = "Elsa 56k";
    scene.Click("ComModem");
    EXPECT_EQ(scene.Boxes.Shown[1].Text, "Modem found: Elsa 56k");
    scene.Choose("CombCom", 0);
    EXPECT_FALSE(test->isEnabled());
}

TEST(SettingsTest, LanguagesAreChosenAndTheLastItemIsTheEditor) {
    SettingsScene scene;
    scene.Record.LanguageIndex = 5;
    scene.Open();
    auto* const list = scene.Find<QComboBox>("CombLan");
    EXPECT_EQ(list->count(), 3);
    EXPECT_EQ(list->itemText(2), QStringLiteral("Language Editor"));
    EXPECT_EQ(list->currentIndex(), -1); // the language in use is not in the file
    QTest::keyClick(list, Qt::Key_Down);
    EXPECT_EQ(scene.Actions.Asked, std::vector<std::string>{}); // the list is open, no more
    scene.Choose("CombLan", 1);
    EXPECT_EQ(scene.Actions.Asked, std::vector<std::string>{"language 1"});
    scene.Record.LanguageIndex = 1;
    scene.Choose("CombLan", 2);
    EXPECT_EQ(scene.Actions.Asked.back(), "editor");
    EXPECT_EQ(list->currentIndex(), 1); // the editor is no language
}

TEST(SettingsTest, SpeechThatCannotBeHadSwitchesItselfOff) {
    SettingsScene scene;
    scene.Actions.CharacterLoads = false;
    scene.Record.SpeakDate = 1;
    scene.Open();
    scene.Click("Check5");
    EXPECT_FALSE(scene.Find<QCheckBox>("Check5")->isChecked());
    EXPECT_EQ(scene.Record.SpeechEnabled, 0);
    EXPECT_EQ(scene.Record.SpeakDate, 0);
    EXPECT_FALSE(scene.Find<QCheckBox>("Check8")->isEnabled());
    scene.Actions.CharacterLoads = true;
    scene.Click("Check5");
    EXPECT_TRUE(scene.Find<QCheckBox>("Check8")->isEnabled());
    scene.Choose("CombChr", 1);
    EXPECT_EQ(scene.Record.CharacterName, "robby.acs");
    scene.Click("ComSpchTest");
    EXPECT_EQ(scene.Actions.Asked.back(), "talk Testing Text To Speech System");
}

TEST(SettingsTest, TheListTellsWhyACharacterIsLeftOutWhetherTipsAreOnOrNot) {
    SettingsScene scene;
    scene.Actions.LeftOut = {"“A.acs” is damaged.", "“B.acs” is too large."};
    scene.Record.HelpTextOn = 0;
    scene.Open();
    auto* const list = scene.Find<QComboBox>("CombChr");
    for (const int ticks : {1, 2, 3}) {
        EXPECT_TRUE(list->toolTip().contains(QStringLiteral("A.acs"))) << ticks;
        scene.Click("Check10");
    }
    scene.Window->LoadCaptions();
    EXPECT_TRUE(list->toolTip().contains(QStringLiteral("B.acs")));
    // A character that has been mended is no longer told of.
    scene.Actions.LeftOut.clear();
    scene.Window->ShowRecord();
    EXPECT_EQ(FromQt(list->toolTip()), scene.Texts.Text({TextGroup::Tips, 6}));
    scene.Click("Check10");
    EXPECT_EQ(list->toolTip(), QString());
}

TEST(SettingsTest, DefaultsCanBeTakenBack) {
    SettingsScene scene;
    scene.Record.Farewell = "My Lady.";
    scene.Record.Colours[0] = {1, 2, 3};
    scene.Open();
    const AppSettings before = scene.Record;
    scene.Click("ComDefault");
    EXPECT_EQ(scene.Record.Farewell, "My Master.");
    EXPECT_EQ(scene.Find<QLineEdit>("TexFarewell")->text(), QStringLiteral("My Master."));
    EXPECT_EQ(scene.Find<QScrollBar>("VSRed")->value(), 256 - 193);
    EXPECT_THAT(scene.Actions.Asked, testing::Contains("colour"));
    scene.Click("ComDefault"); // twice is no harm
    QTest::keyClick(scene.Find<QPushButton>("ComDefault"), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(scene.Record, before);
    EXPECT_EQ(scene.Find<QLineEdit>("TexFarewell")->text(), QStringLiteral("My Lady."));
}

TEST(SettingsTest, FormattingAsksFirst) {
    SettingsScene scene;
    scene.Open();
    scene.Click("ComFormat");
    ASSERT_EQ(scene.Boxes.Asked.size(), 1U);
    EXPECT_EQ(scene.Boxes.Asked[0].Text, "Formatting Data Files Will\nLoose  All  Existing  Data!");
    EXPECT_EQ(scene.Actions.Asked, std::vector<std::string>{});
    EXPECT_EQ(scene.Record.StartOnBoot, kStartsOnBoot);
    scene.Boxes.Answers = {true};
    scene.Click("ComFormat");
    EXPECT_EQ(scene.Actions.Asked, std::vector<std::string>{"format"});
    EXPECT_EQ(scene.Record.StartOnBoot, 0);
    EXPECT_FALSE(scene.Find<QCheckBox>("Check4")->isChecked());
}

TEST(SettingsTest, SavingHidesTheWindowUnlessItFails) {
    SettingsScene scene;
    scene.Open();
    scene.Actions.Saves = false;
    scene.Click("ComSet");
    EXPECT_TRUE(scene.Window->isVisible());
    scene.Actions.Saves = true;
    scene.Click("ComSet");
    EXPECT_FALSE(scene.Window->isVisible());
    scene.Window->ShowSettings();
    QTest::keyClick(scene.Window.get(), Qt::Key_Escape);
    EXPECT_FALSE(scene.Window->isVisible());
    scene.Window->ShowSettings();
    scene.Click("ComCngYr");
    EXPECT_EQ(scene.Actions.Asked.back(), "year");
    EXPECT_FALSE(scene.Window->isVisible());
}

TEST(SettingsTest, AnotherLanguageKeepsWhatIsChosenAndTyped) {
    SettingsScene scene;
    scene.Record.ChimeType = "None";
    scene.Open();
    scene.Choose("CombInterval", 3);
    auto* const greeting = scene.Find<QLineEdit>("TexGreeting");
    greeting->setFocus();
    QTest::keyClicks(greeting, QStringLiteral(" now"));
    const std::string typed = scene.Record.Greeting;
    const StringTable before = scene.Texts;
    scene.Texts = ReadLanguage(scene.Files.Content("/k/Lan.dat").value_or(""), 1).Value();
    TranslateChoices(scene.Record, before, scene.Texts);
    scene.Window->LoadCaptions();
    scene.Window->ShowRecord();
    EXPECT_EQ(scene.Find<QLabel>("Label5")->text(), QStringLiteral("De 3.21"));
    EXPECT_EQ(scene.Find<QCheckBox>("Check1")->toolTip(), QStringLiteral("De 4.11"));
    EXPECT_EQ(scene.Find<QComboBox>("CombChimes")->currentText(), QStringLiteral("De 2.2"));
    EXPECT_EQ(scene.Find<QComboBox>("CombInterval")->currentText(), QStringLiteral("De 2.13"));
    EXPECT_EQ(FromQt(greeting->text()), typed);
    EXPECT_TRUE(greeting->hasFocus());
    scene.Click("Check10");
    EXPECT_EQ(scene.Find<QCheckBox>("Check1")->toolTip(), QString());
}

} // namespace
} // namespace kestrova
