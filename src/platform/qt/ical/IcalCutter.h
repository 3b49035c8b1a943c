// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Result.h"

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace kestrova {

// One event or time zone of a calendar file, cut out of it: the lines that matter here, unfolded
// and in UTF-8, as a text of its own for the library.
struct IcalBlock {
    std::vector<std::string> Lines;
    std::map<std::string, int> TimeLines; // how many lines say when it takes place, by their names
    bool Damaged = false;                 // a line that matters is no line of such a file
};

struct CutCalendar {
    std::vector<IcalBlock> Events;
    std::vector<IcalBlock> Zones;
};

// Cuts the bytes of a file into what is handed to the library. The library takes components in
// components of any depth, properties without end and whatever stands in them; what it is to read
// is little, and the rest never gets there.
//
// Damaged when the bytes are no calendar, its components do not fit into one another or the end is
// missing. TooLarge when there are more events than in anyone's calendar.
Result<CutCalendar> CutIcal(std::string_view bytes);

} // namespace kestrova
