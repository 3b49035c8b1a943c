// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/qt/ical/IcalWriter.h"

#include "platform/qt/ical/IcalExact.h"
#include "platform/qt/ical/IcalOwner.h"

#include <array>
#include <ctime>

namespace kestrova {

namespace {

constexpr const char* kProduct = "-//Kestrova//Kestrova//EN";

icaltimetype TimeOf(const WallTime& time) {
    icaltimetype result = icaltime_null_time();
    result.year = time.Year;
    result.month = time.Month + 1;
    result.day = time.Day;
    result.hour = time.Hour;
    result.minute = time.Minute;
    return result;
}

// A stamp must be in universal time.
icaltimetype StampOf(const WallTime& now) {
    constexpr int kFirstYear = 1900;
    std::tm local{};
    local.tm_year = now.Year - kFirstYear;
    local.tm_mon = now.Month;
    local.tm_mday = now.Day;
    local.tm_hour = now.Hour;
    local.tm_min = now.Minute;
    local.tm_sec = now.Second;
    local.tm_isdst = -1;
    return icaltime_from_timet_with_zone(std::mktime(&local), 0, icaltimezone_get_utc_timezone());
}

std::string RuleText(const ExchangeRule& rule) {
    constexpr std::array kWeekdays = {"MO", "TU", "WE", "TH", "FR", "SA", "SU"};
    constexpr int kLast = 4;
    switch (rule.Kind) {
    case ExchangeRepeat::None: return {};
    case ExchangeRepeat::Daily: return "FREQ=DAILY";
    case ExchangeRepeat::Weekly: return "FREQ=WEEKLY";
    case ExchangeRepeat::Monthly: return "FREQ=MONTHLY";
    case ExchangeRepeat::Annually: return "FREQ=YEARLY";
    case ExchangeRepeat::MonthlyByWeekday:
        return "FREQ=MONTHLY;BYDAY=" +
               (rule.Ordinal == kLast ? "-1" : std::to_string(rule.Ordinal)) +
               kWeekdays.at(static_cast<std::size_t>(rule.Weekday - 1));
    }
    return {};
}

void Add(icalcomponent& component, icalproperty* property) {
    icalcomponent_add_property(&component, property);
}

void AddOwn(icalcomponent& component, const std::string& name, const std::string& value) {
    icalproperty* const property = icalproperty_new_x(InBrackets(value).c_str());
    icalproperty_set_x_name(property, (kOwnPrefix + name).c_str());
    Add(component, property);
}

void AddExact(icalcomponent& component, const std::string& name, const std::string& text) {
    if (!ComesBack(text)) {
        AddOwn(component, name, text);
    }
}

void AddRule(icalcomponent& component, const ExchangeEvent& event) {
    if (event.Rule.Kind == ExchangeRepeat::None || event.Times.size() < 2) {
        return;
    }
    icalrecurrencetype rule = icalrecurrencetype_from_string(RuleText(event.Rule).c_str());
    rule.until = TimeOf(event.Times.back());
    Add(component, icalproperty_new_rrule(rule));
    for (const WallTime& gap : event.Gaps) {
        Add(component, icalproperty_new_exdate(TimeOf(gap)));
    }
}

// For other programs; this one goes by its own properties.
void AddAlarm(icalcomponent& component, const ExchangeEvent& event) {
    icalcomponent* const alarm = icalcomponent_new(ICAL_VALARM_COMPONENT);
    icalcomponent_add_component(&component, alarm);
    Add(*alarm, icalproperty_new_action(ICAL_ACTION_DISPLAY));
    Add(*alarm, icalproperty_new_description(event.Summary.c_str()));
    Add(*alarm, icalproperty_new_trigger(icaltriggertype_from_int(0)));
}

icalcomponent* ComponentOf(const ExchangeEvent& event, const icaltimetype& stamp) {
    icalcomponent* const component = icalcomponent_new(ICAL_VEVENT_COMPONENT);
    Add(*component, icalproperty_new_uid(event.Uid.c_str()));
    Add(*component, icalproperty_new_dtstamp(stamp));
    Add(*component, icalproperty_new_dtstart(TimeOf(event.Times.front())));
    AddRule(*component, event);
    Add(*component, icalproperty_new_summary(event.Summary.c_str()));
    AddExact(*component, kOwnSummary, event.Summary);
    if (!event.Note.empty()) {
        Add(*component, icalproperty_new_description(event.Note.c_str()));
        AddExact(*component, kOwnNote, event.Note);
    }
    for (const auto& [name, value] : event.Own) {
        AddOwn(*component, name, value);
    }
    if (event.Alarm) {
        AddAlarm(*component, event);
    }
    return component;
}

} // namespace

Result<std::string> WriteCalendar(const std::vector<ExchangeEvent>& events, const WallTime& now) {
    const IcalComponent calendar(icalcomponent_new(ICAL_VCALENDAR_COMPONENT));
    Add(*calendar, icalproperty_new_version("2.0"));
    Add(*calendar, icalproperty_new_prodid(kProduct));
    const icaltimetype stamp = StampOf(now);
    for (const ExchangeEvent& event : events) {
        icalcomponent_add_component(calendar.get(), ComponentOf(event, stamp));
    }
    const IcalText text(icalcomponent_as_ical_string_r(calendar.get()));
    if (!text) {
        return Error{ErrorCode::Failed, icalerror_strerror(icalerrno)};
    }
    return std::string(text.get());
}

} // namespace kestrova
