// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calendar/CalendarDate.h"
#include "diary/EventList.h"
#include "language/StringTable.h"
#include "platform/CalendarFormat.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace kestrova {

// What has become of the events of a file. Of an event that comes back, each time counts where it
// gets as far as the diary.
struct ImportTally {
    int Added = 0;
    int Reaching = 0;     // of those added, how many telephone, send mail or open a file
    int AlreadyThere = 0; // the same time and message stands in the diary
    int NoRoom = 0;       // on their day
    int Outside = 0;      // the two years of the diary
    int Textless = 0;     // without a text, or called off
    int Unreadable = 0;   // or too large

    bool operator==(const ImportTally&) const = default;
};

// An event of the diary to be.
struct PlannedEvent {
    DayPlace Day;
    int Place = 0; // among those of the day at the same time
    DiaryEvent Event;
    std::shared_ptr<const std::string> Note; // bytes, which all times of an event share
    std::string Uid;
    bool Reaches = false;
};

struct ImportPlan {
    std::vector<PlannedEvent> Events; // in the order of their days and times
    ImportTally Left;                 // what does not get that far
};

// The events of a calendar file as the diary holds them:
// - The first line of a long summary is the message, the rest goes into the note.
// - A rule that is the diary's own and has no end gives its caption to all copies; else they repeat
//   never, for the diary would go on with them when the year turns.
// - An alarm becomes a reminder on the screen while its time lies ahead of `now`.
// - What this program has written itself comes back as it was.
[[nodiscard]] ImportPlan PlanImport(const ReadCalendar& calendar, const StringTable& texts,
                                    int baseYear, const WallTime& now);

// Adds the events to a diary where they are not there yet and their day has room; nothing that is
// there changes. `keepNote` keeps a note that nobody has accepted yet, where a new event is to wait
// for its place; when it fails, nothing may be saved.
struct ImportResult {
    ImportTally Tally;
    Status Kept = Done{};
};
[[nodiscard]] ImportResult CarryOut(const ImportPlan& plan, EventList& events,
                                    const std::function<Status(const SlotPlace&)>& keepNote);

} // namespace kestrova
