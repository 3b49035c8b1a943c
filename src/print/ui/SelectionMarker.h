// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "print/Handles.h"

#include <QGraphicsObject>

#include <array>
#include <memory>
#include <optional>
#include <vector>

namespace kestrova {

// What shows which objects are selected: a frame around each and, when it is only one, the eight
// handles `Sp(0)` to `Sp(7)`. Also the frames around what the mouse is on and around what is to be
// selected.
class SelectionMarker {
public:
    explicit SelectionMarker(QGraphicsScene& scene);
    ~SelectionMarker();

    void SetLevel(double level);

    // The boxes of what is selected, in twips.
    void Surround(const std::vector<PageBox>& boxes);

    // Moves the frames and handles along with what is being dragged.
    void SetOffset(const QPointF& offset);

    void Hover(const QRectF& box); // a null one for none
    void Draw(const QRectF& frame);

    // The handle at a point of a view, given how many of its pixels make a twip.
    [[nodiscard]] std::optional<std::size_t> HandleAt(const QPointF& twips, double scale) const;

private:
    class Handle;
    class Frames;

    std::array<std::unique_ptr<Handle>, kHandles> Sp;
    std::unique_ptr<Frames> selected_;
    std::unique_ptr<Frames> hovered_;
    std::unique_ptr<Frames> drawn_;
    QRectF around_; // the box that the handles are around
};

} // namespace kestrova
