// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "fakes/FakeMeasure.h"
#include "fakes/FakePictures.h"
#include "print/PageComposer.h"

namespace kestrova {

// A month of the years 2026 and 2027 to be put on paper, in the default fonts: header 20 points,
// day names 12, dates 14, messages 8.
class PrintedMonth {
public:
    PrintedMonth(int year, int month, WeekStart week) : year_(year), month_(month) {
        SetDefault(Settings);
        Settings.Week = week;
    }

    AppSettings Settings;
    DiaryTable Table;
    FakeMeasure Measure;

    void Add(int day, int slot, const std::string& message, int hour = 9, int hide = 0) {
        DiaryEvent& event = Table.At({slot, day, month_, year_ - 2026});
        event.Msg = message;
        event.Hour = static_cast<std::int16_t>(hour);
        event.Hide = static_cast<std::int16_t>(hide);
    }

    [[nodiscard]] MonthSource Source() const {
        return {year_,
                month_,
                Settings,
                Table,
                2026,
                {"C0", "C1", "C2", "C3", "C4", "C5", "C6"},
                "  Month  " + std::string("  ") + std::to_string(year_)};
    }

    // The page of A4 as it is opened.
    [[nodiscard]] PageLayout Composed(PagePicturePtr picture = nullptr, int spacing = 0,
                                      PageSize surface = {11606, 16538}) const {
        PageLayout page;
        page.Surface = surface;
        page.GridSpacing = spacing;
        page.Image2.Picture = std::move(picture);
        NameDays(page, Source(), Measure, FirstLayout::Yes);
        NewPage(page, Source(), Measure);
        DoHeader(page.LabCurMth, Source(), Measure);
        DoControls(page, Source(), Measure, FirstLayout::Yes);
        return page;
    }

private:
    int year_;
    int month_;
};

struct Box {
    int Left;
    int Top;
    int Width;
    int Height;

    bool operator==(const Box&) const = default;
    friend std::ostream& operator<<(std::ostream& out, const Box& box) {
        return out << box.Left << "," << box.Top << " " << box.Width << "x" << box.Height;
    }
};

inline Box BoxIn(const LayoutItem& item) {
    return {item.Left, item.Top, item.Width, item.Height};
}

} // namespace kestrova
