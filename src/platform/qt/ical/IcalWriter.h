// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/CalendarFormat.h"

namespace kestrova {

// The bytes of a calendar file. Times are "floating": the diary knows no zones, and nine o'clock is
// to be nine o'clock wherever the file is read. Failed when the library has no memory.
Result<std::string> WriteCalendar(const std::vector<ExchangeEvent>& events, const WallTime& now);

} // namespace kestrova
