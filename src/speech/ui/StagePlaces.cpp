// SPDX-License-Identifier: GPL-3.0-or-later
#include "speech/ui/StagePlaces.h"

#include <algorithm>
#include <limits>

namespace kestrova {

namespace {

constexpr int kFromEdge = 12;    // between a figure and the edges of the screen, in pixels
constexpr int kMouthHeight = 42; // per cent of the figure, from the top

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
    const QRect area = screen.adjusted(kFromEdge, kFromEdge, -kFromEdge, -kFromEdge);
    QRect best({}, size);
    best.moveBottomRight(area.bottomRight());
    int shortest = std::numeric_limits<int>::max();
    for (const QPoint corner :
         {area.bottomRight(), area.bottomLeft(), area.topRight(), area.topLeft()}) {
        QRect figure({}, size);
        figure.moveTo(corner.x() == area.left() ? area.left() : corner.x() - size.width() + 1,
                      corner.y() == area.top() ? area.top() : corner.y() - size.height() + 1);
        const int way = (figure.center() - window.center()).manhattanLength();
        if (window.isValid() && !figure.intersects(window) && way < shortest) {
            shortest = way;
            best = figure;
        }
    }
    return OnScreen(screen, best);
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
