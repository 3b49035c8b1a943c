// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Clock.h"

namespace kestrova {

// A clock that stands where a test has set it.
class SetClock : public Clock {
public:
    WallTime Time{2026, 10, 22, 9, 0, 0};

    [[nodiscard]] WallTime Now() const override { return Time; }
};

} // namespace kestrova
