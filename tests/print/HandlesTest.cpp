// SPDX-License-Identifier: GPL-3.0-or-later
#include "print/Handles.h"

#include <gtest/gtest.h>

#include <ostream>

namespace kestrova {

static void PrintTo(const PageBox& box, std::ostream* out) {
    *out << box.Left << "," << box.Top << " " << box.Width << "x" << box.Height;
}

namespace {

using enum LayoutKind;

TEST(HandlesTest, LieAroundTheBox) {
    const auto boxes = HandleBoxes({1000, 2000, 401, 300});
    const std::pair<int, int> kCorners[] = {{900, 1900},  {1150, 1900}, {1401, 1900}, {900, 2100},
                                            {1401, 2100}, {900, 2300},  {1150, 2300}, {1401, 2300}};
    for (std::size_t i = 0; i < kHandles; ++i) {
        EXPECT_EQ(boxes[i], (PageBox{kCorners[i].first, kCorners[i].second, 100, 100})) << i;
    }
}

TEST(HandlesTest, MoveTheSidesThatTheyTakeHoldOf) {
    using enum Proportions;
    struct Row {
        const char* What;
        std::size_t Handle;
        int Across;
        int Down;
        Proportions Shape;
        PageBox After;
    };
    constexpr PageBox kBox{1000, 1000, 800, 400};
    const Row kRows[] = {
        {"corner upper left", 0, -100, 50, Free, {900, 1050, 900, 350}},
        {"upper side ignores sideways", 1, 70, -50, Free, {1000, 950, 800, 450}},
        {"right side ignores up and down", 4, 70, -50, Free, {1000, 1000, 870, 400}},
        {"corner lower right", 7, 100, 200, Free, {1000, 1000, 900, 600}},
        {"never through the other side", 7, -5000, -5000, Free, {1000, 1000, 150, 150}},
        {"the other side stays", 3, 5000, 0, Free, {1650, 1000, 150, 400}},
        {"the wider movement decides", 7, 400, 100, Kept, {1000, 1000, 1200, 600}},
        {"by height", 7, 0, 400, Kept, {1000, 1000, 1600, 800}},
        {"opposite corner stays", 0, -400, 0, Kept, {600, 800, 1200, 600}},
        {"both sides along", 4, 400, 0, Kept, {1000, 900, 1200, 600}},
        {"as small as the shorter side allows", 7, -5000, -5000, Kept, {1000, 1000, 300, 150}},
    };
    for (const Row& row : kRows) {
        EXPECT_EQ(Resized(kBox, row.Handle, row.Across, row.Down, row.Shape), row.After)
            << row.What;
    }
    // One that is smaller already is not made larger by being caught.
    EXPECT_EQ(Resized({0, 0, 40, 0}, 7, 0, 0, Kept), (PageBox{0, 0, 40, 0}));
}

TEST(HandlesTest, ObjectsTakeTheirLike) {
    constexpr LayoutKind kKinds[] = {Image1,  Image2,   ImgUser,  LabCurMth,
                                     LabDays, LabDates, LabEvent, LabUser};
    for (const LayoutKind dropped : kKinds) {
        SCOPED_TRACE(static_cast<int>(dropped));
        const bool picture = dropped == Image1 || dropped == Image2 || dropped == ImgUser;
        EXPECT_TRUE(Accepts(Image1, dropped));
        EXPECT_EQ(Accepts(Image2, dropped), picture || dropped == LabUser);
        EXPECT_EQ(Accepts(ImgUser, dropped), picture);
        for (const LayoutKind text : {LabCurMth, LabDays, LabDates, LabEvent, LabUser}) {
            EXPECT_EQ(Accepts(text, dropped), !picture);
        }
    }
}

} // namespace
} // namespace kestrova
