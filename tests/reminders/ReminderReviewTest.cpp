// SPDX-License-Identifier: GPL-3.0-or-later
#include "reminders/ReminderReview.h"

#include "phone/ModemScript.h"
#include "reminders/ClockScene.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace kestrova {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(ReminderReviewTest, ScreenLinesComeEveryMinuteUntilTheyAreCleared) {
    ClockScene scene;
    scene.Add(9, 0, "Dentist", "Screen");
    scene.Add(8, 5, "Milk", "Screen");
    scene.Add(9, 2, "later", "Screen");
    scene.PassAt(9, 0);
    scene.PassAt(9, 1);
    const std::vector<std::string> lines = {"08:05    Milk", "09:00    Dentist"};
    EXPECT_THAT(scene.Windows.Lines, ElementsAre(lines, lines));
    EXPECT_EQ(scene.Bell.Beeps, 2);
    EXPECT_EQ(scene.ReminderOnFile(1), "Screen");

    scene.Tick.ClearReminders();
    EXPECT_EQ(scene.Windows.Lines.size(), 2U);
    EXPECT_EQ(scene.ReminderOnFile(1), "None");
    EXPECT_EQ(scene.ReminderOnFile(2), "None");
    EXPECT_EQ(scene.ReminderOnFile(3), "Screen");
    scene.PassAt(9, 2);
    EXPECT_THAT(scene.Windows.Lines.back(), ElementsAre("09:02    later"));
}

TEST(ReminderReviewTest, ClearingTakesNothingThatWasNotSeen) {
    ClockScene scene;
    scene.Add(9, 0, "seen", "Screen");
    scene.Add(9, 1, "unseen", "Screen");
    scene.PassAt(9, 0);
    scene.Clock.Time.Minute = 1;
    scene.Tick.ClearReminders();
    EXPECT_EQ(scene.ReminderOnFile(1), "None");
    EXPECT_EQ(scene.ReminderOnFile(2), "Screen");
    EXPECT_THAT(scene.Windows.Lines.back(), ElementsAre("09:01    unseen"));
}

TEST(ReminderReviewTest, ClearingWorksInTheSecondOfThePass) {
    ClockScene scene;
    scene.Add(9, 0, "x", "Screen");
    scene.TickAt(9, 0, 0);
    scene.Tick.ClearReminders();
    EXPECT_EQ(scene.ReminderOnFile(), "None");
}

TEST(ReminderReviewTest, SnoozedLinesStayAwayAndNothingIsMarkedOrSaved) {
    ClockScene scene;
    scene.Add(9, 0, "snoozed", "Screen");
    scene.Add(9, 3, "other", "Screen");
    scene.PassAt(9, 0);
    const auto file = scene.Files.Content(kDataPath);
    scene.Tick.SnoozeReminders(5);
    scene.PassAt(9, 1);
    scene.PassAt(9, 2);
    EXPECT_EQ(scene.Windows.Lines.size(), 1U);
    scene.PassAt(9, 3);
    EXPECT_THAT(scene.Windows.Lines.back(), ElementsAre("09:03    other")) << "alone";
    scene.PassAt(9, 4);
    EXPECT_EQ(scene.Files.Content(kDataPath), file);

    scene.Tick.ClearReminders();
    EXPECT_EQ(scene.ReminderOnFile(1), "Screen") << "what is away is not cleared";
    EXPECT_EQ(scene.ReminderOnFile(2), "None");
    scene.PassAt(9, 5);
    EXPECT_THAT(scene.Windows.Lines.back(), ElementsAre("09:00    snoozed"));
    scene.Tick.SnoozeReminders(1);
    scene.PassAt(9, 6);
    scene.Tick.ClearReminders();
    EXPECT_EQ(scene.ReminderOnFile(1), "None");
}

TEST(ReminderReviewTest, ASnoozedEventThatIsChangedIsAnother) {
    ClockScene scene;
    scene.Add(9, 0, "a", "Screen");
    scene.Add(9, 0, "b", "Screen");
    scene.PassAt(9, 0);
    scene.Tick.SnoozeReminders(30);
    scene.WriteFromOutside(ClockScene::Today(), {MakeEvent(9, 0, "a, but upstairs")});
    scene.TickAt(9, 0, 20);
    scene.PassAt(9, 1);
    EXPECT_THAT(scene.Windows.Lines.back(), ElementsAre("09:00    a, but upstairs"));
    scene.PassAt(9, 30);
    EXPECT_THAT(scene.Windows.Lines.back(), ElementsAre("09:00    a, but upstairs"));
}

TEST(ReminderReviewTest, ASnoozeEndsWithTheDayWithTheClockAndWithTheProgram) {
    const auto snoozed = [](ClockScene& scene, int minutes) {
        scene.Add(23, 40, "x", "Screen");
        scene.PassAt(23, 40);
        scene.Tick.SnoozeReminders(minutes);
    };
    ClockScene late;
    snoozed(late, 60);
    late.PassAt(23, 58);
    EXPECT_EQ(late.Windows.Lines.size(), 1U);
    late.PassAt(23, 59);
    EXPECT_EQ(late.Windows.Lines.size(), 2U) << "midnight would take it away unseen";
    late.Tick.SnoozeReminders(10);
    late.Clock.Time.Day = 15;
    late.Insert({15, 4, 0}, MakeEvent(0, 1, "today"));
    late.PassAt(0, 20);
    EXPECT_THAT(late.Windows.Lines.back(), ElementsAre("00:01    today"));

    ClockScene turnedBack;
    turnedBack.Add(22, 0, "x", "Screen");
    turnedBack.PassAt(23, 0);
    turnedBack.Tick.SnoozeReminders(10);
    turnedBack.PassAt(22, 1);
    EXPECT_EQ(turnedBack.Windows.Lines.size(), 2U) << "not an hour late";

    ClockScene ended;
    snoozed(ended, 10);
    ReminderReview restarted({ended.Store, ended.Dates, ended.Texts, ended.Settings, ended.Speech,
                              ended.Phone, ended.Mail, ended.Media, ended.Loop, ended.Bell});
    EXPECT_THAT(restarted.Review(ended.Clock.Time, PassKind::Ordinary), ElementsAre("23:40    x"));
}

TEST(ReminderReviewTest, SnoozingWhileADeliveryWaitsHoldsForThisPassToo) {
    ClockScene scene;
    scene.Settings.SpeechEnabled = 1;
    scene.Speech.Loaded = true;
    scene.Add(9, 0, "listed before", "Screen");
    scene.Add(9, 1, "spoken", "Speak");
    scene.Add(9, 1, "listed now", "Screen");
    scene.PassAt(9, 0);
    scene.Loop.WhileWaiting = [&] { scene.Tick.SnoozeReminders(10); };
    scene.PassAt(9, 1);
    EXPECT_THAT(scene.Windows.Lines.back(), ElementsAre("09:01    listed now"));
}

TEST(ReminderReviewTest, ASnoozeBelongsToTheDiaryThatWasShown) {
    ClockScene scene;
    scene.WriteFromOutside(ClockScene::Today(), {MakeEvent(9, 0, "x")}, kBobsPath);
    scene.Add(9, 0, "x", "Screen");
    scene.PassAt(9, 0);
    scene.Tick.SnoozeReminders(10);
    scene.Store.GetData(kBobsFolder);
    scene.PassAt(9, 1);
    EXPECT_EQ(scene.Windows.Lines.size(), 2U);
    scene.Store.GetData(kFolder);
    scene.PassAt(9, 2);
    EXPECT_EQ(scene.Windows.Lines.size(), 2U);
}

TEST(ReminderReviewTest, BeforeTheFirstDrawingRemindersAreDropped) {
    for (const char* const rmd : {"Screen", "Speak", "Phone"}) {
        SCOPED_TRACE(rmd);
        ClockScene scene;
        scene.Settings.SpeechEnabled = 1;
        scene.Speech.Loaded = true;
        scene.Add(9, 0, "x", rmd, {"", "555", "", ""});
        scene.Tick.SetFirstDraw(true);
        scene.PassAt(9, 0);
        EXPECT_EQ(scene.ReminderInMemory(), "None");
        EXPECT_EQ(scene.ReminderOnFile(), rmd) << "nothing is saved before the first drawing";
        EXPECT_THAT(scene.Windows.Lines, IsEmpty());
        EXPECT_THAT(scene.Speech.Spoken, IsEmpty());
        EXPECT_THAT(scene.Phone.Calls, IsEmpty());
    }
}

TEST(ReminderReviewTest, ASpokenReminderIsAcknowledgedByAClick) {
    ClockScene scene;
    scene.Settings.SpeechEnabled = 1;
    scene.Settings.SpeakRepeat = "2";
    scene.Speech.Loaded = true;
    scene.Add(9, 5, "Milk", "Speak");
    scene.PassAt(9, 5);
    EXPECT_THAT(scene.Speech.Spoken,
                ElementsAre("Messenger Reminder Service.", "Milk", "At.", " 9: 5"));
    EXPECT_EQ(scene.Loop.LastLimit, std::chrono::seconds(20));
    EXPECT_FALSE(scene.Speech.Visible);
    EXPECT_EQ(scene.ReminderOnFile(), "Speak") << "nobody has clicked";

    scene.Loop.WhileWaiting = [&] { ++scene.Speech.Clicked; };
    scene.PassAt(9, 6);
    scene.PassAt(9, 7);
    EXPECT_EQ(scene.Speech.Spoken.size(), 4U) << "not yet again";
    scene.PassAt(9, 8);
    EXPECT_EQ(scene.Speech.Spoken.size(), 8U);
    EXPECT_EQ(scene.ReminderOnFile(), "None");
    EXPECT_FALSE(scene.Speech.Stop);
}

TEST(ReminderReviewTest, SpeechThatIsOffWaitsAndSpeechWithoutACharacterBeeps) {
    ClockScene off;
    off.Add(9, 0, "x", "Speak");
    off.PassAt(9, 0);
    EXPECT_EQ(off.ReminderOnFile(), "Speak");

    ClockScene mute;
    mute.Settings.SpeechEnabled = 1;
    mute.Add(9, 0, "x", "Speak");
    mute.PassAt(9, 0);
    EXPECT_EQ(mute.ReminderOnFile(), "None");
    EXPECT_EQ(mute.Bell.Beeps, 1);
}

TEST(ReminderReviewTest, CallsGoThroughTheNumbersUntilOneAnswers) {
    ClockScene scene;
    scene.Settings.ModemName = std::string(kIs101Family);
    scene.Add(9, 0, "Milk", "Phone", {"", "111", "222", "333"});
    scene.Phone.Answered = "ATD222;";
    scene.PassAt(9, 0);
    EXPECT_THAT(scene.Phone.Calls, ElementsAre("ATD111; Milk", "ATD222; Milk"));
    EXPECT_EQ(scene.Phone.Delays, 1);
    EXPECT_EQ(scene.ReminderOnFile(), "None");
}

TEST(ReminderReviewTest, AStoppedCallTriesNoOtherNumberAndAnEndingProgramNoOtherReminder) {
    ClockScene scene;
    scene.Add(9, 0, "Milk", "Phone", {"", "111", "222", "333"});
    scene.Phone.Stopped = true;
    scene.PassAt(9, 0);
    EXPECT_THAT(scene.Phone.Calls, testing::SizeIs(1));
    EXPECT_EQ(scene.Phone.Delays, 0);

    ClockScene ending;
    ending.Add(9, 0, "Milk", "Phone", {"", "111", "", ""});
    ending.Add(9, 1, "Song", "Music");
    ending.Phone.DuringCall = [&] { ending.Review.End(); };
    ending.PassAt(9, 1);
    EXPECT_EQ(ending.ReminderOnFile(2), "Music");
}

TEST(ReminderReviewTest, MissedCallsAreRepeatedAfterTheirPeriod) {
    ClockScene scene;
    scene.Settings.PhoneRepeat = "2";
    scene.Settings.ModemName = "Generic Rockwell Voice Modem";
    scene.Add(9, 0, "x", "Phone", {"", "", "111", ""});
    for (int minute = 0; minute < 7; ++minute) {
        scene.PassAt(9, minute);
    }
    EXPECT_THAT(scene.Phone.Calls, ElementsAre("ATD111 x", "ATD111 x", "ATD111 x"));
    EXPECT_EQ(scene.ReminderOnFile(), "Phone");

    ClockScene off;
    off.Phone.State = ModemState::Off;
    off.Add(9, 0, "x", "Phone", {"", "111", "", ""});
    off.PassAt(9, 0);
    EXPECT_THAT(off.Phone.Calls, IsEmpty());
    EXPECT_EQ(off.ReminderOnFile(), "Phone");
}

TEST(ReminderReviewTest, MailMediaAndMusicAreUsedUpWhenDelivered) {
    for (const bool works : {true, false}) {
        SCOPED_TRACE(works);
        ClockScene scene;
        scene.Mail.Status = works ? MailStatus::Sent : MailStatus::TryLater;
        scene.Add(9, 0, "a", "Media", {"", "/film.avi", "", ""});
        scene.Add(9, 0, "b", "Music");
        scene.Add(9, 0, "c", "Email");
        scene.PassAt(9, 0);
        EXPECT_THAT(scene.Media.Played, ElementsAre("/film.avi", "CD"));
        EXPECT_THAT(scene.Mail.Sent, ElementsAre("c"));
        EXPECT_EQ(scene.ReminderOnFile(1), "None");
        EXPECT_EQ(scene.ReminderOnFile(2), "None");
        EXPECT_EQ(scene.ReminderOnFile(3) == "None", works);
    }
}

TEST(ReminderReviewTest, TextsOfNoKindAndOtherDaysAreLeftAlone) {
    ClockScene scene;
    scene.Add(9, 0, "x", "Bildschirm");
    scene.Insert({13, 4, 0}, MakeEvent(8, 0, "yesterday"));
    scene.Insert({14, 4, 1}, MakeEvent(8, 0, "next year"));
    scene.PassAt(9, 0);
    EXPECT_THAT(scene.Windows.Lines, IsEmpty());
    EXPECT_EQ(scene.ReminderOnFile(), "Bildschirm");
}

TEST(ReminderReviewTest, AnEventThatMovedDuringItsDeliveryIsFoundAgain) {
    ClockScene scene;
    scene.Add(9, 0, "call", "Phone", {"", "111", "", ""});
    scene.Phone.Answered = "ATD111";
    scene.Phone.DuringCall = [&] { scene.Insert(ClockScene::Today(), MakeEvent(1, 0, "new")); };
    scene.PassAt(9, 0);
    EXPECT_EQ(Messages(scene.OnFile(), ClockScene::Today()), "new call");
    EXPECT_EQ(scene.ReminderOnFile(1), "Screen");
    EXPECT_EQ(scene.ReminderOnFile(2), "None");
}

TEST(ReminderReviewTest, AnEventEditedDuringItsDeliveryKeepsItsNewReminder) {
    ClockScene scene;
    scene.Add(9, 0, "call", "Phone", {"", "111", "", ""});
    scene.Phone.Answered = "ATD111";
    scene.Phone.DuringCall = [&] {
        (void)scene.Store.Change([](EventList& events) {
            events.Table().At({1, ClockScene::Today()}).Hour = 10;
            return EditVerdict::Save;
        });
    };
    scene.PassAt(9, 0);
    EXPECT_EQ(scene.ReminderOnFile(), "Phone");
}

TEST(ReminderReviewTest, WhatCannotBeSavedNowIsSavedLater) {
    ClockScene scene;
    scene.Add(9, 0, "x", "Music");
    scene.Files.HoldLock(kDataPath);
    scene.PassAt(9, 0);
    scene.PassAt(9, 1);
    EXPECT_EQ(scene.Boxes.Shown.size(), 1U) << "one message for one trouble";
    EXPECT_EQ(scene.Media.Played.size(), 1U) << "delivered once";
    scene.Files.ReleaseLock(kDataPath);
    // Meanwhile someone else has saved the same diary.
    scene.WriteFromOutside(ClockScene::Today(), {MakeEvent(8, 0, "theirs", "Never", "None"),
                                                 MakeEvent(9, 0, "x", "Never", "Music")});
    scene.TickAt(9, 1, 10);
    EXPECT_EQ(scene.Windows.Reloads, 1);
    scene.PassAt(9, 2);
    EXPECT_EQ(scene.Media.Played.size(), 1U) << "a reload does not bring it back";
    EXPECT_EQ(scene.ReminderOnFile(2), "None");
}

TEST(ReminderReviewTest, AFriendsDiaryIsNotWrittenByTheClock) {
    ClockScene scene;
    scene.Add(9, 0, "x", "Music");
    scene.Folder = "/my/own/";
    scene.PassAt(9, 0);
    EXPECT_EQ(scene.ReminderInMemory(), "None");
    EXPECT_EQ(scene.ReminderOnFile(), "Music");
}

TEST(ReminderReviewTest, AnUnsavedMarkOutlivesALookAtAFriendsDiaryButNotTheDay) {
    ClockScene scene;
    scene.Files.Put(kBobsPath, WriteDiary(DiaryTable()));
    scene.WriteFromOutside(ClockScene::Today(), {MakeEvent(9, 0, "bob's", "Never", "Email")},
                           kBobsPath);
    scene.Add(9, 0, "mine", "Email");
    scene.Files.HoldLock(kDataPath);
    scene.PassAt(9, 0);
    scene.Store.GetData(kBobsFolder);
    scene.PassAt(9, 1);
    scene.Files.ReleaseLock(kDataPath);
    scene.Store.GetData(kFolder);
    scene.PassAt(9, 2);
    EXPECT_THAT(scene.Mail.Sent, ElementsAre("mine", "bob's")) << "each once";
    EXPECT_EQ(scene.ReminderOnFile(), "None");
    EXPECT_EQ(scene.OnFile(kBobsPath).At({1, ClockScene::Today()}).Rmd, "Email");

    scene.Add(9, 3, "late", "Email");
    scene.Files.HoldLock(kDataPath);
    scene.PassAt(9, 3);
    EXPECT_TRUE(scene.Review.HasChanges());
    scene.Clock.Time = {2026, 4, 15, 0, 0, 0};
    scene.Tick.Timer1_Timer();
    EXPECT_FALSE(scene.Review.HasChanges());
}

} // namespace
} // namespace kestrova
