// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

namespace kestrova {

// The fraction as a whole number of twips, a half going to the even one. Every position and length
// on a page is rounded by this, so that the editor, the preview and paper agree to the twip. The
// denominator is above 0.
[[nodiscard]] constexpr int WholeTwips(std::int64_t numerator, std::int64_t denominator) {
    std::int64_t whole = numerator / denominator;
    std::int64_t rest = numerator % denominator;
    if (rest < 0) {
        rest += denominator;
        --whole;
    }
    const bool up = 2 * rest > denominator || (2 * rest == denominator && whole % 2 != 0);
    return static_cast<int>(whole + (up ? 1 : 0));
}

} // namespace kestrova
