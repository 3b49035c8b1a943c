// SPDX-License-Identifier: GPL-3.0-or-later
#include "print/PageRenderer.h"

#include "print/LineBreaks.h"
#include "print/WholeTwips.h"

#include <algorithm>

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

// Cells and the names of the days have their lines in the middle, all others at the left.
int LeftOf(const LayoutItem& item, LayoutKind kind, const std::string& line,
           const DrawingSurface& output) {
    const bool middle = kind == LayoutKind::LabDates || kind == LayoutKind::LabDays;
    return middle ? WholeTwips(std::int64_t{2} * item.Left + item.Width -
                                   output.TextWidth(item.Font(), line),
                               2)
                  : item.Left;
}

void PrintLines(const LayoutItem& item, LayoutKind kind, std::span<const std::string> lines,
                DrawingSurface& output) {
    const FontChoice font = item.Font();
    const int step = std::max(1, output.LineHeight(font));
    int y = item.Top;
    for (const std::string& line : lines) {
        const bool above = y < -2 * step; // the page, with all that may stand out of the line
        if (!line.empty() && !above) {
            output.DrawText(LeftOf(item, kind, line, output), y, font, item.ForeColor, line);
        }
        y += step;
    }
}

void PrintText(const LayoutItem& item, LayoutKind kind, bool framed, DrawingSurface& output) {
    if (item.Enabled) {
        PrintItem(item, kind, LinesOnPage(item, kind, output, output.PageHeight()), framed, output);
    }
}

void PrintEvent(std::span<const LayoutItem> family, LayoutKind kind, DrawingSurface& output) {
    for (const LayoutItem& label : family.first(std::min<std::size_t>(family.size(), kMaxLabels))) {
        PrintText(label, kind, false, output);
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

void PrintItem(const LayoutItem& item, LayoutKind kind, std::span<const std::string> lines,
               bool framed, DrawingSurface& output) {
    if (!item.Enabled) {
        return;
    }
    if (!IsText(kind)) {
        PrintPicture(item, output);
        return;
    }
    PrintLines(item, kind, lines, output);
    if (framed) {
        DrawFrame(EdgesOf(item), {item.ForeColor, LineStyle::Solid, 1}, output);
    }
}

void DoPrint(const PageLayout& page, int daysShown, DrawingSurface& output) {
    PrintPicture(page.Image1, output);
    PrintPicture(page.Image2, output);
    for (const LayoutItem& picture : page.ImgUser) {
        PrintPicture(picture, output);
    }
    PrintText(page.LabCurMth, LayoutKind::LabCurMth, false, output);
    for (const LayoutItem& name : page.LabDays) {
        PrintText(name, LayoutKind::LabDays, false, output);
    }
    const auto days = static_cast<std::size_t>(std::clamp(daysShown, 0, kMaxDays));
    for (const LayoutItem& cell : std::span(page.LabDates).first(days)) {
        PrintText(cell, LayoutKind::LabDates, page.GridOn, output);
    }
    PrintEvent(page.LabEvent, LayoutKind::LabEvent, output);
    PrintEvent(page.LabUser, LayoutKind::LabUser, output);
}

} // namespace kestrova
