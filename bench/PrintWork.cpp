// SPDX-License-Identifier: GPL-3.0-or-later
// What a month's page costs to be laid out in lines and drawn: onto the window's image and onto
// paper.
#include "BoundedWork.h"
#include "FullMonth.h"

#include "platform/qt/PageImage.h"
#include "platform/qt/PainterSurface.h"
#include "platform/qt/PdfJob.h"
#include "print/PageRenderer.h"

#include <QApplication>

#include <functional>
#include <string>

namespace kestrova::bench {

namespace {

constexpr int kEvents = 310;
constexpr double kPixelsPerTwip = 96.0 / 1440;

// Fonts belong to the toolkit's application, which lives as long as the process does.
void StartToolkit() {
    if (qApp == nullptr) {
        static int count = 1;
        static char name[] = "bench";
        static char* arguments[] = {name, nullptr};
        qputenv("QT_QPA_PLATFORM", "offscreen");
        new QApplication(count, arguments); // also for work that has windows
    }
}

// Ten messages a day, each found its place by what it measures, and a frame around every day.
void DrawMonth(DrawingSurface& page) {
    const FontChoice date{"Arial", 14, true, false};
    const FontChoice message{"Arial", 7, false, false};
    const int column = page.PageWidth() / 7;
    constexpr int kRow = 2400;
    for (int i = 0; i < kEvents; ++i) {
        const int day = i % 31;
        const int left = day % 7 * column;
        const int top = 1500 + day / 7 * kRow;
        if (i < 31) {
            page.DrawText(left, top, date, 0, std::to_string(day + 1));
            page.DrawLine(left, top, left + column, top, {});
            page.DrawLine(left, top, left, top + kRow, {0x808080, LineStyle::Dotted, 1});
        }
        std::string text = "10:" + std::to_string(10 + i % 50) + " Message number " +
                           std::to_string(i) + " of the month";
        while (page.TextWidth(message, text) > column) {
            text.erase(text.find_last_of(' '));
        }
        page.DrawText(left, top + 400 + i / 31 * page.LineHeight(message), message, 0x600000, text);
    }
}

// Draws a page onto an image of a screen's resolution, again and again.
void DrawOnImage(benchmark::State& state, const std::function<void(PainterSurface&)>& draw) {
    StartToolkit();
    const PageSize area = PrintableArea({});
    QImage image(static_cast<int>(area.Width * kPixelsPerTwip),
                 static_cast<int>(area.Height * kPixelsPerTwip),
                 QImage::Format_ARGB32_Premultiplied);
    const PaperMeasure measure;
    for ([[maybe_unused]] auto _ : state) {
        image.fill(Qt::white);
        QPainter painter(&image);
        painter.scale(kPixelsPerTwip, kPixelsPerTwip);
        PainterSurface surface(painter, measure, area);
        draw(surface);
    }
}

void OnImage(benchmark::State& state) {
    DrawOnImage(state, DrawMonth);
}

// All that is done when a month is shown.
void ComposeAndRender(benchmark::State& state) {
    const FullMonth month;
    DrawOnImage(state, [&](PainterSurface& surface) {
        const PageLayout page =
            month.Composed({surface.PageWidth(), surface.PageHeight()}, surface);
        if (page.LabEvent.size() != FullMonth::kMessages) {
            state.SkipWithError("the page is not complete");
        }
        DoBorder(page, surface);
        DoPrint(page, kMaxDays, surface);
    });
}

// Another size in each frame, as while the picture is sized by hand.
void Sizing(benchmark::State& state) {
    QImage photograph(4000, 3000, QImage::Format_RGB32);
    photograph.fill(Qt::darkCyan);
    const PageImage picture(photograph);
    int step = 0;
    for ([[maybe_unused]] auto _ : state) {
        const int width = 500 + step++ % 250;
        benchmark::DoNotOptimize(picture.Scaled({width, width * 3 / 4}));
    }
}

void OnPaper(benchmark::State& state) {
    StartToolkit();
    for ([[maybe_unused]] auto _ : state) {
        PdfJob job({}, "Bench", [&state](const std::string& pdf) -> Status {
            if (pdf.size() < 10'000) {
                state.SkipWithError("there is hardly anything on the page");
            }
            return Done{};
        });
        job.NewPage();
        DrawMonth(job);
        if (!job.Finish()) {
            state.SkipWithError("the page could not be finished");
        }
    }
}

const AtMost kMonth = AtMost::Seconds(0.05, "draw a month page with 310 texts", OnImage);
const AtMost kRender =
    AtMost::Seconds(0.05, "compose and render a month page with 310 messages", ComposeAndRender);
const AtMost kPaper = AtMost::Seconds(0.05, "draw a month page into a PDF", OnPaper);
const AtMost kSizing =
    AtMost::Seconds(1.0 / 60, "a picture of 12 megapixels in a new size", Sizing);

} // namespace

} // namespace kestrova::bench
