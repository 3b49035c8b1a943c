// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/qt/PainterSurface.h"

#include "platform/qt/PageImage.h"
#include "platform/qt/QtColour.h"

#include <QPaintEngine>

#include <algorithm>
#include <cassert>
#include <cmath>

namespace kestrova {

namespace {

constexpr qreal kPenUnit = 15; // twips of 1/96 inch
constexpr qreal kDot = 1;      // a dot and the gap behind it, in widths of the pen
constexpr qreal kGap = 2;

// No paper is anywhere near so large; what lies beyond would be too much for the painter's numbers.
constexpr int kFarthest = 1'000'000;

qreal Near(int position) {
    return std::clamp(position, -kFarthest, kFarthest);
}

// The middle of a stroke of so many whole pixels.
qreal MiddleOnPixels(qreal middle, qreal width) {
    return std::fmod(width, 2) == 0 ? std::round(middle) : std::floor(middle) + 0.5;
}

struct Stroke {
    QLineF Line;
    qreal Width = 0;
};

// The stroke, upright or level and with square ends, as it comes to lie on whole pixels.
Stroke OnPixels(const QTransform& toPixels, const Stroke& stroke, qreal overhang) {
    const qreal scale = std::abs(toPixels.m11());
    const qreal width = std::max(1.0, std::round(stroke.Width * scale));
    const qreal beyond = overhang * scale;
    const QLineF line = toPixels.map(stroke.Line);
    QRectF ends = QRectF(line.p1(), line.p2()).normalized();
    if (ends.height() == 0) {
        ends.setRect(std::round(ends.left() - beyond), MiddleOnPixels(ends.top(), width),
                     std::round(ends.width() + 2 * beyond), 0);
    } else {
        ends.setRect(MiddleOnPixels(ends.left(), width), std::round(ends.top() - beyond), 0,
                     std::round(ends.height() + 2 * beyond));
    }
    const QTransform back = toPixels.inverted();
    return {QLineF(back.map(ends.topLeft()), back.map(ends.bottomRight())), width / scale};
}

QRectF EdgesOnPixels(const QRectF& box) {
    return {QPointF(std::round(box.left()), std::round(box.top())),
            QPointF(std::max(std::round(box.left()) + 1, std::round(box.right())),
                    std::max(std::round(box.top()) + 1, std::round(box.bottom())))};
}

QImage Grey(const QImage& image) {
    QImage grey = image.convertToFormat(
        image.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32);
    for (int y = 0; y < grey.height(); ++y) {
        auto* const row = reinterpret_cast<QRgb*>(grey.scanLine(y));
        std::transform(row, row + grey.width(), row, [](QRgb pixel) {
            const int shade = qGray(pixel);
            return qRgba(shade, shade, shade, qAlpha(pixel));
        });
    }
    return grey;
}

} // namespace

PainterSurface::PainterSurface(QPainter& painter, const PaperMeasure& measure, const PageSize& area,
                               PrintColour colours)
    : painter_(painter), measure_(measure), area_(area), colours_(colours) {
    assert(painter.isActive());
    painter_.save();
    painter_.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing |
                            QPainter::SmoothPixmapTransform);
    painter_.setBackgroundMode(Qt::TransparentMode);
    painter_.setBrush(Qt::NoBrush);
}

PainterSurface::~PainterSurface() {
    painter_.restore();
}

int PainterSurface::TextWidth(const FontChoice& font, std::string_view text) const {
    return measure_.TextWidth(font, text);
}

int PainterSurface::LineHeight(const FontChoice& font) const {
    return measure_.LineHeight(font);
}

int PainterSurface::AverageWidth(const FontChoice& font) const {
    return measure_.AverageWidth(font);
}

QColor PainterSurface::InkOf(std::int32_t colour) const {
    const QColor ink = ColourToQt(colour);
    if (colours_ == PrintColour::Colour) {
        return ink;
    }
    const int shade = qGray(ink.rgb());
    return {shade, shade, shade};
}

bool PainterSurface::PaintsPixels() const {
    return painter_.paintEngine()->type() != QPaintEngine::Pdf &&
           painter_.deviceTransform().type() <= QTransform::TxScale;
}

void PainterSurface::DrawText(int x, int y, const FontChoice& font, std::int32_t colour,
                              std::string_view text) {
    if (std::abs(Near(x)) == kFarthest || std::abs(Near(y)) == kFarthest) {
        return; // nobody will miss it
    }
    const PaperMeasure::Face& face = measure_.FaceOf(font);
    painter_.setFont(face.Font);
    painter_.setPen(InkOf(colour));
    painter_.drawText(QPointF(x, qreal{Near(y)} + face.Ascent), PaperMeasure::OneLine(text));
}

void PainterSurface::DrawLine(int x1, int y1, int x2, int y2, const Pen& pen) {
    const bool dotted = pen.Style == LineStyle::Dotted;
    const qreal width = kPenUnit * std::clamp(pen.Width, 1, 100);
    Stroke stroke{QLineF(Near(x1), Near(y1), Near(x2), Near(y2)), width};
    QPen drawn(InkOf(pen.Colour), width, Qt::SolidLine, dotted ? Qt::FlatCap : Qt::SquareCap);
    if (PaintsPixels() && (x1 == x2 || y1 == y2)) {
        stroke = OnPixels(painter_.deviceTransform(), stroke, dotted ? 0 : width / 2);
        drawn.setWidthF(stroke.Width);
        drawn.setCapStyle(Qt::FlatCap);
    }
    if (dotted) {
        const qreal dot = width / stroke.Width;
        drawn.setDashPattern({kDot * dot, kGap * dot});
    }
    painter_.setPen(drawn);
    painter_.drawLine(stroke.Line);
}

void PainterSurface::DrawPicture(int left, int top, int width, int height,
                                 const PagePicture& picture) {
    const auto* const image = dynamic_cast<const PageImage*>(&picture);
    assert(image != nullptr);
    if (image == nullptr || width <= 0 || height <= 0) {
        return;
    }
    const auto inInk = [this](const QImage& pixels) {
        return colours_ == PrintColour::Colour ? pixels : Grey(pixels);
    };
    const QRectF box(left, top, width, height);
    if (!PaintsPixels()) {
        painter_.drawImage(box, inInk(image->Whole()));
        return;
    }
    const QRectF pixels = EdgesOnPixels(painter_.deviceTransform().mapRect(box));
    const QSize size = pixels.size().boundedTo(QSizeF(image->Whole().size())).toSize();
    painter_.save();
    painter_.setWorldTransform(painter_.deviceTransform().inverted() * painter_.worldTransform());
    painter_.drawImage(pixels, inInk(image->Scaled(size)));
    painter_.restore();
}

} // namespace kestrova
