// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Printer.h"
#include "platform/qt/PaperMeasure.h"

#include <QPainter>

namespace kestrova {

// A surface over a painter whose unit is the twip and whose origin is the corner of the area that
// can be drawn on; whoever makes it has moved and scaled the painter so. The page in a window, its
// picture and the paper are all drawn through here, so that they are the same.
//
// Where the painter paints pixels, lines and the edges of pictures lie on whole ones.
class PainterSurface : public DrawingSurface {
public:
    // The painter is as it was before when the surface goes. In Monochrome everything is grey.
    PainterSurface(QPainter& painter, const PaperMeasure& measure, const PageSize& area,
                   PrintColour colours = PrintColour::Colour);
    ~PainterSurface() override;

    PainterSurface(const PainterSurface&) = delete;
    PainterSurface& operator=(const PainterSurface&) = delete;
    PainterSurface(PainterSurface&&) = delete;
    PainterSurface& operator=(PainterSurface&&) = delete;

    [[nodiscard]] int PageWidth() const override { return area_.Width; }
    [[nodiscard]] int PageHeight() const override { return area_.Height; }

    [[nodiscard]] int TextWidth(const FontChoice& font, std::string_view text) const override;
    [[nodiscard]] int LineHeight(const FontChoice& font) const override;
    [[nodiscard]] int AverageWidth(const FontChoice& font) const override;

    void DrawText(int x, int y, const FontChoice& font, std::int32_t colour,
                  std::string_view text) override;
    void DrawLine(int x1, int y1, int x2, int y2, const Pen& pen) override;
    // The picture is a PageImage.
    void DrawPicture(int left, int top, int width, int height, const PagePicture& picture) override;

private:
    [[nodiscard]] QColor InkOf(std::int32_t colour) const;
    [[nodiscard]] bool PaintsPixels() const;

    QPainter& painter_;
    const PaperMeasure& measure_;
    PageSize area_;
    PrintColour colours_;
};

} // namespace kestrova
