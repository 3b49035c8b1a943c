// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace kestrova {

// Whether telephone calls can be made (`ModemOff`). The event editor offers telephone reminders
// below NoModem.
enum class ModemState {
    On = 0,     // a modem answers on the port that the settings name
    Off = 1,    // no usable modem is set up
    NoModem = 2 // this machine has no place for one
};

} // namespace kestrova
