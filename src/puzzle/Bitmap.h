// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Result.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace kestrova {

// The 54 bytes in front of a bitmap file, little-endian, field by field in the order and width in
// which they stand there.
struct BitmapHeader {
    std::uint16_t Type = 0; // "BM"
    std::uint32_t FileSize = 0;
    std::uint32_t Reserved = 0;
    std::uint32_t DataOffset = 0; // of the pixels, from the first byte of the file
    std::uint16_t InfoSizeLow = 0;
    std::uint16_t InfoSizeHigh = 0;
    std::uint32_t Width = 0;
    std::uint32_t Height = 0; // of rows that go from the bottom up; negative for the other way
    std::uint16_t Planes = 0;
    std::uint16_t BitCount = 0; // of a pixel
    std::uint32_t Compression = 0;
    std::uint32_t ImageSize = 0; // bytes of all rows; 0 says nothing
    std::uint32_t PerMetreX = 0;
    std::uint32_t PerMetreY = 0;
    std::uint32_t ColoursUsed = 0; // in the palette; 0 for as many as there can be
    std::uint32_t ColoursImportant = 0;

    bool operator==(const BitmapHeader&) const = default;
};
inline constexpr std::size_t kBitmapHeaderSize = 54;

// No larger bitmap is read; a picture of 85 megapixels fits.
inline constexpr std::size_t kMaxBitmapBytes = std::size_t{256} << 20;

// The header as it stands, whatever it says. Damaged when the bytes are fewer than a header's.
[[nodiscard]] Result<BitmapHeader> GetHeader(std::string_view bytes);
[[nodiscard]] std::string PutHeader(const BitmapHeader& header);

// The bytes of a row of pixels: padded to a multiple of four.
[[nodiscard]] constexpr std::size_t RowBytes(int width, int bits) {
    return (static_cast<std::size_t>(width) * static_cast<std::size_t>(bits) + 31) / 32 * 4;
}

// The header of a bitmap of this size, of 4, 8 or 24 bits a pixel, with so many colours in its
// palette.
[[nodiscard]] BitmapHeader HeaderOf(int width, int height, int bits, int colours);

// A bitmap file that is what its header says: nothing in here points outside its bytes, which it
// does not own.
struct Bitmap {
    BitmapHeader Header;
    int Width = 0; // pixels, at least 1
    int Height = 0;
    int Bits = 0;             // of a pixel: 4, 8 or 24
    std::string_view Palette; // four bytes a colour; empty at 24 bits
    std::string_view Rows;    // from the bottom up, each of RowBytes
};

// Damaged when the bytes are no bitmap or its parts do not lie within them, or when it is of a kind
// that is not cut: compressed, with rows from the top down, or of another depth than the three.
[[nodiscard]] Result<Bitmap> OpenBitmap(std::string_view bytes);

} // namespace kestrova
