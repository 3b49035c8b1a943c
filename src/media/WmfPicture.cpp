// SPDX-License-Identifier: GPL-3.0-or-later
#include "media/WmfPicture.h"

#include "media/ByteFields.h"
#include "media/WmfPlayer.h"

#include <algorithm>
#include <cmath>

namespace kestrova {

namespace {

constexpr double kPixelsPerInch = 96;
constexpr double kLikelySide = 1024; // of a drawing that does not say how large it is
constexpr double kMostSlant = 1000;  // one side to the other
constexpr double kPlane = 65536;     // beyond every coordinate

// Draws nothing, but knows where it would have been.
class Measure : public WmfCanvas {
public:
    [[nodiscard]] bool GoesOn() override { return true; }
    void Areas(const std::vector<WmfPoints>& areas, const WmfContext& /*context*/) override {
        for (const WmfPoints& area : areas) {
            AddAll(area);
        }
    }
    void Line(const WmfPoints& points, const WmfContext& /*context*/) override { AddAll(points); }
    void Fill(const WmfBox& box, WmfMix /*mix*/, const WmfContext& /*context*/) override {
        AddBox(box);
    }
    void Image(const DibImage& /*image*/, const WmfBox& /*part*/, const WmfBox& box, WmfMix /*mix*/,
               const WmfContext& /*context*/) override {
        AddBox(box);
    }
    double Text(const WmfText& text, const WmfContext& context) override {
        const double height = std::abs(context.Font.Height);
        const double length = height / 2 * static_cast<double>(text.Bytes.size());
        AddBox({text.At.X, text.At.Y, text.At.X + length, text.At.Y + height});
        return length;
    }

    [[nodiscard]] WmfBox Seen() const { return seen_; }

private:
    void Add(const WmfPoint& point) {
        if (!any_) {
            seen_ = {point.X, point.Y, point.X, point.Y};
            any_ = true;
        }
        seen_.Left = std::min(seen_.Left, point.X);
        seen_.Right = std::max(seen_.Right, point.X);
        seen_.Top = std::min(seen_.Top, point.Y);
        seen_.Bottom = std::max(seen_.Bottom, point.Y);
    }
    void AddAll(const WmfPoints& points) {
        for (const WmfPoint& point : points) {
            Add(point);
        }
    }
    void AddBox(const WmfBox& box) {
        Add({box.Left, box.Top});
        Add({box.Right, box.Bottom});
    }

    WmfBox seen_;
    bool any_ = false;
};

// What a look through the orders tells.
struct Look {
    int Orders = 0;
    std::optional<WmfPoint> Extent; // as first set
    WmfPoint Origin;                // the last before that, or the first after it
};

Look LookThrough(WmfFile file) {
    Look look;
    bool origin = false;
    while (const auto record = file.Next()) {
        ++look.Orders;
        ByteFields fields(record->Fields);
        const double y = fields.Int16();
        const double x = fields.Int16();
        if (record->Function == kSetWindowOrg && fields.Ok() && (!look.Extent || !origin)) {
            look.Origin = {x, y};
            origin = true;
        } else if (record->Function == kSetWindowExt && fields.Ok() && !look.Extent && x != 0 &&
                   y != 0) {
            look.Extent = WmfPoint{x, y};
        }
    }
    return look;
}

WmfBox WindowOf(const WmfFile& file, const Look& look) {
    if (file.Frame()) {
        return *file.Frame();
    }
    if (look.Extent) {
        return {look.Origin.X, look.Origin.Y, look.Origin.X + look.Extent->X,
                look.Origin.Y + look.Extent->Y};
    }
    // Played on a plane on which every coordinate is a pixel.
    Measure measure;
    WmfPicture plane{file, {0, 0, kPlane, kPlane}, kPlane, kPlane};
    PlayWmf(plane, kPlane, kPlane, measure);
    WmfBox seen = measure.Seen();
    seen.Right = std::max(seen.Right, seen.Left + 1);
    seen.Bottom = std::max(seen.Bottom, seen.Top + 1);
    return seen;
}

} // namespace

Result<WmfPicture> OpenWmf(std::string_view bytes) {
    const auto file = WmfFile::Open(bytes);
    if (!file) {
        return file.Failure();
    }
    const Look look = LookThrough(file.Value());
    if (look.Orders == 0) {
        return Error{ErrorCode::Damaged, "a metafile with nothing in it"};
    }
    WmfPicture picture{file.Value(), WindowOf(file.Value(), look), 0, 0};
    double width = std::abs(picture.Window.Width());
    double height = std::abs(picture.Window.Height());
    width = std::clamp(width, height / kMostSlant, height * kMostSlant);
    const bool sized = picture.File.Frame() && picture.File.UnitsPerInch() > 0;
    const double scale = sized ? kPixelsPerInch / picture.File.UnitsPerInch()
                               : kLikelySide / std::max(width, height);
    picture.Width = width * scale;
    picture.Height = height * scale;
    return picture;
}

int PlayWmf(const WmfPicture& picture, double width, double height, WmfCanvas& canvas) {
    return WmfPlayer(picture, width, height, canvas).Play();
}

} // namespace kestrova
