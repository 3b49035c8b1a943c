// SPDX-License-Identifier: GPL-3.0-or-later
#include "media/WmfCurves.h"
#include "media/WmfPlayer.h"

#include <algorithm>
#include <cmath>

namespace kestrova {

namespace {

constexpr unsigned kFillsBox = 2; // options of a text with a box
constexpr unsigned kClipsToBox = 4;
constexpr double kMostFontHeight = 4000; // pixels

WmfPoints Corners(const WmfBox& box) {
    return {
        {box.Left, box.Top}, {box.Right, box.Top}, {box.Right, box.Bottom}, {box.Left, box.Bottom}};
}

// An operation on pattern, source and what is there is named by a byte: bit 4 * pattern + 2 *
// source + there is the outcome. Without either of the first two it is a mix of the others.
struct Operation {
    explicit Operation(std::uint32_t code) : Outcomes(code >> 16U & 0xFFU) {}

    [[nodiscard]] bool UsesSource() const { return (Outcomes >> 2U & 0x33U) != (Outcomes & 0x33U); }
    [[nodiscard]] WmfMix OfSource() const {
        const bool plain = (Outcomes & 0x0FU) == Outcomes >> 4U;
        return plain ? static_cast<WmfMix>(Outcomes & 0x0FU) : WmfMix::Copy;
    }
    [[nodiscard]] WmfMix OfPattern() const {
        return static_cast<WmfMix>((Outcomes & 3U) | (Outcomes >> 2U & 0x0CU));
    }

    std::uint32_t Outcomes;
};

} // namespace

void WmfPlayer::LineTo(ByteFields& fields) {
    const WmfPoint to = PointBackwards(fields);
    if (fields.Ok()) {
        canvas_.Line({Placed(state_.Here), Placed(to)}, Context());
        state_.Here = to;
    }
}

void WmfPlayer::Polyline(ByteFields& fields) {
    const WmfPoints points = Points(fields, fields.Int16());
    if (points.size() >= 2) {
        canvas_.Line(points, Context());
    }
}

void WmfPlayer::Polygon(ByteFields& fields) {
    const WmfPoints points = Points(fields, fields.Int16());
    if (points.size() >= 2) {
        canvas_.Areas({points}, Context());
    }
}

void WmfPlayer::PolyPolygon(ByteFields& fields) {
    const unsigned count = fields.UInt16();
    std::vector<int> sizes;
    for (unsigned i = 0; i < count && fields.Ok(); ++i) {
        sizes.push_back(static_cast<int>(fields.UInt16()));
    }
    std::vector<WmfPoints> areas;
    for (const int size : sizes) {
        areas.push_back(Points(fields, size));
        if (refused_) {
            return;
        }
    }
    if (fields.Ok() && !areas.empty()) {
        canvas_.Areas(areas, Context());
    }
}

void WmfPlayer::Rectangle(ByteFields& fields) {
    const WmfBox box = BoxBackwards(fields);
    if (fields.Ok()) {
        canvas_.Areas({Corners(box)}, Context());
    }
}

void WmfPlayer::RoundRect(ByteFields& fields) {
    const WmfPoint corner = PointBackwards(fields);
    const WmfBox box = BoxBackwards(fields);
    if (fields.Ok()) {
        canvas_.Areas({RoundBoxPoints(box, corner.X * width_ / state_.Extent.X,
                                      corner.Y * height_ / state_.Extent.Y)},
                      Context());
    }
}

void WmfPlayer::Ellipse(ByteFields& fields) {
    const WmfBox box = BoxBackwards(fields);
    if (fields.Ok()) {
        canvas_.Areas({EllipsePoints(box)}, Context());
    }
}

void WmfPlayer::DrawArc(ByteFields& fields, Edge edge) {
    const WmfPoint to = Placed(PointBackwards(fields));
    const WmfPoint from = Placed(PointBackwards(fields));
    const WmfBox box = BoxBackwards(fields);
    if (!fields.Ok()) {
        return;
    }
    WmfPoints points = ArcPoints(box, from, to);
    if (edge == Edge::Open) {
        canvas_.Line(points, Context());
        return;
    }
    if (edge == Edge::Pie) {
        points.push_back({(box.Left + box.Right) / 2, (box.Top + box.Bottom) / 2});
    }
    canvas_.Areas({points}, Context());
}

void WmfPlayer::SetPixel(ByteFields& fields) {
    WmfContext dot = Context();
    dot.Brush = WmfBrush();
    const std::uint32_t value = fields.UInt32();
    dot.Brush.Colour =
        0xFF000000U | (value & 0xFFU) << 16U | (value & 0xFF00U) | (value >> 16U & 0xFFU);
    const WmfPoint at = PointBackwards(fields);
    const WmfPoint corner = Placed(at);
    // Nobody would see less than a pixel of the canvas.
    const double size = std::max(1.0, Context().Scale);
    if (fields.Ok()) {
        canvas_.Fill({corner.X, corner.Y, corner.X + size, corner.Y + size}, WmfMix::Copy, dot);
    }
}

void WmfPlayer::FillOnly(const WmfBox& box, std::uint32_t operation) {
    canvas_.Fill(box, Operation(operation).OfPattern(), Context());
}

void WmfPlayer::PatBlt(ByteFields& fields) {
    const std::uint32_t operation = fields.UInt32();
    const WmfPoint size = PointBackwards(fields);
    const WmfPoint at = PointBackwards(fields);
    if (fields.Ok()) {
        FillOnly(Placed(WmfBox{at.X, at.Y, at.X + size.X, at.Y + size.Y}), operation);
    }
}

void WmfPlayer::Blit(ByteFields& fields, const WmfBox& part, const WmfBox& box,
                     std::uint32_t operation, DibColours colours) {
    const auto image = Dib(fields, colours);
    if (!image || !fields.Ok()) {
        return;
    }
    const Operation mix(operation);
    if (!mix.UsesSource()) {
        FillOnly(box, operation);
    } else {
        canvas_.Image(*image, part, box, mix.OfSource(), Context());
    }
}

void WmfPlayer::DibBlit(ByteFields& fields, PartSize partSize) {
    const std::uint32_t operation = fields.UInt32();
    const WmfPoint own = partSize == PartSize::OfItsOwn ? PointBackwards(fields) : WmfPoint{};
    const WmfPoint from = PointBackwards(fields);
    if (bare_) {
        fields.UInt16();
    }
    const WmfPoint size = PointBackwards(fields);
    const WmfPoint at = PointBackwards(fields);
    const WmfBox box = Placed(WmfBox{at.X, at.Y, at.X + size.X, at.Y + size.Y});
    if (!fields.Ok()) {
        return;
    }
    const WmfPoint part = partSize == PartSize::OfItsOwn ? own : size;
    if (bare_) {
        FillOnly(box, operation);
    } else {
        Blit(fields, {from.X, from.Y, from.X + part.X, from.Y + part.Y}, box, operation,
             DibColours::Rgb);
    }
}

void WmfPlayer::DibBitBlt(ByteFields& fields) {
    DibBlit(fields, PartSize::AsPlaced);
}

void WmfPlayer::DibStretchBlt(ByteFields& fields) {
    DibBlit(fields, PartSize::OfItsOwn);
}

// Here, and only here, a part is counted from the lower edge of an image whose rows go upwards.
void WmfPlayer::StretchDib(ByteFields& fields) {
    const std::uint32_t operation = fields.UInt32();
    const auto colours = static_cast<DibColours>(fields.UInt16() & 1U);
    const WmfPoint partSize = PointBackwards(fields);
    WmfPoint from = PointBackwards(fields);
    const WmfPoint size = PointBackwards(fields);
    const WmfPoint at = PointBackwards(fields);
    const WmfBox box = Placed(WmfBox{at.X, at.Y, at.X + size.X, at.Y + size.Y});
    const auto image = Dib(fields, colours);
    if (!image || !fields.Ok()) {
        return;
    }
    if (image->BottomUp) {
        from.Y = image->Height - from.Y - partSize.Y;
    }
    const Operation mix(operation);
    if (!mix.UsesSource()) {
        FillOnly(box, operation);
    } else {
        canvas_.Image(*image, {from.X, from.Y, from.X + partSize.X, from.Y + partSize.Y}, box,
                      mix.OfSource(), Context());
    }
}

// A picture that came in stretches; each is drawn as the whole it most likely is.
void WmfPlayer::SetDibToDevice(ByteFields& fields) {
    const auto colours = static_cast<DibColours>(fields.UInt16() & 1U);
    fields.Bytes(8); // scan lines, place in the image
    const WmfPoint size = PointBackwards(fields);
    const WmfPoint at = PointBackwards(fields);
    const WmfBox box = Placed(WmfBox{at.X, at.Y, at.X + size.X, at.Y + size.Y});
    const auto image = Dib(fields, colours);
    if (image && fields.Ok()) {
        canvas_.Image(*image,
                      {0, 0, static_cast<double>(image->Width), static_cast<double>(image->Height)},
                      box, WmfMix::Copy, Context());
    }
}

void WmfPlayer::TextOut(ByteFields& fields) {
    const int length = fields.Int16();
    if (length < 0) {
        Refuse();
        return;
    }
    WmfText text;
    text.Bytes = fields.Bytes(static_cast<std::size_t>(length));
    fields.Bytes(static_cast<std::size_t>(length % 2));
    const WmfPoint at = PointBackwards(fields);
    if (fields.Ok()) {
        DrawText(text, at);
    }
}

void WmfPlayer::ExtTextOut(ByteFields& fields) {
    const WmfPoint at = PointBackwards(fields);
    const int length = fields.Int16();
    const unsigned options = fields.UInt16();
    if (length < 0) {
        Refuse();
        return;
    }
    WmfText text;
    if ((options & (kFillsBox | kClipsToBox)) != 0) {
        WmfBox box;
        box.Left = fields.Int16();
        box.Top = fields.Int16();
        box.Right = fields.Int16();
        box.Bottom = fields.Int16();
        box = Placed(box);
        if ((options & kFillsBox) != 0) {
            text.Box = box;
        }
        if ((options & kClipsToBox) != 0) {
            text.Frame = box;
        }
    }
    text.Bytes = fields.Bytes(static_cast<std::size_t>(length));
    fields.Bytes(static_cast<std::size_t>(length % 2));
    const auto count = static_cast<std::size_t>(length);
    if (count > 0 && fields.Left() >= count * 2) {
        for (std::size_t i = 0; i < count; ++i) {
            text.Steps.push_back(std::abs(fields.Int16() * width_ / state_.Extent.X));
        }
    }
    if (fields.Ok()) {
        DrawText(std::move(text), at);
    }
}

void WmfPlayer::DrawText(WmfText text, const WmfPoint& where) {
    if (text.Bytes.size() > pointsLeft_) {
        Refuse();
        return;
    }
    pointsLeft_ -= text.Bytes.size();
    text.At = Placed(state_.MovesAlong ? state_.Here : where);
    WmfContext context = Context();
    const double height = context.Font.Height * std::abs(height_ / state_.Extent.Y);
    context.Font.Height = std::clamp(height, -kMostFontHeight, kMostFontHeight);
    const double length = canvas_.Text(text, context);
    if (state_.MovesAlong) {
        state_.Here.X += length * state_.Extent.X / width_;
    }
}

} // namespace kestrova
