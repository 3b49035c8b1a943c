// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/qt/ical/IcalZones.h"

#include <algorithm>
#include <ctime>

namespace kestrova {

namespace {

constexpr int kMostRules = 100; // of one zone
constexpr int kMostDates = 1000;
constexpr int kFirstZoneYear = 1500; // before any clock that somebody set

// Whether a rule for the change of the clocks comes once a year: the library goes through all that
// a rule gives, in memory, for the years to come.
bool IsYearly(const icalrecurrencetype& rule) {
    const auto isShort = [](const short* list) {
        return list[0] == ICAL_RECURRENCE_ARRAY_MAX || list[1] == ICAL_RECURRENCE_ARRAY_MAX;
    };
    const auto isEmpty = [](const short* list) { return list[0] == ICAL_RECURRENCE_ARRAY_MAX; };
    return rule.freq == ICAL_YEARLY_RECURRENCE && rule.rscale == nullptr && rule.interval > 0 &&
           isEmpty(rule.by_second) && isEmpty(rule.by_minute) && isEmpty(rule.by_hour) &&
           isEmpty(rule.by_week_no) && isEmpty(rule.by_set_pos) && isShort(rule.by_day) &&
           isShort(rule.by_month) && (isShort(rule.by_month_day) || !isEmpty(rule.by_day));
}

bool IsSound(icalcomponent& zone) {
    int rules = 0;
    int dates = 0;
    bool sound = true;
    for (icalcomponent* part = icalcomponent_get_first_component(&zone, ICAL_ANY_COMPONENT);
         part != nullptr; part = icalcomponent_get_next_component(&zone, ICAL_ANY_COMPONENT)) {
        ++rules;
        dates += icalcomponent_count_properties(part, ICAL_RDATE_PROPERTY);
        const int year = icalcomponent_get_dtstart(part).year;
        sound = sound && year >= kFirstZoneYear &&
                icalcomponent_count_properties(part, ICAL_RRULE_PROPERTY) <= 1 &&
                icalcomponent_count_properties(part, ICAL_TZOFFSETFROM_PROPERTY) == 1 &&
                icalcomponent_count_properties(part, ICAL_TZOFFSETTO_PROPERTY) == 1;
        EachProperty(*part, ICAL_RRULE_PROPERTY, [&](icalproperty& property) {
            sound = sound && IsYearly(icalproperty_get_rrule(&property));
        });
    }
    return sound && rules > 0 && rules <= kMostRules && dates <= kMostDates;
}

// Whether a zone's name can be looked up among the files of the system: it is a path there.
bool IsZoneName(const std::string& id) {
    const auto inName = [](char c) {
        return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') ||
               c == '_' || c == '-' || c == '+' || c == '/';
    };
    constexpr std::size_t kLongest = 64;
    return !id.empty() && id.size() <= kLongest && id.front() != '/' && id.back() != '/' &&
           id.find("//") == std::string::npos && std::all_of(id.begin(), id.end(), inName);
}

} // namespace

void IcalZones::Add(const std::vector<std::string>& lines) {
    IcalComponent component = ParseLines(lines);
    if (!component || icalcomponent_isa(component.get()) != ICAL_VTIMEZONE_COMPONENT ||
        !IsSound(*component)) {
        return;
    }
    IcalZone zone(icaltimezone_new());
    if (icaltimezone_set_component(zone.get(), component.get()) == 0) {
        return;
    }
    (void)component.release(); // the zone's now
    const std::string id = icaltimezone_get_tzid(zone.get());
    zones_.emplace(id, std::move(zone));
}

icaltimezone* IcalZones::Find(const std::string& id) {
    if (const auto known = zones_.find(id); known != zones_.end()) {
        return known->second.get();
    }
    return IsZoneName(id) ? icaltimezone_get_builtin_timezone(id.c_str()) : nullptr;
}

icaltimetype IcalZones::InItsZone(icaltimetype time, icalproperty& property) {
    icalparameter* const id = icalproperty_get_first_parameter(&property, ICAL_TZID_PARAMETER);
    const char* const name = id != nullptr ? icalparameter_get_tzid(id) : nullptr;
    if (name != nullptr && time.is_date == 0 && icaltime_is_utc(time) == 0) {
        return icaltime_set_timezone(&time, Find(name));
    }
    return time;
}

WallTime IcalZones::WallTimeOf(const icaltimetype& time) {
    if (time.is_date != 0) {
        return {time.year, time.month - 1, time.day, 0, 0, 0};
    }
    if (time.zone == nullptr) {
        return {time.year, time.month - 1, time.day, time.hour, time.minute, 0};
    }
    constexpr int kFirstYear = 1900;
    const std::time_t moment =
        icaltime_as_timet_with_zone(time, const_cast<icaltimezone*>(time.zone));
    std::tm local{};
    ::localtime_r(&moment, &local);
    return {
        local.tm_year + kFirstYear, local.tm_mon, local.tm_mday, local.tm_hour, local.tm_min, 0};
}

} // namespace kestrova
