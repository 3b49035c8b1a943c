// SPDX-License-Identifier: GPL-3.0-or-later
#include "print/Handles.h"

#include <algorithm>
#include <cmath>

namespace kestrova {

namespace {

// The length that a side has after the handle on it was moved.
int SideAfter(int length, int side, int moved) {
    return side == 0 ? length : std::max(length + side * moved, std::min(length, kSmallestSide));
}

int Scaled(int length, double factor) {
    return static_cast<int>(std::lround(length * factor));
}

// The least that a box may be scaled by.
double LeastFactor(const PageBox& box) {
    const auto least = [](int length) {
        return static_cast<double>(std::min(length, kSmallestSide)) / length;
    };
    return std::max(least(box.Width), least(box.Height));
}

// The start of a stretch of which one end, or its middle, stays.
int StartAfter(int start, int before, int after, int side) {
    if (side < 0) {
        return start + before - after;
    }
    return side > 0 ? start : start + (before - after) / 2;
}

} // namespace

PageBox BoxOf(const LayoutItem& item) {
    return {item.Left, item.Top, item.Width, item.Height};
}

void SetBox(LayoutItem& item, const PageBox& box) {
    item.Left = box.Left;
    item.Top = box.Top;
    item.Width = box.Width;
    item.Height = box.Height;
}

std::array<PageBox, kHandles> HandleBoxes(const PageBox& around) {
    std::array<PageBox, kHandles> boxes;
    for (std::size_t i = 0; i < kHandles; ++i) {
        const auto [across, down] = kHandleSides[i];
        const int left = across < 0
                             ? -kHandleSide
                             : (across > 0 ? around.Width : around.Width / 2 - kHandleSide / 2);
        const int top = down < 0 ? -kHandleSide
                                 : (down > 0 ? around.Height : around.Height / 2 - kHandleSide / 2);
        boxes[i] = {around.Left + left, around.Top + top, kHandleSide, kHandleSide};
    }
    return boxes;
}

PageBox Resized(const PageBox& box, std::size_t handle, int across, int down,
                Proportions proportions) {
    const HandleSides sides = kHandleSides[handle];
    PageBox after{0, 0, SideAfter(box.Width, sides.Across, across),
                  SideAfter(box.Height, sides.Down, down)};
    if (proportions == Proportions::Kept && box.Width > 0 && box.Height > 0) {
        const double wider = static_cast<double>(after.Width) / box.Width;
        const double higher = static_cast<double>(after.Height) / box.Height;
        // What the hand moved further decides.
        const bool byWidth =
            sides.Down == 0 || (sides.Across != 0 && std::abs(wider - 1) > std::abs(higher - 1));
        const double factor = std::max(byWidth ? wider : higher, LeastFactor(box));
        after.Width = Scaled(box.Width, factor);
        after.Height = Scaled(box.Height, factor);
    }
    after.Left = StartAfter(box.Left, box.Width, after.Width, sides.Across);
    after.Top = StartAfter(box.Top, box.Height, after.Height, sides.Down);
    return after;
}

bool Accepts(LayoutKind target, LayoutKind dropped) {
    switch (target) {
    case LayoutKind::Image1: return true;
    case LayoutKind::Image2: return !IsText(dropped) || dropped == LayoutKind::LabUser;
    default: return IsText(target) == IsText(dropped);
    }
}

} // namespace kestrova
