// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/qt/ical/IcalTimes.h"

#include "platform/qt/ical/IcalRules.h"

#include <algorithm>

namespace kestrova {

namespace {

constexpr std::int64_t kMostSteps = 1'000'000; // of a file: some seconds
constexpr std::int64_t kMostStepsOfRule = 200'000;
constexpr std::size_t kMostTimes = 20'000; // of an event
constexpr int kLongest = 366;              // days of an event that takes whole days
constexpr int kLastYear = 9999;

icaltimetype Day(int year, int month, int day) {
    icaltimetype time = icaltime_null_time();
    time.year = year;
    time.month = month;
    time.day = day;
    return time;
}

icaltimetype DaysLater(icaltimetype time, int days) {
    icaltime_adjust(&time, days, 0, 0, 0);
    return time;
}

// How many whole days an event takes; one for an event that has a time.
int DaysOf(icalcomponent& event, const icaltimetype& start) {
    if (start.is_date == 0) {
        return 1;
    }
    constexpr int kDay = 86'400; // seconds
    const int seconds = icaldurationtype_as_int(icalcomponent_get_duration(&event));
    return std::clamp(seconds / kDay, 1, kLongest);
}

} // namespace

void TimeSet::Add(const icaltimetype& time) {
    (time.is_date != 0 ? Days : Times).insert(IcalZones::WallTimeOf(time));
}

bool TimeSet::Has(const WallTime& time) const {
    return Times.contains(time) || Days.contains({time.Year, time.Month, time.Day, 0, 0, 0});
}

IcalTimes::IcalTimes(IcalZones& zones, const CalendarSpan& span)
    : zones_(zones), span_(span), from_(DaysLater(Day(span.FirstYear, 1, 1), -kLongest - 2)),
      to_(DaysLater(Day(span.LastYear, 12, 31), 2)), stepsLeft_(kMostSteps) {}

std::optional<icaltimetype> IcalTimes::StartOf(icalcomponent& event) {
    icalproperty* const property = icalcomponent_get_first_property(&event, ICAL_DTSTART_PROPERTY);
    if (property == nullptr) {
        return std::nullopt;
    }
    const icaltimetype start = zones_.InItsZone(icalproperty_get_dtstart(property), *property);
    const bool sound = icaltime_is_null_time(start) == 0 && icaltime_is_valid_time(start) != 0 &&
                       start.year > 0 && start.year <= kLastYear &&
                       icaltime_compare(icaltime_normalize(start), start) == 0;
    return sound ? std::optional(start) : std::nullopt;
}

// The times of a rule within the years. Whether there are few enough of them.
bool IcalTimes::AddRule(icalrecurrencetype rule, const icaltimetype& start, TimeSet& set) {
    if (rule.rscale != nullptr || rule.freq == ICAL_NO_RECURRENCE) {
        return false; // a calendar of another kind
    }
    if (icaltime_is_null_time(rule.until) == 0 && rule.until.is_date != 0 && start.is_date == 0) {
        rule.until.is_date = 0; // the whole last day is meant
        rule.until.hour = 23;
        rule.until.minute = 59;
        rule.until.second = 59;
    }
    if (icaltime_is_null_time(rule.until) != 0 || icaltime_compare(rule.until, to_) > 0) {
        rule.until = to_;
    }
    icaltimetype from = from_;
    from.zone = start.zone;
    from.is_date = start.is_date;
    from.hour = start.hour;
    from.minute = start.minute;
    from.second = start.second;
    const bool begunBefore = icaltime_compare(start, from) < 0;
    const bool jumps = begunBefore && rule.count == 0;
    const std::int64_t steps = StepsOf(rule, jumps ? from : start, rule.until);
    if (steps > std::min(kMostStepsOfRule, stepsLeft_)) {
        return false;
    }
    stepsLeft_ -= steps;
    if (icaltime_compare(start, rule.until) > 0 ||
        (jumps && icaltime_compare(from, rule.until) > 0)) {
        return true;
    }
    const IcalIterator iterator(icalrecur_iterator_new(rule, start));
    if (!iterator || (jumps && icalrecur_iterator_set_start(iterator.get(), from) == 0)) {
        return false;
    }
    std::size_t times = 0;
    for (icaltimetype next = icalrecur_iterator_next(iterator.get());
         icaltime_is_null_time(next) == 0; next = icalrecur_iterator_next(iterator.get())) {
        if (icaltime_compare(next, from) < 0) {
            continue;
        }
        if (++times > kMostTimes) {
            return false;
        }
        set.Add(next);
    }
    return true;
}

bool IcalTimes::AddRules(icalcomponent& event, icalproperty_kind kind, const icaltimetype& start,
                         TimeSet& set) {
    bool followed = true;
    EachProperty(event, kind, [&](icalproperty& property) {
        const icalrecurrencetype rule = kind == ICAL_RRULE_PROPERTY
                                            ? icalproperty_get_rrule(&property)
                                            : icalproperty_get_exrule(&property);
        followed = followed && AddRule(rule, start, set);
    });
    return followed;
}

void IcalTimes::AddAll(icalcomponent& event, icalproperty_kind kind, TimeSet& set) {
    EachProperty(event, kind, [&](icalproperty& property) {
        icaltimetype time = icaltime_null_time();
        if (kind == ICAL_RDATE_PROPERTY) {
            const icaldatetimeperiodtype either = icalproperty_get_rdate(&property);
            time = icaltime_is_null_time(either.time) != 0 ? either.period.start : either.time;
        } else if (kind == ICAL_EXDATE_PROPERTY) {
            time = icalproperty_get_exdate(&property);
        } else {
            time = icalproperty_get_recurrenceid(&property);
        }
        if (icaltime_is_null_time(time) == 0 && icaltime_is_valid_time(time) != 0) {
            set.Add(zones_.InItsZone(time, property));
        }
    });
}

std::optional<std::vector<WallTime>> IcalTimes::Of(icalcomponent& event, const TimeSet& replaced) {
    const auto start = StartOf(event);
    TimeSet found;
    TimeSet left;
    if (!start || !AddRules(event, ICAL_RRULE_PROPERTY, *start, found) ||
        !AddRules(event, ICAL_EXRULE_PROPERTY, *start, left)) {
        return std::nullopt;
    }
    if (icalcomponent_count_properties(&event, ICAL_RRULE_PROPERTY) == 0) {
        found.Add(*start);
    }
    AddAll(event, ICAL_RDATE_PROPERTY, found);
    AddAll(event, ICAL_EXDATE_PROPERTY, left);
    found.Times.insert(found.Days.begin(), found.Days.end());
    std::set<WallTime> times;
    const int days = DaysOf(event, *start);
    stepsLeft_ -= static_cast<std::int64_t>(found.Times.size()) * days;
    if (stepsLeft_ < 0) {
        return std::nullopt;
    }
    for (const WallTime& time : found.Times) {
        if (left.Has(time) || replaced.Has(time)) {
            continue;
        }
        icaltimetype day = Day(time.Year, time.Month + 1, time.Day);
        for (int i = 0; i < days; ++i, day = DaysLater(day, 1)) {
            if (day.year >= span_.FirstYear && day.year <= span_.LastYear) {
                times.insert({day.year, day.month - 1, day.day, time.Hour, time.Minute, 0});
            }
        }
    }
    if (times.size() > kMostTimes) {
        return std::nullopt;
    }
    return std::vector<WallTime>(times.begin(), times.end());
}

ExchangeRule IcalTimes::Rule(icalcomponent& event, const std::vector<WallTime>& times) const {
    icalproperty* const property = icalcomponent_get_first_property(&event, ICAL_RRULE_PROPERTY);
    const bool one = icalcomponent_count_properties(&event, ICAL_RRULE_PROPERTY) == 1 &&
                     icalcomponent_count_properties(&event, ICAL_RDATE_PROPERTY) == 0 &&
                     icalcomponent_count_properties(&event, ICAL_EXRULE_PROPERTY) == 0;
    const icaltimetype start = icalcomponent_get_dtstart(&event);
    // Clocks that are put forward elsewhere at another time than here make other times of a rule.
    const bool sameTime = std::all_of(times.begin(), times.end(), [&](const WallTime& time) {
        return time.Hour == times.front().Hour && time.Minute == times.front().Minute;
    });
    if (!one || !sameTime || DaysOf(event, start) > 1) {
        return {};
    }
    return RuleOf(icalproperty_get_rrule(property), start, Day(span_.LastYear, 12, 31));
}

} // namespace kestrova
