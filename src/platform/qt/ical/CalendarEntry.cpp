// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/qt/ical/CalendarFactory.h"
#include "platform/qt/ical/IcalFormat.h"

namespace kestrova {

extern "C" [[gnu::visibility("default")]] CalendarFormat* KestrovaCalendar1() {
    static IcalFormat format;
    return &format;
}

} // namespace kestrova
