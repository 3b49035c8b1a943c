// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Beeper.h"

namespace kestrova {

class QtBeeper : public Beeper {
public:
    void Beep() override;
};

} // namespace kestrova
