// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/YearTurn.h"

#include "diary/DiaryScene.h"
#include "settings/SettingsFile.h"

#include <gtest/gtest.h>

namespace kestrova {
namespace {

constexpr const char* kSettingsPath = "/home/me/Settings.dat";

// A program on the disc of a scene, started as often as a test likes.
struct Started {
    DiaryScene& Scene;
    SettingsStore SettingsOnDisc{Scene.Files, Scene.Clock, Scene.Boxes, Scene.Texts, kSettingsPath};
    AppSettings Settings = FirstSettings(Scene.Texts);
    Selection Dates;
    DiaryStore Store{Scene.OnDisc, Scene.Boxes, Scene.Texts, Scene.Probe, [] {}};
    std::string Folder = kFolder;
    YearTurn Turn{{Store, SettingsOnDisc, Settings, Dates, Scene.Boxes, Scene.Texts, Folder}};

    Started(DiaryScene& scene, int clockYear) : Scene(scene) {
        Settings.DataYear = static_cast<std::int16_t>(clockYear);
        SettingsOnDisc.GetSettings(Settings);
        Turn.SetBaseYear(clockYear);
        Store.GetData(kFolder);
        Turn.YearUpdate();
    }
};

void WriteSettingsOf(DiaryScene& scene, int dataYear) {
    AppSettings settings = FirstSettings(scene.Texts);
    settings.DataYear = static_cast<std::int16_t>(dataYear);
    scene.Files.Put(kSettingsPath, WriteSettings(settings));
}

int DataYearOnFile(const DiaryScene& scene) {
    AppSettings settings;
    EXPECT_TRUE(ReadSettings(scene.Files.Content(kSettingsPath).value_or(""), settings).Ok());
    return settings.DataYear;
}

constexpr DayPlace kThisYear{3, 2, 0};
constexpr DayPlace kNextYear{3, 2, 1};

TEST(YearTurnTest, ANewYearRollsTheDiaryOverExactlyOnce) {
    DiaryScene scene;
    WriteSettingsOf(scene, 2025);
    scene.Insert(kNextYear, MakeEvent(9, 0, "party"));
    for (int start = 0; start < 3; ++start) {
        SCOPED_TRACE(start);
        const Started program(scene, 2026);
        EXPECT_EQ(Messages(program.Store.Table(), kThisYear), "party");
        EXPECT_EQ(DataYearOnFile(scene), 2026);
    }
    EXPECT_TRUE(scene.Boxes.Shown.empty());
}

TEST(YearTurnTest, WhateverCrashesInBetween) {
    int rolled = 0;
    for (int at = 0; at < 15; ++at) {
        SCOPED_TRACE("crash before write " + std::to_string(at));
        DiaryScene scene;
        WriteSettingsOf(scene, 2025);
        scene.Insert(kNextYear, MakeEvent(9, 0, "party"));
        scene.Files.Put(scene.NotePath({1, kNextYear}), "a note");
        scene.Files.CrashAfter(at);
        { const Started crashing(scene, 2026); }
        scene.Files.Recover();
        rolled += Messages(scene.OnFile(), kThisYear) == "party" ? 1 : 0;
        const Started program(scene, 2026);
        EXPECT_EQ(Messages(program.Store.Table(), kThisYear), "party");
        EXPECT_EQ(scene.Files.Content(scene.NotePath({1, kThisYear})), "a note");
        const Started again(scene, 2026);
        EXPECT_EQ(Messages(again.Store.Table(), kThisYear), "party");
    }
    EXPECT_GT(rolled, 1) << "some crashes came after the diary was replaced";
    EXPECT_LT(rolled, 15) << "and some before";
}

TEST(YearTurnTest, AGapOfYearsKeepsRepeatsAndDropsWhatIsOld) {
    DiaryScene scene;
    WriteSettingsOf(scene, 2023);
    scene.Insert(kNextYear, MakeEvent(9, 0, "old"));
    scene.Insert(kNextYear, MakeEvent(10, 0, "birthday", "Annually"));
    const std::string before = *scene.Files.Content(kDataPath);
    const Started program(scene, 2026);
    EXPECT_EQ(Messages(program.Store.Table(), kThisYear), "birthday");
    EXPECT_EQ(Messages(program.Store.Table(), kNextYear), "birthday");
    const auto aside = scene.FindPathWith("Data before 2026");
    ASSERT_TRUE(aside);
    EXPECT_EQ(scene.Files.Content(*aside), before);
}

TEST(YearTurnTest, TheYearTurnsWhileTheProgramRuns) {
    DiaryScene scene;
    WriteSettingsOf(scene, 2025);
    scene.Insert(kNextYear, MakeEvent(9, 0, "party"));
    Started program(scene, 2025);
    EXPECT_EQ(Messages(program.Store.Table(), kThisYear), "");
    program.Turn.Turn(2026);
    EXPECT_EQ(program.Dates.BaseYear, 2026);
    EXPECT_EQ(Messages(program.Store.Table(), kThisYear), "party");
    EXPECT_EQ(DataYearOnFile(scene), 2026);
    const Started restarted(scene, 2026);
    EXPECT_EQ(Messages(restarted.Store.Table(), kThisYear), "party");
}

TEST(YearTurnTest, ADiaryThatCannotBeSavedKeepsItsYearUntilItCan) {
    DiaryScene scene;
    WriteSettingsOf(scene, 2025);
    scene.Insert(kNextYear, MakeEvent(9, 0, "party"));
    Started program(scene, 2025);
    scene.Files.HoldLock(kDataPath);
    program.Turn.Turn(2026);
    EXPECT_EQ(program.Dates.BaseYear, 2025);
    EXPECT_TRUE(scene.Boxes.Shown.empty()) << "nobody may be there at midnight";
    const Started late(scene, 2026);
    EXPECT_EQ(late.Dates.BaseYear, 2025) << "also at start-up";
    scene.Files.ReleaseLock(kDataPath);
    program.Turn.Turn(2026);
    EXPECT_EQ(program.Dates.BaseYear, 2026);
    EXPECT_EQ(Messages(program.Store.Table(), kThisYear), "party");
}

TEST(YearTurnTest, AClockThatIsBehindChangesNothingUnlessTheUserSaysSo) {
    DiaryScene scene;
    WriteSettingsOf(scene, 2025);
    scene.Insert(kNextYear, MakeEvent(9, 0, "party"));
    { const Started rolled(scene, 2026); }
    const Started wrong(scene, 2000);
    EXPECT_EQ(wrong.Dates.BaseYear, 2026);
    EXPECT_EQ(scene.Boxes.Asked.size(), 1U);
    EXPECT_EQ(DataYearOnFile(scene), 2026);
    scene.Boxes.Answers = {true};
    const Started told(scene, 2024);
    EXPECT_EQ(told.Dates.BaseYear, 2024);
    EXPECT_EQ(Messages(told.Store.Table(), kThisYear), "party");
    EXPECT_TRUE(scene.FindPathWith("Data before 2024"));
    const Started again(scene, 2024);
    EXPECT_EQ(again.Dates.BaseYear, 2024);
    EXPECT_EQ(scene.Boxes.Asked.size(), 2U) << "it is not asked again";
}

TEST(YearTurnTest, AYearThatNobodyCanBelieveRollsNothingOver) {
    DiaryScene scene;
    WriteSettingsOf(scene, 3);
    scene.Insert(kThisYear, MakeEvent(9, 0, "party"));
    const Started program(scene, 2026);
    EXPECT_EQ(Messages(program.Store.Table(), kThisYear), "party");
    EXPECT_EQ(DataYearOnFile(scene), 2026);
}

} // namespace
} // namespace kestrova
