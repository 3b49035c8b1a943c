// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "diary/DiaryEvent.h"

#include <cassert>
#include <vector>

namespace kestrova {

inline constexpr int kDiaryYears = 2;    // index 0: the base year, 1: the next
inline constexpr int kEventsPerDay = 10; // slots 1-10, sorted by time, without gaps
inline constexpr int kScratchSlot = 11;  // where an event waits to be sorted in; never stored
inline constexpr int kStoredMonths = 13; // 0-12 stand in the file, 0-11 are months
inline constexpr int kStoredDays = 32;   // 0-31 stand in the file, 1-31 are days
inline constexpr int kStoredSlots = 11;  // 0-10 stand in the file; slot 0 is always free
inline constexpr int kTableMonths = 14;
inline constexpr int kTableSlots = 12;

// A day of the diary.
struct DayPlace {
    int Day = 1;   // 1-31
    int Month = 0; // 0-11
    int Year = 0;  // year index

    bool operator==(const DayPlace&) const = default;
};

// A slot of the diary.
struct SlotPlace {
    int Slot = 0; // 0-11
    int Day = 1;
    int Month = 0;
    int Year = 0;

    SlotPlace() = default;
    SlotPlace(int slot, int day, int month, int year)
        : Slot(slot), Day(day), Month(month), Year(year) {}
    SlotPlace(int slot, const DayPlace& day) : SlotPlace(slot, day.Day, day.Month, day.Year) {}

    bool operator==(const SlotPlace&) const = default;
    [[nodiscard]] DayPlace InDay() const { return {Day, Month, Year}; }
};

// The whole diary in memory: every slot of two years. Places must lie inside the table.
class DiaryTable {
public:
    DiaryTable()
        : events_(static_cast<std::size_t>(kDiaryYears) * kTableMonths * kStoredDays *
                  kTableSlots) {}

    [[nodiscard]] DiaryEvent& At(const SlotPlace& place) { return events_[Index(place)]; }
    [[nodiscard]] const DiaryEvent& At(const SlotPlace& place) const {
        return events_[Index(place)];
    }

    bool operator==(const DiaryTable&) const = default;

private:
    static std::size_t Index(const SlotPlace& place) {
        assert(place.Slot >= 0 && place.Slot < kTableSlots && place.Day >= 0 &&
               place.Day < kStoredDays && place.Month >= 0 && place.Month < kTableMonths &&
               place.Year >= 0 && place.Year < kDiaryYears);
        const int day = (place.Year * kTableMonths + place.Month) * kStoredDays + place.Day;
        return static_cast<std::size_t>(day) * kTableSlots + static_cast<std::size_t>(place.Slot);
    }

    std::vector<DiaryEvent> events_;
};

// Calls visit(SlotPlace) for every stored slot in the order of the file, slots innermost.
template<typename Visit> void EachStoredSlot(Visit visit) {
    for (int year = 0; year < kDiaryYears; ++year) {
        for (int month = 0; month < kStoredMonths; ++month) {
            for (int day = 0; day < kStoredDays; ++day) {
                for (int slot = 0; slot < kStoredSlots; ++slot) {
                    visit(SlotPlace(slot, day, month, year));
                }
            }
        }
    }
}

} // namespace kestrova
