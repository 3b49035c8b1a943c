// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace kestrova {

// A font as the user chooses it.
struct FontChoice {
    std::string Family;
    float Size = 0; // points
    bool Bold = false;
    bool Italic = false;

    bool operator==(const FontChoice&) const = default;
};

} // namespace kestrova
