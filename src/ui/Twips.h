// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace kestrova {

// Positions that are given are given in twips: 1440 make an inch, and an inch is 96 of the
// toolkit's pixels, whatever the screen's own are.
[[nodiscard]] constexpr int Pixels(int twips) {
    constexpr int kTwipsPerPixel = 15;
    return (twips + kTwipsPerPixel / 2) / kTwipsPerPixel;
}

[[nodiscard]] constexpr int Twips(int pixels) {
    return pixels * 15;
}

} // namespace kestrova
