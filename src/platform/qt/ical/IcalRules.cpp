// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/qt/ical/IcalRules.h"

#include <algorithm>

namespace kestrova {

namespace {

constexpr int kDays = 7; // of a week

// How many entries a list of a rule has.
template<std::size_t N> std::int64_t Size(const short (&list)[N]) {
    return std::find(std::begin(list), std::end(list), ICAL_RECURRENCE_ARRAY_MAX) -
           std::begin(list);
}

template<std::size_t N> bool IsEmpty(const short (&list)[N]) {
    return Size(list) == 0;
}

// Whether the list adds nothing to what the start of the event says anyway.
template<std::size_t N> bool IsImplied(const short (&list)[N], int value) {
    return IsEmpty(list) || (Size(list) == 1 && list[0] == value);
}

struct Period {
    std::int64_t Seconds;
    std::int64_t Days;
};

Period PeriodOf(icalrecurrencetype_frequency frequency) {
    constexpr std::int64_t kDay = 86'400; // seconds
    switch (frequency) {
    case ICAL_SECONDLY_RECURRENCE: return {1, 1};
    case ICAL_MINUTELY_RECURRENCE: return {60, 1};
    case ICAL_HOURLY_RECURRENCE: return {3600, 1};
    case ICAL_DAILY_RECURRENCE: return {kDay, 1};
    case ICAL_WEEKLY_RECURRENCE: return {kDays * kDay, kDays};
    case ICAL_MONTHLY_RECURRENCE: return {28 * kDay, 31};
    case ICAL_YEARLY_RECURRENCE: return {365 * kDay, 366};
    default: return {1, 366};
    }
}

std::int64_t SecondsOf(const icaltimetype& time) {
    icaltimetype floating = time;
    floating.zone = nullptr;
    return icaltime_as_timet(floating);
}

// Weekdays as the diary counts them, of what stands in a rule.
int WeekdayOf(short day) {
    return (icalrecurrencetype_day_day_of_week(day) + kDays - 2) % kDays + 1;
}

int WeekdayOf(const icaltimetype& time) {
    return (icaltime_day_of_week(time) + kDays - 2) % kDays + 1;
}

// A rule for one weekday of the month: "BYDAY=2TU", or "BYDAY=TU;BYSETPOS=2". A fourth one is no
// last one in the diary.
ExchangeRule WeekdayOfMonth(const icalrecurrencetype& rule, const icaltimetype& start) {
    constexpr int kLast = 4;
    if (Size(rule.by_day) != 1 || Size(rule.by_set_pos) > 1 || !IsEmpty(rule.by_month_day)) {
        return {};
    }
    int ordinal = icalrecurrencetype_day_position(rule.by_day[0]);
    if (!IsEmpty(rule.by_set_pos)) {
        ordinal = ordinal == 0 ? rule.by_set_pos[0] : 0;
    }
    ordinal = ordinal == -1 ? kLast : ordinal == kLast ? 0 : ordinal;
    const int weekday = WeekdayOf(rule.by_day[0]);
    const bool known = ordinal > 0 && ordinal <= kLast && weekday == WeekdayOf(start);
    return known ? ExchangeRule{ExchangeRepeat::MonthlyByWeekday, ordinal, weekday}
                 : ExchangeRule{};
}

bool IsWeekly(const icalrecurrencetype& rule, const icaltimetype& start) {
    return IsEmpty(rule.by_day) ||
           (Size(rule.by_day) == 1 && icalrecurrencetype_day_position(rule.by_day[0]) == 0 &&
            WeekdayOf(rule.by_day[0]) == WeekdayOf(start));
}

} // namespace

std::int64_t StepsOf(const icalrecurrencetype& rule, const icaltimetype& from,
                     const icaltimetype& to) {
    const Period period = PeriodOf(rule.freq);
    const auto atLeastOne = [](std::int64_t number) { return std::max<std::int64_t>(number, 1); };
    const std::int64_t periods = std::max<std::int64_t>(SecondsOf(to) - SecondsOf(from), 0) /
                                     (period.Seconds * atLeastOne(rule.interval)) +
                                 1;
    const bool byDays = !IsEmpty(rule.by_day) || !IsEmpty(rule.by_month_day) ||
                        !IsEmpty(rule.by_year_day) || !IsEmpty(rule.by_week_no);
    return periods * (byDays ? period.Days : 1) * atLeastOne(Size(rule.by_month)) *
           atLeastOne(Size(rule.by_hour)) * atLeastOne(Size(rule.by_minute)) *
           atLeastOne(Size(rule.by_second));
}

ExchangeRule RuleOf(const icalrecurrencetype& rule, const icaltimetype& start,
                    const icaltimetype& last) {
    constexpr int kLastMonthlyDay = 28;
    const bool ends = rule.count != 0 || (icaltime_is_null_time(rule.until) == 0 &&
                                          icaltime_compare_date_only(rule.until, last) < 0);
    const bool plain = IsEmpty(rule.by_year_day) && IsEmpty(rule.by_week_no) &&
                       IsImplied(rule.by_hour, start.hour) &&
                       IsImplied(rule.by_minute, start.minute) &&
                       IsImplied(rule.by_second, start.second);
    if (ends || !plain || rule.interval != 1) {
        return {};
    }
    const bool anyMonth = IsEmpty(rule.by_month);
    const bool anyDay = IsEmpty(rule.by_day) && IsEmpty(rule.by_set_pos);
    const bool sameDay = IsImplied(rule.by_month_day, start.day);
    switch (rule.freq) {
    case ICAL_DAILY_RECURRENCE:
        if (anyMonth && anyDay && IsEmpty(rule.by_month_day)) {
            return {ExchangeRepeat::Daily};
        }
        break;
    case ICAL_WEEKLY_RECURRENCE:
        if (anyMonth && IsEmpty(rule.by_month_day) && IsEmpty(rule.by_set_pos) &&
            IsWeekly(rule, start)) {
            return {ExchangeRepeat::Weekly};
        }
        break;
    case ICAL_MONTHLY_RECURRENCE:
        if (anyMonth && !anyDay) {
            return WeekdayOfMonth(rule, start);
        }
        if (anyMonth && sameDay && start.day <= kLastMonthlyDay) {
            return {ExchangeRepeat::Monthly};
        }
        break;
    case ICAL_YEARLY_RECURRENCE:
        if (anyDay && sameDay && IsImplied(rule.by_month, start.month) &&
            !(start.month == 2 && start.day > kLastMonthlyDay)) {
            return {ExchangeRepeat::Annually};
        }
        break;
    default: break;
    }
    return {};
}

} // namespace kestrova
