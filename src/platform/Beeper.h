// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace kestrova {

// The desktop's beep. What a beep sounds like, and whether it sounds at all, the user has told the
// desktop.
class Beeper {
public:
    virtual ~Beeper() = default;

    virtual void Beep() = 0;
};

} // namespace kestrova
