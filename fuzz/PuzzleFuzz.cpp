// SPDX-License-Identifier: GPL-3.0-or-later
// The bitmap of a puzzle: the first byte chooses the side, the rest is the file. The pieces of
// whatever is cut are bitmaps themselves, and together they have the picture's pixels.
#include "Expect.h"

#include "puzzle/Board.h"
#include "puzzle/Cutter.h"

using kestrova::fuzz::Expect;

namespace {

int PixelOf(const kestrova::Bitmap& bitmap, int x, int y) {
    const std::size_t row = kestrova::RowBytes(bitmap.Width, bitmap.Bits) *
                            static_cast<std::size_t>(bitmap.Height - 1 - y);
    const auto byte = [&](int i) {
        return static_cast<unsigned char>(bitmap.Rows[row + static_cast<std::size_t>(i)]);
    };
    switch (bitmap.Bits) {
    case 4: return x % 2 == 0 ? byte(x / 2) >> 4 : byte(x / 2) & 0x0F;
    case 8: return byte(x);
    default: return byte(3 * x) | byte(3 * x + 1) << 8 | byte(3 * x + 2) << 16;
    }
}

void CheckPiece(const kestrova::Bitmap& picture, const kestrova::PieceArea& area,
                const std::string& file) {
    const auto piece = kestrova::OpenBitmap(file);
    Expect(piece.Ok(), "a piece is a bitmap");
    Expect(piece.Value().Header.FileSize == file.size(), "a piece's header knows its size");
    Expect(piece.Value().Palette == picture.Palette, "a piece has the picture's colours");
    Expect(piece.Value().Width == area.Width && piece.Value().Height == area.Height,
           "a piece has its size");
    // A few rows, for there are up to 400 pieces and little time.
    for (int y = 0; y < area.Height; y += 1 + area.Height / 4) {
        for (int x = 0; x<area.Width; x += area.Width> 64 ? 7 : 1) {
            Expect(PixelOf(piece.Value(), x, y) == PixelOf(picture, area.Left + x, area.Top + y),
                   "a piece's pixels are the picture's");
        }
    }
}

} // namespace

int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
    if (size == 0) {
        return 0;
    }
    const int side = kestrova::kPuzzleSizes[data[0] % kestrova::kPuzzleSizes.size()].Side();
    const std::string_view bytes = kestrova::fuzz::View(data + 1, size - 1);
    if (const auto header = kestrova::GetHeader(bytes)) {
        Expect(kestrova::PutHeader(header.Value()) == bytes.substr(0, kestrova::kBitmapHeaderSize),
               "a header is written as it was read");
    }
    const auto cutter = kestrova::Cutter::SplitUp(bytes, side);
    if (!cutter) {
        return 0;
    }
    const auto picture = kestrova::OpenBitmap(bytes);
    std::string file;
    for (int k = 1; k <= side * side; ++k) {
        cutter.Value().FillIn(k, file);
        CheckPiece(picture.Value(), cutter.Value().Plan().AreaOf(k), file);
    }
    return 0;
}
