// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QPalette>

namespace kestrova::look {

// What makes the windows one family.
inline constexpr int kMargin = 16; // around a window's content, in pixels
inline constexpr int kSpacing = 8; // between controls
inline constexpr int kRadius = 10; // of a card's corners

// The desktop's own accent.
[[nodiscard]] inline QColor Accent(const QPalette& palette) {
    return palette.color(QPalette::Active, QPalette::Highlight);
}

// A colour let through to what lies under it.
[[nodiscard]] inline QColor Faded(QColor colour, double strength) {
    colour.setAlphaF(static_cast<float>(strength));
    return colour;
}

// A colour between two others.
[[nodiscard]] inline QColor Between(const QColor& from, const QColor& to, double share) {
    const auto mix = [share](int a, int b) { return static_cast<int>(a + (b - a) * share); };
    return QColor(mix(from.red(), to.red()), mix(from.green(), to.green()),
                  mix(from.blue(), to.blue()));
}

} // namespace kestrova::look
