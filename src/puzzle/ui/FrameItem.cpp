// SPDX-License-Identifier: GPL-3.0-or-later
#include "puzzle/ui/FrameItem.h"

#include "ui/Look.h"

#include <QPainter>
#include <QWidget>

#include <algorithm>

namespace kestrova {

namespace {

constexpr double kBelowTheHand = 1.5; // the pieces are at 0, 1 on their way and 2 in hand
constexpr double kAboveThePieces = 3;

} // namespace

FrameItem::FrameItem(Kind kind) : kind_(kind) {
    setAcceptedMouseButtons(Qt::NoButton);
    setZValue(kind == Kind::Cursor ? kAboveThePieces : kBelowTheHand);
    setVisible(false);
}

void FrameItem::Show(const QRectF& cell) {
    setVisible(!cell.isEmpty());
    if (cell.size() != size_) {
        prepareGeometryChange();
        size_ = cell.size();
    }
    setPos(cell.topLeft());
}

void FrameItem::paint(QPainter* painter, const QStyleOptionGraphicsItem* /*option*/,
                      QWidget* widget) {
    const QColor accent = look::Accent(widget != nullptr ? widget->palette() : QPalette());
    const QRectF area(QPointF(), size_);
    // On a cell of a few pixels a broad frame would cover the piece.
    const double line = std::clamp(std::min(area.width(), area.height()) / 16, 1.5, 3.0);
    if (kind_ == Kind::Target) {
        painter->fillRect(area, look::Faded(accent, 0.28));
    }
    const auto frame = [&](const QColor& colour, double inset, double width) {
        const double middle = inset + width / 2;
        painter->setPen(QPen(colour, width, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
        painter->drawRect(area.adjusted(middle, middle, -middle, -middle));
    };
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setBrush(Qt::NoBrush);
    frame(look::Faded(Qt::black, 0.55), 0, 1);
    frame(accent, 1, line);
    frame(look::Faded(Qt::white, 0.75), 1 + line, 1);
}

} // namespace kestrova
