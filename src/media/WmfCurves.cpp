// SPDX-License-Identifier: GPL-3.0-or-later
#include "media/WmfCurves.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace kestrova {

namespace {

constexpr double kFullCircle = 2 * std::numbers::pi;

struct Ellipse {
    WmfPoint Centre;
    double RadiusX = 0;
    double RadiusY = 0;

    explicit Ellipse(const WmfBox& box)
        : Centre{(box.Left + box.Right) / 2, (box.Top + box.Bottom) / 2},
          RadiusX(std::abs(box.Width()) / 2), RadiusY(std::abs(box.Height()) / 2) {}

    [[nodiscard]] WmfPoint At(double angle) const {
        return {Centre.X + RadiusX * std::cos(angle), Centre.Y - RadiusY * std::sin(angle)};
    }

    // The angle, seen in a circle, under which a point lies.
    [[nodiscard]] double Towards(const WmfPoint& point) const {
        if (RadiusX == 0 || RadiusY == 0) {
            return 0;
        }
        return std::atan2((Centre.Y - point.Y) / RadiusY, (point.X - Centre.X) / RadiusX);
    }

    void Add(WmfPoints& points, double from, double to) const {
        const double longest = std::max(RadiusX, RadiusY);
        const int whole = std::clamp(static_cast<int>(longest * 2), 32, 512);
        const int steps = std::max(2, static_cast<int>(whole * std::abs(to - from) / kFullCircle));
        for (int i = 0; i <= steps; ++i) {
            points.push_back(At(from + (to - from) * i / steps));
        }
    }
};

} // namespace

WmfPoints EllipsePoints(const WmfBox& box) {
    WmfPoints points;
    Ellipse(box).Add(points, 0, kFullCircle);
    return points;
}

WmfPoints RoundBoxPoints(const WmfBox& box, double cornerWidth, double cornerHeight) {
    const double left = std::min(box.Left, box.Right);
    const double right = std::max(box.Left, box.Right);
    const double top = std::min(box.Top, box.Bottom);
    const double bottom = std::max(box.Top, box.Bottom);
    const double width = std::min(std::abs(cornerWidth), right - left);
    const double height = std::min(std::abs(cornerHeight), bottom - top);
    WmfPoints points;
    const auto corner = [&](double x, double y, int quarter) {
        const double from = kFullCircle / 4 * quarter;
        Ellipse({x, y, x + width, y + height}).Add(points, from, from + kFullCircle / 4);
    };
    corner(right - width, top, 0);
    corner(left, top, 1);
    corner(left, bottom - height, 2);
    corner(right - width, bottom - height, 3);
    return points;
}

WmfPoints ArcPoints(const WmfBox& box, const WmfPoint& from, const WmfPoint& to) {
    const Ellipse ellipse(box);
    const double begin = ellipse.Towards(from);
    double end = ellipse.Towards(to);
    if (end <= begin) {
        end += kFullCircle;
    }
    WmfPoints points;
    ellipse.Add(points, begin, end);
    return points;
}

} // namespace kestrova
