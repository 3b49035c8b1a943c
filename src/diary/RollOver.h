// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "diary/EventList.h"
#include "language/StringTable.h"

namespace kestrova {

// Brings the diary forward by one year: the next year becomes the base year, notes included, the
// new next year starts empty, and repeating events are written on into it. The old base year's
// events are gone. `newBaseYear` is the year that year index 0 stands for afterwards.
void YearUpdate(EventList& events, const StringTable& table, int newBaseYear);

// Does so from one year to a later one, year by year, so that repeating events go on and no event
// shows under a wrong year.
void BringForward(EventList& events, const StringTable& table, int fromYear, int toYear);

// Sets the reminders of the base year's days before this one to None. Returns how many events have
// changed.
int PastRemindersOff(DiaryTable& table, const StringTable& texts, int todayMonth, int todayDay);

} // namespace kestrova
