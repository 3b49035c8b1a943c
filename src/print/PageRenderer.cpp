// SPDX-License-Identifier: GPL-3.0-or-later
#include "print/PageRenderer.h"

#include "print/LineBreaks.h"
#include "print/WholeTwips.h"

#include <algorithm>
#include <span>

namespace kestrova {

namespace {

struct Edges {
    int Left;
    int Top;
    int Right;
    int Bottom;
};

Edges EdgesOf(const LayoutItem& item) {
    return {item.Left, item.Top, item.Left + item.Width, item.Top + item.Height};
}

void DrawFrame(const Edges& frame, const Pen& pen, DrawingSurface& output) {
    output.DrawLine(frame.Left, frame.Top, frame.Left, frame.Bottom, pen);
    output.DrawLine(frame.Left, frame.Bottom, frame.Right, frame.Bottom, pen);
    output.DrawLine(frame.Right, frame.Bottom, frame.Right, frame.Top, pen);
    output.DrawLine(frame.Right, frame.Top, frame.Left, frame.Top, pen);
}

void PrintPicture(const LayoutItem& item, DrawingSurface& output) {
    if (item.Enabled && item.Picture && item.Width > 0 && item.Height > 0) {
        output.DrawPicture(item.Left, item.Top, item.Width, item.Height, *item.Picture);
    }
}

enum class Align { Left, Middle };

void PrintText(const LayoutItem& item, LayoutKind kind, Align align, DrawingSurface& output) {
    if (!item.Enabled) {
        return;
    }
    const FontChoice font = item.Font();
    const int step = std::max(1, output.LineHeight(font));
    int y = item.Top;
    for (const std::string& line : ItemLines(item, kind, output)) {
        if (y > output.PageHeight()) {
            return; // nothing below is to be seen
        }
        if (!line.empty()) {
            const int x = align == Align::Left
                              ? item.Left
                              : WholeTwips(std::int64_t{2} * item.Left + item.Width -
                                               output.TextWidth(font, line),
                                           2);
            output.DrawText(x, y, font, item.ForeColor, line);
        }
        y += step;
    }
}

void PrintImg(const PageLayout& page, DrawingSurface& output) {
    for (const LayoutItem& picture : page.ImgUser) {
        PrintPicture(picture, output);
    }
}

void PrintEvent(std::span<const LayoutItem> family, LayoutKind kind, DrawingSurface& output) {
    for (const LayoutItem& label : family.first(std::min<std::size_t>(family.size(), kMaxLabels))) {
        PrintText(label, kind, Align::Left, output);
    }
}

void PrintDate(const LayoutItem& cell, bool framed, DrawingSurface& output) {
    PrintText(cell, LayoutKind::LabDates, Align::Middle, output);
    if (cell.Enabled && framed) {
        DrawFrame(EdgesOf(cell), {cell.ForeColor, LineStyle::Solid, 1}, output);
    }
}

} // namespace

void DoBorder(const PageLayout& page, DrawingSurface& output) {
    const int lines = page.BorderLines;
    if (lines <= 0) {
        return;
    }
    const Pen pen{page.BorderColor, page.BorderDrawStyle, page.BorderWidth};
    const Edges box = EdgesOf(page.Image1);
    DrawFrame(box, pen, output);
    const std::int64_t parts = lines + 1;
    for (std::int64_t k = 2; k <= lines; ++k) {
        const auto before = [&](int edge) { return WholeTwips(k * edge, parts); };
        const auto beyond = [&](int whole, int edge) {
            return WholeTwips(parts * whole - k * (whole - edge), parts);
        };
        DrawFrame({before(box.Left), before(box.Top), beyond(page.Surface.Width, box.Right),
                   beyond(page.Surface.Height, box.Bottom)},
                  pen, output);
    }
}

void DoPrint(const PageLayout& page, int daysShown, DrawingSurface& output) {
    PrintPicture(page.Image1, output);
    PrintPicture(page.Image2, output);
    PrintImg(page, output);
    PrintText(page.LabCurMth, LayoutKind::LabCurMth, Align::Left, output);
    for (const LayoutItem& name : page.LabDays) {
        PrintText(name, LayoutKind::LabDays, Align::Middle, output);
    }
    const auto days = static_cast<std::size_t>(std::clamp(daysShown, 0, kMaxDays));
    for (const LayoutItem& cell : std::span(page.LabDates).first(days)) {
        PrintDate(cell, page.GridOn, output);
    }
    PrintEvent(page.LabEvent, LayoutKind::LabEvent, output);
    PrintEvent(page.LabUser, LayoutKind::LabUser, output);
}

} // namespace kestrova
