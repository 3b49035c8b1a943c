// SPDX-License-Identifier: GPL-3.0-or-later
#include "exchange/DiaryExport.h"

#include "diary/Digest.h"
#include "diary/EventNote.h"
#include "diary/NoteName.h"
#include "diary/Repeats.h"
#include "exchange/ExchangeCodes.h"
#include "text/Lines.h"

#include <array>
#include <cstdio>
#include <map>
#include <optional>

namespace kestrova {

namespace {

constexpr int kMostMissing = 12; // dates in a row on which a run may have no copy
constexpr int kHours = 24;
constexpr int kMinutes = 60;

// One event of the diary.
struct Copy {
    const DiaryEvent* Event = nullptr;
    std::string Note;
    int Place = 0; // among the events of the day at the same time
    int Twin = 0;  // among those that have the same message, too
    bool Taken = false;

    [[nodiscard]] bool BelongsWith(const Copy& other) const {
        return Place == other.Place && *Event == *other.Event && Note == other.Note;
    }
};
using CopiesByDate = std::map<CalendarDate, std::vector<Copy>>;

// Copies that are one event of a calendar file.
struct Run {
    const Copy* First = nullptr;
    std::vector<CalendarDate> Dates;
    std::vector<CalendarDate> Gaps;
    Repeat Rule; // Never for a single one
};

WallTime TimeOn(const CalendarDate& date, const DiaryEvent& event) {
    return {date.Year, date.Month, date.Day, event.Hour, event.Minute, 0};
}

// Whether a date is one of those that the rule gives.
bool IsOfRule(const Repeat& repeat, const CalendarDate& date) {
    if (repeat.Kind != RepeatKind::MonthlyByWeekday) {
        return true;
    }
    const CalendarDate before = AddDays({date.Year, date.Month, 1}, -1);
    return NextOccurrence(repeat, {before.Year, before.Month, 1}) == date;
}

ExchangeRule RuleOf(const Repeat& repeat) {
    switch (repeat.Kind) {
    case RepeatKind::Never: return {};
    case RepeatKind::Daily: return {ExchangeRepeat::Daily};
    case RepeatKind::Weekly: return {ExchangeRepeat::Weekly};
    case RepeatKind::Monthly: return {ExchangeRepeat::Monthly};
    case RepeatKind::MonthlyByWeekday:
        return {ExchangeRepeat::MonthlyByWeekday, repeat.Which.Ordinal, repeat.Which.Weekday};
    case RepeatKind::Annually: return {ExchangeRepeat::Annually};
    }
    return {};
}

class Exporter {
public:
    Exporter(const DiarySnapshot& diary, const StringTable& texts, int baseYear)
        : diary_(diary), texts_(texts), baseYear_(baseYear) {}

    ExportedDiary Export() {
        CollectAll();
        for (auto& [date, copies] : copies_) {
            for (Copy& copy : copies) {
                if (!copy.Taken) {
                    exported_.Events.push_back(EventOf(RunFrom(date, copy)));
                }
            }
        }
        return std::move(exported_);
    }

private:
    void CollectAll() {
        EachStoredSlot([&](const SlotPlace& place) {
            const DiaryEvent& event = diary_.Table.At(place);
            if (place.Slot == 0 || event.IsFree()) {
                return;
            }
            const int year = baseYear_ + place.Year;
            const bool sound = place.Day >= 1 && place.Day <= NofDays(year, place.Month) &&
                               event.Hour >= 0 && event.Hour < kHours && event.Minute >= 0 &&
                               event.Minute < kMinutes;
            if (sound) {
                Collect({year, place.Month, place.Day}, place);
                ++exported_.Copies;
            } else {
                ++exported_.LeftOut;
            }
        });
    }

    void Collect(const CalendarDate& date, const SlotPlace& place) {
        Copy copy{&diary_.Table.At(place), NoteAt(place)};
        std::vector<Copy>& day = copies_[date];
        for (const Copy& other : day) {
            copy.Place += other.Event->Key() == copy.Event->Key() ? 1 : 0;
            copy.Twin += other.Event->SameAppointment(*copy.Event) ? 1 : 0;
        }
        day.push_back(std::move(copy));
    }

    std::string NoteAt(const SlotPlace& place) {
        const auto note = diary_.Notes.find(GetFile(place));
        if (note == diary_.Notes.end()) {
            return {};
        }
        auto text = NoteTextOf(note->second);
        exported_.NotesLeftOut += text ? 0 : 1;
        return std::move(text).value_or(std::string());
    }

    Copy* FindAlike(const CalendarDate& date, const Copy& wanted) {
        const auto day = copies_.find(date);
        if (day == copies_.end()) {
            return nullptr;
        }
        for (Copy& copy : day->second) {
            if (!copy.Taken && copy.BelongsWith(wanted)) {
                return &copy;
            }
        }
        return nullptr;
    }

    // The copy and all later ones that go with it.
    Run RunFrom(const CalendarDate& first, Copy& copy) {
        copy.Taken = true;
        Run run{&copy, {first}, {}, {}};
        const auto repeat = RepeatOf(texts_, copy.Event->Rpt);
        if (!repeat || repeat->Kind == RepeatKind::Never || !IsOfRule(*repeat, first)) {
            return run;
        }
        std::vector<CalendarDate> missing;
        CalendarDate date = first;
        while (missing.size() <= kMostMissing) {
            date = *NextOccurrence(*repeat, date);
            if (date.Year >= baseYear_ + kDiaryYears) {
                break;
            }
            if (date.Day > NofDays(date.Year, date.Month)) {
                continue;
            }
            if (Copy* const next = FindAlike(date, copy)) {
                next->Taken = true;
                run.Gaps.insert(run.Gaps.end(), missing.begin(), missing.end());
                missing.clear();
                run.Dates.push_back(date);
            } else {
                missing.push_back(date);
            }
        }
        run.Rule = run.Dates.size() > 1 ? *repeat : Repeat{};
        return run;
    }

    [[nodiscard]] ExchangeEvent EventOf(const Run& run) const {
        const DiaryEvent& diaryEvent = *run.First->Event;
        ExchangeEvent event;
        event.Uid = UidOf(run);
        event.Summary = AsOneLine(diaryEvent.Msg);
        event.Note = run.First->Note;
        for (const CalendarDate& date : run.Dates) {
            event.Times.push_back(TimeOn(date, diaryEvent));
        }
        for (const CalendarDate& date : run.Gaps) {
            event.Gaps.push_back(TimeOn(date, diaryEvent));
        }
        event.Rule = RuleOf(run.Rule);
        const auto kind = ReminderKindOf(texts_, diaryEvent.Rmd);
        event.Alarm = kind && kind != ReminderKind::None;
        event.Own[own::kRepeat] = AsOneLine(RepeatCode(texts_, diaryEvent.Rpt));
        event.Own[own::kReminder] = AsOneLine(ReminderCode(texts_, diaryEvent.Rmd));
        for (std::size_t i = 0; i < diaryEvent.Extra.size(); ++i) {
            if (!diaryEvent.Extra[i].empty()) {
                event.Own[own::kDetail + std::to_string(i)] = AsOneLine(diaryEvent.Extra[i]);
            }
        }
        if (diaryEvent.Hide != 0) {
            event.Own[own::kHidden] = std::to_string(diaryEvent.Hide);
        }
        if (run.First->Place > 0) {
            event.Own[own::kPlace] = std::to_string(run.First->Place);
        }
        return event;
    }

    // Made of what makes the event what it is, so that it is the same whenever it is written.
    [[nodiscard]] static std::string UidOf(const Run& run) {
        const CalendarDate& date = run.Dates.front();
        const DiaryEvent& event = *run.First->Event;
        std::string content;
        for (const int number : {date.Year, date.Month, date.Day, event.Key(), run.First->Twin}) {
            content += std::to_string(number) + ' ';
        }
        std::array<char, 17> digits{};
        std::snprintf(digits.data(), digits.size(), "%016llx",
                      static_cast<unsigned long long>(Digest(content + event.Msg)));
        return std::string(digits.data()) + "@kestrova";
    }

    const DiarySnapshot& diary_;
    const StringTable& texts_;
    int baseYear_;
    CopiesByDate copies_;
    ExportedDiary exported_;
};

} // namespace

ExportedDiary ExportDiary(const DiarySnapshot& diary, const StringTable& texts, int baseYear) {
    return Exporter(diary, texts, baseYear).Export();
}

} // namespace kestrova
