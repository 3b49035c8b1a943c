// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QRect>

namespace kestrova {

// Where a figure of this size stands: in the corner of the screen that is nearest to a window
// without covering any of it. Where all of them do, or there is no window, it is the lower right
// one.
[[nodiscard]] QRect FigurePlace(const QRect& screen, const QRect& window, const QSize& size);

// A figure moved as little as it takes to be on the screen as a whole.
[[nodiscard]] QRect OnScreen(const QRect& screen, QRect figure);

enum class TailSide { Left, Right, Top, Bottom };

struct BalloonPlace {
    QRect Frame;                    // the tail included
    TailSide Tail = TailSide::Left; // the side that the tail stands out from
    int TailAt = 0;                 // its place along that side, from the frame's begin
};

// Where a balloon of this size (without its tail) stands beside a figure: on the side with more
// room, above or below where neither has enough, never off the screen. The tail points at the
// mouth.
[[nodiscard]] BalloonPlace PlaceBalloon(const QRect& screen, const QRect& figure, const QSize& size,
                                        int tail);

} // namespace kestrova
