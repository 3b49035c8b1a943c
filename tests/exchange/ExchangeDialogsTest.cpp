// SPDX-License-Identifier: GPL-3.0-or-later
#include "exchange/ExchangeDialogs.h"

#include "diary/DiaryScene.h"
#include "fakes/FakeCalendarFormat.h"

#include <gtest/gtest.h>

namespace kestrova {
namespace {

constexpr DayPlace kMay{14, 4, 0};
constexpr const char* kPath = "/tmp/mine.ics";

// A diary with one event of May and its note, which has been exported.
struct ExchangeScene : DiaryScene {
    FakeCalendarFormat Format;
    Selection Dates{2026, 2026, kMay.Month, kMay.Day, 0, 1};
    CalendarExchange Exchange{{Files, Store, Format, Clock, Texts}};
    ExchangeDialogs Windows{{Exchange, Boxes, Texts, Dates}};

    ExchangeScene() {
        Insert(kMay, MakeEvent(9, 0, "tea"));
        Files.Put(NotePath({1, kMay}), "with milk\r\n");
        Boxes.Files = {std::string(kPath)};
        Windows.Export();
    }

    // What was last told.
    std::string Told() {
        const std::string told = Boxes.Shown.empty() ? "" : Boxes.Shown.back().Text;
        Boxes.Shown.clear();
        return told;
    }

    bool Import(std::optional<bool> answer = {}) {
        Boxes.Files = {std::string(kPath)};
        Boxes.Answers.clear();
        if (answer) {
            Boxes.Answers.push_back(*answer);
        }
        return Windows.Import();
    }
};

TEST(ExchangeDialogsTest, TheDiaryGoesIntoAFile) {
    ExchangeScene scene;
    EXPECT_EQ(scene.Told(), "Events written to the calendar file: 1");
    EXPECT_EQ(scene.Files.Content(kPath), FakeCalendarFormat::kBytes);
    ASSERT_EQ(scene.Format.Held.Events.size(), 1U);
    EXPECT_EQ(scene.Format.Held.Events.front().Note, "with milk");
    scene.Windows.Export(); // no file chosen
    EXPECT_EQ(scene.Told(), "");
}

TEST(ExchangeDialogsTest, NothingComesInUnasked) {
    ExchangeScene scene;
    scene.Store.DataFormat(2026);
    scene.Told();
    scene.Format.Held.Outside = 2;
    EXPECT_FALSE(scene.Import(false));
    EXPECT_EQ(scene.Boxes.Asked.back().Text,
              "Add the events of this calendar file to the diary? New events: 1\n"
              "Outside the two years of the diary: 2");
    EXPECT_EQ(Messages(scene.OnFile(), kMay), "");
    EXPECT_TRUE(scene.Import(true));
    EXPECT_EQ(scene.Told(), "Events added to the diary: 1\nOutside the two years of the diary: 2");
    EXPECT_EQ(Messages(scene.OnFile(), kMay), "tea");
    EXPECT_EQ(scene.Files.Content(scene.NotePath({1, kMay})), "with milk\r\n");
    const std::size_t asked = scene.Boxes.Asked.size();
    EXPECT_FALSE(scene.Import(true)); // all of it is there
    EXPECT_EQ(scene.Boxes.Asked.size(), asked);
    EXPECT_EQ(scene.Told(), "Events added to the diary: 0\nAlready in the diary: 1\n"
                            "Outside the two years of the diary: 2");
}

// What another program writes while the question is open counts, too.
TEST(ExchangeDialogsTest, TheLatestDiaryIsAddedTo) {
    ExchangeScene scene;
    scene.Store.DataFormat(2026);
    scene.Boxes.WhileOpen = [&] {
        scene.Boxes.WhileOpen = {};
        scene.WriteFromOutside(kMay, {MakeEvent(8, 0, "hers"), MakeEvent(9, 0, "tea")});
    };
    EXPECT_TRUE(scene.Import(true));
    EXPECT_EQ(scene.Told(), "Events added to the diary: 0\nAlready in the diary: 1");
    EXPECT_EQ(Messages(scene.OnFile(), kMay), "hers tea");
}

TEST(ExchangeDialogsTest, NewYearMayComeWhileAsking) {
    ExchangeScene scene;
    scene.Store.DataFormat(2026);
    scene.Boxes.WhileOpen = [&] { scene.Dates.BaseYear = 2027; };
    EXPECT_TRUE(scene.Import(true));
    EXPECT_EQ(scene.Format.Asked.FirstYear, 2027);
    EXPECT_EQ(Messages(scene.OnFile(), kMay), ""); // it was of last year
}

TEST(ExchangeDialogsTest, EachFailureHasItsSentence) {
    ExchangeScene scene;
    const auto expect = [&](const std::string& sentence) {
        EXPECT_EQ(scene.Boxes.Shown.back().Icon, DialogIcon::Critical);
        EXPECT_EQ(scene.Told(), sentence);
    };
    scene.Told();
    scene.Format.Trouble = Error{ErrorCode::NotFound, "no library"};
    EXPECT_FALSE(scene.Import());
    expect("The part of Kestrova that handles calendar files is missing: no library");
    scene.Boxes.Files = {std::string(kPath)};
    scene.Windows.Export();
    expect("The part of Kestrova that handles calendar files is missing: no library");
    scene.Format.Trouble = Error{ErrorCode::TooLarge, ""};
    EXPECT_FALSE(scene.Import());
    expect("This file is too large for a calendar: /tmp/mine.ics");
    scene.Format.Trouble.reset();

    scene.Files.Put(kPath, "something else");
    EXPECT_FALSE(scene.Import());
    expect("This is not a whole calendar file: /tmp/mine.ics");
    scene.Files.Put(kPath, std::string(kCalendarFileLimit + 1, 'x'));
    EXPECT_FALSE(scene.Import());
    expect("This file is too large for a calendar: /tmp/mine.ics");
    scene.Files.FailReads(Error{ErrorCode::Busy, "not permitted"}, kPath);
    EXPECT_FALSE(scene.Import());
    expect("The file cannot be read: not permitted");
    scene.Files.FailReads({});
    scene.Files.FailWrites(Error{ErrorCode::Full, "no room"});
    scene.Boxes.Files = {std::string(kPath)};
    scene.Windows.Export();
    expect("The file cannot be written: no room");
    scene.Files.FailWrites({});
    scene.Files.HoldLock(kDataPath);
    scene.Boxes.Files = {std::string(kPath)};
    scene.Windows.Export();
    expect("Diary Busy");
}

TEST(ExchangeDialogsTest, WhatCannotBeSavedIsNotAdded) {
    ExchangeScene scene;
    scene.Store.DataFormat(2026);
    scene.Boxes.WhileOpen = [&] { scene.Files.HoldLock(kDataPath); };
    EXPECT_FALSE(scene.Import(true));
    EXPECT_EQ(scene.Told(), "Diary Busy");
    scene.Files.ReleaseLock(kDataPath);
    EXPECT_EQ(Messages(scene.OnFile(), kMay), "");
    EXPECT_EQ(Messages(scene.Store.Table(), kMay), "");
}

} // namespace
} // namespace kestrova
