// SPDX-License-Identifier: GPL-3.0-or-later
#include "diary/RollOver.h"

#include "diary/Repeats.h"

namespace kestrova {

namespace {

constexpr int kNextYear = 1;

void MoveNextYearDown(EventList& events) {
    EachStoredSlot([&](const SlotPlace& place) {
        if (place.Year != 0) {
            return;
        }
        const SlotPlace next(place.Slot, place.Day, place.Month, kNextYear);
        events.DeleteMsg(place);
        events.Table().At(place) = std::move(events.Table().At(next));
        events.Notes().Move(next, place);
        events.DeleteMsg(next);
    });
}

} // namespace

void YearUpdate(EventList& events, const StringTable& table, int newBaseYear) {
    MoveNextYearDown(events);
    EachStoredSlot([&](const SlotPlace& place) {
        if (place.Year == 0 && place.Slot > 0 && place.Day > 0 && place.Month < kMonths &&
            !events.Table().At(place).IsFree()) {
            RepeatMsg(events, table, newBaseYear, place);
        }
    });
}

void BringForward(EventList& events, const StringTable& table, int fromYear, int toYear) {
    for (int year = fromYear + 1; year <= toYear; ++year) {
        YearUpdate(events, table, year);
    }
}

int PastRemindersOff(DiaryTable& table, const StringTable& texts, int todayMonth, int todayDay) {
    const std::string& none = ReminderCaption(texts, ReminderKind::None);
    int changed = 0;
    for (int month = 0; month <= todayMonth; ++month) {
        const int end = month == todayMonth ? todayDay : kStoredDays;
        for (int day = 0; day < end; ++day) {
            for (int slot = 0; slot < kStoredSlots; ++slot) {
                DiaryEvent& event = table.At({slot, day, month, 0});
                if (!event.IsFree() && event.Rmd != none) {
                    event.Rmd = none;
                    ++changed;
                }
            }
        }
    }
    return changed;
}

} // namespace kestrova
