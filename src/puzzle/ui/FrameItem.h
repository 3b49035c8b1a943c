// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QGraphicsItem>

namespace kestrova {

// A frame around a position: where the keyboard stands, or where the piece in hand would go. The
// desktop's accent between two lines, one light and one dark, so that it is seen on any picture.
class FrameItem : public QGraphicsItem {
public:
    enum class Kind { Cursor, Target };

    explicit FrameItem(Kind kind);

    // An empty rectangle hides it.
    void Show(const QRectF& cell);

    [[nodiscard]] QRectF boundingRect() const override { return QRectF(QPointF(), size_); }
    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) override;

private:
    Kind kind_;
    QSizeF size_;
};

} // namespace kestrova
