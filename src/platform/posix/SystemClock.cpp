// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/posix/SystemClock.h"

#include <ctime>

namespace kestrova {

WallTime SystemClock::Now() const {
    constexpr int kFirstYear = 1900;
    const std::time_t now = std::time(nullptr);
    // localtime_r alone would keep the zone of the program's start.
    ::tzset();
    std::tm local{};
    ::localtime_r(&now, &local);
    return {local.tm_year + kFirstYear,
            local.tm_mon,
            local.tm_mday,
            local.tm_hour,
            local.tm_min,
            local.tm_sec};
}

} // namespace kestrova
