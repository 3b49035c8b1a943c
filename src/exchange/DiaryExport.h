// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "diary/DiaryStore.h"
#include "language/StringTable.h"
#include "platform/CalendarFormat.h"

#include <vector>

namespace kestrova {

struct ExportedDiary {
    std::vector<ExchangeEvent> Events;
    int Copies = 0;       // how many events of the diary that are
    int LeftOut = 0;      // events at no time of a day, or on no day, that there is
    int NotesLeftOut = 0; // notes that are no text
};

// The diary as calendar programs hold one. It writes a repeating event forward as copies: those
// that belong together (the same in all, note included, on the dates of their repeat) become one
// event with a rule, and what has been deleted from among them its exceptions.
[[nodiscard]] ExportedDiary ExportDiary(const DiarySnapshot& diary, const StringTable& texts,
                                        int baseYear);

} // namespace kestrova
