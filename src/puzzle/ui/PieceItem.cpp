// SPDX-License-Identifier: GPL-3.0-or-later
#include "puzzle/ui/PieceItem.h"

#include "ui/Look.h"
#include "ui/Names.h"

#include <QPainter>

#include <algorithm>

namespace kestrova {

namespace {

constexpr int kShadow = 8; // pixels around a piece that is lifted
constexpr double kFaint = 0.16;
constexpr double kSmallCell = 28; // pixels: on smaller pieces the edge is finer still

enum Level { kTable, kMoving, kHand };

} // namespace

PieceItem::PieceItem(int piece, QImage picture)
    : picture_(std::move(picture)), glide_(this, QByteArrayLiteral("pos")) {
    setObjectName(ArrayName("Piece", piece));
    // The view turns clicks into positions; the pieces need not know.
    setAcceptedMouseButtons(Qt::NoButton);
    glide_.setEasingCurve(QEasingCurve::OutCubic);
    connect(&glide_, &QPropertyAnimation::finished, this, [this] { setZValue(kTable); });
}

void PieceItem::SetSize(const QSizeF& size, double ratio) {
    if (size != size_ || ratio != ratio_) {
        prepareGeometryChange();
        size_ = size;
        ratio_ = ratio;
    }
}

void PieceItem::Place(const QRectF& cell, double ratio) {
    glide_.stop();
    setZValue(look_ == PieceLook::Lifted ? kHand : kTable);
    SetSize(cell.size(), ratio);
    setPos(cell.topLeft());
}

void PieceItem::GlideTo(const QRectF& cell, double ratio, int milliseconds) {
    glide_.stop();
    SetSize(cell.size(), ratio);
    if (milliseconds <= 0 || pos() == cell.topLeft()) {
        Place(cell, ratio);
        return;
    }
    setZValue(kMoving);
    glide_.setDuration(milliseconds);
    glide_.setStartValue(pos());
    glide_.setEndValue(cell.topLeft());
    glide_.start();
}

void PieceItem::SetLook(PieceLook look) {
    if (look != look_) {
        prepareGeometryChange();
        look_ = look;
        setZValue(look == PieceLook::Lifted ? kHand : kTable);
        update();
    }
}

void PieceItem::SetHover(bool hover) {
    if (hover != hover_) {
        hover_ = hover;
        update();
    }
}

void PieceItem::SetDraft(bool draft) {
    if (draft != draft_) {
        draft_ = draft;
        update();
    }
}

QRectF PieceItem::boundingRect() const {
    const QRectF area(QPointF(), size_);
    return look_ == PieceLook::Lifted ? area.adjusted(-kShadow, -kShadow, kShadow, kShadow) : area;
}

void PieceItem::paint(QPainter* painter, const QStyleOptionGraphicsItem* /*option*/,
                      QWidget* /*widget*/) {
    if (look_ == PieceLook::Lifted) {
        PaintShadow(*painter);
    }
    if (look_ == PieceLook::Gap) {
        painter->setOpacity(kFaint);
    }
    PaintPicture(*painter);
    if (look_ == PieceLook::Gap || look_ == PieceLook::Whole) {
        return;
    }
    if (hover_) {
        painter->fillRect(QRectF(QPointF(), size_), look::Faded(Qt::white, 0.14));
    }
    PaintEdge(*painter);
}

void PieceItem::PaintPicture(QPainter& painter) {
    const QSize wanted = (size_ * ratio_).toSize();
    if (wanted.isEmpty()) {
        return;
    }
    if (scaled_.isNull() || (!draft_ && scaled_.size() != wanted)) {
        scaled_ = QPixmap::fromImage(
            picture_.scaled(wanted, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    }
    painter.drawPixmap(QRectF(QPointF(), size_), scaled_, QRectF(scaled_.rect()));
}

void PieceItem::PaintShadow(QPainter& painter) const {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(look::Faded(Qt::black, 0.07));
    for (int width = kShadow; width > 0; width -= 2) {
        painter.drawRoundedRect(QRectF(QPointF(), size_).adjusted(-width, -width + 2, width, width),
                                width, width);
    }
    painter.setRenderHint(QPainter::Antialiasing, false);
}

// Light from the top left: pieces that lie at home beside one another stay pieces.
void PieceItem::PaintEdge(QPainter& painter) const {
    const bool small = std::min(size_.width(), size_.height()) < kSmallCell;
    const double strength = small ? 0.6 : 1;
    const double line = 1;
    const double width = size_.width();
    const double height = size_.height();
    const QColor light = look::Faded(Qt::white, 0.34 * strength);
    const QColor dark = look::Faded(Qt::black, 0.46 * strength);
    painter.fillRect(QRectF(0, 0, width - line, line), light);
    painter.fillRect(QRectF(0, line, line, height - 2 * line), light);
    painter.fillRect(QRectF(0, height - line, width, line), dark);
    painter.fillRect(QRectF(width - line, 0, line, height - line), dark);
}

} // namespace kestrova
