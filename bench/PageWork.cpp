// SPDX-License-Identifier: GPL-3.0-or-later
// What the page of a month costs, the toolkit's own drawing aside.
#include "BoundedWork.h"

#include "print/PageComposer.h"
#include "print/PageRenderer.h"

namespace kestrova::bench {

namespace {

constexpr int kYear = 2026;
constexpr int kMonth = 6; // July: 31 days
constexpr std::size_t kMessages = 310;

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

// Ten messages on each day, each too wide for its cell.
DiaryTable FullMonth() {
    DiaryTable table;
    for (int day = 1; day <= kMaxDays; ++day) {
        for (int slot = 1; slot <= kEventsPerDay; ++slot) {
            DiaryEvent& event = table.At({slot, day, kMonth, 0});
            event.Msg =
                "Meet Anna and the children at the station, platform " + std::to_string(slot);
        }
    }
    return table;
}

void ComposeAndDraw(benchmark::State& state) {
    AppSettings settings;
    SetDefault(settings);
    const DiaryTable table = FullMonth();
    const MonthSource month{kYear,       kMonth, settings,
                            table,       kYear,  {"Mo", "Tu", "We", "Th", "Fr", "Sa", "Su"},
                            "July  2026"};
    for ([[maybe_unused]] auto _ : state) {
        CountingSurface surface;
        PageLayout page;
        page.Surface = {surface.PageWidth(), surface.PageHeight()};
        page.GridOn = true;
        NameDays(page, month, surface, FirstLayout::Yes);
        NewPage(page, month, surface);
        DoHeader(page.LabCurMth, month, surface);
        DoControls(page, month, surface, FirstLayout::Yes);
        DoBorder(page, surface);
        DoPrint(page, kMaxDays, surface);
        if (page.LabEvent.size() != kMessages || surface.Texts < kMessages + kMaxDays) {
            state.SkipWithError("the page is not complete");
            return;
        }
    }
}

const AtMost kPage = AtMost::Seconds(5e-3, "compose a page of 310 messages", ComposeAndDraw);

} // namespace

} // namespace kestrova::bench
