// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Clock.h"
#include "platform/qt/ical/IcalOwner.h"

#include <map>
#include <string>

namespace kestrova {

// The time zones of a file, and the local time of what stands in it.
class IcalZones {
public:
    // A zone that the file describes. One that is described in no way that a zone could be is left
    // out: following it might take for ever.
    void Add(const std::vector<std::string>& lines);

    // The time of a property in the zone that it names: the one of the file, else the system's of
    // that name. In an unknown zone it is taken for a local one.
    [[nodiscard]] icaltimetype InItsZone(icaltimetype time, icalproperty& property);

    // A time as the clock on this wall shows it, to the minute. Dates alone, and times of no zone,
    // are local already.
    [[nodiscard]] static WallTime WallTimeOf(const icaltimetype& time);

private:
    icaltimezone* Find(const std::string& id);

    std::map<std::string, IcalZone> zones_;
};

} // namespace kestrova
