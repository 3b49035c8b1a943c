// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>

namespace kestrova {

// How large a picture may be to be read at all: beyond the largest cameras, below what takes the
// memory of a small machine. A header that claims more is not believed.
inline constexpr std::int64_t kMostPicturePixels = std::int64_t{128} << 20;
inline constexpr std::size_t kMostPictureBytes = std::size_t{512} << 20;

// The same for a file of drawing orders, which is read whole.
inline constexpr std::size_t kMostDrawingBytes = std::size_t{64} << 20;

} // namespace kestrova
