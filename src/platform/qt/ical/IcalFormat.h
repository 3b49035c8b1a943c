// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/CalendarFormat.h"

namespace kestrova {

// iCalendar by libical, which keeps nothing from one file to the next but the time zones of the
// system that it has looked up.
class IcalFormat : public CalendarFormat {
public:
    IcalFormat();

    Result<std::string> Write(const std::vector<ExchangeEvent>& events,
                              const WallTime& now) override;
    Result<ReadCalendar> Read(std::string_view bytes, const CalendarSpan& span) override;
};

} // namespace kestrova
