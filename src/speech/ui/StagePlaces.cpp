// SPDX-License-Identifier: GPL-3.0-or-later
#include "speech/ui/StagePlaces.h"

#include <algorithm>
#include <cstdlib>

namespace kestrova {

namespace {

constexpr int kFromEdge = 12;    // between a figure and the edges of the screen, in pixels
constexpr int kNoNearer = 10;    // per cent of the screen within which no side is the nearer one
constexpr int kMouthHeight = 42; // per cent of the figure, from the top

// Whether the first side (left, top) is the nearer one.
bool IsFirstNearer(int middle, int begin, int length) {
    return middle < begin + length / 2 - length * kNoNearer / 100;
}

int Within(int value, int low, int high) {
    return std::max(low, std::min(value, high));
}

} // namespace

QRect OnScreen(const QRect& screen, QRect figure) {
    figure.moveTo(Within(figure.x(), screen.x(), screen.x() + screen.width() - figure.width()),
                  Within(figure.y(), screen.y(), screen.y() + screen.height() - figure.height()));
    return figure;
}

QRect FigurePlace(const QRect& screen, const QRect& window, const QSize& size) {
    const QPoint middle = window.isValid() ? window.center() : screen.bottomRight();
    QRect figure({}, size);
    figure.moveTo(IsFirstNearer(middle.x(), screen.x(), screen.width())
                      ? screen.x() + kFromEdge
                      : screen.x() + screen.width() - size.width() - kFromEdge,
                  IsFirstNearer(middle.y(), screen.y(), screen.height())
                      ? screen.y() + kFromEdge
                      : screen.y() + screen.height() - size.height() - kFromEdge);
    return OnScreen(screen, figure);
}

BalloonPlace PlaceBalloon(const QRect& screen, const QRect& figure, const QSize& size, int tail) {
    const int left = figure.x() - screen.x();
    const int right = screen.x() + screen.width() - figure.x() - figure.width();
    const int above = figure.y() - screen.y();
    const int mouth = figure.y() + figure.height() * kMouthHeight / 100;
    const int middle = figure.x() + figure.width() / 2;
    BalloonPlace place;
    if (std::max(left, right) >= size.width() + tail) {
        place.Tail = left >= right ? TailSide::Right : TailSide::Left;
        place.Frame.setSize({size.width() + tail, size.height()});
        place.Frame.moveTo(left >= right ? figure.x() - size.width() - tail
                                         : figure.x() + figure.width(),
                           mouth - size.height() / 2);
    } else {
        const bool over = above >= size.height() + tail;
        place.Tail = over ? TailSide::Bottom : TailSide::Top;
        place.Frame.setSize({size.width(), size.height() + tail});
        place.Frame.moveTo(middle - size.width() / 2,
                           over ? figure.y() - size.height() - tail : figure.y() + figure.height());
    }
    place.Frame = OnScreen(screen, place.Frame);
    const bool upright = place.Tail == TailSide::Left || place.Tail == TailSide::Right;
    place.TailAt = upright ? mouth - place.Frame.y() : middle - place.Frame.x();
    return place;
}

} // namespace kestrova
