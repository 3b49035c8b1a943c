// SPDX-License-Identifier: GPL-3.0-or-later
#include "puzzle/ui/Celebration.h"

#include "ui/Look.h"

#include <QLinearGradient>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <random>

namespace kestrova {

namespace {

constexpr double kAboveAll = 30;
constexpr int kScraps = 90;
constexpr double kFade = 0.3; // of the time, at its end
constexpr double kPi = 3.14159265358979;

} // namespace

Celebration::Celebration(const QRectF& picture, std::function<void(double)> progress)
    : picture_(picture), progress_(std::move(progress)) {
    const QColor colours[] = {{0xF2, 0xB1, 0x34}, {0xE8, 0x5D, 0x75}, {0x4A, 0xB0, 0xD9},
                              {0x6C, 0xC0, 0x70}, {0xB0, 0x7C, 0xD8}, {0xF7, 0xF3, 0xE8}};
    // The rain is the same every time; nobody's luck hangs on it.
    std::mt19937 random{1};
    const auto between = [&random](double low, double high) {
        return std::uniform_real_distribution<double>(low, high)(random);
    };
    for (std::size_t i = 0; i < kScraps; ++i) {
        scraps_.push_back({between(0, 1), between(-0.55, 0.15), between(0.6, 1.1),
                           between(0.01, 0.04), between(1, 4), between(0.014, 0.024),
                           colours[i % std::size(colours)]});
    }
    setZValue(kAboveAll);
    setAcceptedMouseButtons(Qt::NoButton);
    time_.setDuration(kMilliseconds);
    time_.setStartValue(0.0);
    time_.setEndValue(1.0);
    connect(&time_, &QVariantAnimation::valueChanged, this, [this](const QVariant& value) {
        done_ = value.toDouble();
        progress_(done_);
        update();
    });
    time_.start();
}

void Celebration::SetPicture(const QRectF& picture) {
    prepareGeometryChange();
    picture_ = picture;
}

void Celebration::paint(QPainter* painter, const QStyleOptionGraphicsItem* /*option*/,
                        QWidget* /*widget*/) {
    painter->setClipRect(picture_);
    painter->setRenderHint(QPainter::Antialiasing);
    PaintGleam(*painter);
    painter->setOpacity(std::min(1.0, (1 - done_) / kFade));
    painter->setPen(Qt::NoPen);
    for (const Scrap& scrap : scraps_) {
        PaintScrap(*painter, scrap);
    }
}

// A band of light that passes once from the top left to the bottom right.
void Celebration::PaintGleam(QPainter& painter) const {
    constexpr double kWidth = 0.35;
    const double middle = -kWidth + done_ * 1.6 * (1 + 2 * kWidth);
    QLinearGradient gleam(picture_.topLeft(), picture_.bottomRight());
    const auto light = [&gleam](double at, double strength) {
        gleam.setColorAt(std::clamp(at, 0.0, 1.0), look::Faded(Qt::white, strength));
    };
    if (middle - kWidth >= 1 || middle + kWidth <= 0) {
        return;
    }
    // Where the band reaches over an end, it has some of its light there.
    const auto strengthAt = [middle](double at) {
        return 0.45 * std::max(0.0, 1 - std::abs(at - middle) / kWidth);
    };
    light(0, strengthAt(0));
    light(middle - kWidth, strengthAt(std::max(0.0, middle - kWidth)));
    light(middle, strengthAt(std::clamp(middle, 0.0, 1.0)));
    light(middle + kWidth, strengthAt(std::min(1.0, middle + kWidth)));
    light(1, strengthAt(1));
    painter.fillRect(picture_, gleam);
}

void Celebration::PaintScrap(QPainter& painter, const Scrap& scrap) const {
    const double turn = scrap.Turns * done_ * 2 * kPi;
    const double x = scrap.Across + scrap.Sway * std::sin(turn);
    const double y = scrap.Start + scrap.Fall * done_;
    const double size = std::max(3.0, scrap.Size * picture_.height());
    painter.save();
    painter.translate(picture_.left() + x * picture_.width(),
                      picture_.top() + y * picture_.height());
    painter.rotate(turn * 40);
    painter.setBrush(scrap.Colour);
    // Seen edge on when it turns away.
    const double width = size * (0.25 + 0.75 * std::abs(std::cos(turn)));
    painter.drawRect(QRectF(-width / 2, -size * 0.3, width, size * 0.6));
    painter.restore();
}

} // namespace kestrova
