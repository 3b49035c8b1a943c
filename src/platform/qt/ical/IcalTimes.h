// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/CalendarFormat.h"
#include "platform/qt/ical/IcalZones.h"

#include <cstdint>
#include <optional>
#include <set>
#include <vector>

namespace kestrova {

// Local times, and days on which any time is meant.
struct TimeSet {
    std::set<WallTime> Times;
    std::set<WallTime> Days; // at midnight

    void Add(const icaltimetype& time);
    [[nodiscard]] bool Has(const WallTime& time) const;
};

// When the events of one file take place, within the years asked for. All of them together may take
// only so many steps.
class IcalTimes {
public:
    IcalTimes(IcalZones& zones, const CalendarSpan& span);

    // The times of an event, in order, but for those that other components replace. Nothing for one
    // that has no start, or whose rule would take too long or gives more times than the years have
    // room for.
    [[nodiscard]] std::optional<std::vector<WallTime>> Of(icalcomponent& event,
                                                          const TimeSet& replaced);

    // The diary's own rule that gives these times.
    [[nodiscard]] ExchangeRule Rule(icalcomponent& event, const std::vector<WallTime>& times) const;

    // The times that the properties of a kind list.
    void AddAll(icalcomponent& event, icalproperty_kind kind, TimeSet& set);

private:
    [[nodiscard]] std::optional<icaltimetype> StartOf(icalcomponent& event);
    [[nodiscard]] bool AddRule(icalrecurrencetype rule, const icaltimetype& start, TimeSet& set);
    bool AddRules(icalcomponent& event, icalproperty_kind kind, const icaltimetype& start,
                  TimeSet& set);

    IcalZones& zones_;
    CalendarSpan span_;
    icaltimetype from_; // with room for the days that zones and long events take
    icaltimetype to_;
    std::int64_t stepsLeft_;
};

} // namespace kestrova
