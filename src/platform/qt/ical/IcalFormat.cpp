// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/qt/ical/IcalFormat.h"

#include "platform/qt/ical/IcalReader.h"
#include "platform/qt/ical/IcalWriter.h"

#include <libical/ical.h>

namespace kestrova {

namespace {

// The library's ring of buffers holds on to the last 2,500 texts, however long.
class RingOfBuffers {
public:
    RingOfBuffers() = default;
    ~RingOfBuffers() { icalmemory_free_ring(); }
    RingOfBuffers(const RingOfBuffers&) = delete;
    RingOfBuffers& operator=(const RingOfBuffers&) = delete;
};

} // namespace

// An error in a file is no reason to end the program.
IcalFormat::IcalFormat() {
    icalerror_set_errors_are_fatal(0);
}

Result<std::string> IcalFormat::Write(const std::vector<ExchangeEvent>& events,
                                      const WallTime& now) {
    const RingOfBuffers ring;
    return WriteCalendar(events, now);
}

Result<ReadCalendar> IcalFormat::Read(std::string_view bytes, const CalendarSpan& span) {
    const RingOfBuffers ring;
    return IcalReader(span).Read(bytes);
}

} // namespace kestrova
