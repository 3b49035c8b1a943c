// SPDX-License-Identifier: GPL-3.0-or-later
#include "speech/SpeakingCharacter.h"

#include "fakes/FakeMedia.h"
#include "fakes/FakeVoice.h"
#include "fakes/MemoryFileStore.h"
#include "fakes/ScriptedDialogs.h"
#include "fakes/SetClock.h"
#include "fakes/SteppedLoop.h"
#include "speech/FakeStage.h"

#include <gtest/gtest.h>

namespace kestrova {
namespace {

using Texts = std::vector<std::string>;

constexpr const char* kFigure =
    "<svg viewBox=\"0 0 100 100\"><g id=\"body\"/><g id=\"eyes-open\"/><g id=\"eyes-closed\"/>"
    "<g id=\"mouth-closed\"/><g id=\"mouth-open\"/></svg>";

struct RecordingShell : Shell {
    Texts Opened;
    Status OpenPage(const std::string& path) override {
        Opened.push_back(path);
        return Done{};
    }
};

// A program with two characters, the second of which is chosen, and no sound.
class SpeakingCharacterTest : public testing::Test {
protected:
    SpeakingCharacterTest() {
        Files.Put("/home/me/Characters/Olva.acs", kFigure);
        Files.Put("/home/me/Characters/Ruska.ACS", kFigure);
        Files.Put("/home/me/Characters/Notes.txt", "mine");
        Settings.SpeechEnabled = 1;
        Settings.CharacterName = "Ruska.ACS";
        Settings.SpeechPitch = 120;
        Settings.SpeechSpeed = 150;
        Loop.WhileWaiting = [this] { Stage.PassTime(); };
        Character.CheckCharacter();
        Character.AgentIni();
    }

    StringTable Table = MsgDefaults();
    AppSettings Settings = FirstSettings(Table);
    MemoryFileStore Files;
    FakeVoice Voice;
    FakeMediaDevices Devices;
    FakeStage Stage;
    SteppedLoop Loop;
    SetClock Time;
    ScriptedDialogs Boxes;
    RecordingShell Desktop;
    std::string Folder = "/home/me/";
    SpeakingCharacter Character{{Voice, Devices, Stage, Loop, Time, Files, Boxes, Desktop, Table,
                                 Settings, Folder, "https://example.org"}};
};

// ---- which character ----

TEST_F(SpeakingCharacterTest, TheListHoldsWhatIsInTheFolderAndTheChoiceStays) {
    EXPECT_EQ(Character.Characters(), (Texts{"Olva.acs", "Ruska.ACS"}));
    EXPECT_EQ(Settings.CharacterName, "Ruska.ACS");
    EXPECT_TRUE(Character.LoadMerlin());
    EXPECT_TRUE(Character.AgentLoaded());
    EXPECT_TRUE(Stage.Loaded);
    EXPECT_EQ(Settings.CharacterName, "Ruska.ACS");
}

TEST_F(SpeakingCharacterTest, OneThatHasGoneGivesWayToTheFirst) {
    Settings.CharacterName = "merlin.acs";
    Character.CheckCharacter();
    EXPECT_EQ(Settings.CharacterName, "Olva.acs");
    Settings.CharacterName = "merlin.acs";
    EXPECT_TRUE(Character.LoadMerlin());
    EXPECT_EQ(Settings.CharacterName, "Olva.acs");
}

TEST_F(SpeakingCharacterTest, WithoutAnyCharacterSpeechIsSwitchedOff) {
    ASSERT_TRUE(Files.Remove("/home/me/Characters/Olva.acs"));
    ASSERT_TRUE(Files.Remove("/home/me/Characters/Ruska.ACS"));
    Settings.SpeakPicture = Settings.SpeakWeekDay = Settings.SpeakDate = 1;
    Character.CheckCharacter();
    EXPECT_FALSE(Character.LoadMerlin());
    EXPECT_FALSE(Character.AgentLoaded());
    EXPECT_EQ(Settings.SpeechEnabled, 0);
    EXPECT_EQ(Settings.SpeakPicture + Settings.SpeakWeekDay + Settings.SpeakDate, 0);
    EXPECT_EQ(Settings.CharacterName, "Ruska.ACS");
    Character.Speak("Hello");
    Character.TellTime("Hello", AfterSpeaking::Hide);
    Character.Talk("Hello", AfterSpeaking::Hide);
    EXPECT_TRUE(Stage.Said.empty());
}

TEST_F(SpeakingCharacterTest, FilesThatAreNoCharactersAreLeftOutWithAReason) {
    Files.Put("/home/me/Characters/A.acs", "<!DOCTYPE svg>");
    Files.Put("/home/me/Characters/B.acs", "<svg viewBox=\"0 0 99 99\"></svg>");
    Files.Put("/home/me/Characters/C.acs", std::string(kCharacterLimit + 1, 'x'));
    Files.Put("/home/me/Characters/D.acs", "");
    Character.CheckCharacter();
    EXPECT_EQ(Character.Characters(), (Texts{"Olva.acs", "Ruska.ACS"}));
    EXPECT_EQ(Character.LeftOut(),
              (Texts{"The character “A.acs” cannot be used. It holds something that a character "
                     "may not hold: <!DOCTYPE",
                     "The character “B.acs” cannot be used. The layer “body” is missing.",
                     "The character “C.acs” cannot be used. The file is too large.",
                     "The character “D.acs” cannot be used. The file is damaged or not an SVG "
                     "picture."}));
}

TEST_F(SpeakingCharacterTest, ReleasingSilencesAndUnloadsIt) {
    ASSERT_TRUE(Character.LoadMerlin());
    Character.Show();
    Character.Speak("Hello");
    Character.AgentTer();
    EXPECT_FALSE(Character.AgentLoaded());
    EXPECT_FALSE(Stage.Visible || Stage.Saying || Stage.Loaded);
    Character.AgentTer();
    Character.Show();
    EXPECT_FALSE(Stage.Visible);
    EXPECT_TRUE(Character.LoadMerlin());
}

// ---- speaking ----

TEST_F(SpeakingCharacterTest, ATextIsTalkedInPiecesWithPitchAndSpeed) {
    ASSERT_TRUE(Character.LoadMerlin());
    bool shown = false;
    Loop.WhileWaiting = [&] {
        shown = Stage.Visible;
        EXPECT_TRUE(Character.IsSpeaking());
        Stage.PassTime();
    };
    Character.Talk("Meet Bob at 3.15 today.", AfterSpeaking::Hide);
    EXPECT_TRUE(shown);
    EXPECT_EQ(Stage.Words(), (Texts{"Meet Bob at 3.15 ", "today."}));
    EXPECT_EQ(Voice.Choices.back().Pitch, 120);
    EXPECT_EQ(Voice.Choices.back().Speed, 150);
    EXPECT_EQ(Voice.Choices.back().Locale, "en");
    EXPECT_FALSE(Stage.Visible);
    EXPECT_FALSE(Character.IsSpeaking());

    Character.Talk("Stay.", AfterSpeaking::Stay);
    EXPECT_TRUE(Stage.Visible);
    Settings.SpeechEnabled = 0;
    Character.Talk("Silence.", AfterSpeaking::Hide);
    EXPECT_EQ(Stage.Words().back(), "Stay.");
}

TEST_F(SpeakingCharacterTest, EveryLanguageHasItsVoice) {
    ASSERT_TRUE(Character.LoadMerlin());
    for (int index = 0; index < 8; ++index) {
        Settings.LanguageIndex = static_cast<std::int16_t>(index);
        Character.Talk("x", AfterSpeaking::Stay);
        EXPECT_EQ(Voice.Choices.back().Locale, Voice.Locales[static_cast<std::size_t>(index)]);
    }
}

TEST_F(SpeakingCharacterTest, AClickEndsALongTextAndHidesTheCharacter) {
    ASSERT_TRUE(Character.LoadMerlin());
    Loop.WhileWaiting = [this] { Stage.On.Clicked(); };
    Character.Talk("One. Two. Three.", AfterSpeaking::Stay);
    EXPECT_EQ(Stage.Words(), Texts{"One. "});
    EXPECT_FALSE(Stage.Visible);
    EXPECT_FALSE(Character.StopSpeaking());

    // What is stopped without a click says its piece first.
    Loop.WhileWaiting = [this] {
        Character.SetStopSpeaking(true);
        Stage.PassTime();
    };
    Character.Talk("Four. Five.", AfterSpeaking::Hide);
    EXPECT_EQ(Stage.Words().back(), "Four. ");
}

TEST_F(SpeakingCharacterTest, ATextThatComesOutOfAnEventIsTalkedAfterTheOneUnderWay) {
    ASSERT_TRUE(Character.LoadMerlin());
    bool first = true;
    Loop.WhileWaiting = [&] {
        if (std::exchange(first, false)) {
            Character.Talk("Second.", AfterSpeaking::Hide);
        }
        Stage.PassTime();
    };
    Character.Talk("First. And more.", AfterSpeaking::Stay);
    EXPECT_EQ(Stage.Words(), (Texts{"First. ", "And more.", "Second."}));
    EXPECT_FALSE(Stage.Visible);
}

// Chimes, reminders and others that hide the character when they have spoken.
TEST_F(SpeakingCharacterTest, ATextGoesOnToBeTalkedByACharacterThatIsSeen) {
    ASSERT_TRUE(Character.LoadMerlin());
    bool chimed = false;
    Loop.WhileWaiting = [&] {
        EXPECT_TRUE(Stage.Visible);
        if (!std::exchange(chimed, true)) {
            Character.TellTime("It is four.", AfterSpeaking::Hide);
            Stage.PassTime();
        }
        Stage.PassTime();
    };
    Character.Talk("One. Two. Three.", AfterSpeaking::Stay);
    EXPECT_EQ(Stage.Words(), (Texts{"One. ", "It is four.", "Two. ", "Three."}));
    EXPECT_TRUE(Stage.Visible);
}

TEST_F(SpeakingCharacterTest, AClickEndsATextAlthoughAReminderTakesItForItsOwn) {
    ASSERT_TRUE(Character.LoadMerlin());
    Loop.WhileWaiting = [this] {
        Character.SetStopSpeaking(false);
        const int before = Character.Clicks();
        Stage.On.Clicked();
        EXPECT_EQ(Character.Clicks(), before + 1);
        // Another text that is talked meanwhile sets the flag back, but not the count.
        Loop.WhileWaiting = [this] { Stage.PassTime(); };
        Character.Talk("Between.", AfterSpeaking::Hide);
        EXPECT_FALSE(Character.StopSpeaking());
        EXPECT_EQ(Character.Clicks(), before + 1);
    };
    Character.Talk("One. Two.", AfterSpeaking::Stay);
    EXPECT_EQ(Stage.Words(), (Texts{"One. ", "Between."}));
    Stage.On.Clicked(); // now it tells the time
    EXPECT_EQ(Character.Clicks(), 1);
    EXPECT_TRUE(Stage.Visible);
}

TEST_F(SpeakingCharacterTest, AnotherCharacterDoesNotGoOnWithTheTextOfTheOneBefore) {
    ASSERT_TRUE(Character.LoadMerlin());
    Loop.WhileWaiting = [this] {
        EXPECT_TRUE(Character.LoadMerlin());
        EXPECT_FALSE(Character.IsSpeaking());
        Loop.WhileWaiting = [this] { Stage.PassTime(); };
    };
    Character.Talk("One. Two.", AfterSpeaking::Stay);
    EXPECT_EQ(Stage.Words(), Texts{"One. "});
    EXPECT_FALSE(Stage.Visible);
}

TEST_F(SpeakingCharacterTest, DuringACallOnlyTheCallIsTalked) {
    ASSERT_TRUE(Character.LoadMerlin());
    Loop.WhileWaiting = [this] {
        Loop.WhileWaiting = [this] {
            while (Stage.Saying) {
                Stage.PassTime();
            }
        };
        const KeptForCall kept(Character); // out of an event, while a long text is talked
        Character.Talk("The clipboard.", AfterSpeaking::Hide);
        Character.TellTime("It is four.", AfterSpeaking::Hide);
        Character.TalkInCall("Press one. Now.", AfterSpeaking::Stay);
        EXPECT_FALSE(Character.IsSpeaking()) << "the call waits for that";
        EXPECT_TRUE(Stage.Visible);
        Character.Speak("Reminder."); // is never lost
        Stage.PassTime();
    };
    Character.Talk("One. Two.", AfterSpeaking::Hide);
    EXPECT_EQ(Stage.Words(), (Texts{"One. ", "Press one. ", "Now.", "Reminder."}));
    EXPECT_FALSE(Stage.Visible);
    Character.Talk("After.", AfterSpeaking::Hide);
    EXPECT_EQ(Stage.Words().back(), "After.");
}

TEST_F(SpeakingCharacterTest, TalkEndsWithTheProgramAndWithTheCharacter) {
    ASSERT_TRUE(Character.LoadMerlin());
    Loop.WhileWaiting = {};
    Character.Talk("One. Two.", AfterSpeaking::Stay);
    EXPECT_EQ(Stage.Words(), Texts{"One. "});
    EXPECT_GT(Loop.LastLimit.count(), 1000);
    Character.AgentTer();
    ASSERT_TRUE(Character.LoadMerlin());
    Loop.WhileWaiting = [this] { Character.AgentTer(); };
    Character.Talk("Three. Four.", AfterSpeaking::Hide);
    EXPECT_EQ(Stage.Words().back(), "Three. ");
    EXPECT_FALSE(Character.IsSpeaking());
}

TEST_F(SpeakingCharacterTest, TheTimeIsToldWithoutWaitingAndTheCharacterGoesAfterwards) {
    ASSERT_TRUE(Character.LoadMerlin());
    Time.Time = {2026, 4, 14, 14, 5, 59};
    Character.Agent1_Click();
    EXPECT_EQ(Stage.Words(), Texts{"The time is. 14:05.. Your Highness."});
    EXPECT_TRUE(Stage.Visible);
    EXPECT_TRUE(Character.IsSpeaking());
    EXPECT_FALSE(Character.StopSpeaking());
    Stage.PassTime();
    EXPECT_FALSE(Stage.Visible);
    EXPECT_FALSE(Character.IsSpeaking());

    Character.TellTime("Hello.", AfterSpeaking::Hide);
    Stage.On.Clicked();
    EXPECT_FALSE(Stage.Visible || Stage.Saying);
    EXPECT_TRUE(Character.StopSpeaking());
}

TEST_F(SpeakingCharacterTest, WordsAreSpokenOneAfterTheOtherAndHidingWaitsForThem) {
    ASSERT_TRUE(Character.LoadMerlin());
    Character.Show();
    for (const char* const text : {"One", "  ", "Two"}) {
        Character.Speak(text);
    }
    Character.Hide();
    EXPECT_EQ(Stage.Words(), Texts{"One"});
    Stage.PassTime();
    EXPECT_EQ(Stage.Words(), (Texts{"One", "Two"}));
    EXPECT_TRUE(Stage.Visible);
    Stage.PassTime();
    EXPECT_FALSE(Stage.Visible);
}

// ---- what is heard ----

TEST_F(SpeakingCharacterTest, WordsAreOverWhenTheirSoundIs) {
    Devices.Installed = true;
    ASSERT_TRUE(Character.LoadMerlin());
    Character.Show();
    Character.Speak("Hello");
    ASSERT_NE(Devices.Waves, nullptr);
    EXPECT_EQ(Devices.Waves->Played.back().substr(0, 4), "RIFF");
    EXPECT_DOUBLE_EQ(Stage.Said.back().Seconds, 0.5);
    EXPECT_GT(Stage.Limit, 1);
    EXPECT_EQ(Stage.Said.back().Mouth.front().Shape, MouthShape::Open);
    Devices.Waves->Now = 0.3;
    Devices.Waves->On.Moved();
    EXPECT_EQ(Stage.Positions, std::vector{0.3});
    Character.Speak("Bye");
    Devices.Waves->End(MediaEnd::Finished);
    EXPECT_EQ(Stage.Words().back(), "Bye");
    // A sound that hangs is given up, one that fails is shown in its time.
    Stage.PassTime();
    EXPECT_FALSE(Devices.Waves->Playing);
    EXPECT_FALSE(Character.IsSpeaking());
    Character.Speak("Again");
    Devices.Waves->End(MediaEnd::Failed);
    EXPECT_TRUE(Character.IsSpeaking());
    EXPECT_DOUBLE_EQ(Stage.Limit, 0.5);
    Stage.PassTime();
    EXPECT_FALSE(Character.IsSpeaking());
}

TEST_F(SpeakingCharacterTest, AVoiceIsNotGivenABookAtATime) {
    ASSERT_TRUE(Character.LoadMerlin());
    std::string book;
    for (int i = 0; i < 1000; ++i) {
        book += "quite long words ";
    }
    Character.Speak(book);
    EXPECT_LE(Voice.Said.back().size(), 600U);
    while (Character.IsSpeaking()) {
        Stage.PassTime();
    }
    Loop.WhileWaiting = [this] {
        Stage.PassTime();
        Character.SetStopSpeaking(Stage.Said.size() > 40);
    };
    Character.Talk(book, AfterSpeaking::Hide);
    EXPECT_EQ(Stage.Said.size(), 41U) << "it can be stopped in between";
}

TEST_F(SpeakingCharacterTest, WithoutAVoiceTheWordsAreShownForAsLongAsReadingTakes) {
    Voice.Locales.clear();
    ASSERT_TRUE(Character.LoadMerlin());
    Character.Speak("A sentence of some words");
    EXPECT_TRUE(Stage.Said.back().Mouth.empty());
    EXPECT_NEAR(Stage.Limit, 2.5, 0.5);
    EXPECT_FALSE(Character.Record("x"));
}

TEST_F(SpeakingCharacterTest, ARecordingHasThePitchAndSpeedOfTheSettings) {
    const auto sound = Character.Record("Press One!");
    ASSERT_TRUE(sound);
    EXPECT_EQ(sound.Value().Samples.size(), 1000U);
    EXPECT_EQ(Voice.Choices.back().Pitch, 120);
    EXPECT_TRUE(Stage.Said.empty());
}

// ---- what speech takes ----

TEST_F(SpeakingCharacterTest, AMissingVoiceOffersTheSetUpPages) {
    Voice.Locales = {"en"};
    Settings.LanguageIndex = 2;
    Boxes.Answers = {true};
    Character.CheckSpeech(2);
    ASSERT_EQ(Boxes.Asked.size(), 1U);
    EXPECT_EQ(Boxes.Asked[0].Text, "Download New Language Speech Components");
    EXPECT_EQ(Desktop.Opened, Texts{"/home/me/Stage1.htm"});
    EXPECT_TRUE(Files.Content("/home/me/Stage5.htm"));
    Character.CheckSpeech(2);
    EXPECT_EQ(Desktop.Opened.size(), 1U);
    Character.FileCleanUp();
    EXPECT_FALSE(Files.Content("/home/me/Stage1.htm"));
}

TEST_F(SpeakingCharacterTest, AVoiceThatIsThereOffersNothingNorDoesGreek) {
    Character.CheckSpeech(0);
    Settings.LanguageIndex = 4;
    Character.CheckSpeech(4);
    EXPECT_EQ(Voice.Asked, (Texts{"en", "pt-BR"}));
    Voice.Locales.clear();
    Settings.LanguageIndex = 7;
    Character.CheckSpeech(7);
    EXPECT_TRUE(Boxes.Asked.empty());
}

TEST_F(SpeakingCharacterTest, PagesThatCannotBeWrittenAreTold) {
    Files.FailWrites(Error{ErrorCode::Full, "No space left"});
    Character.GetForeignStuff(0);
    ASSERT_EQ(Boxes.Shown.size(), 1U);
    EXPECT_NE(Boxes.Shown[0].Text.find("No space left"), std::string::npos);
    EXPECT_TRUE(Desktop.Opened.empty());
}

} // namespace
} // namespace kestrova
