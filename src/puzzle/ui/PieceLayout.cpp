// SPDX-License-Identifier: GPL-3.0-or-later
#include "puzzle/ui/PieceLayout.h"

#include <algorithm>
#include <cmath>
#include <functional>

namespace kestrova {

namespace {

constexpr double kMostStretch = 1.12; // beyond that one sees it

QSizeF SizeIn(const QSizeF& picture, const QSizeF& area, PuzzleShape shape) {
    const QSizeF kept = picture.scaled(area, Qt::KeepAspectRatio);
    if (shape == PuzzleShape::Keep) {
        return kept;
    }
    return (kept * kMostStretch).boundedTo(area);
}

// Cuts a length in the middle of the room into the parts that a picture of `pixels` is cut into, in
// whole pixels of the screen.
std::vector<double> Edges(double room, double length, int pixels, int side, double ratio) {
    // A hair more, for a length that falls short of a whole number only as such numbers are stored.
    const double whole = std::floor(length * ratio + 1e-6);
    const double start = std::floor((room * ratio - whole) / 2);
    const int part = pixels / side;
    std::vector<double> edges;
    for (int i = 0; i <= side; ++i) {
        const double share = i == side ? 1 : static_cast<double>(i * part) / pixels;
        edges.push_back((start + std::round(share * whole)) / ratio);
    }
    return edges;
}

// The number of the part that holds a value, from 0; -1 for none.
int PartOf(const std::vector<double>& edges, double value) {
    if (edges.empty() || value < edges.front() || value >= edges.back()) {
        return -1;
    }
    return static_cast<int>(std::upper_bound(edges.begin(), edges.end(), value) - edges.begin()) -
           1;
}

} // namespace

PieceLayout::PieceLayout(const CutPlan& plan, const QSizeF& area, PuzzleShape shape, double ratio)
    : ratio_(ratio) {
    const QSizeF size = SizeIn(QSizeF(plan.Width, plan.Height), area, shape);
    columns_ = Edges(area.width(), size.width(), plan.Width, plan.Side, ratio);
    rows_ = Edges(area.height(), size.height(), plan.Height, plan.Side, ratio);
}

QRectF PieceLayout::Picture() const {
    if (columns_.empty()) {
        return {};
    }
    return {QPointF(columns_.front(), rows_.front()), QPointF(columns_.back(), rows_.back())};
}

QRectF PieceLayout::Cell(int position) const {
    const auto column = static_cast<std::size_t>((position - 1) % Side());
    const auto row = static_cast<std::size_t>((position - 1) / Side());
    return {QPointF(columns_[column], rows_[row]), QPointF(columns_[column + 1], rows_[row + 1])};
}

int PieceLayout::PositionAt(const QPointF& point) const {
    const int column = PartOf(columns_, point.x());
    const int row = PartOf(rows_, point.y());
    return column < 0 || row < 0 ? 0 : row * Side() + column + 1;
}

} // namespace kestrova
