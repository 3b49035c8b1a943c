// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QGraphicsObject>
#include <QImage>
#include <QPixmap>
#include <QPropertyAnimation>

namespace kestrova {

// How a piece shows.
enum class PieceLook {
    Plain,  // in its place, with a fine edge
    Lifted, // in the player's hand, above the others
    Gap,    // a hole in which the piece that belongs there is faintly seen
    Whole   // no edge: the picture itself
};

// A piece of the picture on its position.
class PieceItem : public QGraphicsObject {
public:
    PieceItem(int piece, QImage picture);

    // Puts the piece there at once.
    void Place(const QRectF& cell, double ratio);

    // Lets it glide there. Placing it anew ends that.
    void GlideTo(const QRectF& cell, double ratio, int milliseconds);

    void SetLook(PieceLook look);
    [[nodiscard]] PieceLook Look() const { return look_; }

    [[nodiscard]] const QSizeF& Size() const { return size_; }

    // Lights the piece up a little, as one that the mouse can move.
    void SetHover(bool hover);

    // While the window is being resized, the picture scaled last is stretched instead of scaled
    // anew.
    void SetDraft(bool draft);

    [[nodiscard]] QRectF boundingRect() const override;
    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) override;

private:
    void SetSize(const QSizeF& size, double ratio);
    void PaintPicture(QPainter& painter);
    void PaintShadow(QPainter& painter) const;
    void PaintEdge(QPainter& painter) const;

    QImage picture_;
    QPixmap scaled_; // the picture in the pixels of the screen
    QSizeF size_;
    double ratio_ = 1;
    PieceLook look_ = PieceLook::Plain;
    bool hover_ = false;
    bool draft_ = false;
    QPropertyAnimation glide_;
};

} // namespace kestrova
