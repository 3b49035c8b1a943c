// SPDX-License-Identifier: GPL-3.0-or-later
#include "exchange/DiaryImport.h"

#include "diary/EventNote.h"
#include "diary/Repeats.h"
#include "exchange/ExchangeCodes.h"
#include "language/Kinds.h"
#include "text/Lines.h"
#include "text/Numbers.h"

#include <algorithm>
#include <optional>
#include <set>
#include <tuple>

namespace kestrova {

namespace {

constexpr std::size_t kLongestMessage = 500;               // bytes; what is longer is a note
constexpr std::size_t kMostNotes = std::size_t{64} << 20U; // bytes of all notes on the disc

struct MessageAndNote {
    std::string Message;
    std::string Note;
};

// Up to so many bytes of a UTF-8 text, cut between words where there is a blank near, else between
// letters.
std::size_t CutAt(std::string_view text, std::size_t most) {
    if (text.size() <= most) {
        return text.size();
    }
    const std::size_t blank = text.rfind(' ', most);
    if (blank != std::string_view::npos && blank > most / 2) {
        return blank;
    }
    while (most > 0 && (static_cast<unsigned char>(text[most]) & 0xC0U) == 0x80U) {
        --most;
    }
    return most;
}

// A note has no carriage returns of its own.
std::string AsNote(std::string_view text) {
    std::string note(text);
    std::erase(note, '\r');
    return note;
}

MessageAndNote Split(const ExchangeEvent& event) {
    std::string_view rest = event.Summary;
    std::string_view line;
    while (Trim(line).empty() && !rest.empty()) {
        const std::size_t end = std::min(rest.find('\n'), rest.size());
        line = rest.substr(0, end);
        rest.remove_prefix(std::min(end + 1, rest.size()));
    }
    const std::size_t cut = CutAt(line, kLongestMessage);
    std::string note(Trim(line.substr(cut)));
    for (const std::string_view more : {rest, std::string_view(event.Note)}) {
        if (!more.empty()) {
            note.append(note.empty() ? "" : "\n").append(more);
        }
    }
    return {AsOneLine(Trim(line.substr(0, cut))), AsNote(note)};
}

std::string OwnText(const ExchangeEvent& event, const std::string& name) {
    const auto found = event.Own.find(name);
    return found == event.Own.end() ? std::string() : AsOneLine(found->second);
}

Repeat RepeatOfRule(const ExchangeRule& rule) {
    switch (rule.Kind) {
    case ExchangeRepeat::None: return {};
    case ExchangeRepeat::Daily: return {RepeatKind::Daily, {}};
    case ExchangeRepeat::Weekly: return {RepeatKind::Weekly, {}};
    case ExchangeRepeat::Monthly: return {RepeatKind::Monthly, {}};
    case ExchangeRepeat::MonthlyByWeekday:
        return {RepeatKind::MonthlyByWeekday, {rule.Ordinal, rule.Weekday}};
    case ExchangeRepeat::Annually: return {RepeatKind::Annually, {}};
    }
    return {};
}

CalendarDate DateOf(const WallTime& time) {
    return {time.Year, time.Month, time.Day};
}

// Whether the diary's repeat goes through all the times. Another zone may have made other days of
// them.
bool Fits(const Repeat& repeat, const std::vector<WallTime>& times) {
    CalendarDate date = DateOf(times.front());
    if (repeat.Kind == RepeatKind::MonthlyByWeekday) {
        const CalendarDate before = AddDays({date.Year, date.Month, 1}, -1);
        if (NextOccurrence(repeat, {before.Year, before.Month, 1}) != date) {
            return false;
        }
    }
    return std::all_of(times.begin(), times.end(), [&](const WallTime& time) {
        while (date < DateOf(time)) {
            date = *NextOccurrence(repeat, date);
        }
        return date == DateOf(time);
    });
}

// What an event is in the diary but for its time.
class Translator {
public:
    Translator(const ExchangeEvent& event, const StringTable& texts, const WallTime& now)
        : event_(event), texts_(texts), now_(now),
          isOwn_(event.Own.contains(own::kRepeat) && event.Own.contains(own::kReminder)) {
        if (isOwn_) {
            TakeOwn();
        } else {
            TakeForeign();
        }
    }

    [[nodiscard]] bool IsTextless() const { return common_.Msg.empty(); }
    [[nodiscard]] const std::string& Note() const { return note_; }
    [[nodiscard]] int Place() const { return place_; }

    [[nodiscard]] bool Reaches() const {
        const auto kind = ReminderKindOf(texts_, common_.Rmd);
        return kind == ReminderKind::Phone || kind == ReminderKind::Email ||
               kind == ReminderKind::Media;
    }

    [[nodiscard]] DiaryEvent At(const WallTime& time) const {
        DiaryEvent event = common_;
        event.Hour = static_cast<std::int16_t>(time.Hour);
        event.Minute = static_cast<std::int16_t>(time.Minute);
        if (!isOwn_) {
            event.Rmd = ReminderCaption(texts_, event_.Alarm && time > now_ ? ReminderKind::Screen
                                                                            : ReminderKind::None);
        }
        return event;
    }

private:
    void TakeOwn() {
        common_.Msg = AsOneLine(event_.Summary);
        note_ = AsNote(event_.Note);
        common_.Rpt = RepeatOfCode(texts_, OwnText(event_, own::kRepeat));
        common_.Rmd = ReminderOfCode(texts_, OwnText(event_, own::kReminder));
        for (std::size_t i = 0; i < common_.Extra.size(); ++i) {
            common_.Extra[i] = OwnText(event_, own::kDetail + std::to_string(i));
        }
        common_.Hide = ReadInt16(OwnText(event_, own::kHidden)).value_or(0);
        place_ = ReadInt16(OwnText(event_, own::kPlace)).value_or(0);
    }

    void TakeForeign() {
        MessageAndNote both = Split(event_);
        common_.Msg = std::move(both.Message);
        note_ = std::move(both.Note);
        Repeat repeat = RepeatOfRule(event_.Rule);
        if (repeat.Kind != RepeatKind::Never && !Fits(repeat, event_.Times)) {
            repeat = {};
        }
        common_.Rpt = repeat.Kind == RepeatKind::MonthlyByWeekday
                          ? OrdinalWeekdayCaption(texts_, DateOf(event_.Times.front()))
                          : RepeatCaption(texts_, repeat.Kind);
        // Daily events never mark the month.
        common_.Hide = repeat.Kind == RepeatKind::Daily ? 1 : 0;
    }

    const ExchangeEvent& event_;
    const StringTable& texts_;
    const WallTime& now_;
    bool isOwn_;
    DiaryEvent common_;
    std::string note_;
    int place_ = 0;
};

auto OrderOf(const PlannedEvent& event) {
    return std::tuple(event.Day.Year, event.Day.Month, event.Day.Day, event.Event.Key(),
                      event.Place);
}

// One day of the diary, to which events are added.
class DayOfImport {
public:
    DayOfImport(EventList& events, const DayPlace& day) : events_(events), day_(day) {
        for (int slot = 1; slot <= kEventsPerDay; ++slot) {
            if (!events.Table().At({slot, day}).IsFree()) {
                there_.push_back(events.Table().At({slot, day}));
            }
        }
    }

    // Whether the day holds the event already, one of its own for each of the file's. What a file
    // says twice of the same event is said once.
    [[nodiscard]] bool Holds(const PlannedEvent& planned) {
        if (!planned.Uid.empty() &&
            !seen_.emplace(planned.Uid, planned.Event.Key(), planned.Event.Msg).second) {
            return true;
        }
        const auto same = std::find_if(there_.begin(), there_.end(), [&](const DiaryEvent& event) {
            return event.SameAppointment(planned.Event);
        });
        if (same == there_.end()) {
            return false;
        }
        there_.erase(same);
        return true;
    }

    void Add(const PlannedEvent& planned) {
        const SlotPlace scratch(kScratchSlot, day_);
        events_.Table().At(scratch) = planned.Event;
        if (!planned.Note->empty()) {
            events_.Notes().Put(scratch, planned.Note);
        } else if (events_.Notes().Has(scratch)) {
            events_.Notes().Remove(scratch);
        }
        events_.SortMsg(day_);
    }

private:
    EventList& events_;
    DayPlace day_;
    std::vector<DiaryEvent> there_; // what the file has not met yet
    std::set<std::tuple<std::string, int, std::string>> seen_;
};

} // namespace

ImportPlan PlanImport(const ReadCalendar& calendar, const StringTable& texts, int baseYear,
                      const WallTime& now) {
    ImportPlan plan;
    plan.Left.Outside = calendar.Outside;
    plan.Left.Textless = calendar.Cancelled;
    plan.Left.Unreadable = calendar.Unreadable;
    std::size_t notes = 0;
    for (const ExchangeEvent& event : calendar.Events) {
        const Translator translator(event, texts, now);
        const auto note = std::make_shared<const std::string>(NoteBytes(translator.Note()));
        // One large note of an event that comes back every day would fill the disc.
        const std::size_t noteBytes = note->size() * event.Times.size();
        if (translator.IsTextless()) {
            ++plan.Left.Textless;
            continue;
        }
        if (noteBytes > kMostNotes - notes || translator.Note().size() > kEditedNoteLimit) {
            ++plan.Left.Unreadable;
            continue;
        }
        notes += noteBytes;
        for (const WallTime& time : event.Times) {
            const int year = time.Year - baseYear;
            if (year >= 0 && year < kDiaryYears) {
                plan.Events.push_back({{time.Day, time.Month, year},
                                       translator.Place(),
                                       translator.At(time),
                                       note,
                                       event.Uid,
                                       translator.Reaches()});
            }
        }
    }
    std::stable_sort(
        plan.Events.begin(), plan.Events.end(),
        [](const PlannedEvent& a, const PlannedEvent& b) { return OrderOf(a) < OrderOf(b); });
    return plan;
}

ImportResult CarryOut(const ImportPlan& plan, EventList& events,
                      const std::function<Status(const SlotPlace&)>& keepNote) {
    ImportResult result{plan.Left};
    std::optional<DayOfImport> day;
    const DayPlace* shown = nullptr;
    for (const PlannedEvent& planned : plan.Events) {
        if (shown == nullptr || !(*shown == planned.Day)) {
            shown = &planned.Day;
            events.ReSortMsg(planned.Day);
            day.emplace(events, planned.Day);
            const SlotPlace scratch(kScratchSlot, planned.Day);
            if (events.Notes().Has(scratch) && !events.IsFull(planned.Day)) {
                result.Kept = keepNote(scratch);
            }
            if (!result.Kept) {
                return result;
            }
        }
        if (day->Holds(planned)) {
            ++result.Tally.AlreadyThere;
        } else if (events.IsFull(planned.Day)) {
            ++result.Tally.NoRoom;
        } else {
            day->Add(planned);
            ++result.Tally.Added;
            result.Tally.Reaching += planned.Reaches ? 1 : 0;
        }
    }
    return result;
}

} // namespace kestrova
