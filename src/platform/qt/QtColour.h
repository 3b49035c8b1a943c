// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>

#include <cstdint>

namespace kestrova {

// Colours are red + 256 x green + 65536 x blue in the program and in its files.
[[nodiscard]] inline QColor ColourToQt(std::int32_t colour) {
    return {colour & 0xFF, colour >> 8 & 0xFF, colour >> 16 & 0xFF};
}

} // namespace kestrova
