// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calendar/CalendarDate.h"
#include "diary/EventList.h"
#include "language/Kinds.h"

#include <optional>
#include <string>
#include <vector>

namespace kestrova {

// A repeating event is not matched against dates when the clock runs: it is written forward, a copy
// on every later date of its period up to the end of the diary's second year.

// The date one period later. It may be one that its month does not have (30 February): such a date
// is passed over, and the next one reckoned from it. Nothing for Never.
[[nodiscard]] std::optional<CalendarDate> NextOccurrence(const Repeat& repeat,
                                                         const CalendarDate& date);

// The items of the repeat list for events of this date.
[[nodiscard]] std::vector<std::string> BuildRptList(const StringTable& table,
                                                    const CalendarDate& date);

// Writes the event in a slot 1-10 forward, each copy with a copy of its note. Stops at the first
// date that holds the same event already; passes over days that are full. A daily event is hidden
// from the month grid, itself and its copies. An event whose repeat is of no known kind is left
// alone. Year index 0 is `baseYear`.
void RepeatMsg(EventList& events, const StringTable& table, int baseYear, const SlotPlace& source);

} // namespace kestrova
