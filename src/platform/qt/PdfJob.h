// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Printer.h"
#include "platform/qt/PainterSurface.h"

#include <QBuffer>
#include <QPainter>
#include <QPdfWriter>

#include <functional>
#include <optional>
#include <string>

namespace kestrova {

// A document that becomes a PDF: on pages of the size of the paper, turned as the paper is, and
// with its fonts inside. It is held in memory until it is whole.
class PdfJob : public PrintJob {
public:
    // Takes the finished document to where it is to go.
    using Delivery = std::function<Status(std::string pdf)>;

    PdfJob(const PrinterSetup& setup, const std::string& title, Delivery deliver);

    [[nodiscard]] int PageWidth() const override { return area_.Width; }
    [[nodiscard]] int PageHeight() const override { return area_.Height; }
    [[nodiscard]] int TextWidth(const FontChoice& font, std::string_view text) const override;
    [[nodiscard]] int LineHeight(const FontChoice& font) const override;
    [[nodiscard]] int AverageWidth(const FontChoice& font) const override;

    // Drawing begins with the first page and ends with Finish.
    void DrawText(int x, int y, const FontChoice& font, std::int32_t colour,
                  std::string_view text) override;
    void DrawLine(int x1, int y1, int x2, int y2, const Pen& pen) override;
    void DrawPicture(int left, int top, int width, int height, const PagePicture& picture) override;

    void NewPage() override;
    [[nodiscard]] int PageNumber() const override { return page_; }
    Status Finish() override;

private:
    PageSize area_;
    PrintColour colours_;
    Delivery deliver_;
    PaperMeasure measure_;
    QBuffer bytes_;
    QPdfWriter writer_{&bytes_};
    QPainter painter_;
    std::optional<PainterSurface> surface_;
    int page_ = 0;
};

} // namespace kestrova
