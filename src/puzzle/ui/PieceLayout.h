// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "puzzle/Cutter.h"

#include <QRectF>
#include <QSizeF>

#include <vector>

namespace kestrova {

// Whether the picture keeps its shape, or fills the area as far as that does not distort it much.
enum class PuzzleShape { Keep, Fill };

// Where the positions of a puzzle lie in an area, in the area's own units. The columns and rows are
// wide and high like the pieces that belong there, so that the solved picture is undistorted, and
// every edge lies on a pixel of the screen, so that no seam shows.
class PieceLayout {
public:
    PieceLayout() = default;

    // `ratio` is the number of the screen's pixels in a unit.
    PieceLayout(const CutPlan& plan, const QSizeF& area, PuzzleShape shape, double ratio);

    // The picture's place.
    [[nodiscard]] QRectF Picture() const;

    // The place of position 1 to side * side.
    [[nodiscard]] QRectF Cell(int position) const;

    // The position at a point; 0 beside the picture.
    [[nodiscard]] int PositionAt(const QPointF& point) const;

    [[nodiscard]] double Ratio() const { return ratio_; }

private:
    [[nodiscard]] int Side() const { return static_cast<int>(columns_.size()) - 1; }

    std::vector<double> columns_; // their edges, one more than there are
    std::vector<double> rows_;
    double ratio_ = 1;
};

} // namespace kestrova
