// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/qt/PdfJob.h"

#include "platform/qt/QtText.h"

#include <QPageSize>

#include <cassert>

namespace kestrova {

namespace {

constexpr int kTwipsPerInch = 1440;
constexpr qreal kTwipsPerPoint = 20;

} // namespace

PdfJob::PdfJob(const PrinterSetup& setup, const std::string& title, Delivery deliver)
    : area_(PrintableArea(setup)), colours_(setup.Colours), deliver_(std::move(deliver)) {
    bytes_.open(QIODevice::WriteOnly);
    const PageSize paper = PaperSizeOf(setup);
    writer_.setResolution(kTwipsPerInch);
    writer_.setPageSize(QPageSize(QSizeF(paper.Width, paper.Height) / kTwipsPerPoint,
                                  QPageSize::Point, {}, QPageSize::ExactMatch));
    writer_.setPageMargins(QMarginsF());
    writer_.setTitle(ToQt(title));
    writer_.setCreator(QStringLiteral("Kestrova"));
}

void PdfJob::NewPage() {
    if (page_ == 0) {
        painter_.begin(&writer_);
        painter_.translate(kPaperEdge, kPaperEdge);
        painter_.setClipRect(0, 0, area_.Width, area_.Height); // no printer reaches further
        surface_.emplace(painter_, measure_, area_, colours_);
    } else {
        writer_.newPage();
    }
    ++page_;
}

int PdfJob::TextWidth(const FontChoice& font, std::string_view text) const {
    return measure_.TextWidth(font, text);
}

int PdfJob::LineHeight(const FontChoice& font) const {
    return measure_.LineHeight(font);
}

int PdfJob::AverageWidth(const FontChoice& font) const {
    return measure_.AverageWidth(font);
}

void PdfJob::DrawText(int x, int y, const FontChoice& font, std::int32_t colour,
                      std::string_view text) {
    assert(surface_);
    surface_->DrawText(x, y, font, colour, text);
}

void PdfJob::DrawLine(int x1, int y1, int x2, int y2, const Pen& pen) {
    assert(surface_);
    surface_->DrawLine(x1, y1, x2, y2, pen);
}

void PdfJob::DrawPicture(int left, int top, int width, int height, const PagePicture& picture) {
    assert(surface_);
    surface_->DrawPicture(left, top, width, height, picture);
}

Status PdfJob::Finish() {
    assert(surface_);
    surface_.reset();
    if (!painter_.end()) {
        return Error{ErrorCode::Failed, {}};
    }
    bytes_.close();
    return deliver_(bytes_.data().toStdString());
}

} // namespace kestrova
