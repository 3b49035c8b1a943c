// SPDX-License-Identifier: GPL-3.0-or-later
#include "print/PageComposer.h"

#include "calendar/MonthSheet.h"
#include "print/WholeTwips.h"

#include <algorithm>
#include <optional>

namespace kestrova {

namespace {

constexpr int kSideMargin = 500;
constexpr int kEndMargin = 2000; // above and below

constexpr int kHeaderDrop = 500; // from the top of the background's box
constexpr int kBelowHeader = 100;
constexpr int kBelowCells = 300;
constexpr int kRoomForGrid = 5000; // what the picture leaves of the box's height at least

constexpr int kMessageRow = 300; // from one message of a day to the next, and from the cell's top
constexpr int kMessageInset = 50;
constexpr int kLeastPicture = 1500; // a lower one is not worth its room

// What a font can be asked for; settings files have held anything.
constexpr float kSmallestFont = 1;
constexpr float kLargestFont = 1638;

int Bottom(const LayoutItem& item) {
    return item.Top + item.Height;
}

// The left edge of what is in the middle of a box.
int Centred(const LayoutItem& box, int width) {
    return WholeTwips(std::int64_t{2} * box.Left + box.Width - width, 2);
}

// The blanks that the caption begins with are added behind it, so that its words are in the middle
// of the box.
int BalancedWidth(const LayoutItem& label, const TextMeasure& measure) {
    const std::size_t blanks = std::min(label.Caption.find_first_not_of(' '), label.Caption.size());
    return measure.TextWidth(label.Font(), label.Caption + label.Caption.substr(0, blanks));
}

// The last slot of a day whose message is on the page; 0 when there is none.
int LastShown(const DiaryTable& table, const DayPlace& day) {
    int last = 0;
    for (int slot = 1; slot <= kScratchSlot && !table.At({slot, day}).IsFree(); ++slot) {
        if (table.At({slot, day}).Hide == 0) {
            last = slot;
        }
    }
    return last;
}

// How many rows of messages the month's busiest day takes, at least one.
int MessageRows(const MonthSource& month) {
    const int year = month.Year - month.BaseYear;
    int rows = 1;
    for (int day = 1; year >= 0 && year < kDiaryYears && day <= NofDays(month.Year, month.Month);
         ++day) {
        rows = std::max(rows, LastShown(month.Table, {day, month.Month, year}));
    }
    return rows;
}

// The height that the picture may have when each cell is to hold its date and its messages. On an
// upright page the picture has a quarter of the box even so; on a wide one there is no room for
// both, and the messages go first.
int HighestPicture(const LayoutItem& box, int top, const MonthSource& month,
                   const TextMeasure& measure) {
    LayoutItem name;
    LayoutItem message;
    TakeStyle(name, month.Style(PrintStyleRole::DayName));
    TakeStyle(message, month.Style(PrintStyleRole::Event));
    const int names = 2 * measure.LineHeight(name.Font());
    const int cell = MessageRows(month) * kMessageRow + measure.LineHeight(message.Font());
    const int left = Bottom(box) - top - names - kBelowCells - kSheetRows * cell;
    const int fair = box.Height > box.Width ? WholeTwips(box.Height, 4) : 0;
    const int highest = std::min(box.Height - kRoomForGrid, std::max(left, fair));
    return highest < kLeastPicture ? 0 : highest;
}

// Keeps the page's picture inside the background's box and below the header.
void KeepInside(LayoutItem& picture, const LayoutItem& box, const LayoutItem& header) {
    picture.Width = std::min(picture.Width, box.Width);
    picture.Top = std::max(picture.Top, Bottom(header) + kBelowHeader);
    picture.Left = std::max(picture.Left, box.Left);
    picture.Left = std::min(picture.Left, box.Left + box.Width - picture.Width);
    picture.Height = std::max(0, std::min(picture.Height, box.Height - kRoomForGrid));
    picture.Top = std::min(picture.Top, Bottom(box) - picture.Height);
}

// The diary's events of the month on the page.
class MonthEvents {
public:
    explicit MonthEvents(const MonthSource& month)
        : month_(month), year_(month.Year - month.BaseYear) {}

    // The events of a day up to its first free slot.
    [[nodiscard]] int Count(int day) const {
        if (year_ < 0 || year_ >= kDiaryYears) {
            return 0;
        }
        int slot = 1;
        while (slot < kTableSlots && !At(day, slot).IsFree()) {
            ++slot;
        }
        return slot - 1;
    }

    [[nodiscard]] const DiaryEvent& At(int day, int slot) const {
        return month_.Table.At({slot, day, month_.Month, year_});
    }

private:
    const MonthSource& month_;
    int year_;
};

// Lays out the dates and their messages.
class MonthGrid {
public:
    MonthGrid(PageLayout& page, const MonthSource& month, const TextMeasure& measure,
              FirstLayout first)
        : page_(page), month_(month), measure_(measure), first_(first) {}

    void Lay() {
        for (LayoutItem& cell : page_.LabDates) {
            cell.Visible = false;
        }
        for (const SheetCell& cell : MonthSheet(month_.Year, month_.Month, month_.Settings.Week)) {
            PosDates(cell.Row + 1, cell.Column, cell.Day - 1);
            PosEvents(cell.Day - 1);
        }
    }

private:
    void PosDates(int row, int column, int dayIndex) {
        LayoutItem& cell = page_.LabDates[static_cast<std::size_t>(dayIndex)];
        if (first_ == FirstLayout::Yes) {
            TakeStyle(cell, month_.Style(PrintStyleRole::Date));
            cell.Caption = std::to_string(dayIndex + 1);
        }
        const LayoutItem& name = page_.LabDays[static_cast<std::size_t>(column)];
        const LayoutItem& box = page_.Image1;
        const int gap = page_.GridSpacing;
        const int room = Bottom(box) - name.Top - name.Height - kBelowCells;
        cell.Height = std::max(0, WholeTwips(room - std::int64_t{kSheetRows} * gap, kSheetRows));
        cell.Top = name.Top + 2 * name.Height + (row - 1) * (cell.Height + gap);
        const std::int64_t gaps = std::int64_t{kDaysOfWeek} * gap;
        cell.Left = box.Left + WholeTwips(std::int64_t{2} * column * box.Width + gaps,
                                          std::int64_t{2} * kDaysOfWeek);
        cell.Width = std::max(0, WholeTwips(box.Width - gaps, kDaysOfWeek));
        cell.Visible = true;
    }

    void PosEvents(int dayIndex) {
        const MonthEvents events(month_);
        const int count = events.Count(dayIndex + 1);
        const auto nextShown = [&](int slot) {
            while (slot <= count && events.At(dayIndex + 1, slot).Hide != 0) {
                ++slot;
            }
            return slot;
        };
        for (int slot = nextShown(1); slot <= count;) {
            const int next = nextShown(slot + 1);
            PosEvent(slot, dayIndex, ++labels_, events.At(dayIndex + 1, slot).Msg,
                     next <= count ? std::optional(next) : std::nullopt);
            slot = next;
        }
    }

    void PosEvent(int slot, int dayIndex, int labelIndex, const std::string& message,
                  std::optional<int> nextSlot) {
        if (first_ == FirstLayout::Yes && page_.LabEvent.size() < kMaxLabels) {
            LayoutItem& made = page_.LabEvent.emplace_back();
            TakeStyle(made, month_.Style(PrintStyleRole::Event));
            made.Caption = message;
            made.Fitted = true;
        }
        LayoutItem* const label = page_.Find({LayoutKind::LabEvent, labelIndex});
        if (label == nullptr) {
            return;
        }
        const LayoutItem& cell = page_.LabDates[static_cast<std::size_t>(dayIndex)];
        label->Left = cell.Left + kMessageInset;
        label->Top = cell.Top + slot * kMessageRow;
        if (label->Fitted) {
            const int end = nextSlot ? cell.Top + *nextSlot * kMessageRow : Bottom(cell);
            label->Width = std::max(0, cell.Width - 2 * kMessageInset);
            label->Height = std::max(end - label->Top, measure_.LineHeight(label->Font()));
        }
    }

    PageLayout& page_;
    const MonthSource& month_;
    const TextMeasure& measure_;
    FirstLayout first_;
    int labels_ = 0; // messages so far, over the whole page
};

} // namespace

void TakeStyle(LayoutItem& item, const PrintStyle& style) {
    item.FontName = style.FontName;
    // Written so that no number at all is the smallest.
    item.FontSize = style.Size > kSmallestFont ? std::min(style.Size, kLargestFont) : kSmallestFont;
    item.FontBold = style.Flag1 != 0;
    item.FontItalic = style.Flag2 != 0;
    item.ForeColor = style.Colour & 0xFFFFFF;
}

void PlaceBackground(PageLayout& page) {
    page.Image1.Left = kSideMargin;
    page.Image1.Top = kEndMargin;
    page.Image1.Width = std::max(0, page.Surface.Width - 2 * kSideMargin);
    page.Image1.Height = std::max(0, page.Surface.Height - 2 * kEndMargin);
}

void PlacePicture(PageLayout& page, const MonthSource& month, const TextMeasure& measure) {
    const LayoutItem& box = page.Image1;
    LayoutItem& picture = page.Image2;
    LayoutItem header;
    TakeStyle(header, month.Style(PrintStyleRole::Header));
    picture.Top = box.Top + kHeaderDrop + measure.LineHeight(header.Font()) + kBelowHeader;
    picture.Width = box.Width;
    picture.Height = 0;
    picture.Fitted = true;
    if (picture.Enabled && picture.Picture) {
        const int highest = HighestPicture(box, picture.Top, month, measure);
        const std::int64_t pixelsWide = picture.Picture->Width();
        const std::int64_t pixelsHigh = picture.Picture->Height();
        if (box.Width * pixelsHigh <= highest * pixelsWide) {
            picture.Height = WholeTwips(box.Width * pixelsHigh, pixelsWide);
        } else {
            picture.Height = highest;
            picture.Width = WholeTwips(highest * pixelsWide, pixelsHigh);
        }
    }
    picture.Left = Centred(box, picture.Width);
}

void NewPage(PageLayout& page, const MonthSource& month, const TextMeasure& measure) {
    PlaceBackground(page);
    PlacePicture(page, month, measure);
}

void DoHeader(LayoutItem& label, const MonthSource& month, const TextMeasure& measure) {
    TakeStyle(label, month.Style(PrintStyleRole::Header));
    label.Caption = month.MonthCaption;
    label.Width = BalancedWidth(label, measure);
    label.Height = measure.LineHeight(label.Font());
}

void NameDays(PageLayout& page, const MonthSource& month, const TextMeasure& measure,
              FirstLayout first) {
    for (std::size_t column = 0; column < page.LabDays.size(); ++column) {
        LayoutItem& name = page.LabDays[column];
        name.Caption = month.DayNames[column];
        if (first == FirstLayout::Yes) {
            TakeStyle(name, month.Style(PrintStyleRole::DayName));
            name.Height = measure.LineHeight(name.Font());
        }
    }
}

void DoControls(PageLayout& page, const MonthSource& month, const TextMeasure& measure,
                FirstLayout first) {
    if (first == FirstLayout::Yes) {
        page.ResetEvent();
    }
    const LayoutItem& box = page.Image1;
    page.LabCurMth.Left = Centred(box, page.LabCurMth.Width);
    page.LabCurMth.Top = box.Top + kHeaderDrop;
    KeepInside(page.Image2, box, page.LabCurMth);
    for (int column = 0; column < kDaysOfWeek; ++column) {
        LayoutItem& name = page.LabDays[static_cast<std::size_t>(column)];
        name.Left = box.Left + WholeTwips(std::int64_t{column} * box.Width, kDaysOfWeek);
        name.Width = WholeTwips(box.Width, kDaysOfWeek);
        name.Top = Bottom(page.Image2) + name.Height;
    }
    MonthGrid(page, month, measure, first).Lay();
}

} // namespace kestrova
