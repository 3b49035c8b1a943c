// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/DrawingSurface.h"

#include <QFont>
#include <QFontMetricsF>
#include <QString>

#include <map>
#include <string>
#include <tuple>

namespace kestrova {

// How texts are set on paper: at a size in twips and with letters as wide as they were designed,
// never fitted to the pixels of a screen. Whatever is drawn in these fonts with the twip as unit
// lies in the same place on every device and at every zoom. Used by the thread of the windows.
class PaperMeasure : public TextMeasure {
public:
    struct Face {
        QFont Font;
        QFontMetricsF Metrics;
        int Ascent = 0; // from the top of a line to its base
        int LineHeight = 0;
        int AverageWidth = 0;
    };

    [[nodiscard]] int TextWidth(const FontChoice& font, std::string_view text) const override;
    [[nodiscard]] int LineHeight(const FontChoice& font) const override;
    [[nodiscard]] int AverageWidth(const FontChoice& font) const override;

    // Stays as it is until the next call.
    [[nodiscard]] const Face& FaceOf(const FontChoice& font) const;

    // A text as it is measured and drawn: control characters are blanks.
    [[nodiscard]] static QString OneLine(std::string_view text);

private:
    struct Key {
        std::string Family;
        int Size = 0; // twips
        bool Bold = false;
        bool Italic = false;

        bool operator<(const Key& other) const {
            return std::tie(Size, Bold, Italic, Family) <
                   std::tie(other.Size, other.Bold, other.Italic, other.Family);
        }
    };

    mutable std::map<Key, Face> faces_; // those in use: looking a font up takes its time
};

} // namespace kestrova
