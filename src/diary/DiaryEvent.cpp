// SPDX-License-Identifier: GPL-3.0-or-later
#include "diary/DiaryEvent.h"

#include "text/Numbers.h"

namespace kestrova {

std::string EventTime(const DiaryEvent& event) {
    return TwoDigits(event.Hour) + ":" + TwoDigits(event.Minute);
}

} // namespace kestrova
