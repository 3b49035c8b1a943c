// SPDX-License-Identifier: GPL-3.0-or-later
#include "reminders/ClockTick.h"

#include "reminders/Chimes.h"
#include "reminders/ClockScene.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace kestrova {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// Passes are counted by the chime, which is set to sound in every fifth minute.
struct ChimingScene : ClockScene {
    ChimingScene() {
        Settings.ChimeType = "Chime";
        Settings.ChimeInterval = "Every Five Minutes";
        Settings.ChimeSound = "ding";
    }

    [[nodiscard]] std::size_t Passes() const { return Media.Played.size(); }
};

TEST(ClockTickTest, OnePassAMinute) {
    ChimingScene scene;
    scene.TickAt(9, 5, 0);
    scene.TickAt(9, 5, 0);
    EXPECT_EQ(scene.Passes(), 1U);
    for (int second = 1; second < 60; ++second) {
        scene.TickAt(9, 5, second);
    }
    EXPECT_EQ(scene.Passes(), 1U);
    scene.PassAt(9, 6);
    scene.PassAt(9, 10);
    EXPECT_EQ(scene.Passes(), 2U);
    EXPECT_GT(scene.Windows.Emptied, 60) << "every tick empties the item";
}

TEST(ClockTickTest, AForcedPassIsOneMore) {
    ChimingScene scene;
    scene.PassAt(9, 5);
    scene.Clock.Time.Second = 30;
    scene.Tick.DoTimer();
    scene.TickAt(9, 5, 31);
    EXPECT_EQ(scene.Passes(), 2U);
    scene.TickAt(9, 10, 0);
    scene.Tick.DoTimer(); // in the same second: the pass has just run
    scene.TickAt(9, 10, 1);
    scene.TickAt(9, 10, 2);
    EXPECT_EQ(scene.Passes(), 3U);
}

TEST(ClockTickTest, AMinuteWhoseFirstSecondWasMissedStillHasItsPass) {
    const struct {
        const char* Name;
        WallTime Before, After;
    } rows[] = {
        {"a busy second", {2026, 4, 14, 9, 4, 59}, {2026, 4, 14, 9, 5, 1}},
        {"asleep for an hour", {2026, 4, 14, 9, 4, 20}, {2026, 4, 14, 10, 5, 40}},
        {"summer time ends", {2026, 4, 14, 10, 59, 59}, {2026, 4, 14, 10, 0, 30}},
        {"set by hand", {2026, 4, 14, 9, 4, 20}, {2026, 4, 14, 7, 15, 13}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.Name);
        ChimingScene scene;
        scene.Clock.Time = row.Before;
        scene.Tick.Timer1_Timer();
        const std::size_t before = scene.Passes();
        scene.Clock.Time = row.After;
        scene.Tick.Timer1_Timer();
        scene.Clock.Time.Second += 1;
        scene.Tick.Timer1_Timer();
        EXPECT_EQ(scene.Passes(), before + 1);
    }
}

TEST(ClockTickTest, WhatIsDueAfterAJumpIsDeliveredOnce) {
    ClockScene scene;
    scene.Add(9, 30, "x", "Music");
    scene.PassAt(9, 0);
    scene.TickAt(11, 20, 17); // after sleep
    scene.TickAt(10, 20, 17); // the clock goes back
    scene.PassAt(10, 30);
    EXPECT_THAT(scene.Media.Played, ElementsAre("CD"));
}

TEST(ClockTickTest, ChimesKeepTheirMinutes) {
    const struct {
        const char* Interval;
        int PerHour;
    } rows[] = {{"Never", 0},
                {"On the Hour", 1},
                {"On the Half Hour", 2},
                {"On the Quarter Hour", 4},
                {"Every Five Minutes", 12},
                {"Jede Stunde", 0}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.Interval);
        ChimingScene scene;
        scene.Settings.ChimeInterval = row.Interval;
        for (int minute = 0; minute < 60; ++minute) {
            scene.PassAt(13, minute);
        }
        EXPECT_EQ(scene.Passes(), static_cast<std::size_t>(row.PerHour));
    }
    EXPECT_TRUE(ChimeDue(ChimeInterval::QuarterHour, 45));
    EXPECT_FALSE(ChimeDue(ChimeInterval::HalfHour, 45));
}

TEST(ClockTickTest, TheTimeIsToldInWords) {
    ChimingScene scene;
    scene.Settings.ChimeType = "Speech";
    scene.PassAt(14, 30);
    EXPECT_THAT(scene.Speech.Told, ElementsAre("The time is. 14:30. My Master."));
    scene.Settings.ChimeType = "None";
    scene.PassAt(14, 35);
    EXPECT_EQ(scene.Speech.Told.size() + scene.Passes(), 1U);
}

TEST(ClockTickTest, NothingHappensWhileTheDayPageIsOpen) {
    ChimingScene scene;
    scene.Add(9, 5, "x", "Screen");
    scene.Windows.DayPage = true;
    scene.PassAt(9, 5);
    EXPECT_EQ(scene.Passes(), 0U);
    EXPECT_THAT(scene.Windows.Lines, IsEmpty());
    scene.Windows.DayPage = false;
    scene.TickAt(9, 5, 30);
    EXPECT_THAT(scene.Windows.Lines, IsEmpty()) << "it goes on with the next minute";
    scene.PassAt(9, 6);
    EXPECT_EQ(scene.Windows.Lines.size(), 1U);
}

TEST(ClockTickTest, TheFileIsLookedAtEveryTenSeconds) {
    ClockScene scene;
    scene.TickAt(9, 0, 1);
    scene.WriteFromOutside(ClockScene::Today(), {MakeEvent(8, 0, "theirs")});
    scene.TickAt(9, 0, 9);
    EXPECT_EQ(scene.Windows.Reloads, 0);
    scene.Windows.DayPage = true; // also while the day page is open
    scene.TickAt(9, 0, 10);
    EXPECT_EQ(scene.Windows.Reloads, 1);
    EXPECT_EQ(scene.Windows.MainShown, 1);
    (void)scene.Files.Remove(kDataPath);
    scene.TickAt(9, 0, 20);
    EXPECT_EQ(scene.Windows.FolderGone, 1);
    EXPECT_THAT(scene.Boxes.Shown, IsEmpty());
}

TEST(ClockTickTest, ADeliveryThatWaitsIsNotDisturbed) {
    ClockScene scene;
    scene.Settings.SpeechEnabled = 1;
    scene.Speech.Loaded = true;
    scene.Add(9, 0, "x", "Speak");
    scene.Loop.WhileWaiting = [&] {
        scene.WriteFromOutside(ClockScene::Today(), {});
        scene.TickAt(9, 0, 10);
        scene.TickAt(9, 1, 0);
        EXPECT_EQ(scene.Windows.Reloads, 0) << "no reload under a pass";
        EXPECT_EQ(scene.Speech.Spoken.size(), 4U) << "no second pass";
    };
    scene.TickAt(9, 0, 0);
    scene.TickAt(9, 1, 10);
    EXPECT_EQ(scene.Windows.Reloads, 1);
}

TEST(ClockTickTest, TodayFollowsTheClock) {
    ClockScene scene;
    scene.PassAt(9, 0);
    scene.Clock.Time = {2026, 4, 15, 0, 0, 0};
    scene.Tick.Timer1_Timer();
    EXPECT_EQ(scene.Dates.TodayDay, 15);
    EXPECT_THAT(scene.Windows.Moves, ElementsAre(true));
    scene.Dates.PageMonth = 7;
    scene.Clock.Time = {2026, 5, 1, 0, 0, 0};
    scene.Tick.Timer1_Timer();
    EXPECT_EQ(scene.Dates.TodayMonth, 5);
    EXPECT_THAT(scene.Windows.Moves, ElementsAre(true, false)) << "the user looks elsewhere";
}

TEST(ClockTickTest, TheYearTurnsOnceWhileTheProgramRuns) {
    ClockScene scene;
    scene.Windows.OnYear = [&](int year) { scene.Dates.BaseYear = year; };
    scene.Clock.Time = {2026, 11, 31, 23, 59, 0};
    scene.Tick.Timer1_Timer();
    scene.Clock.Time = {2027, 0, 1, 0, 0, 0};
    scene.Tick.Timer1_Timer();
    scene.Clock.Time.Second = 1;
    scene.Tick.Timer1_Timer();
    scene.Clock.Time = {2027, 0, 1, 0, 1, 0};
    scene.Tick.Timer1_Timer();
    EXPECT_THAT(scene.Windows.Years, ElementsAre(2027));
    EXPECT_EQ(scene.Dates.TodayMonth, 0);
    EXPECT_EQ(scene.Dates.TodayDay, 1);
}

TEST(ClockTickTest, AClockBehindTheDiaryDeliversNothing) {
    ClockScene scene;
    scene.Add(9, 0, "x", "Screen");
    scene.Clock.Time = {2000, 4, 14, 9, 0, 0};
    scene.Tick.Timer1_Timer();
    EXPECT_THAT(scene.Windows.Lines, IsEmpty());
    EXPECT_THAT(scene.Windows.Years, IsEmpty());
    EXPECT_EQ(scene.Dates.BaseYear, 2026);
}

TEST(ClockTickTest, TheGridReturnsAfterSixMinutes) {
    ClockScene scene;
    scene.Tick.SetReturnCountdown(7);
    for (int minute = 1; minute <= 5; ++minute) {
        scene.PassAt(9, minute);
    }
    EXPECT_EQ(scene.Windows.Returns, 0);
    scene.PassAt(9, 6);
    scene.PassAt(9, 7);
    scene.PassAt(9, 8);
    EXPECT_EQ(scene.Windows.Returns, 1);

    ClockScene video;
    video.Media.Video = true;
    video.Tick.SetReturnCountdown(2);
    video.PassAt(9, 1);
    EXPECT_EQ(video.Windows.Returns, 0);
}

TEST(ClockTickTest, BeforeStartUpHasEndedATickOnlyEmptiesTheItem) {
    ClockScene scene;
    scene.Add(9, 0, "x", "Screen");
    ClockTick early({scene.Clock, scene.Store, scene.Dates, scene.Texts, scene.Settings,
                     scene.Folder, scene.Review, scene.Speech, scene.Media, scene.Bell,
                     scene.Windows});
    early.Timer1_Timer();
    EXPECT_EQ(scene.Windows.Emptied, 1);
    EXPECT_THAT(scene.Windows.Lines, IsEmpty());
}

} // namespace
} // namespace kestrova
