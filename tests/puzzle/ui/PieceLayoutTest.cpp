// SPDX-License-Identifier: GPL-3.0-or-later
#include "puzzle/ui/PieceLayout.h"

#include "puzzle/Board.h"

#include <gtest/gtest.h>

#include <cmath>

namespace kestrova {
namespace {

bool OnPixel(double value, double ratio) {
    return std::abs(value * ratio - std::round(value * ratio)) < 1e-6;
}

TEST(PieceLayoutTest, CellsMeetOnThePixelsOfTheScreen) {
    for (const double ratio : {1.0, 1.25, 1.5, 2.0}) {
        for (const PuzzleSize& size : kPuzzleSizes) {
            SCOPED_TRACE(std::to_string(ratio) + ", side " + std::to_string(size.Side()));
            const int side = size.Side();
            const CutPlan plan{641, 479, side};
            const PieceLayout layout(plan, {903, 611}, PuzzleShape::Keep, ratio);
            for (int position = 1; position <= side * side; ++position) {
                const QRectF cell = layout.Cell(position);
                ASSERT_TRUE(OnPixel(cell.left(), ratio) && OnPixel(cell.bottom(), ratio));
                ASSERT_EQ(layout.PositionAt(cell.center()), position);
                ASSERT_EQ(layout.PositionAt(cell.topLeft()), position);
                if (position % side != 0) {
                    ASSERT_EQ(layout.Cell(position + 1).left(), cell.right());
                }
            }
            EXPECT_EQ(layout.Cell(1).topLeft(), layout.Picture().topLeft());
            EXPECT_EQ(layout.Cell(side * side).bottomRight(), layout.Picture().bottomRight());
            EXPECT_EQ(layout.PositionAt({-1, 300}), 0);
            EXPECT_EQ(layout.PositionAt({450, 611}), 0);
        }
    }
}

TEST(PieceLayoutTest, ThePictureKeepsItsShapeOrIsStretchedALittle) {
    const CutPlan plan{400, 300, 4};
    const auto size = [&plan](const QSizeF& area, PuzzleShape shape) {
        return PieceLayout(plan, area, shape, 1).Picture().size();
    };
    EXPECT_EQ(size({800, 640}, PuzzleShape::Keep), QSizeF(800, 600));
    EXPECT_EQ(size({800, 640}, PuzzleShape::Fill), QSizeF(800, 640));
    EXPECT_EQ(size({800, 900}, PuzzleShape::Fill), QSizeF(800, 672));
    EXPECT_EQ(size({2000, 300}, PuzzleShape::Fill), QSizeF(448, 300));
    EXPECT_TRUE(size({0, 0}, PuzzleShape::Fill).isEmpty());
}

// 13 pixels by 5: two to each column and five to the last.
TEST(PieceLayoutTest, TheLastColumnIsAsWideAsItsPieces) {
    const PieceLayout layout({13, 13, 5}, {130, 130}, PuzzleShape::Keep, 1);
    EXPECT_EQ(layout.Cell(4).width(), 20);
    EXPECT_EQ(layout.Cell(5).width(), 50);
}

} // namespace
} // namespace kestrova
