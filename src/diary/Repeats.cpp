// SPDX-License-Identifier: GPL-3.0-or-later
#include "diary/Repeats.h"

namespace kestrova {

namespace {

constexpr int kLastOrdinal = 4;

// The next month, the day number unchanged.
CalendarDate NextMonth(const CalendarDate& date) {
    const bool december = date.Month == kMonths - 1;
    return {date.Year + (december ? 1 : 0), december ? 0 : date.Month + 1, date.Day};
}

int DayOfOrdinalWeekday(int year, int month, const OrdinalWeekday& which) {
    const int first = (which.Weekday - WeekdayOf({year, month, 1}) + kDaysOfWeek) % kDaysOfWeek + 1;
    const int day = first + (which.Ordinal - 1) * kDaysOfWeek;
    const bool fifthFollows = day + kDaysOfWeek <= NofDays(year, month);
    return which.Ordinal == kLastOrdinal && fifthFollows ? day + kDaysOfWeek : day;
}

bool HoldsAlready(const DiaryTable& table, const DayPlace& day, const DiaryEvent& event) {
    for (int slot = 1; slot <= kEventsPerDay; ++slot) {
        const DiaryEvent& other = table.At({slot, day});
        if (other.IsFree()) {
            return false;
        }
        if (other.SameAppointment(event) && other.Rmd == event.Rmd) {
            return true;
        }
    }
    return false;
}

} // namespace

std::optional<CalendarDate> NextOccurrence(const Repeat& repeat, const CalendarDate& date) {
    switch (repeat.Kind) {
    case RepeatKind::Never: return std::nullopt;
    case RepeatKind::Daily: return AddDays(date, 1);
    case RepeatKind::Weekly: return AddDays(date, kDaysOfWeek);
    case RepeatKind::Monthly: return NextMonth(date);
    case RepeatKind::Annually: return CalendarDate{date.Year + 1, date.Month, date.Day};
    case RepeatKind::MonthlyByWeekday: {
        CalendarDate next = NextMonth(date);
        next.Day = DayOfOrdinalWeekday(next.Year, next.Month, repeat.Which);
        return next;
    }
    }
    return std::nullopt;
}

std::vector<std::string> BuildRptList(const StringTable& table, const CalendarDate& date) {
    return {RepeatCaption(table, RepeatKind::Never),  RepeatCaption(table, RepeatKind::Daily),
            RepeatCaption(table, RepeatKind::Weekly), RepeatCaption(table, RepeatKind::Monthly),
            OrdinalWeekdayCaption(table, date),       RepeatCaption(table, RepeatKind::Annually)};
}

void RepeatMsg(EventList& events, const StringTable& table, int baseYear, const SlotPlace& source) {
    const auto repeat = RepeatOf(table, events.Table().At(source).Rpt);
    if (!repeat || repeat->Kind == RepeatKind::Never) {
        return;
    }
    if (repeat->Kind == RepeatKind::Daily) {
        events.Table().At(source).Hide = 1;
    }
    const DiaryEvent event = events.Table().At(source);
    CalendarDate date{baseYear + source.Year, source.Month, source.Day};
    for (;;) {
        date = *NextOccurrence(*repeat, date);
        if (date.Year >= baseYear + kDiaryYears) {
            return;
        }
        const DayPlace day{date.Day, date.Month, date.Year - baseYear};
        if (date.Day > NofDays(date.Year, date.Month)) {
            continue;
        }
        if (HoldsAlready(events.Table(), day, event)) {
            return;
        }
        if (events.IsFull(day)) {
            continue;
        }
        const SlotPlace scratch(kScratchSlot, day);
        events.Table().At(scratch) = event;
        events.Notes().Copy(source, scratch);
        events.SortMsg(day);
        events.ReSortMsg(day);
    }
}

} // namespace kestrova
