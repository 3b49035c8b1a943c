// SPDX-License-Identifier: GPL-3.0-or-later
#include "print/DiaryListing.h"

#include "print/LineBreaks.h"
#include "print/PageComposer.h"
#include "print/WholeTwips.h"

#include <algorithm>
#include <limits>

namespace kestrova {

namespace {

constexpr int kPageMargin = 100;
constexpr int kLeftMargin = 100;
constexpr int kNumberColumn = kLeftMargin + 2000;
constexpr int kEventColumn = kLeftMargin + 3000;
constexpr int kHeadingTop = 500;

// How much room, beside the page's margin, must be left below.
constexpr int kRoomForDay = 2000;
constexpr int kRoomForEvents = 1000;
constexpr int kRoomForWeek = 3500;

constexpr int kZoneCharacters = 14; // of average width, from one print zone to the next

// A font and the colour to print it in.
struct Ink {
    FontChoice Font;
    std::int32_t Colour;
};

Ink InkOf(const LayoutItem& item) {
    return {item.Font(), item.ForeColor};
}

Ink InkOf(const MonthSource& month, PrintStyleRole role) {
    LayoutItem item;
    TakeStyle(item, month.Style(role));
    return InkOf(item);
}

class Listing {
public:
    Listing(PrintJob& job, const MonthSource& month, const LayoutItem& heading)
        : job_(job), month_(month), heading_(heading),
          dayName_(InkOf(month, PrintStyleRole::DayName)),
          date_(InkOf(month, PrintStyleRole::Date)), event_(InkOf(month, PrintStyleRole::Event)) {}

    void DoDiary() {
        DiaryNewPage();
        name_ = GetStartDay(month_.Year, month_.Month, month_.Settings.Week) - 1;
        for (int day = 1; day <= NofDays(month_.Year, month_.Month); ++day) {
            if (y_ >= Limit(kRoomForDay)) {
                DiaryNewPage();
            }
            PrintDay(day);
            if (y_ > Limit(kRoomForEvents)) {
                DiaryNewPage();
            }
            PrintEvents(day);
            EndDay();
        }
    }

private:
    [[nodiscard]] int Limit(int room) const { return job_.PageHeight() - kPageMargin - room; }

    void EndLine(const Ink& ink) { y_ += job_.LineHeight(ink.Font); }

    void DiaryNewPage() {
        job_.NewPage();
        y_ = kHeadingTop;
        const Ink ink = InkOf(heading_);
        const int x = WholeTwips(job_.PageWidth() - heading_.Width, 2);
        for (const std::string& line : CaptionLines(heading_.Caption)) {
            job_.DrawText(x, y_, ink.Font, ink.Colour, line);
            EndLine(ink);
        }
    }

    void PrintDay(int day) {
        job_.DrawText(kLeftMargin, y_, dayName_.Font, dayName_.Colour,
                      month_.DayNames[static_cast<std::size_t>(name_)]);
        job_.DrawText(kNumberColumn, y_, date_.Font, date_.Colour, std::to_string(day));
        EndLine(date_);
    }

    void PrintEvents(int day) {
        const int year = month_.Year - month_.BaseYear;
        if (year < 0 || year >= kDiaryYears) {
            return;
        }
        for (int slot = 1; slot < kTableSlots; ++slot) {
            const DiaryEvent& event = month_.Table.At({slot, day, month_.Month, year});
            if (event.IsFree()) {
                continue;
            }
            PrintOne(event, day);
            if (y_ >= Limit(kRoomForDay)) {
                GoOn(day);
            }
        }
    }

    // The day's next page.
    void GoOn(int day) {
        DiaryNewPage();
        PrintDay(day);
    }

    void PrintOne(const DiaryEvent& event, int day) {
        const std::string time = EventTime(event);
        job_.DrawText(kEventColumn, y_, event_.Font, event_.Colour, time);
        const int x = NextZone(kEventColumn + job_.TextWidth(event_.Font, time));
        const int width = job_.PageWidth() - kLeftMargin - x;
        // In a font so large that nothing is left of the page, breaking would help nobody.
        const int most = width > 0 ? std::numeric_limits<int>::max() : 1;
        const auto lines = BreakLine(event.Msg, std::max(0, width), most, event_.Font, job_);
        for (std::size_t i = 0; i < lines.size(); ++i) {
            // A message that is longer than what is left of the page.
            if (i > 0 && y_ > Limit(job_.LineHeight(event_.Font))) {
                GoOn(day);
            }
            job_.DrawText(x, y_, event_.Font, event_.Colour, lines[i]);
            EndLine(event_);
        }
    }

    [[nodiscard]] int NextZone(int x) const {
        const int zone = std::max(1, kZoneCharacters * job_.AverageWidth(event_.Font));
        return (x / zone + 1) * zone;
    }

    void EndDay() {
        if (++name_ < kDaysOfWeek) {
            return;
        }
        name_ = 0;
        EndLine(dayName_);
        EndLine(dayName_);
        if (y_ >= Limit(kRoomForWeek)) {
            DiaryNewPage();
        }
    }

    PrintJob& job_;
    const MonthSource& month_;
    const LayoutItem& heading_;
    Ink dayName_;
    Ink date_;
    Ink event_;
    int name_ = 0; // column of the day's name
    int y_ = 0;
};

} // namespace

void DoDiary(PrintJob& job, const MonthSource& month, const LayoutItem& heading) {
    Listing(job, month, heading).DoDiary();
}

} // namespace kestrova
