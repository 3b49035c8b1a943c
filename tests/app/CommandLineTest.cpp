// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/CommandLine.h"

#include "diary/DiaryScene.h"
#include "fakes/FakeCalendarFormat.h"
#include "settings/SettingsFile.h"

#include <gtest/gtest.h>

#include <sstream>

namespace kestrova {
namespace {

using Direction = ExchangeOrder::Direction;

constexpr DayPlace kMay{14, 4, 0};
constexpr const char* kPath = "/tmp/mine.ics";

// A house in which the program has run in 2026.
struct OrderScene : DiaryScene {
    FakeCalendarFormat Format;
    std::ostringstream Out;
    std::ostringstream Trouble;

    OrderScene() {
        Insert(kMay, MakeEvent(9, 0, "tea"));
        PutSettings(2026);
    }

    void PutSettings(int year) {
        AppSettings settings = FirstSettings(Texts);
        settings.DataYear = static_cast<std::int16_t>(year);
        Files.Put(std::string(kFolder) + "Settings.dat", WriteSettings(settings));
    }

    int Run(Direction way) {
        Out.str({});
        Trouble.str({});
        return CommandLine({Files, Clock, Format, kFolder, Out, Trouble}).Run({way, kPath});
    }
};

TEST(CommandLineTest, AnOrderIsTwoWords) {
    const char* const order[] = {"--export", "my file.ics", "more"};
    const auto exported = ExchangeOrderOf({order, 2});
    ASSERT_TRUE(exported);
    EXPECT_EQ(exported->Way, Direction::Export);
    EXPECT_EQ(exported->Path, "my file.ics");
    EXPECT_EQ(ExchangeOrderOf({order, 1})->Way, Direction::Unclear);
    EXPECT_EQ(ExchangeOrderOf({order, 3})->Way, Direction::Unclear);
    const char* const behind[] = {"film.mpg", "--import"};
    EXPECT_EQ(ExchangeOrderOf(behind)->Way, Direction::Unclear);
    const char* const nowhere[] = {"--import", ""};
    EXPECT_EQ(ExchangeOrderOf(nowhere)->Way, Direction::Unclear);
    EXPECT_FALSE(ExchangeOrderOf({behind, 1}));
    EXPECT_FALSE(ExchangeOrderOf({}));
}

TEST(CommandLineTest, TheDiaryGoesOutAndComesBack) {
    OrderScene scene;
    EXPECT_EQ(scene.Run(Direction::Export), 0);
    EXPECT_EQ(scene.Out.str(), "Events written to the calendar file: 1\n");
    scene.Files.Put(kDataPath, WriteDiary(DiaryTable()));
    EXPECT_EQ(scene.Run(Direction::Import), 0);
    EXPECT_EQ(scene.Out.str(), "Events added to the diary: 1\n");
    EXPECT_EQ(Messages(scene.OnFile(), kMay), "tea");
    EXPECT_EQ(scene.Trouble.str(), "");
}

// A diary that has yet to be rolled over belongs to last year still.
TEST(CommandLineTest, TheYearIsTheDiarys) {
    OrderScene scene;
    scene.Clock.Time.Year = 2027;
    EXPECT_EQ(scene.Run(Direction::Export), 0);
    EXPECT_EQ(scene.Format.Held.Events.front().Times.front().Year, 2026);
    scene.Files.Put("/home/me/DiaryDat/Year.dat", " 2027 \r\n");
    EXPECT_EQ(scene.Run(Direction::Export), 0);
    EXPECT_EQ(scene.Format.Held.Events.front().Times.front().Year, 2027);
}

TEST(CommandLineTest, WhatCannotBeDoneIsSaidAndNothingIsTouched) {
    OrderScene scene;
    const auto expect = [&](Direction way, const std::string& sentence) {
        const auto paths = scene.Files.Paths();
        const int writes = scene.Files.Writes();
        EXPECT_EQ(scene.Run(way), 1);
        EXPECT_EQ(scene.Trouble.str(), sentence + "\n");
        EXPECT_EQ(scene.Out.str(), "");
        EXPECT_EQ(scene.Files.Writes(), writes);
        EXPECT_EQ(scene.Files.Paths(), paths);
    };
    expect(Direction::Unclear, "Usage: Kestrova --export FILE.ics, or Kestrova --import FILE.ics");
    scene.Files.Put(kPath, "something else");
    expect(Direction::Import, "This is not a whole calendar file: /tmp/mine.ics");
    scene.Files.HoldLock(kDataPath);
    expect(Direction::Import, "Diary Busy");
    scene.Files.ReleaseLock(kDataPath);
    scene.Files.Put(kDataPath, "damaged");
    EXPECT_EQ(scene.Run(Direction::Export), 1);
    EXPECT_EQ(scene.Files.Content(kDataPath), "damaged");
    ASSERT_TRUE(scene.Files.Remove(kDataPath));
    expect(Direction::Export,
           "There is no diary in the folder /home/me/ yet. Start Kestrova there once.");
}

// The other instance takes the lock between reading and saving.
TEST(CommandLineTest, ADiaryThatIsBusyWhenItIsToBeSavedIsSaid) {
    OrderScene scene;
    EXPECT_EQ(scene.Run(Direction::Export), 0);
    scene.Files.Put(kDataPath, WriteDiary(DiaryTable()));
    int locks = 0;
    scene.Files.BeforeLock = [&] {
        if (++locks == 2) {
            scene.Files.HoldLock(kDataPath);
        }
    };
    EXPECT_EQ(scene.Run(Direction::Import), 1);
    EXPECT_EQ(scene.Trouble.str(), "Diary Busy\n");
    EXPECT_EQ(Messages(scene.OnFile(), kMay), "");
}

} // namespace
} // namespace kestrova
