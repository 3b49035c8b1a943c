// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "settings/ModemState.h"

#include <string>

namespace kestrova {

// Telephone calls through the voice modem, as the rest of the program uses them.
class PhoneCaller {
public:
    virtual ~PhoneCaller() = default;

    // Whether a modem answers on the port that the settings name.
    virtual bool ModemPresent() = 0;

    [[nodiscard]] virtual ModemState Modem() const = 0;

    // Places a call with this dial command, speaks the message and waits for the key 1. True when
    // it was acknowledged. Handles events while it runs.
    virtual bool SendMessage(const std::string& dialString, const std::string& message) = 0;

    // Whether the user has stopped the last call.
    [[nodiscard]] virtual bool WasStopped() const = 0;

    // Lets the line rest for so many seconds, handling events.
    virtual void Delay(int seconds) = 0;
};

} // namespace kestrova
