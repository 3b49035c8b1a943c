// SPDX-License-Identifier: GPL-3.0-or-later
#include "media/WmfPlayer.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace kestrova {

namespace {

constexpr int kMostOrders = 2'000'000;
constexpr std::size_t kMostPoints = 8'000'000;
constexpr std::size_t kMostPixels = std::size_t{64} << 20;
constexpr std::size_t kMostSaved = 256;
constexpr std::size_t kMostExcluded = 256;
constexpr double kFarthest = 1e6; // pixels; what lies farther out is moved in to there

double Bounded(double value) {
    return std::isfinite(value) ? std::clamp(value, -kFarthest, kFarthest) : 0;
}

WmfBox Upright(const WmfBox& box) {
    return {std::min(box.Left, box.Right), std::min(box.Top, box.Bottom),
            std::max(box.Left, box.Right), std::max(box.Top, box.Bottom)};
}

} // namespace

WmfPlayer::WmfPlayer(const WmfPicture& picture, double width, double height, WmfCanvas& canvas)
    : file_(picture.File), width_(width), height_(height), canvas_(canvas),
      pointsLeft_(kMostPoints), pixelsLeft_(kMostPixels) {
    state_.Origin = {picture.Window.Left, picture.Window.Top};
    state_.Extent = {picture.Window.Width(), picture.Window.Height()};
    Rescale();
}

// Orders that are not in the table are obeyed by doing nothing: palettes, the viewport and the mode
// of mapping (a picture fills whatever it is shown in), escapes to printers.
WmfPlayer::Handler WmfPlayer::HandlerOf(unsigned function) {
    using P = WmfPlayer;
    static constexpr Entry kEntries[] = {
        {0x001E, &P::SaveDc},
        {0x0102, &P::SetBkMode},
        {0x0104, &P::SetRop2},
        {0x0106, &P::SetPolyFillMode},
        {0x0127, &P::RestoreDc},
        {0x012C, &P::SelectClip},
        {0x012D, &P::SelectObject},
        {0x012E, &P::SetTextAlign},
        {0x0142, &P::CreateDibBrush},
        {0x01F0, &P::DeleteObject},
        {0x01F9, &P::CreateIgnored},
        {0x00F7, &P::CreateIgnored},
        {0x06FF, &P::CreateIgnored},
        {0x0201, &P::SetBkColour},
        {0x0209, &P::SetTextColour},
        {0x020F, &P::OffsetWindowOrg},
        {0x0410, &P::ScaleWindowExt},
        {0x0213, &P::LineTo},
        {0x0214, &P::MoveTo},
        {0x0220, &P::OffsetClip},
        {0x02FA, &P::CreatePen},
        {0x02FB, &P::CreateFont},
        {0x02FC, &P::CreateBrush},
        {0x0324, &P::Polygon},
        {0x0325, &P::Polyline},
        {0x0415, &P::ExcludeClip},
        {0x0416, &P::IntersectClip},
        {0x0418, &P::Ellipse},
        {0x041B, &P::Rectangle},
        {0x041F, &P::SetPixel},
        {0x0521, &P::TextOut},
        {0x0538, &P::PolyPolygon},
        {0x061C, &P::RoundRect},
        {0x061D, &P::PatBlt},
        {0x0817, &P::Arc},
        {0x081A, &P::Pie},
        {0x0830, &P::Chord},
        {0x0940, &P::DibBitBlt},
        {0x0A32, &P::ExtTextOut},
        {0x0B41, &P::DibStretchBlt},
        {0x0D33, &P::SetDibToDevice},
        {0x0F43, &P::StretchDib},
        {kSetWindowOrg, &P::SetWindowOrg},
        {kSetWindowExt, &P::SetWindowExt},
    };
    const auto* const found =
        std::find_if(std::begin(kEntries), std::end(kEntries),
                     [function](const Entry& entry) { return entry.Function == function; });
    return found == std::end(kEntries) ? nullptr : found->Obey;
}

int WmfPlayer::Play() {
    int obeyed = 0;
    while (obeyed < kMostOrders && canvas_.GoesOn()) {
        const auto record = file_.Next();
        if (!record) {
            break;
        }
        if (const Handler obey = HandlerOf(record->Function)) {
            ByteFields fields(record->Fields);
            // An order that may bring a bitmap and does not is as long as its number says.
            bare_ = record->Fields.size() / 2 == record->Function >> 8U;
            (this->*obey)(fields);
            if (!fields.Ok() || refused_) {
                break;
            }
        }
        ++obeyed;
    }
    return obeyed;
}

WmfPoint WmfPlayer::Placed(const WmfPoint& point) const {
    return {Bounded((point.X - state_.Origin.X) * width_ / state_.Extent.X),
            Bounded((point.Y - state_.Origin.Y) * height_ / state_.Extent.Y)};
}

WmfBox WmfPlayer::Placed(const WmfBox& box) const {
    const WmfPoint first = Placed(WmfPoint{box.Left, box.Top});
    const WmfPoint last = Placed(WmfPoint{box.Right, box.Bottom});
    return {first.X, first.Y, last.X, last.Y};
}

void WmfPlayer::Rescale() {
    Context().Scale = std::sqrt(std::abs(width_ / state_.Extent.X * (height_ / state_.Extent.Y)));
}

WmfPoint WmfPlayer::PointBackwards(ByteFields& fields) {
    WmfPoint point;
    point.Y = fields.Int16();
    point.X = fields.Int16();
    return point;
}

WmfBox WmfPlayer::BoxBackwards(ByteFields& fields) {
    const WmfPoint last = PointBackwards(fields);
    const WmfPoint first = PointBackwards(fields);
    return Placed(WmfBox{first.X, first.Y, last.X, last.Y});
}

WmfPoints WmfPlayer::Points(ByteFields& fields, int count) {
    WmfPoints points;
    if (count < 0 || static_cast<std::size_t>(count) > pointsLeft_ ||
        static_cast<std::size_t>(count) * 4 > fields.Left()) {
        Refuse();
        return points;
    }
    pointsLeft_ -= static_cast<std::size_t>(count);
    points.reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i) {
        WmfPoint point;
        point.X = fields.Int16();
        point.Y = fields.Int16();
        points.push_back(Placed(point));
    }
    return points;
}

std::optional<DibImage> WmfPlayer::Dib(ByteFields& fields, DibColours colours) {
    auto image = DecodeDib(fields.Rest(), colours, pixelsLeft_);
    if (image) {
        pixelsLeft_ -= image->Pixels.size();
    } else {
        Refuse();
    }
    return image;
}

void WmfPlayer::SetWindowOrg(ByteFields& fields) {
    state_.Origin = PointBackwards(fields);
}

void WmfPlayer::SetWindowExt(ByteFields& fields) {
    const WmfPoint extent = PointBackwards(fields);
    if (extent.X != 0 && extent.Y != 0) {
        state_.Extent = extent;
        Rescale();
    }
}

void WmfPlayer::OffsetWindowOrg(ByteFields& fields) {
    const WmfPoint by = PointBackwards(fields);
    state_.Origin = {Bounded(state_.Origin.X + by.X), Bounded(state_.Origin.Y + by.Y)};
}

void WmfPlayer::ScaleWindowExt(ByteFields& fields) {
    const double yOver = fields.Int16();
    const double yTimes = fields.Int16();
    const double xOver = fields.Int16();
    const double xTimes = fields.Int16();
    if (xOver != 0 && yOver != 0 && xTimes != 0 && yTimes != 0) {
        const WmfPoint extent{Bounded(state_.Extent.X * xTimes / xOver),
                              Bounded(state_.Extent.Y * yTimes / yOver)};
        if (std::abs(extent.X) >= 1 && std::abs(extent.Y) >= 1) {
            state_.Extent = extent;
            Rescale();
        }
    }
}

void WmfPlayer::SaveDc(ByteFields& /*fields*/) {
    if (saved_.size() == kMostSaved) {
        Refuse();
        return;
    }
    saved_.push_back(state_);
}

// A number above 0 counts from the first that was saved, one below 0 from the last.
void WmfPlayer::RestoreDc(ByteFields& fields) {
    const int number = fields.Int16();
    const int count = static_cast<int>(saved_.size());
    const int index = number < 0 ? count + number : number - 1;
    if (index < 0 || index >= count || !fields.Ok()) {
        return;
    }
    state_ = saved_[static_cast<std::size_t>(index)];
    saved_.resize(static_cast<std::size_t>(index));
}

namespace {

std::uint32_t Colour(ByteFields& fields) {
    const auto red = static_cast<std::uint32_t>(fields.Byte());
    const auto green = static_cast<std::uint32_t>(fields.Byte());
    const auto blue = static_cast<std::uint32_t>(fields.Byte());
    fields.Byte();
    return 0xFF000000U | red << 16U | green << 8U | blue;
}

} // namespace

void WmfPlayer::SetBkColour(ByteFields& fields) {
    Context().GroundColour = Colour(fields);
}

void WmfPlayer::SetTextColour(ByteFields& fields) {
    Context().TextColour = Colour(fields);
}

void WmfPlayer::SetBkMode(ByteFields& fields) {
    Context().Ground = fields.UInt16() == 1 ? WmfGround::Transparent : WmfGround::Opaque;
}

void WmfPlayer::SetRop2(ByteFields& fields) {
    Context().Mix = static_cast<WmfMix>((fields.UInt16() - 1U) & 0x0FU);
}

void WmfPlayer::SetPolyFillMode(ByteFields& fields) {
    Context().Rule = fields.UInt16() == 2 ? WmfRule::Winding : WmfRule::Alternate;
}

void WmfPlayer::SetTextAlign(ByteFields& fields) {
    const unsigned align = fields.UInt16();
    state_.MovesAlong = (align & 1U) != 0;
    const unsigned across = align & 6U;
    Context().Across = across == 6   ? WmfAcross::Centre
                       : across == 2 ? WmfAcross::Right
                                     : WmfAcross::Left;
    const unsigned down = align & 24U;
    Context().Down = down == 24 ? WmfDown::Baseline : down == 8 ? WmfDown::Bottom : WmfDown::Top;
}

void WmfPlayer::IntersectClip(ByteFields& fields) {
    const WmfBox box = Upright(BoxBackwards(fields));
    std::optional<WmfBox>& within = Context().Clip.Within;
    if (within) {
        within->Left = std::max(within->Left, box.Left);
        within->Top = std::max(within->Top, box.Top);
        within->Right = std::max(within->Left, std::min(within->Right, box.Right));
        within->Bottom = std::max(within->Top, std::min(within->Bottom, box.Bottom));
    } else {
        within = box;
    }
}

void WmfPlayer::ExcludeClip(ByteFields& fields) {
    const WmfBox box = Upright(BoxBackwards(fields));
    if (Context().Clip.Without.size() == kMostExcluded) {
        Refuse();
        return;
    }
    Context().Clip.Without.push_back(box);
}

void WmfPlayer::OffsetClip(ByteFields& fields) {
    const WmfPoint by = PointBackwards(fields);
    const double x = by.X * width_ / state_.Extent.X;
    const double y = by.Y * height_ / state_.Extent.Y;
    const auto move = [x, y](WmfBox& box) {
        box = {Bounded(box.Left + x), Bounded(box.Top + y), Bounded(box.Right + x),
               Bounded(box.Bottom + y)};
    };
    WmfClip& clip = Context().Clip;
    if (clip.Within) {
        move(*clip.Within);
    }
    std::for_each(clip.Without.begin(), clip.Without.end(), move);
}

// Regions are not kept: whatever is selected, all of the drawing is seen again.
void WmfPlayer::SelectClip(ByteFields& /*fields*/) {
    Context().Clip = {};
}

void WmfPlayer::MoveTo(ByteFields& fields) {
    state_.Here = PointBackwards(fields);
}

} // namespace kestrova
