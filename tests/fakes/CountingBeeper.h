// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Beeper.h"

namespace kestrova {

class CountingBeeper : public Beeper {
public:
    int Beeps = 0;

    void Beep() override { ++Beeps; }
};

} // namespace kestrova
