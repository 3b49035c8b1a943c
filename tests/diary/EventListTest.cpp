// SPDX-License-Identifier: GPL-3.0-or-later
#include "diary/EventList.h"

#include "diary/DiaryScene.h"
#include "diary/NoteName.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace kestrova {
namespace {

constexpr DayPlace kDay{14, 4, 0};

// A day with events at these hours in slots 1, 2, ... (-1 for a free slot), each with a note that
// is called like the event.
struct Day {
    DiaryTable Table;
    NotePlan Notes{{GetFile({9, 9, 9, 0})}};
    EventList Events{Table, Notes};

    explicit Day(const std::vector<int>& hours) {
        for (std::size_t i = 0; i < hours.size(); ++i) {
            if (hours[i] >= 0) {
                Put(static_cast<int>(i) + 1, hours[i]);
            }
        }
    }

    void Put(int slot, int hour) {
        const std::string name = std::to_string(hour);
        Table.At({slot, kDay}) = MakeEvent(hour, 0, name);
        Notes.Put({slot, kDay}, name);
    }

    // Every event still has its own note, and no note is without its event.
    void ExpectNotesFollow() const {
        for (int slot = 1; slot <= kScratchSlot; ++slot) {
            const DiaryEvent& event = Table.At({slot, kDay});
            const NoteFate expected =
                event.IsFree() ? NoteFate(NoteGone{}) : NoteFate(NoteText{event.Msg});
            EXPECT_EQ(Notes.Fate({slot, kDay}), expected) << "slot " << slot;
        }
    }
};

TEST(EventListTest, EventsAreSortedIn) {
    const struct {
        std::vector<int> Hours;
        int New;
        const char* After;
        int Slot;
    } rows[] = {
        {{}, 9, "9", 1},
        {{8, 10}, 9, "8 9 10", 2},
        {{8, 10}, 7, "7 8 10", 1},
        {{8, 10}, 11, "8 10 11", 3},
        {{1, 2, 3, 4, 5, 6, 7, 8, 9}, 0, "0 1 2 3 4 5 6 7 8 9", 1},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.After);
        Day day(row.Hours);
        day.Put(kScratchSlot, row.New);
        EXPECT_EQ(day.Events.SortMsg(kDay), row.Slot);
        EXPECT_EQ(Messages(day.Table, kDay), row.After);
        EXPECT_TRUE(day.Table.At({kScratchSlot, kDay}).IsFree());
        day.ExpectNotesFollow();
    }
}

TEST(EventListTest, EqualTimesKeepTheOlderEventFirst) {
    Day day({9});
    day.Table.At({kScratchSlot, kDay}) = MakeEvent(9, 0, "younger");
    day.Events.SortMsg(kDay);
    EXPECT_EQ(Messages(day.Table, kDay), "9 younger");
}

TEST(EventListTest, AFullDayTakesNoMore) {
    Day day({0, 1, 2, 3, 4, 5, 6, 7, 8, 9});
    day.Put(kScratchSlot, 12);
    EXPECT_EQ(day.Events.SortMsg(kDay), std::nullopt);
    EXPECT_EQ(Messages(day.Table, kDay), "0 1 2 3 4 5 6 7 8 9");
    EXPECT_EQ(day.Table.At({kScratchSlot, kDay}).Msg, "12");
}

TEST(EventListTest, DisturbedDaysArePutInOrder) {
    const struct {
        std::vector<int> Hours;
        const char* After;
    } rows[] = {
        {{10, 12, 11}, "10 11 12"},
        {{10, -1, 11}, "10 11"},
        {{-1, -1, -1, -1, -1, -1, -1, -1, -1, 5}, "5"},
        {{-1, 9, -1, 3, -1, 7}, "3 7 9"},
        {{9, 8, 7, 6, 5, 4, 3, 2, 1, 0}, "0 1 2 3 4 5 6 7 8 9"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.After);
        Day day(row.Hours);
        day.Events.ReSortMsg(kDay);
        EXPECT_EQ(Messages(day.Table, kDay), row.After);
        day.ExpectNotesFollow();
    }
}

TEST(EventListTest, AnyDisorderIsMended) {
    const unsigned seed = std::random_device{}();
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 random(seed);
    for (int round = 0; round < 500; ++round) {
        std::vector<int> hours = {0, 1, 2, 3, 4, 5, 6, 7, 8, 9};
        std::shuffle(hours.begin(), hours.end(), random);
        for (int& hour : hours) {
            hour = random() % 4 == 0 ? -1 : hour;
        }
        Day day(hours);
        day.Events.ReSortMsg(kDay);
        std::vector<int> expected = hours;
        std::erase(expected, -1);
        std::sort(expected.begin(), expected.end());
        EXPECT_EQ(Messages(day.Table, kDay), Messages(Day(expected).Table, kDay));
        day.ExpectNotesFollow();
    }
}

TEST(EventListTest, DeletingClearsSlotAndNote) {
    Day day({8, 9});
    day.Events.DeleteMsg({1, kDay});
    EXPECT_EQ(day.Table.At({1, kDay}), DiaryEvent{});
    day.ExpectNotesFollow();
    day.Events.DeleteMsg({5, kDay}); // free already
    EXPECT_EQ(Messages(day.Table, kDay), "-9");
}

TEST(EventListTest, MovingToAnotherDateLeavesTheSourceForTheCaller) {
    Day day({8, 9});
    const DayPlace target{15, 4, 0};
    day.Table.At({1, target}) = MakeEvent(7, 0, "seven");
    EXPECT_EQ(day.Events.UpdateMsg({2, kDay}, target), 2);
    EXPECT_EQ(Messages(day.Table, target), "seven 9");
    EXPECT_EQ(day.Notes.Fate({2, target}), NoteFate(NoteText{"9"}));
    EXPECT_EQ(Messages(day.Table, kDay), "8 9");
}

TEST(EventListTest, AnEventIsFoundAgainByWhatItHolds) {
    Day day({8, 9});
    DiaryEvent changed = day.Table.At({2, kDay});
    EXPECT_EQ(day.Events.Find(kDay, changed), 2);
    changed.Rmd = "None";
    EXPECT_EQ(day.Events.Find(kDay, changed), 2);
    day.Table.At({1, kDay}) = changed;
    EXPECT_EQ(day.Events.Find(kDay, changed), 1) << "the one that is the same in all comes first";
    changed.Minute = 1;
    EXPECT_EQ(day.Events.Find(kDay, changed), std::nullopt);
}

TEST(NotePlanTest, AChainOfMovesEndsAsOneChangeAFile) {
    const SlotPlace one(1, kDay);
    const SlotPlace two(2, kDay);
    const SlotPlace three(3, kDay);
    NotePlan notes({GetFile(one), GetFile(two)});
    notes.Move(two, three);
    notes.Move(one, two);
    notes.Put(one, "");
    const std::map<std::string, NoteFate> expected = {
        {GetFile(one), NoteText{}},
        {GetFile(two), NoteFrom{GetFile(one)}},
        {GetFile(three), NoteFrom{GetFile(two)}},
    };
    EXPECT_EQ(notes.Changes(), expected);
    notes.Move(two, one);
    notes.Move(three, two);
    EXPECT_TRUE(notes.Changes().empty()) << "all are back where they were";
}

} // namespace
} // namespace kestrova
