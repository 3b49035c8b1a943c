// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/DrawingSurface.h"

#include <algorithm>
#include <cmath>

namespace kestrova {

// Letters that can be counted on: each is half as wide as the font is high, and lines follow each
// other at the font's height. At 8 points that is 80 and 160 twips.
template<typename Port> class FixedLetters : public Port {
public:
    // How many texts have been measured, and how many bytes they had.
    mutable int Measured = 0;
    mutable std::size_t MeasuredBytes = 0;

    [[nodiscard]] int TextWidth(const FontChoice& font, std::string_view text) const override {
        ++Measured;
        MeasuredBytes += text.size();
        const auto letters = std::count_if(text.begin(), text.end(), [](char c) {
            return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U;
        });
        return AverageWidth(font) * static_cast<int>(letters);
    }
    [[nodiscard]] int LineHeight(const FontChoice& font) const override {
        return static_cast<int>(std::lround(font.Size * 20));
    }
    [[nodiscard]] int AverageWidth(const FontChoice& font) const override {
        return LineHeight(font) / 2;
    }
};

using FakeMeasure = FixedLetters<TextMeasure>;

} // namespace kestrova
