// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "print/PageLayout.h"

#include <array>
#include <vector>

namespace kestrova {

// A rectangle on the page, in twips.
struct PageBox {
    int Left = 0;
    int Top = 0;
    int Width = 0;
    int Height = 0;

    bool operator==(const PageBox&) const = default;

    [[nodiscard]] int Right() const { return Left + Width; }
    [[nodiscard]] int Bottom() const { return Top + Height; }
    [[nodiscard]] bool Contains(int x, int y) const {
        return x >= Left && y >= Top && x < Right() && y < Bottom();
    }
    [[nodiscard]] bool Meets(const PageBox& other) const {
        return Left < other.Right() && other.Left < Right() && Top < other.Bottom() &&
               other.Top < Bottom();
    }
};

[[nodiscard]] PageBox BoxOf(const LayoutItem& item);
void SetBox(LayoutItem& item, const PageBox& box);

// The eight handles around what is selected, in the order of their indices: the upper row from left
// to right, the two at the sides, the lower row.
inline constexpr std::size_t kHandles = 8;
inline constexpr int kHandleSide = 100;
inline constexpr int kSmallestSide = 150; // of an object that is being resized

// Where a handle takes hold: -1 the left or upper side, 1 the right or lower one, 0 neither.
struct HandleSides {
    int Across = 0;
    int Down = 0;
};
inline constexpr std::array<HandleSides, kHandles> kHandleSides = {
    {{-1, -1}, {0, -1}, {1, -1}, {-1, 0}, {1, 0}, {-1, 1}, {0, 1}, {1, 1}}};

// PlaceSp: the places of the handles around a box.
[[nodiscard]] std::array<PageBox, kHandles> HandleBoxes(const PageBox& around);

enum class Proportions { Free, Kept };

// The box after a handle has been moved by so many twips: the sides it takes hold of follow, and
// none becomes shorter than kSmallestSide or, when it was so already, than it was. With the
// proportions kept, the side opposite stays where it is, and a handle in the middle of a side takes
// the other direction along evenly on both its sides.
[[nodiscard]] PageBox Resized(const PageBox& box, std::size_t handle, int across, int down,
                              Proportions proportions);

// Whether an object may be dropped on one of this kind: backgrounds take all, the page's picture
// takes pictures and the user's texts, and the others take their like.
[[nodiscard]] bool Accepts(LayoutKind target, LayoutKind dropped);

} // namespace kestrova
