// SPDX-License-Identifier: GPL-3.0-or-later
#include "reminders/Chimes.h"

#include "text/Numbers.h"

#include <array>

namespace kestrova {

bool ChimeDue(ChimeInterval interval, int minute) {
    constexpr std::array kMinutesBetween = {0, 60, 30, 15, 5};
    const int between = kMinutesBetween[static_cast<std::size_t>(interval)];
    return between != 0 && minute % between == 0;
}

std::string TimeSentence(const AppSettings& settings, int hour, int minute) {
    return settings.Greeting + ". " + TwoDigits(hour) + ":" + TwoDigits(minute) + ". " +
           settings.Farewell;
}

} // namespace kestrova
