// SPDX-License-Identifier: GPL-3.0-or-later
#include "puzzle/Cutter.h"

#include <algorithm>
#include <cassert>
#include <cstring>

namespace kestrova {

namespace {

constexpr int kHalfByte = 4; // bits: two pixels share a byte, the left one in its upper half

// Copies pixels that begin in the lower half of a byte, so that the first comes to an upper half.
void CopyShifted(const char* from, char* to, int pixels) {
    const auto at = [from](int i) {
        return static_cast<unsigned>(static_cast<unsigned char>(from[i]));
    };
    for (int i = 0; i < pixels / 2; ++i) {
        to[i] = static_cast<char>((at(i) << 4U | at(i + 1) >> 4U) & 0xFFU);
    }
    if (pixels % 2 != 0) {
        to[pixels / 2] = static_cast<char>(at(pixels / 2) << 4U & 0xF0U);
    }
}

// Copies a row's pixels from `left` on to the front of another row.
void CopyPixels(const char* row, int left, char* to, int pixels, int bits) {
    const char* const from = row + static_cast<std::ptrdiff_t>(left) * bits / 8;
    if (bits == kHalfByte && left % 2 != 0) {
        CopyShifted(from, to, pixels);
        return;
    }
    std::memcpy(to, from,
                (static_cast<std::size_t>(pixels) * static_cast<std::size_t>(bits) + 7) / 8);
    if (bits == kHalfByte && pixels % 2 != 0) {
        // The lower half of the last byte is the neighbour's.
        to[pixels / 2] = static_cast<char>(to[pixels / 2] & 0xF0);
    }
}

} // namespace

PieceArea CutPlan::AreaOf(int piece) const {
    assert(piece >= 1 && piece <= Side * Side);
    const int row = (piece - 1) / Side;
    const int column = (piece - 1) % Side;
    const int width = Width / Side;
    const int height = Height / Side;
    PieceArea area{column * width, row * height, width, height};
    if (column == Side - 1) {
        area.Width = Width - area.Left;
    }
    if (row == Side - 1) {
        area.Height = Height - area.Top;
    }
    return area;
}

Cutter::Cutter(const Bitmap& picture, int side)
    : picture_(picture), plan_{picture.Width, picture.Height, side} {}

Result<Cutter> Cutter::SplitUp(std::string_view bytes, int side) {
    assert(side > 0);
    const auto picture = OpenBitmap(bytes);
    if (!picture) {
        return picture.Failure();
    }
    if (std::min(picture.Value().Width, picture.Value().Height) < side) {
        return Error{ErrorCode::Damaged, "a picture with fewer pixels than pieces"};
    }
    return Cutter(picture.Value(), side);
}

void Cutter::FillIn(int piece, std::string& file) const {
    const PieceArea area = plan_.AreaOf(piece);
    const std::size_t stride = RowBytes(plan_.Width, picture_.Bits);
    const std::size_t pieceStride = RowBytes(area.Width, picture_.Bits);
    const std::size_t rowsSize = pieceStride * static_cast<std::size_t>(area.Height);
    const std::size_t offset = kBitmapHeaderSize + picture_.Palette.size();

    BitmapHeader header = picture_.Header;
    header.FileSize = static_cast<std::uint32_t>(offset + rowsSize);
    header.DataOffset = static_cast<std::uint32_t>(offset);
    header.Width = static_cast<std::uint32_t>(area.Width);
    header.Height = static_cast<std::uint32_t>(area.Height);
    header.ImageSize = static_cast<std::uint32_t>(rowsSize);
    header.ColoursUsed = static_cast<std::uint32_t>(picture_.Palette.size() / 4);
    header.ColoursImportant = std::min(header.ColoursImportant, header.ColoursUsed);

    file.resize(offset + rowsSize);
    file.replace(0, kBitmapHeaderSize, PutHeader(header));
    file.replace(kBitmapHeaderSize, picture_.Palette.size(), picture_.Palette);

    // Rows stand from the bottom up, in the piece as in the picture.
    const int lowest = plan_.Height - area.Top - area.Height;
    const char* from = picture_.Rows.data() + stride * static_cast<std::size_t>(lowest);
    char* to = file.data() + offset;
    for (int row = 0; row < area.Height; ++row) {
        // The padding lies within the row's last four bytes, over which the pixels are written.
        std::memset(to + pieceStride - 4, 0, 4);
        CopyPixels(from, area.Left, to, area.Width, picture_.Bits);
        from += stride;
        to += pieceStride;
    }
}

} // namespace kestrova
