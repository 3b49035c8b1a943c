// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/FontChoice.h"

#include <cstdint>
#include <memory>
#include <string_view>

namespace kestrova {

// Every position and length here is in twips, 1/1440 inch, counted from the top left corner of the
// area that can be drawn on. Colours are red + 256 x green + 65536 x blue.

// How wide and how high texts are on paper. Two surfaces measure alike, whatever they draw on.
class TextMeasure {
public:
    virtual ~TextMeasure() = default;

    // Width of a text without line breaks.
    [[nodiscard]] virtual int TextWidth(const FontChoice& font, std::string_view text) const = 0;

    // Distance from one line to the next.
    [[nodiscard]] virtual int LineHeight(const FontChoice& font) const = 0;

    // The field's average character: the mean width of the letters of the Latin alphabet.
    [[nodiscard]] virtual int AverageWidth(const FontChoice& font) const = 0;
};

// A picture ready to be painted. Only whoever read it knows what is inside.
class PagePicture {
public:
    virtual ~PagePicture() = default;

    // Size in pixels, each above 0.
    [[nodiscard]] virtual int Width() const = 0;
    [[nodiscard]] virtual int Height() const = 0;
};

// Shared because the states that can be undone to hold the same pictures as the page on show.
using PagePicturePtr = std::shared_ptr<const PagePicture>;

enum class LineStyle { Solid = 0, Dotted = 2 };

struct Pen {
    std::int32_t Colour = 0;
    LineStyle Style = LineStyle::Solid;
    int Width = 1; // 1 is thin, 4 wide: in pixels of a screen, 1/96 inch, whatever it is drawn on
};

// What a page is drawn onto: paper, a file, or its image in a window. Nothing here can fail; what
// becomes of the whole is told when it is finished.
class DrawingSurface : public TextMeasure {
public:
    // Size of the area that can be drawn on.
    [[nodiscard]] virtual int PageWidth() const = 0;
    [[nodiscard]] virtual int PageHeight() const = 0;

    // A text that fits on one line, its top left corner at (x, y). It is not wrapped or cut.
    virtual void DrawText(int x, int y, const FontChoice& font, std::int32_t colour,
                          std::string_view text) = 0;

    virtual void DrawLine(int x1, int y1, int x2, int y2, const Pen& pen) = 0;

    // Stretches the picture into the box. Only for pictures that come from this program's own
    // reader of pictures.
    virtual void DrawPicture(int left, int top, int width, int height,
                             const PagePicture& picture) = 0;
};

} // namespace kestrova
