// SPDX-License-Identifier: GPL-3.0-or-later
#include "media/WmfPlayer.h"

#include <algorithm>

namespace kestrova {

namespace {

constexpr std::size_t kMostObjects = 4096;
constexpr std::size_t kMostFace = 32;

// The styles of brushes in a file.
constexpr unsigned kSolidBrush = 0;
constexpr unsigned kNoBrush = 1;
constexpr unsigned kHatchedBrush = 2;

std::uint32_t ColourOf(std::uint32_t value) {
    return 0xFF000000U | (value & 0xFFU) << 16U | (value & 0xFF00U) | (value >> 16U & 0xFFU);
}

WmfLine LineOf(unsigned style) {
    switch (style & 0x0FU) {
    case 1: return WmfLine::Dash;
    case 2: return WmfLine::Dot;
    case 3: return WmfLine::DashDot;
    case 4: return WmfLine::DashDotDot;
    case 5: return WmfLine::None;
    default: return WmfLine::Solid;
    }
}

} // namespace

// A new object takes the first place that is free; the file counts on that.
void WmfPlayer::Keep(const ByteFields& fields, Object object) {
    if (!fields.Ok()) {
        return;
    }
    while (firstFree_ < objects_.size() && objects_[firstFree_].index() != 0) {
        ++firstFree_;
    }
    if (firstFree_ == kMostObjects) {
        Refuse();
        return;
    }
    if (firstFree_ == objects_.size()) {
        objects_.emplace_back();
    }
    objects_[firstFree_] = std::move(object);
}

void WmfPlayer::CreatePen(ByteFields& fields) {
    WmfPen pen;
    const unsigned style = fields.UInt16();
    pen.Line = LineOf(style);
    pen.Cap = (style & 0x0F00U) == 0x0100   ? WmfCap::Square
              : (style & 0x0F00U) == 0x0200 ? WmfCap::Flat
                                            : WmfCap::Round;
    pen.Join = (style & 0xF000U) == 0x1000   ? WmfJoin::Bevel
               : (style & 0xF000U) == 0x2000 ? WmfJoin::Miter
                                             : WmfJoin::Round;
    pen.Width = std::max(0, fields.Int16());
    fields.Int16();
    pen.Colour = ColourOf(fields.UInt32());
    Keep(fields, pen);
}

void WmfPlayer::CreateBrush(ByteFields& fields) {
    WmfBrush brush;
    const unsigned style = fields.UInt16();
    brush.Fill = style == kSolidBrush     ? WmfFill::Solid
                 : style == kHatchedBrush ? WmfFill::Hatch
                                          : WmfFill::None;
    brush.Colour = ColourOf(fields.UInt32());
    if (style != kSolidBrush && style != kNoBrush) {
        brush.Hatch = static_cast<WmfHatch>(std::min(fields.UInt16(), 5U));
    }
    Keep(fields, brush);
}

void WmfPlayer::CreateDibBrush(ByteFields& fields) {
    fields.UInt16(); // the style; what follows is a bitmap in either
    const auto colours = static_cast<DibColours>(fields.UInt16() & 1U);
    auto image = Dib(fields, colours);
    if (!image) {
        return;
    }
    WmfBrush brush;
    brush.Fill = WmfFill::Pattern;
    brush.Pattern = std::make_shared<const DibImage>(std::move(*image));
    Keep(fields, brush);
}

void WmfPlayer::CreateFont(ByteFields& fields) {
    WmfFont font;
    font.Height = fields.Int16();
    fields.Int16(); // width: the font's own
    font.Angle = fields.Int16();
    fields.Int16(); // the letters' own angle, which follows the line's
    font.Weight = std::clamp(fields.Int16(), 0, 1000);
    font.Italic = fields.Byte() != 0;
    font.Underline = fields.Byte() != 0;
    font.StrikeOut = fields.Byte() != 0;
    font.Charset = fields.Byte();
    fields.Bytes(4); // precision, quality, pitch
    const std::string_view face = fields.Bytes(std::min(fields.Left(), kMostFace));
    font.Face = face.substr(0, face.find('\0'));
    Keep(fields, font);
}

void WmfPlayer::CreateIgnored(ByteFields& fields) {
    Keep(fields, Ignored());
}

void WmfPlayer::SelectObject(ByteFields& fields) {
    const std::size_t index = fields.UInt16();
    if (index >= objects_.size() || !fields.Ok()) {
        return;
    }
    if (const auto* const pen = std::get_if<WmfPen>(&objects_[index])) {
        Context().Pen = *pen;
    } else if (const auto* const brush = std::get_if<WmfBrush>(&objects_[index])) {
        Context().Brush = *brush;
    } else if (const auto* const font = std::get_if<WmfFont>(&objects_[index])) {
        Context().Font = *font;
    }
}

void WmfPlayer::DeleteObject(ByteFields& fields) {
    const std::size_t index = fields.UInt16();
    if (index < objects_.size() && fields.Ok()) {
        objects_[index] = std::monostate();
        firstFree_ = std::min(firstFree_, index);
    }
}

} // namespace kestrova
