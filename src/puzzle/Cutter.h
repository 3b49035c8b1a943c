// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "puzzle/Bitmap.h"

#include <string>
#include <string_view>

namespace kestrova {

// A part of a picture, in pixels from its top left.
struct PieceArea {
    int Left = 0;
    int Top = 0;
    int Width = 0;
    int Height = 0;

    bool operator==(const PieceArea&) const = default;
};

// How a picture falls into side x side pieces. Every piece has the side's part of the width and the
// height, rounded down; what remains goes to the pieces of the last column and of the last row.
struct CutPlan {
    int Width = 0; // of the picture, in pixels
    int Height = 0;
    int Side = 0;

    // The area of piece k, 1 to Side * Side.
    [[nodiscard]] PieceArea AreaOf(int piece) const;
};

// Cuts the bytes of a bitmap file into those of the pieces' bitmap files. Put side by side, the
// pieces are the picture to the pixel.
class Cutter {
public:
    // Damaged when the bytes are no bitmap that can be cut, or the picture is narrower or lower
    // than `side` pixels. The bytes must outlive the cutter.
    [[nodiscard]] static Result<Cutter> SplitUp(std::string_view bytes, int side);

    [[nodiscard]] const CutPlan& Plan() const { return plan_; }

    // Makes `file` the bitmap file of piece k. Given the same string again and again, it needs no
    // new memory.
    void FillIn(int piece, std::string& file) const;

private:
    Cutter(const Bitmap& picture, int side);

    Bitmap picture_;
    CutPlan plan_;
};

} // namespace kestrova
