// SPDX-License-Identifier: GPL-3.0-or-later
#include "diary/EventList.h"

namespace kestrova {

void EventList::DeleteMsg(const SlotPlace& place) {
    table_.At(place) = DiaryEvent{};
    notes_.Remove(place);
}

void EventList::Move(const SlotPlace& from, const SlotPlace& to) {
    table_.At(to) = std::move(table_.At(from));
    table_.At(from) = DiaryEvent{};
    notes_.Move(from, to);
    if (followed_ == from) {
        followed_ = to;
    }
}

std::optional<int> EventList::SortMsg(const DayPlace& day) {
    if (IsFull(day)) {
        return std::nullopt;
    }
    const SlotPlace scratch(kScratchSlot, day);
    const int key = table_.At(scratch).Key();
    int slot = kEventsPerDay;
    for (; slot > 1; --slot) {
        const SlotPlace below(slot - 1, day);
        if (table_.At(below).IsFree()) {
            continue;
        }
        if (table_.At(below).Key() <= key) {
            break;
        }
        Move(below, {slot, day});
    }
    Move(scratch, {slot, day});
    return slot;
}

// Moves the last event that stands before a later one into the scratch slot.
bool EventList::TakeOutOfOrder(const DayPlace& day) {
    for (int slot = kEventsPerDay - 1; slot >= 1; --slot) {
        const DiaryEvent& next = table_.At({slot + 1, day});
        const DiaryEvent& here = table_.At({slot, day});
        if (!next.IsFree() && !here.IsFree() && next.Key() < here.Key()) {
            Move({slot, day}, {kScratchSlot, day});
            return true;
        }
    }
    return false;
}

void EventList::Pack(const DayPlace& day) {
    int target = 1;
    for (int slot = 1; slot <= kEventsPerDay; ++slot) {
        if (table_.At({slot, day}).IsFree()) {
            continue;
        }
        if (slot != target) {
            Move({slot, day}, {target, day});
        }
        ++target;
    }
}

int EventList::ReSortMsg(const DayPlace& day, int follow) {
    followed_ = SlotPlace(follow, day);
    Pack(day);
    // Each round takes at least one pair out of disorder, so a day of ten needs at most 45.
    while (TakeOutOfOrder(day)) {
        Pack(day);
        SortMsg(day);
    }
    return followed_.Slot;
}

std::optional<int> EventList::UpdateMsg(const SlotPlace& source, const DayPlace& target) {
    if (IsFull(target)) {
        return std::nullopt;
    }
    const SlotPlace scratch(kScratchSlot, target);
    DiaryEvent event = table_.At(source);
    notes_.Move(source, scratch);
    table_.At(scratch) = std::move(event);
    const auto slot = SortMsg(target);
    ReSortMsg(target);
    return slot;
}

std::optional<int> FindEvent(const DiaryTable& table, const DayPlace& day, const DiaryEvent& event,
                             int hint) {
    std::optional<int> same;
    std::optional<int> similar;
    for (int slot = 1; slot <= kEventsPerDay; ++slot) {
        const DiaryEvent& candidate = table.At({slot, day});
        if (candidate.IsFree()) {
            continue;
        }
        if ((!same || slot == hint) && candidate == event) {
            same = slot;
        }
        if ((!similar || slot == hint) && candidate.SameAppointment(event)) {
            similar = slot;
        }
    }
    return same ? same : similar;
}

} // namespace kestrova
