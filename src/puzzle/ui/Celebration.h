// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QGraphicsObject>
#include <QVariantAnimation>

#include <functional>
#include <vector>

namespace kestrova {

// What a solved puzzle is worth: a gleam goes over the picture and paper rains for a moment.
class Celebration : public QGraphicsObject {
public:
    static constexpr int kMilliseconds = 1500;

    // `progress` is told how much of the time is over, 0 to 1.
    Celebration(const QRectF& picture, std::function<void(double)> progress);

    void SetPicture(const QRectF& picture);

    [[nodiscard]] QRectF boundingRect() const override { return picture_; }
    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) override;

private:
    // Lengths are parts of the picture's height, or of its width for what goes across.
    struct Scrap {
        double Across;
        double Start;
        double Fall; // in the whole time
        double Sway;
        double Turns;
        double Size;
        QColor Colour;
    };

    void PaintGleam(QPainter& painter) const;
    void PaintScrap(QPainter& painter, const Scrap& scrap) const;

    QRectF picture_;
    double done_ = 0;
    std::vector<Scrap> scraps_;
    std::function<void(double)> progress_;
    QVariantAnimation time_;
};

} // namespace kestrova
