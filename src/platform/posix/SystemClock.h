// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Clock.h"

namespace kestrova {

// The machine's clock in the user's time zone. A change of the zone is noticed while the program
// runs.
class SystemClock : public Clock {
public:
    [[nodiscard]] WallTime Now() const override;
};

} // namespace kestrova
