// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFont>
#include <QFontMetrics>
#include <QString>

namespace kestrova {

// The font in which a text fits a width: the font given, or a smaller one, down to 80 % of it.
// Where not even that is small enough, the text has to be cut.
[[nodiscard]] inline QFont FittingFont(QFont font, const QString& text, int width) {
    constexpr double kSmallest = 0.8;
    constexpr double kStep = 0.05;
    const double size = font.pointSizeF();
    for (double share = 1; share > kSmallest - kStep / 2 && size > 0; share -= kStep) {
        font.setPointSizeF(size * share);
        if (QFontMetrics(font).horizontalAdvance(text) <= width) {
            break;
        }
    }
    return font;
}

} // namespace kestrova
