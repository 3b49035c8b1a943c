// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Clock.h"
#include "platform/Result.h"

#include <cstddef>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace kestrova {

// What is larger is no calendar of one person.
inline constexpr std::size_t kCalendarFileLimit = std::size_t{16} << 20U; // bytes

// How an event comes back, as far as the diary knows the like: every period, without an end.
enum class ExchangeRepeat { None, Daily, Weekly, Monthly, MonthlyByWeekday, Annually };

struct ExchangeRule {
    ExchangeRepeat Kind = ExchangeRepeat::None;
    int Ordinal = 1; // for MonthlyByWeekday: 1-3, or 4 for the last
    int Weekday = 1; // for MonthlyByWeekday: 1 = Monday ... 7 = Sunday

    bool operator==(const ExchangeRule&) const = default;
};

// An event as calendar programs hand it to one another. Texts are UTF-8 without NULs, the lines of
// a note parted by '\n'; times are local and to the minute.
struct ExchangeEvent {
    std::string Uid; // the same for the same event in every file that holds it
    std::string Summary;
    std::string Note;
    std::vector<WallTime> Times;            // when it takes place, in order; never empty
    std::vector<WallTime> Gaps;             // when writing: times of the rule at which it does not
    ExchangeRule Rule;                      // of `Times`; when reading: of one that has no end
    bool Alarm = false;                     // it reminds at its time, or before
    std::map<std::string, std::string> Own; // what only this program knows, by upper-case names

    bool operator==(const ExchangeEvent&) const = default;
};

// The years whose events are wanted, from the first day of the one to the last day of the other.
struct CalendarSpan {
    int FirstYear = 2000;
    int LastYear = 2001;
};

struct ReadCalendar {
    std::vector<ExchangeEvent> Events;
    int Outside = 0;    // events none of whose times lies in the years
    int Cancelled = 0;  // events that the file says will not take place
    int Unreadable = 0; // events without a time, or with a rule that nobody could follow
};

// The form in which calendar programs exchange events, iCalendar.
class CalendarFormat {
public:
    virtual ~CalendarFormat() = default;

    // The bytes of a file with these events; `now` says when they were written. Where an event has
    // several times, it has a rule, and the times are those of the rule from the first to the last,
    // but for the gaps. NotFound when what writes them is not installed.
    virtual Result<std::string> Write(const std::vector<ExchangeEvent>& events,
                                      const WallTime& now) = 0;

    // The events of a file with all their times in the years asked for. Of an event that takes
    // whole days, each day is a time, at midnight. Damaged when the bytes are no calendar or the
    // end is missing, TooLarge when it holds more than anyone's calendar, NotFound as above. Work
    // and memory are bounded, whatever the bytes are.
    virtual Result<ReadCalendar> Read(std::string_view bytes, const CalendarSpan& span) = 0;
};

} // namespace kestrova
