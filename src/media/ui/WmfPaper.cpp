// SPDX-License-Identifier: GPL-3.0-or-later
#include "media/ui/WmfPaper.h"

#include "platform/qt/QtText.h"
#include "text/Encoding.h"

#include <QFontMetricsF>
#include <QPainterPath>
#include <QStringDecoder>

#include <algorithm>
#include <array>
#include <cmath>

namespace kestrova {

namespace {

constexpr int kDefaultFontHeight = 16;
constexpr double kFarOut = 4; // times the paper; dashes out there would be counted for ever

QPainter::CompositionMode ModeOf(WmfMix mix) {
    using P = QPainter;
    static constexpr std::array kModes = {
        P::RasterOp_ClearDestination,        P::RasterOp_NotSourceAndNotDestination,
        P::RasterOp_NotSourceAndDestination, P::RasterOp_NotSource,
        P::RasterOp_SourceAndNotDestination, P::RasterOp_NotDestination,
        P::RasterOp_SourceXorDestination,    P::RasterOp_NotSourceOrNotDestination,
        P::RasterOp_SourceAndDestination,    P::RasterOp_NotSourceXorDestination,
        P::CompositionMode_Destination,      P::RasterOp_NotSourceOrDestination,
        P::CompositionMode_SourceOver,       P::RasterOp_SourceOrNotDestination,
        P::RasterOp_SourceOrDestination,     P::RasterOp_SetDestination};
    return kModes[static_cast<std::size_t>(mix) % kModes.size()];
}

QRectF RectOf(const WmfBox& box) {
    return QRectF(QPointF(box.Left, box.Top), QPointF(box.Right, box.Bottom)).normalized();
}

void AddTo(QPainterPath& path, const WmfPoints& points) {
    bool first = true;
    for (const WmfPoint& point : points) {
        first ? path.moveTo(point.X, point.Y) : path.lineTo(point.X, point.Y);
        first = false;
    }
}

QImage View(const DibImage& image) {
    return {reinterpret_cast<const uchar*>(image.Pixels.data()), image.Width, image.Height,
            qsizetype{image.Width} * 4, QImage::Format_RGB32};
}

// The code page that a font's charset stands for.
const char* CodePageOf(int charset) {
    switch (charset) {
    case 161: return "windows-1253";
    case 162: return "windows-1254";
    case 177: return "windows-1255";
    case 178: return "windows-1256";
    case 186: return "windows-1257";
    case 204: return "windows-1251";
    case 238: return "windows-1250";
    default: return nullptr;
    }
}

QString Decoded(std::string_view bytes, int charset) {
    if (const char* const page = CodePageOf(charset)) {
        QStringDecoder decoder(page);
        if (decoder.isValid()) {
            return decoder(QByteArrayView(bytes.data(), static_cast<qsizetype>(bytes.size())));
        }
    }
    return ToQt(Utf8FromWindows1252(bytes));
}

} // namespace

WmfPaper::WmfPaper(QImage& image, int fineness, std::stop_token stop)
    : size_(image.size()), fineness_(fineness), stop_(std::move(stop)), painter_(&image) {
    time_.start();
}

bool WmfPaper::GoesOn() {
    return !stop_.stop_requested() && time_.elapsed() < kMostTime;
}

void WmfPaper::Begin(const WmfContext& context, WmfMix mix) {
    painter_.setCompositionMode(ModeOf(mix));
    if (context.Clip == clip_) {
        return;
    }
    clip_ = context.Clip;
    if (!clip_.Within && clip_.Without.empty()) {
        painter_.setClipping(false);
        return;
    }
    QRegion region(clip_.Within ? RectOf(*clip_.Within).toRect() : QRect(QPoint(), size_));
    for (const WmfBox& box : clip_.Without) {
        region -= RectOf(box).toRect();
    }
    painter_.setClipRegion(region);
}

QPen WmfPaper::PenOf(const WmfContext& context, const QRectF& extent) const {
    const WmfPen& from = context.Pen;
    QPen pen(QColor(QRgb{from.Colour}), std::max<double>(fineness_, from.Width * context.Scale));
    const bool farOut =
        extent.width() > kFarOut * size_.width() || extent.height() > kFarOut * size_.height();
    switch (from.Line) {
    case WmfLine::Solid: break;
    case WmfLine::None: return QPen(Qt::NoPen);
    case WmfLine::Dash: pen.setStyle(Qt::DashLine); break;
    case WmfLine::Dot: pen.setStyle(Qt::DotLine); break;
    case WmfLine::DashDot: pen.setStyle(Qt::DashDotLine); break;
    case WmfLine::DashDotDot: pen.setStyle(Qt::DashDotDotLine); break;
    }
    if (farOut) {
        pen.setStyle(Qt::SolidLine);
    }
    pen.setCapStyle(from.Cap == WmfCap::Flat     ? Qt::FlatCap
                    : from.Cap == WmfCap::Square ? Qt::SquareCap
                                                 : Qt::RoundCap);
    pen.setJoinStyle(from.Join == WmfJoin::Bevel   ? Qt::BevelJoin
                     : from.Join == WmfJoin::Miter ? Qt::MiterJoin
                                                   : Qt::RoundJoin);
    return pen;
}

QBrush WmfPaper::BrushOf(const WmfBrush& brush) const {
    static constexpr std::array kHatches = {Qt::HorPattern,   Qt::VerPattern,
                                            Qt::FDiagPattern, Qt::BDiagPattern,
                                            Qt::CrossPattern, Qt::DiagCrossPattern};
    QBrush result;
    switch (brush.Fill) {
    case WmfFill::None: return QBrush(Qt::NoBrush);
    case WmfFill::Solid: return QBrush(QColor(QRgb{brush.Colour}));
    case WmfFill::Hatch:
        result =
            QBrush(QColor(QRgb{brush.Colour}), kHatches[static_cast<std::size_t>(brush.Hatch)]);
        break;
    case WmfFill::Pattern: result.setTextureImage(View(*brush.Pattern)); break;
    }
    result.setTransform(QTransform::fromScale(fineness_, fineness_));
    return result;
}

void WmfPaper::Areas(const std::vector<WmfPoints>& areas, const WmfContext& context) {
    Begin(context, context.Mix);
    QPainterPath path;
    path.setFillRule(context.Rule == WmfRule::Winding ? Qt::WindingFill : Qt::OddEvenFill);
    for (const WmfPoints& area : areas) {
        AddTo(path, area);
        path.closeSubpath();
    }
    if (context.Brush.Fill == WmfFill::Hatch && context.Ground == WmfGround::Opaque) {
        painter_.fillPath(path, QColor(QRgb{context.GroundColour}));
    }
    painter_.setPen(PenOf(context, path.controlPointRect()));
    painter_.setBrush(BrushOf(context.Brush));
    painter_.drawPath(path);
}

void WmfPaper::Line(const WmfPoints& points, const WmfContext& context) {
    Begin(context, context.Mix);
    QPainterPath path;
    AddTo(path, points);
    painter_.setPen(PenOf(context, path.controlPointRect()));
    painter_.setBrush(Qt::NoBrush);
    painter_.drawPath(path);
}

void WmfPaper::Fill(const WmfBox& box, WmfMix mix, const WmfContext& context) {
    // What does not ask for the brush is done by a brush of any kind.
    const bool asks = mix != WmfMix::Clear && mix != WmfMix::Set && mix != WmfMix::Invert;
    if (mix == WmfMix::Keep || (asks && context.Brush.Fill == WmfFill::None)) {
        return;
    }
    Begin(context, mix);
    painter_.fillRect(RectOf(box), asks ? BrushOf(context.Brush) : QBrush(Qt::black));
}

void WmfPaper::Image(const DibImage& image, const WmfBox& part, const WmfBox& box, WmfMix mix,
                     const WmfContext& context) {
    const QRectF target = RectOf(box);
    const QRectF source = RectOf(part);
    if (mix == WmfMix::Keep || target.isEmpty() || source.isEmpty()) {
        return;
    }
    Begin(context, mix);
    painter_.setRenderHint(QPainter::SmoothPixmapTransform, mix == WmfMix::Copy);
    painter_.save();
    painter_.translate(target.center());
    painter_.scale((box.Width() < 0) != (part.Width() < 0) ? -1 : 1,
                   (box.Height() < 0) != (part.Height() < 0) ? -1 : 1);
    painter_.translate(-target.center());
    painter_.drawImage(target, View(image), source);
    painter_.restore();
}

QFont WmfPaper::FontOf(const WmfFont& from) const {
    QFont font(Decoded(from.Face, 0));
    const double height = from.Height == 0 ? kDefaultFontHeight * fineness_ : std::abs(from.Height);
    font.setPixelSize(std::max(1, static_cast<int>(std::lround(height))));
    if (from.Height > 0) {
        // The height is that of a line; letters are smaller.
        const double line = QFontMetricsF(font).height();
        font.setPixelSize(std::max(1, static_cast<int>(std::lround(height * height / line))));
    }
    font.setWeight(
        static_cast<QFont::Weight>(std::clamp(from.Weight == 0 ? 400 : from.Weight, 1, 1000)));
    font.setItalic(from.Italic);
    font.setUnderline(from.Underline);
    font.setStrikeOut(from.StrikeOut);
    return font;
}

double WmfPaper::Text(const WmfText& text, const WmfContext& context) {
    Begin(context, WmfMix::Copy);
    if (text.Box) {
        painter_.fillRect(RectOf(*text.Box), QColor(QRgb{context.GroundColour}));
    }
    const QString letters = Decoded(text.Bytes, context.Font.Charset);
    if (letters.isEmpty()) {
        return 0;
    }
    const QFont font = FontOf(context.Font);
    const QFontMetricsF metrics(font);
    // One step for each letter, or none that can be trusted.
    const bool stepped = text.Steps.size() == static_cast<std::size_t>(letters.size());
    double length = 0;
    if (stepped) {
        for (const double step : text.Steps) {
            length += step;
        }
    } else {
        length = metrics.horizontalAdvance(letters);
    }
    double x = context.Across == WmfAcross::Right    ? -length
               : context.Across == WmfAcross::Centre ? -length / 2
                                                     : 0;
    const double y = context.Down == WmfDown::Top      ? metrics.ascent()
                     : context.Down == WmfDown::Bottom ? -metrics.descent()
                                                       : 0;
    painter_.save();
    if (text.Frame) {
        painter_.setClipRect(RectOf(*text.Frame), Qt::IntersectClip);
    }
    painter_.translate(text.At.X, text.At.Y);
    painter_.rotate(-context.Font.Angle / 10.0);
    if (context.Ground == WmfGround::Opaque) {
        painter_.fillRect(QRectF(x, y - metrics.ascent(), length, metrics.height()),
                          QColor(QRgb{context.GroundColour}));
    }
    painter_.setPen(QColor(QRgb{context.TextColour}));
    painter_.setFont(font);
    if (stepped) {
        for (qsizetype i = 0; i < letters.size(); ++i) {
            painter_.drawText(QPointF(x, y), letters.mid(i, 1));
            x += text.Steps[static_cast<std::size_t>(i)];
        }
    } else {
        painter_.drawText(QPointF(x, y), letters);
    }
    painter_.restore();
    return length;
}

} // namespace kestrova
