// SPDX-License-Identifier: GPL-3.0-or-later
#include "diary/Repeats.h"

#include "diary/DiaryScene.h"
#include "diary/RollOver.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace kestrova {
namespace {

using testing::ElementsAre;

struct Repeated {
    StringTable Texts = MsgDefaults();
    DiaryTable Table;
    NotePlan Notes;
    EventList Events{Table, Notes};
    int BaseYear;

    explicit Repeated(int baseYear) : BaseYear(baseYear) {}

    void Write(const CalendarDate& date, const std::string& rpt) {
        const SlotPlace place(1, date.Day, date.Month, date.Year - BaseYear);
        Table.At(place) = MakeEvent(9, 0, "x", rpt);
        RepeatMsg(Events, Texts, BaseYear, place);
    }

    // Every date that holds the event.
    [[nodiscard]] std::vector<CalendarDate> Dates() const {
        std::vector<CalendarDate> dates;
        EachStoredSlot([&](const SlotPlace& place) {
            if (!Table.At(place).IsFree()) {
                dates.push_back({BaseYear + place.Year, place.Month, place.Day});
            }
        });
        return dates;
    }
};

TEST(RepeatsTest, EachKindReachesTheEndOfTheNextYear) {
    const struct {
        const char* Name;
        CalendarDate From;
        const char* Rpt;
        std::size_t Count;
        CalendarDate Second;
        CalendarDate Last;
    } rows[] = {
        {"never", {2023, 0, 28}, "Never", 1, {2023, 0, 28}, {2023, 0, 28}},
        {"unknown", {2023, 0, 28}, "Wöchentlich", 1, {2023, 0, 28}, {2023, 0, 28}},
        {"empty", {2023, 0, 28}, "", 1, {2023, 0, 28}, {2023, 0, 28}},
        {"daily over a leap day", {2023, 1, 28}, "Daily", 673, {2023, 2, 1}, {2024, 11, 31}},
        {"weekly", {2023, 0, 28}, "Weekly", 101, {2023, 1, 4}, {2024, 11, 28}},
        {"weekly from December", {2023, 11, 30}, "Weekly", 53, {2024, 0, 6}, {2024, 11, 28}},
        {"monthly", {2023, 10, 28}, "Monthly", 14, {2023, 11, 28}, {2024, 11, 28}},
        {"annually", {2023, 5, 6}, "Annually", 2, {2024, 5, 6}, {2024, 5, 6}},
        {"annually in the next year", {2024, 5, 6}, "Annually", 1, {2024, 5, 6}, {2024, 5, 6}},
        {"third Tuesday", {2023, 0, 17}, "3rd  Tuesday", 24, {2023, 1, 21}, {2024, 11, 17}},
        {"first Sunday", {2023, 0, 1}, "1st  Sunday", 24, {2023, 1, 5}, {2024, 11, 1}},
        {"last Friday", {2023, 0, 27}, "Last Friday", 24, {2023, 1, 24}, {2024, 11, 27}},
        {"fifth is last", {2023, 2, 31}, "Last Friday", 22, {2023, 3, 28}, {2024, 11, 27}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.Name);
        Repeated repeated(2023);
        repeated.Write(row.From, row.Rpt);
        const auto dates = repeated.Dates();
        EXPECT_EQ(dates.size(), row.Count);
        EXPECT_EQ(dates[std::min<std::size_t>(1, dates.size() - 1)], row.Second);
        EXPECT_EQ(dates.back(), row.Last);
    }
}

TEST(RepeatsTest, ALeapDayIsDailyToo) {
    Repeated repeated(2023);
    repeated.Write({2023, 1, 28}, "Daily");
    EXPECT_FALSE(repeated.Table.At({1, 29, 1, 1}).IsFree());
    EXPECT_TRUE(repeated.Table.At({1, 29, 1, 0}).IsFree());
    EXPECT_TRUE(repeated.Table.At({1, 30, 1, 1}).IsFree());
}

TEST(RepeatsTest, DatesThatAMonthDoesNotHaveArePassedOver) {
    Repeated repeated(2023);
    repeated.Write({2023, 9, 31}, "Monthly"); // from a file of another program
    EXPECT_THAT(repeated.Dates(), ElementsAre(CalendarDate{2023, 9, 31}, CalendarDate{2023, 11, 31},
                                              CalendarDate{2024, 0, 31}, CalendarDate{2024, 2, 31},
                                              CalendarDate{2024, 4, 31}, CalendarDate{2024, 6, 31},
                                              CalendarDate{2024, 7, 31}, CalendarDate{2024, 9, 31},
                                              CalendarDate{2024, 11, 31}));
}

TEST(RepeatsTest, DailyEventsAreHiddenAndOthersAreNot) {
    Repeated daily(2023);
    daily.Write({2024, 11, 30}, "Daily");
    EXPECT_EQ(daily.Table.At({1, 30, 11, 1}).Hide, 1);
    EXPECT_EQ(daily.Table.At({1, 31, 11, 1}).Hide, 1);
    Repeated weekly(2023);
    weekly.Write({2024, 11, 20}, "Weekly");
    EXPECT_EQ(weekly.Table.At({1, 27, 11, 1}).Hide, 0);
}

TEST(RepeatsTest, WritingForwardTwiceAddsNothing) {
    Repeated repeated(2023);
    repeated.Write({2023, 0, 28}, "Weekly");
    const auto once = repeated.Dates();
    RepeatMsg(repeated.Events, repeated.Texts, 2023, {1, 28, 0, 0});
    EXPECT_EQ(repeated.Dates(), once);
}

TEST(RepeatsTest, AFullDayIsPassedOver) {
    Repeated repeated(2023);
    const DayPlace full{4, 1, 0};
    for (int slot = 1; slot <= kEventsPerDay; ++slot) {
        repeated.Table.At({slot, full}) = MakeEvent(slot, 0, "full");
    }
    repeated.Write({2023, 0, 28}, "Weekly");
    EXPECT_EQ(Messages(repeated.Table, full).find('x'), std::string::npos);
    EXPECT_EQ(Messages(repeated.Table, {11, 1, 0}), "x");
    EXPECT_TRUE(repeated.Table.At({kScratchSlot, full}).IsFree());
}

TEST(RepeatsTest, NotesAreCopiedToEveryOccurrence) {
    Repeated repeated(2023);
    repeated.Notes.Put({1, 6, 5, 0}, "bring cake");
    repeated.Write({2023, 5, 6}, "Annually");
    EXPECT_EQ(repeated.Notes.Fate({1, 6, 5, 0}), NoteFate(NoteText{"bring cake"}));
    EXPECT_EQ(repeated.Notes.Fate({1, 6, 5, 1}), NoteFate(NoteText{"bring cake"}));

    Repeated empty(2023);
    empty.Notes.Put({1, 6, 5, 0}, "");
    empty.Write({2023, 5, 6}, "Annually");
    EXPECT_FALSE(empty.Notes.Has({1, 6, 5, 1})) << "an empty note is not worth a second file";
}

TEST(RepeatsTest, TheListNamesTheWeekdayOfTheDate) {
    const StringTable texts = MsgDefaults();
    EXPECT_THAT(BuildRptList(texts, {2026, 5, 9}),
                ElementsAre("Never", "Daily", "Weekly", "Monthly", "2nd  Tuesday", "Annually"));
    EXPECT_EQ(BuildRptList(texts, {2026, 5, 23})[4], "Last Tuesday"); // a fourth
    EXPECT_EQ(BuildRptList(texts, {2026, 5, 30})[4], "Last Tuesday"); // a fifth
    EXPECT_EQ(BuildRptList(texts, {2026, 5, 1})[4], "1st  Monday");
}

TEST(RollOverTest, NextYearBecomesThisYear) {
    Repeated diary(2025);
    diary.Table.At({1, 3, 2, 0}) = MakeEvent(8, 0, "old");
    diary.Table.At({1, 3, 2, 1}) = MakeEvent(9, 0, "next");
    diary.Notes.Put({1, 3, 2, 1}, "note");
    YearUpdate(diary.Events, diary.Texts, 2026);
    EXPECT_EQ(Messages(diary.Table, {3, 2, 0}), "next");
    EXPECT_EQ(Messages(diary.Table, {3, 2, 1}), "");
    EXPECT_EQ(diary.Notes.Fate({1, 3, 2, 0}), NoteFate(NoteText{"note"}));
    EXPECT_FALSE(diary.Notes.Has({1, 3, 2, 1}));
}

TEST(RollOverTest, RepeatsGoOnAsIfTheyHadBeenWrittenInTheNewYear) {
    for (const char* const rpt :
         {"Daily", "Weekly", "Monthly", "Annually", "2nd  Tuesday", "Last Tuesday"}) {
        for (const int years : {1, 3}) {
            SCOPED_TRACE(std::string(rpt) + " over " + std::to_string(years));
            Repeated diary(2023);
            diary.Write({2023, 0, 10}, rpt);
            BringForward(diary.Events, diary.Texts, 2023, 2023 + years);
            diary.BaseYear = 2023 + years;
            const auto dates = diary.Dates();
            ASSERT_FALSE(dates.empty());
            // Written forward afresh from its first date in the new base year, it is the same.
            Repeated afresh(2023 + years);
            afresh.Write(dates.front(), rpt);
            EXPECT_EQ(dates, afresh.Dates());
        }
    }
}

TEST(RollOverTest, OnlyRemindersOfPastDaysGo) {
    DiaryTable table;
    const StringTable texts = MsgDefaults();
    const std::vector<SlotPlace> past = {{1, 1, 0, 0}, {10, 31, 4, 0}, {1, 13, 5, 0}};
    const std::vector<SlotPlace> kept = {{1, 14, 5, 0}, {1, 1, 6, 0}, {1, 1, 0, 1}};
    for (const auto& places : {past, kept}) {
        for (const SlotPlace& place : places) {
            table.At(place) = MakeEvent(1, 0, "x", "Never", "Phone");
        }
    }
    EXPECT_EQ(PastRemindersOff(table, texts, 5, 14), 3);
    for (const SlotPlace& place : past) {
        EXPECT_EQ(table.At(place).Rmd, "None");
    }
    for (const SlotPlace& place : kept) {
        EXPECT_EQ(table.At(place).Rmd, "Phone");
    }
    EXPECT_EQ(PastRemindersOff(table, texts, 5, 14), 0) << "None needs no saving";
}

} // namespace
} // namespace kestrova
