// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "phone/PhoneCaller.h"

namespace kestrova {

// The caller of a program that cannot telephone: the modem is switched off for good.
class UnavailableCaller : public PhoneCaller {
public:
    bool ModemPresent() override { return false; }
    [[nodiscard]] ModemState Modem() const override { return ModemState::Off; }
    bool SendMessage(const std::string& /*dialString*/, const std::string& /*message*/) override {
        return false;
    }
    void Delay(int /*seconds*/) override {}
};

} // namespace kestrova
