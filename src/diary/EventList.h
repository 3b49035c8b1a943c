// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "diary/DiaryTable.h"
#include "diary/NotePlan.h"

#include <optional>

namespace kestrova {

// The slot 1-10 of a day that holds this event; one that differs only in how it repeats or reminds
// will do when none is the same in all. Of several that are as good, the one in `hint`, the slot
// where the event was last seen; else the first.
[[nodiscard]] std::optional<int> FindEvent(const DiaryTable& table, const DayPlace& day,
                                           const DiaryEvent& event, int hint = 0);

// Keeps the events of a day sorted by time and packed into slots 1, 2, 3, ..., each with its note.
class EventList {
public:
    EventList(DiaryTable& table, NotePlan& notes) : table_(table), notes_(notes) {}

    [[nodiscard]] DiaryTable& Table() { return table_; }
    [[nodiscard]] NotePlan& Notes() { return notes_; }

    // Clears a slot and deletes its note.
    void DeleteMsg(const SlotPlace& place);

    // Puts the event that waits in the scratch slot among the day's events, after those of the same
    // time, and clears the scratch slot. Returns the event's slot; nothing, and the event goes on
    // waiting, when the day is full.
    std::optional<int> SortMsg(const DayPlace& day);

    // Puts a day back into order and packs it, whatever has happened to it. Returns the slot to
    // which the event of the slot `follow` has gone.
    int ReSortMsg(const DayPlace& day, int follow = 0);

    // Copies an event with its note's move to another date and sorts it in there. The source slot
    // keeps its event; clear it when a move is meant.
    std::optional<int> UpdateMsg(const SlotPlace& source, const DayPlace& target);

    [[nodiscard]] bool IsFull(const DayPlace& day) const {
        return !table_.At({kEventsPerDay, day}).IsFree();
    }

    [[nodiscard]] std::optional<int> Find(const DayPlace& day, const DiaryEvent& event,
                                          int hint = 0) const {
        return FindEvent(table_, day, event, hint);
    }

private:
    void Move(const SlotPlace& from, const SlotPlace& to);
    bool TakeOutOfOrder(const DayPlace& day);
    void Pack(const DayPlace& day);

    DiaryTable& table_;
    NotePlan& notes_;
    SlotPlace followed_; // of the event that a ReSortMsg follows
};

} // namespace kestrova
