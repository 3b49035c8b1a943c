// SPDX-License-Identifier: GPL-3.0-or-later
#include "exchange/DiaryExport.h"

#include "diary/DiaryScene.h"
#include "diary/Repeats.h"
#include "exchange/ExchangeCodes.h"

#include <gtest/gtest.h>

namespace kestrova {
namespace {

constexpr int kYear = 2026;

class DiaryExportTest : public testing::Test {
protected:
    // Puts an event into a day, and its copies.
    void Add(const DayPlace& day, const DiaryEvent& event, const std::string& note = {}) {
        Events.Table().At({kScratchSlot, day}) = event;
        if (!note.empty()) {
            Notes.Put({kScratchSlot, day}, note);
        }
        const auto slot = Events.SortMsg(day);
        RepeatMsg(Events, Texts, kYear, {*slot, day});
    }

    ExportedDiary Export() {
        for (const auto& [name, fate] : Notes.Changes()) {
            if (const auto* text = std::get_if<NoteText>(&fate)) {
                Diary.Notes[name] = *text->Text;
            }
        }
        return ExportDiary(Diary, Texts, kYear);
    }

    StringTable Texts = MsgDefaults();
    DiarySnapshot Diary;
    NotePlan Notes;
    EventList Events{Diary.Table, Notes};
};

TEST_F(DiaryExportTest, CopiesBecomeOneEventWithARule) {
    const struct {
        DayPlace Day;
        const char* Rpt;
        std::size_t Times;
        ExchangeRule Rule;
        const char* Code;
    } rows[] = {
        {{28, 1, 0}, "Daily", 672, {ExchangeRepeat::Daily}, "daily"},
        {{28, 0, 0}, "Weekly", 101, {ExchangeRepeat::Weekly}, "weekly"},
        {{31, 0, 0}, "Monthly", 14, {ExchangeRepeat::Monthly}, "monthly"},
        {{17, 2, 0}, "3rd  Tuesday", 22, {ExchangeRepeat::MonthlyByWeekday, 3, 2}, "monthly-3-2"},
        {{27, 10, 0}, "Last Friday", 14, {ExchangeRepeat::MonthlyByWeekday, 4, 5}, "monthly-4-5"},
        {{1, 4, 0}, "Annually", 2, {ExchangeRepeat::Annually}, "annually"},
        {{1, 4, 0}, "Never", 1, {}, "never"},
        {{1, 4, 0}, "Manchmal", 1, {}, "=Manchmal"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.Rpt);
        Diary = {};
        Add(row.Day, MakeEvent(9, 5, "tea", row.Rpt));
        const ExportedDiary exported = Export();
        ASSERT_EQ(exported.Events.size(), 1U);
        const ExchangeEvent& event = exported.Events.front();
        EXPECT_EQ(event.Times.size(), row.Times);
        EXPECT_EQ(event.Times.front(), (WallTime{kYear, row.Day.Month, row.Day.Day, 9, 5, 0}));
        EXPECT_TRUE(event.Gaps.empty());
        EXPECT_EQ(event.Rule, row.Rule);
        EXPECT_EQ(event.Own.at(own::kRepeat), row.Code);
        EXPECT_EQ(exported.Copies, static_cast<int>(row.Times));
    }
}

TEST_F(DiaryExportTest, WhatIsNotTheSameInAllIsAnEventOfItsOwn) {
    Add({1, 0, 0}, MakeEvent(9, 0, "tea", "Weekly"), "with milk");
    Diary.Table.At({1, 8, 0, 0}).Rmd = "None";      // reminded
    Events.DeleteMsg({1, 22, 0, 0});                // deleted
    Notes.Put({1, 29, 0, 0}, std::string("black")); // another note
    Add({5, 1, 0}, MakeEvent(9, 0, "first"));       // one day's tea is the second of its time
    Diary.Table.At({1, 5, 1, 0}) = MakeEvent(9, 0, "first");
    Diary.Table.At({2, 5, 1, 0}) = Diary.Table.At({1, 12, 1, 0});
    Notes.Move({1, 5, 1, 0}, {2, 5, 1, 0});
    const ExportedDiary exported = Export();
    ASSERT_EQ(exported.Events.size(), 5U);
    const ExchangeEvent& run = exported.Events[0];
    EXPECT_EQ(run.Note, "with milk");
    EXPECT_EQ(run.Times.size(), 105U - 4);
    EXPECT_EQ(run.Gaps, (std::vector<WallTime>{{kYear, 0, 8, 9, 0, 0},
                                               {kYear, 0, 22, 9, 0, 0},
                                               {kYear, 0, 29, 9, 0, 0},
                                               {kYear, 1, 5, 9, 0, 0}}));
    EXPECT_TRUE(run.Alarm);
    EXPECT_FALSE(exported.Events[1].Alarm);
    EXPECT_EQ(exported.Events[2].Note, "black");
    EXPECT_EQ(exported.Events[3].Summary, "first");
    EXPECT_EQ(exported.Events[4].Own.at(own::kPlace), "1");
    EXPECT_EQ(exported.Copies, 105);
}

TEST_F(DiaryExportTest, TheIdentifierGoesWithTheEvent) {
    Add({1, 0, 0}, MakeEvent(9, 0, "tea"));
    Add({1, 0, 0}, MakeEvent(9, 0, "tea"));
    const auto first = Export().Events;
    ASSERT_EQ(first.size(), 2U);
    EXPECT_NE(first[0].Uid, first[1].Uid);
    Add({1, 0, 0}, MakeEvent(8, 0, "earlier"));
    const auto second = Export().Events;
    EXPECT_EQ(second[1].Uid, first[0].Uid);
    EXPECT_EQ(second[2].Uid, first[1].Uid);
    EXPECT_NE(second[0].Uid, first[0].Uid);
}

TEST_F(DiaryExportTest, WhatCannotBeWrittenIsCounted) {
    Add({1, 0, 0}, MakeEvent(9, 0, "tea"), std::string("\0", 1));
    Diary.Table.At({1, 2, 0, 0}) = MakeEvent(24, 0, "no such hour");
    Diary.Table.At({1, 30, 1, 0}) = MakeEvent(9, 0, "no such day");
    Diary.Table.At({1, 1, 12, 0}) = MakeEvent(9, 0, "no such month");
    const ExportedDiary exported = Export();
    EXPECT_EQ(exported.Copies, 1);
    EXPECT_EQ(exported.LeftOut, 3);
    EXPECT_EQ(exported.NotesLeftOut, 1);
}

TEST_F(DiaryExportTest, CaptionsComeBackFromTheirWords) {
    for (const char* const caption : {"Never", "Daily", "2nd  Tuesday", "Last Sunday", "", "=x"}) {
        EXPECT_EQ(RepeatOfCode(Texts, RepeatCode(Texts, caption)), caption);
    }
    for (const char* const caption : {"Screen", "Phone", "None", "", "Pigeon"}) {
        EXPECT_EQ(ReminderOfCode(Texts, ReminderCode(Texts, caption)), caption);
    }
    for (const char* const code : {"", "monthly-5-1", "monthly-1-8", "monthly-", "hourly"}) {
        EXPECT_EQ(RepeatOfCode(Texts, code), "Never") << code;
        EXPECT_EQ(ReminderOfCode(Texts, code), "None") << code;
    }
}

} // namespace
} // namespace kestrova
