// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace kestrova {

// A bitmap as it lies inside of a drawing: an information header, the colours, the rows.
struct DibImage {
    int Width = 0; // at least 1
    int Height = 0;
    bool BottomUp = true;              // how the rows stood in the file
    std::vector<std::uint32_t> Pixels; // 0xFFRRGGBB, from the top row down
};

// What the colours after the header are.
enum class DibColours { Rgb = 0, PaletteIndices = 1 };

// Reads one of 1, 4, 8, 16, 24 or 32 bits, plain or run-length encoded, of at most so many pixels.
// Nothing when it is of another kind, or when its parts do not lie within the bytes. A palette
// of the drawing is not known here: indices into one give greys.
[[nodiscard]] std::optional<DibImage> DecodeDib(std::string_view bytes, DibColours colours,
                                                std::size_t mostPixels);

} // namespace kestrova
