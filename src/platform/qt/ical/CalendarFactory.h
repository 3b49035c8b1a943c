// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/CalendarFormat.h"

namespace kestrova {

// The one function that the module of the calendar library exports; what it returns lives as long
// as the process. Whoever changes the interface changes the number in the name, so that a module of
// another version is refused instead of called.
using CalendarEntry = CalendarFormat* (*)();
inline constexpr const char* kCalendarEntryName = "KestrovaCalendar1";

} // namespace kestrova
