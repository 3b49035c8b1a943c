// SPDX-License-Identifier: GPL-3.0-or-later
// The layout file: whatever is read can be laid out and drawn, and reads back as it is written.
#include "Expect.h"

#include "print/LayoutFile.h"
#include "print/LineBreaks.h"
#include "print/PageComposer.h"
#include "print/PageRenderer.h"
#include "text/Encoding.h"

#include <algorithm>
#include <memory>

using kestrova::LayoutItem;
using kestrova::fuzz::Expect;

namespace {

class Picture : public kestrova::PagePicture {
public:
    [[nodiscard]] int Width() const override { return 40; }
    [[nodiscard]] int Height() const override { return 30; }
};

// Every path but those that begin with "-" is a picture.
class Pictures : public kestrova::PagePictures {
public:
    kestrova::Result<kestrova::PagePicturePtr> Load(const std::string& path) override {
        if (path.starts_with('-')) {
            return kestrova::Error{kestrova::ErrorCode::NotFound, path};
        }
        return kestrova::PagePicturePtr(std::make_shared<Picture>());
    }
};

class Surface : public kestrova::DrawingSurface {
public:
    [[nodiscard]] int TextWidth(const kestrova::FontChoice& font,
                                std::string_view text) const override {
        return static_cast<int>(font.Size) * 10 * static_cast<int>(text.size());
    }
    [[nodiscard]] int LineHeight(const kestrova::FontChoice& font) const override {
        return static_cast<int>(font.Size) * 20;
    }
    [[nodiscard]] int AverageWidth(const kestrova::FontChoice& font) const override {
        return static_cast<int>(font.Size) * 10;
    }
    [[nodiscard]] int PageWidth() const override { return 11606; }
    [[nodiscard]] int PageHeight() const override { return 16538; }
    void DrawText(int /*x*/, int /*y*/, const kestrova::FontChoice& /*font*/,
                  std::int32_t /*colour*/, std::string_view text) override {
        Expect(kestrova::IsUtf8(text), "no character is cut");
    }
    void DrawLine(int /*x1*/, int /*y1*/, int /*x2*/, int /*y2*/,
                  const kestrova::Pen& /*pen*/) override {}
    void DrawPicture(int /*left*/, int /*top*/, int width, int height,
                     const kestrova::PagePicture& /*picture*/) override {
        Expect(width > 0 && height > 0, "a picture has a size");
    }
};

void CheckText(const LayoutItem& item) {
    Expect(kestrova::IsUtf8(item.Caption) && kestrova::IsUtf8(item.FontName), "texts are UTF-8");
    Expect(item.FontSize >= 1, "a font has a size");
}

void CheckPage(const kestrova::PageLayout& page) {
    Expect(page.LabUser.size() <= kestrova::kMaxLabels, "texts are bounded");
    Expect(page.ImgUser.size() <= kestrova::kMaxImagePaths, "pictures are bounded");
    Expect(page.BorderLines >= 0 && page.BorderLines <= 4, "lines are bounded");
    std::for_each(page.LabUser.begin(), page.LabUser.end(), CheckText);
    for (const LayoutItem& item : page.LabUser) {
        Expect(item.Width >= 0 && item.Height >= 0, "sizes are not below 0");
    }
}

// The fixed texts of a page that was opened have fonts; a layout may leave them as they are.
kestrova::PageLayout OpenedPage() {
    kestrova::PageLayout page;
    page.Surface = {11606, 16538};
    page.LabCurMth.FontSize = 20;
    page.LabDays.fill(page.LabCurMth);
    page.LabDates.fill(page.LabCurMth);
    return page;
}

// Lays the page out as it is when it is opened, and draws it.
void LayOutAndDraw(kestrova::PageLayout& page) {
    static const kestrova::AppSettings settings;
    static const kestrova::DiaryTable table;
    Surface surface;
    const kestrova::MonthSource month{2026, 4, settings, table, 2026, {}, {}};
    kestrova::DoControls(page, month, surface, kestrova::FirstLayout::No);
    kestrova::DoBorder(page, surface);
    kestrova::DoPrint(page, kestrova::kMaxDays, surface);
}

// Its labels beyond those that a page has room for are gone, so all goes well now.
void CheckWritten(const kestrova::PageLayout& page, Pictures& pictures) {
    const std::string written = kestrova::WriteLayout(page);
    kestrova::PageLayout again = OpenedPage();
    const auto back = kestrova::ReadLayout(written, again, pictures);
    Expect(back.ToTheEnd && back.Trouble.Ok(), "a layout that was read can be written");
    Expect(kestrova::WriteLayout(again) == written, "and is the same then");
}

} // namespace

int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
    kestrova::PageLayout page = OpenedPage();
    Pictures pictures;
    const auto reading = kestrova::ReadLayout(kestrova::fuzz::View(data, size), page, pictures);
    Expect(reading.ToTheEnd || !reading.Trouble, "what is not whole is told");
    CheckPage(page);
    if (reading.ToTheEnd) {
        CheckWritten(page, pictures);
    }
    LayOutAndDraw(page);
    if (reading.ToTheEnd) {
        CheckWritten(page, pictures);
    }
    return 0;
}
