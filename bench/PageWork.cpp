// SPDX-License-Identifier: GPL-3.0-or-later
// What the page of a month costs, the toolkit's own drawing aside.
#include "BoundedWork.h"
#include "FullMonth.h"

#include "print/PageRenderer.h"

namespace kestrova::bench {

namespace {

// Counts what is drawn on it, in letters of equal width.
class CountingSurface : public DrawingSurface {
public:
    std::size_t Texts = 0;

    [[nodiscard]] int TextWidth(const FontChoice& font, std::string_view text) const override {
        return AverageWidth(font) * static_cast<int>(text.size());
    }
    [[nodiscard]] int LineHeight(const FontChoice& font) const override {
        return static_cast<int>(font.Size * 23);
    }
    [[nodiscard]] int AverageWidth(const FontChoice& font) const override {
        return static_cast<int>(font.Size * 10);
    }
    [[nodiscard]] int PageWidth() const override { return 11606; }
    [[nodiscard]] int PageHeight() const override { return 16538; }
    void DrawText(int /*x*/, int /*y*/, const FontChoice& /*font*/, std::int32_t /*colour*/,
                  std::string_view text) override {
        benchmark::DoNotOptimize(text.data());
        ++Texts;
    }
    void DrawLine(int /*x1*/, int /*y1*/, int /*x2*/, int /*y2*/, const Pen& /*pen*/) override {}
    void DrawPicture(int /*left*/, int /*top*/, int /*width*/, int /*height*/,
                     const PagePicture& /*picture*/) override {}
};

void ComposeAndDraw(benchmark::State& state) {
    const FullMonth month;
    for ([[maybe_unused]] auto _ : state) {
        CountingSurface surface;
        const PageLayout page =
            month.Composed({surface.PageWidth(), surface.PageHeight()}, surface);
        DoBorder(page, surface);
        DoPrint(page, kMaxDays, surface);
        if (page.LabEvent.size() != FullMonth::kMessages ||
            surface.Texts < FullMonth::kMessages + kMaxDays) {
            state.SkipWithError("the page is not complete");
            return;
        }
    }
}

// As much text as a layout file can hold, in columns that go on far below the page.
void HostileLabels(benchmark::State& state) {
    constexpr int kColumns = 60;
    constexpr int kWords = 16'000;
    LayoutItem column;
    column.FontSize = 1;
    column.Width = 200;
    column.Height = 1'000'000;
    for (int i = 0; i < kWords; ++i) {
        column.Caption += "x ";
    }
    const FullMonth month;
    for ([[maybe_unused]] auto _ : state) {
        CountingSurface surface;
        PageLayout page = month.Composed({surface.PageWidth(), surface.PageHeight()}, surface);
        page.LabUser.assign(kColumns, column);
        DoPrint(page, kMaxDays, surface);
        const std::size_t rows = 1 + surface.PageHeight() / surface.LineHeight(column.Font());
        if (surface.Texts < kColumns * rows) {
            state.SkipWithError("the page is not complete");
            return;
        }
    }
}

const AtMost kPage = AtMost::Seconds(5e-3, "compose a page of 310 messages", ComposeAndDraw);
const AtMost kHostile =
    AtMost::Seconds(0.2, "compose and draw a page of 2 MB of labels", HostileLabels);

} // namespace

} // namespace kestrova::bench
