// SPDX-License-Identifier: GPL-3.0-or-later
#include "print/PrintDesk.h"

#include "print/DiaryListing.h"
#include "print/FreeObjects.h"
#include "print/LayoutFile.h"
#include "print/LayoutPictures.h"
#include "print/PageComposer.h"
#include "print/PageRenderer.h"
#include "text/Numbers.h"

#include <algorithm>
#include <cassert>
#include <utility>

namespace kestrova {

namespace {

// The events of a month, in a table of their own.
std::unique_ptr<const DiaryTable> EventsOf(const DiaryTable& table, int month, int yearIndex) {
    auto events = std::make_unique<DiaryTable>();
    if (yearIndex >= 0 && yearIndex < kDiaryYears) {
        for (int day = 1; day <= kMaxDays; ++day) {
            for (int slot = 0; slot < kTableSlots; ++slot) {
                const SlotPlace place(slot, day, month, yearIndex);
                events->At(place) = table.At(place);
            }
        }
    }
    return events;
}

// What a new page takes over from the one before it.
PageLayout WithLooksOf(const PageLayout& before) {
    PageLayout page;
    page.BackgroundPath = before.BackgroundPath;
    page.Image1 = before.Image1;
    page.BorderLines = before.BorderLines;
    page.BorderColor = before.BorderColor;
    page.BorderDrawStyle = before.BorderDrawStyle;
    page.BorderWidth = before.BorderWidth;
    page.GridSpacing = before.GridSpacing;
    page.GridOn = before.GridOn;
    return page;
}

} // namespace

// Does what is no change of the user's, unless there is one already.
template<typename Work> void PrintDesk::WithoutChange(Work work) {
    const bool changed = IsChanged();
    work();
    if (!changed) {
        kept_ = page_;
    }
}

PrinterSetup PrintDesk::FirstSetup() const {
    const int paper = rooms_.Settings.PrintNumber2;
    PrinterSetup setup;
    setup.Paper = paper >= 1 && paper <= kPaperSizes ? paper : kPaperA4;
    return setup;
}

MonthSource PrintDesk::SourceOf(int year, int month, const DiaryTable& table, int baseYear) const {
    return {year,
            month,
            rooms_.Settings,
            table,
            baseYear,
            rooms_.DayNames(),
            rooms_.Texts.MonthNames[static_cast<std::size_t>(month)] + "  " + std::to_string(year)};
}

MonthSource PrintDesk::Source() const {
    assert(open_);
    return SourceOf(year_, month_, *events_, baseYear_);
}

int PrintDesk::DaysShown() const {
    return NofDays(year_, month_);
}

Status PrintDesk::Open() {
    printFault_ = false;
    if (const Status there = rooms_.Paper().Check(); !there) {
        open_ = false;
        BeginPage();
        printFault_ = true;
        return there;
    }
    if (!open_) {
        setup_ = FirstSetup();
    }
    setup_.Turned = Orientation::Portrait;
    BeginPage();
    year_ = rooms_.Dates.PageYear;
    month_ = rooms_.Dates.PageMonth;
    baseYear_ = rooms_.Dates.BaseYear;
    events_ = EventsOf(rooms_.Table(), month_, year_ - baseYear_);
    open_ = true;
    firstLayout_ = true;
    LayOut();
    kept_ = page_;
    return Done{};
}

void PrintDesk::Close() {
    if (open_) {
        rooms_.Settings.PrintNumber2 = static_cast<std::int16_t>(setup_.Paper);
    }
    open_ = false;
    BeginPage();
}

void PrintDesk::BeginPage() {
    page_ = open_ ? WithLooksOf(page_) : PageLayout{};
    kept_ = page_;
    layoutFileName_.clear();
    damagedFile_.clear();
    events_.reset();
}

void PrintDesk::Activate() {
    layoutFileName_.clear();
    if (open_) {
        WithoutChange([this] { PlaceBackground(page_); });
    }
}

void PrintDesk::Redraw() {
    if (open_ && !printFault_) {
        WithoutChange([this] { LayOut(); });
    }
}

void PrintDesk::LayOut() {
    const FirstLayout first = firstLayout_ ? FirstLayout::Yes : FirstLayout::No;
    const MonthSource month = Source();
    page_.Surface = PrintableArea(setup_);
    NameDays(page_, month, rooms_.Measure, first);
    if (firstLayout_) {
        TakeMonthPicture();
    }
    NewPage(page_, month, rooms_.Measure);
    DoHeader(page_.LabCurMth, month, rooms_.Measure);
    kestrova::DoControls(page_, month, rooms_.Measure, first);
    KeepInsidePage(page_);
    firstLayout_ = false;
}

// A month whose picture is missing, or cannot be read, has a page without one.
void PrintDesk::TakeMonthPicture() {
    const std::string& path = rooms_.MonthPictures.MonthPicture[static_cast<std::size_t>(month_)];
    if (path.empty()) {
        return;
    }
    if (const auto picture = rooms_.Pictures.Load(path)) {
        page_.Image2.Picture = picture.Value();
        page_.PicturePath = path;
    }
}

void PrintDesk::DoControls() {
    if (open_) {
        kestrova::DoControls(page_, Source(), rooms_.Measure, FirstLayout::No);
    }
}

void PrintDesk::DrawPage(DrawingSurface& output) const {
    DoBorder(page_, output);
    DoPrint(page_, DaysShown(), output);
}

Status PrintDesk::PrintOn(Printer& printer, const PrinterSetup& setup, const CalendarDate& month,
                          const std::function<void(PrintJob&)>& draw) const {
    const std::string& name = rooms_.Texts.MonthNames[static_cast<std::size_t>(month.Month)];
    const auto job =
        printer.Begin(setup, std::string(Trim(name)) + " " + std::to_string(month.Year));
    draw(*job);
    return job->Finish();
}

Status PrintDesk::PrintTo(Printer& target) const {
    return PrintOn(target, setup_, {year_, month_, 1}, [this](PrintJob& job) {
        job.NewPage();
        DrawPage(job);
    });
}

Status PrintDesk::Print() {
    if (printFault_) {
        return Done{};
    }
    return Printed(PrintTo(rooms_.Paper()));
}

// A file that cannot be written says nothing about a printer.
Status PrintDesk::Printed(Status printed) {
    printFault_ = !printed && rooms_.Settings.PrintNumber1 == 0;
    return printed;
}

bool PrintDesk::ShowsMonthOfPage() const {
    return open_ && rooms_.Dates.PageYear == year_ && rooms_.Dates.PageMonth == month_;
}

Status PrintDesk::PrintDiary() {
    printFault_ = false;
    const Selection& dates = rooms_.Dates;
    const MonthSource month =
        SourceOf(dates.PageYear, dates.PageMonth, rooms_.Table(), dates.BaseYear);
    LayoutItem heading;
    if (ShowsMonthOfPage()) {
        heading = page_.LabCurMth;
    } else {
        DoHeader(heading, month, rooms_.Measure);
    }
    return Printed(PrintOn(rooms_.Paper(), open_ ? setup_ : FirstSetup(), dates.Page(),
                           [&](PrintJob& job) { DoDiary(job, month, heading); }));
}

Status PrintDesk::PrintDiaryAfresh() {
    if (ShowsMonthOfPage()) {
        WithoutChange([this] { DoHeader(page_.LabCurMth, Source(), rooms_.Measure); });
    }
    return PrintDiary();
}

void PrintDesk::SetOrientation(Orientation turned) {
    if (!printFault_) {
        setup_.Turned = turned;
        Redraw();
    }
}

void PrintDesk::SetPaper(int paper) {
    if (!printFault_ && paper >= 1 && paper <= kPaperSizes) {
        setup_.Paper = paper;
        Redraw();
    }
}

bool PrintDesk::IsChanged() const {
    return page_ != kept_;
}

Status PrintDesk::Save(const std::string& path) {
    const std::string bytes = WriteLayout(page_);
    if (!IsReadable(bytes)) {
        return Error{ErrorCode::TooLarge, path};
    }
    if (path == damagedFile_) {
        if (const Status kept = KeepDamagedFile(); !kept) {
            return kept.Failure();
        }
    }
    if (const Status written = rooms_.Files.Replace(path, bytes); !written) {
        return written.Failure();
    }
    damagedFile_.clear();
    layoutFileName_ = path;
    kept_ = page_;
    return Done{};
}

// Copies what could not be read to the first free name beside it.
Status PrintDesk::KeepDamagedFile() {
    constexpr int kNames = 99;
    const std::size_t dot = damagedFile_.rfind('.');
    const std::size_t slash = damagedFile_.rfind('/');
    const bool hasEnding =
        dot != std::string::npos && (slash == std::string::npos || dot > slash + 1);
    const std::size_t stem = hasEnding ? dot : damagedFile_.size();
    for (int i = 1; i <= kNames; ++i) {
        const std::string copy = damagedFile_.substr(0, stem) + " damaged" +
                                 (i == 1 ? "" : " " + std::to_string(i)) +
                                 damagedFile_.substr(stem);
        if (!rooms_.Files.Stamp(copy)) {
            return rooms_.Files.CopyToNew(damagedFile_, copy);
        }
    }
    return Error{ErrorCode::Failed, damagedFile_};
}

Status PrintDesk::Load(const std::string& path) {
    layoutFileName_ = path;
    damagedFile_.clear();
    page_.ResetEvent();
    page_.ResetImage();
    page_.ResetUser();
    LayoutReading reading;
    const auto bytes = rooms_.Files.Read(path, kLayoutFileLimit);
    if (bytes) {
        LayoutPictures pictures(rooms_.Pictures, {});
        reading = ReadLayout(bytes.Value(), page_, pictures);
    } else {
        reading.Trouble = bytes.Failure();
    }
    ShowTexts();
    if (reading.ToTheEnd) {
        DoControls();
    }
    const bool missing = !bytes && bytes.Failure().Code == ErrorCode::NotFound;
    if (!reading.Trouble && !missing) {
        damagedFile_ = path;
    }
    kept_ = page_;
    return reading.Trouble;
}

// What is printed is to be seen, whatever the file says, or it could not even be deleted.
void PrintDesk::ShowTexts() {
    EachItem(page_, [this](const LayoutRef& ref) {
        LayoutItem& item = *page_.Find(ref);
        item.Visible = item.Visible || (IsText(ref.Kind) && item.Enabled);
    });
}

PrintDesk::Added PrintDesk::AddImage(const std::string& path) {
    auto picture = rooms_.Pictures.Load(path);
    if (picture) {
        return {AddPicture(page_, path, picture.Value()), Done{}};
    }
    return {AddPicture(page_, path, nullptr), picture.Failure()};
}

LayoutRef PrintDesk::AddText() {
    const auto event = static_cast<std::size_t>(PrintStyleRole::Event);
    return AddFreeText(page_, rooms_.Settings.PrintStyles[event], rooms_.Measure);
}

Status PrintDesk::LoadPicture(LayoutKind kind, const std::string& path) {
    assert(kind == LayoutKind::Image1 || kind == LayoutKind::Image2);
    const bool background = kind == LayoutKind::Image1;
    LayoutItem& item = background ? page_.Image1 : page_.Image2;
    const auto picture = rooms_.Pictures.Load(path);
    if (!picture) {
        item.Picture = nullptr;
        return picture.Failure();
    }
    item.Picture = picture.Value();
    item.Enabled = true;
    (background ? page_.BackgroundPath : page_.PicturePath) = path;
    const bool sized = !item.Fitted && item.Width > 0 && item.Height > 0;
    if (open_ && !background && !sized) {
        PlacePicture(page_, Source(), rooms_.Measure);
        DoControls();
    }
    return Done{};
}

} // namespace kestrova
