// SPDX-License-Identifier: GPL-3.0-or-later
#include "exchange/DiaryImport.h"

#include "diary/DiaryScene.h"

#include <gtest/gtest.h>

namespace kestrova {
namespace {

constexpr int kYear = 2026;
constexpr DayPlace kMay{14, 4, 0};
constexpr WallTime kNow{kYear, 4, 14, 9, 0, 0};

WallTime At(int hour, int minute = 0, const DayPlace& day = kMay) {
    return {kYear + day.Year, day.Month, day.Day, hour, minute, 0};
}

ExchangeEvent MakeExchange(const std::string& summary, std::vector<WallTime> times) {
    ExchangeEvent event;
    event.Uid = summary;
    event.Summary = summary;
    event.Times = std::move(times);
    return event;
}

class DiaryImportTest : public testing::Test {
protected:
    ImportTally Import(const std::vector<ExchangeEvent>& events) {
        ReadCalendar calendar;
        calendar.Events = events;
        const ImportPlan plan = PlanImport(calendar, Texts, kYear, kNow);
        return CarryOut(plan, Events,
                        [this](const SlotPlace& place) {
                            Kept.push_back(place);
                            return KeepFails ? Status(Error{}) : Status(Done{});
                        })
            .Tally;
    }

    [[nodiscard]] const DiaryEvent& Event(int slot, const DayPlace& day = kMay) const {
        return Table.At({slot, day});
    }

    [[nodiscard]] std::string Note(int slot) const {
        const NoteFate fate = Notes.Fate({slot, kMay});
        const auto* text = std::get_if<NoteText>(&fate);
        return text != nullptr ? *text->Text : "";
    }

    StringTable Texts = MsgDefaults();
    DiaryTable Table;
    NotePlan Notes;
    EventList Events{Table, Notes};
    std::vector<SlotPlace> Kept;
    bool KeepFails = false;
};

TEST_F(DiaryImportTest, LongSummariesGoOnInTheNote) {
    const std::string words = "word " + std::string(300, 'w') + " " + std::string(300, 'v');
    const struct {
        std::string Summary;
        const char* Note;
        std::string Msg;
        std::string Bytes;
    } rows[] = {
        {"tea", "", "tea", ""},
        {"tea", "with\nmilk", "tea", "with\r\nmilk\r\n"},
        {" tea \nwith Ada", "and milk", "tea", "with Ada\r\nand milk\r\n"},
        {"\n \n tea\n", "", "tea", ""},
        {words, "x", "word " + std::string(300, 'w'), std::string(300, 'v') + "\r\nx\r\n"},
        {std::string(499, 'w') + "\xC3\xA9", "", std::string(499, 'w'), "\xC3\xA9\r\n"},
    };
    int hour = 0;
    for (const auto& row : rows) {
        ExchangeEvent event = MakeExchange(row.Summary, {At(hour)});
        event.Note = row.Note;
        EXPECT_EQ(Import({event}).Added, 1);
        EXPECT_EQ(Event(++hour).Msg, row.Msg);
        EXPECT_EQ(Note(hour), row.Bytes);
    }
    EXPECT_EQ(Import({MakeExchange(" \n\n", {At(0)})}).Textless, 1);
}

TEST_F(DiaryImportTest, OnlyARuleOfTheDiarysOwnGivesACaption) {
    const auto weekly = [](int firstDay, int times) {
        std::vector<WallTime> all;
        for (int i = 0; i < times; ++i) {
            const CalendarDate date = AddDays({kYear, 0, firstDay}, i * kDaysOfWeek);
            all.push_back({date.Year, date.Month, date.Day, 9, 0, 0});
        }
        return all;
    };
    const WallTime last{kYear, 0, 30, 9, 0, 0}; // a Friday
    const struct {
        ExchangeRule Rule;
        std::vector<WallTime> Times;
        const char* Rpt;
        int Hide;
    } rows[] = {
        {{ExchangeRepeat::Weekly}, weekly(1, 5), "Weekly", 0},
        {{}, weekly(1, 5), "Never", 0},
        {{ExchangeRepeat::Monthly}, weekly(1, 5), "Never", 0}, // another zone has moved the days
        {{ExchangeRepeat::Daily}, {At(9), At(9, 0, {16, 4, 0})}, "Daily", 1},
        {{ExchangeRepeat::MonthlyByWeekday, 4, 5}, {last}, "Last Friday", 0},
        {{ExchangeRepeat::MonthlyByWeekday, 3, 5}, {last}, "Never", 0},
    };
    for (const auto& row : rows) {
        Table = {};
        ExchangeEvent event = MakeExchange("tea", row.Times);
        event.Rule = row.Rule;
        EXPECT_EQ(Import({event}).Added, static_cast<int>(row.Times.size()));
        const WallTime& first = row.Times.front();
        EXPECT_EQ(Event(1, {first.Day, first.Month, 0}).Rpt, row.Rpt);
        EXPECT_EQ(Event(1, {first.Day, first.Month, 0}).Hide, row.Hide);
    }
}

TEST_F(DiaryImportTest, AnAlarmRemindsOfWhatIsToCome) {
    ExchangeEvent event = MakeExchange("tea", {At(8), At(9), At(9, 1)});
    event.Alarm = true;
    Import({event, MakeExchange("quiet", {At(10)})});
    EXPECT_EQ(Event(1).Rmd, "None");
    EXPECT_EQ(Event(2).Rmd, "None");
    EXPECT_EQ(Event(3).Rmd, "Screen");
    EXPECT_EQ(Event(4).Rmd, "None");
}

TEST_F(DiaryImportTest, WhatIsThereStaysAndComesNoSecondTime) {
    Table.At({1, kMay}) = MakeEvent(9, 0, "tea", "Weekly", "Phone");
    const std::vector<ExchangeEvent> events = {
        MakeExchange("tea", {At(9), At(9, 1), At(9, 0, {15, 4, 0})}),
        MakeExchange("tea", {At(9, 1)}), MakeExchange("late", {At(9), {kYear + 2, 0, 1, 9, 0, 0}})};
    const ImportTally tally = Import(events);
    EXPECT_EQ(tally.Added, 3);
    EXPECT_EQ(tally.AlreadyThere, 2); // of the diary's, and told of twice
    EXPECT_TRUE(Event(1) == MakeEvent(9, 0, "tea", "Weekly", "Phone"));
    EXPECT_EQ(Messages(Table, kMay), "tea late tea");
    const DiaryTable before = Table;
    EXPECT_EQ(Import(events).Added, 0);
    EXPECT_TRUE(Table == before);
}

TEST_F(DiaryImportTest, ADayTakesTen) {
    std::vector<ExchangeEvent> events;
    for (int hour = 12; hour > 0; --hour) {
        events.push_back(MakeExchange(std::to_string(hour), {At(hour)}));
    }
    const ImportTally tally = Import(events);
    EXPECT_EQ(tally.Added, 10);
    EXPECT_EQ(tally.NoRoom, 2);
    EXPECT_EQ(Messages(Table, kMay), "1 2 3 4 5 6 7 8 9 10");
}

TEST_F(DiaryImportTest, WhatThisProgramHasWrittenReachesOutAgain) {
    ExchangeEvent event = MakeExchange(" tea ", {At(8)});
    event.Own = {{"REPEAT", "monthly-4-5"}, {"REMINDER", "phone"}, {"DETAIL-1", "555"},
                 {"HIDDEN", "1"},           {"PLACE", "x"},        {"MORE", "x"}};
    const ImportTally tally = Import({event, MakeExchange("quiet", {At(10)})});
    EXPECT_EQ(tally.Added, 2);
    EXPECT_EQ(tally.Reaching, 1);
    DiaryEvent expected = MakeEvent(8, 0, " tea ", "Last Friday", "Phone");
    expected.Extra[1] = "555";
    expected.Hide = 1;
    EXPECT_TRUE(Event(1) == expected);
}

// Seven hundred notes of a megabyte would fill the disc.
TEST_F(DiaryImportTest, NotesHaveALimit) {
    std::vector<WallTime> days;
    for (int day = 1; day <= 28; ++day) {
        days.push_back(At(9, 0, {day, 4, 0}));
    }
    ExchangeEvent event = MakeExchange("tea", days);
    event.Note = std::string(std::size_t{4} << 20U, 'x');
    const ImportTally tally = Import({event, MakeExchange("quiet", {At(10)})});
    EXPECT_EQ(tally.Unreadable, 1);
    EXPECT_EQ(tally.Added, 1);
}

TEST_F(DiaryImportTest, ANoteThatWaitsForItsEventIsKept) {
    NotePlan waiting({GetFile({kScratchSlot, kMay})});
    Notes = waiting;
    EXPECT_EQ(Import({MakeExchange("tea", {At(9)})}).Added, 1);
    EXPECT_EQ(Kept, (std::vector<SlotPlace>{{kScratchSlot, kMay}}));
    EXPECT_FALSE(Notes.Has({1, kMay}));
    Notes = waiting;
    KeepFails = true;
    EXPECT_EQ(Import({MakeExchange("cake", {At(9)})}).Added, 0);
}

} // namespace
} // namespace kestrova
