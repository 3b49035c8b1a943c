// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/CalendarFormat.h"
#include "platform/qt/ical/IcalOwner.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace kestrova {

// How many steps the library would take at most to give the times of a rule from one time to
// another. It goes through a rule step by step, and within a step there is no stopping it: a rule
// for every second of 30 February keeps it busy for years.
[[nodiscard]] std::int64_t StepsOf(const icalrecurrencetype& rule, const icaltimetype& from,
                                   const icaltimetype& to);

// The diary's own rule that gives the same times for an event which begins at `start`, if the rule
// has no end before `last`.
[[nodiscard]] ExchangeRule RuleOf(const icalrecurrencetype& rule, const icaltimetype& start,
                                  const icaltimetype& last);

} // namespace kestrova
