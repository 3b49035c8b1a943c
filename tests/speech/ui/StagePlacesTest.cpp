// SPDX-License-Identifier: GPL-3.0-or-later
#include "speech/ui/StagePlaces.h"

#include <gtest/gtest.h>

namespace kestrova {
namespace {

constexpr int kTail = 18;
const QRect kScreen(0, 30, 1280, 770);
const QSize kFigure(200, 200);

TEST(StagePlacesTest, TheFigureStandsInTheNearestCorner) {
    const struct {
        QRect Window;
        QPoint Corner;
    } rows[] = {
        {{240, 60, 400, 500}, {12, 42}},   {{640, 60, 400, 500}, {1068, 42}},
        {{240, 250, 400, 500}, {12, 588}}, {{640, 250, 400, 500}, {1068, 588}},
        {{0, 30, 400, 300}, {12, 588}},    {{0, 30, 400, 770}, {1068, 588}},
        {{0, 30, 1280, 770}, {1068, 588}}, {{}, {1068, 588}},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(FigurePlace(kScreen, row.Window, kFigure).topLeft(), row.Corner);
    }
    EXPECT_EQ(OnScreen(kScreen, QRect({1200, -50}, kFigure)).topLeft(), QPoint(1080, 30));
}

TEST(StagePlacesTest, TheBalloonIsBesideTheFigureAndAlwaysOnTheScreen) {
    const QSize small(120, 60);
    const BalloonPlace left = PlaceBalloon(kScreen, QRect({1068, 588}, kFigure), small, kTail);
    EXPECT_EQ(left.Tail, TailSide::Right);
    EXPECT_EQ(left.Frame.right() + 1, 1068);
    EXPECT_EQ(left.Frame.y() + left.TailAt, 588 + 84);
    const BalloonPlace right = PlaceBalloon(kScreen, QRect({12, 42}, kFigure), small, kTail);
    EXPECT_EQ(right.Tail, TailSide::Left);
    EXPECT_EQ(right.Frame.x(), 212);

    for (const QRect& screen : {kScreen, QRect(0, 0, 320, 480), QRect(-1280, 0, 400, 800)}) {
        for (int x = screen.left(); x <= screen.right() - 200; x += 40) {
            for (int y = screen.top(); y <= screen.bottom() - 200; y += 40) {
                for (const QSize& size : {small, QSize(298, 190)}) {
                    const QRect figure({x, y}, kFigure);
                    const BalloonPlace place = PlaceBalloon(screen, figure, size, kTail);
                    EXPECT_TRUE(screen.contains(place.Frame));
                }
            }
        }
    }
}

TEST(StagePlacesTest, WithoutRoomAtTheSidesItIsAboveOrBelow) {
    const QRect narrow(0, 0, 320, 800);
    const QSize size(250, 100);
    EXPECT_EQ(PlaceBalloon(narrow, QRect({60, 590}, kFigure), size, kTail).Tail, TailSide::Bottom);
    const BalloonPlace below = PlaceBalloon(narrow, QRect({60, 10}, kFigure), size, kTail);
    EXPECT_EQ(below.Tail, TailSide::Top);
    EXPECT_EQ(below.Frame.y(), 210);
}

} // namespace
} // namespace kestrova
