// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/qt/ical/IcalReader.h"

#include "platform/qt/ical/IcalExact.h"
#include "platform/qt/ical/IcalOwner.h"

#include <cstring>
#include <ctime>
#include <utility>

namespace kestrova {

namespace {

constexpr const char* kReplaces = "RECURRENCE-ID";

// The component in a block. Nothing when the library has dropped a line that says when the event
// takes place: without it, the event would take place at other times.
IcalComponent ComponentOf(const IcalBlock& block) {
    IcalComponent component = ParseLines(block.Lines);
    if (block.Damaged || !component ||
        icalcomponent_isa(component.get()) != ICAL_VEVENT_COMPONENT) {
        return nullptr;
    }
    for (const auto& [name, lines] : block.TimeLines) {
        const icalproperty_kind kind = icalproperty_string_to_kind(name.c_str());
        if (icalcomponent_count_properties(component.get(), kind) < lines) {
            return nullptr;
        }
    }
    return component;
}

std::string TextOf(icalcomponent& component, icalproperty_kind kind) {
    icalproperty* const property = icalcomponent_get_first_property(&component, kind);
    icalvalue* const value = property != nullptr ? icalproperty_get_value(property) : nullptr;
    const char* const text = value != nullptr ? icalvalue_get_text(value) : nullptr;
    return text != nullptr ? text : "";
}

std::string UidOf(icalcomponent& component) {
    return TextOf(component, ICAL_UID_PROPERTY);
}

bool IsCancelled(icalcomponent& component) {
    return icalcomponent_get_status(&component) == ICAL_STATUS_CANCELLED;
}

// What only this program writes, and with it what its texts have lost on the way.
void ReadOwn(icalcomponent& component, ExchangeEvent& event) {
    EachProperty(component, ICAL_X_PROPERTY, [&](icalproperty& property) {
        const char* const name = icalproperty_get_x_name(&property);
        icalvalue* const held = icalproperty_get_value(&property);
        const char* const value = held != nullptr ? icalvalue_get_x(held) : nullptr;
        if (name == nullptr || value == nullptr ||
            !std::string_view(name).starts_with(kOwnPrefix)) {
            return;
        }
        const std::string own = name + std::strlen(kOwnPrefix);
        auto text = OutOfBrackets(value);
        if (own == kOwnSummary) {
            event.Summary = AsItWas(event.Summary, text);
        } else if (own == kOwnNote) {
            event.Note = AsItWas(event.Note, text);
        } else if (text) {
            event.Own[own] = std::move(*text);
        }
    });
}

bool HasAlarm(icalcomponent& component) {
    for (icalcomponent* alarm =
             icalcomponent_get_first_component(&component, ICAL_VALARM_COMPONENT);
         alarm != nullptr;
         alarm = icalcomponent_get_next_component(&component, ICAL_VALARM_COMPONENT)) {
        icalproperty* const action = icalcomponent_get_first_property(alarm, ICAL_ACTION_PROPERTY);
        // Some programs write one for every event that has none: "ACTION:NONE".
        if (action != nullptr && icalproperty_get_action(action) != ICAL_ACTION_X &&
            icalproperty_get_action(action) != ICAL_ACTION_NONE) {
            return true;
        }
    }
    return false;
}

} // namespace

// A component with a RECURRENCE-ID tells of one time of an event, which that event no longer has.
void IcalReader::CollectReplaced(const IcalBlock& block) {
    if (!block.TimeLines.contains(kReplaces)) {
        return;
    }
    if (const IcalComponent component = ComponentOf(block)) {
        times_.AddAll(*component, ICAL_RECURRENCEID_PROPERTY, replaced_[UidOf(*component)]);
    }
}

void IcalReader::ReadEvent(const IcalBlock& block) {
    const IcalComponent component = ComponentOf(block);
    if (!component) {
        ++read_.Unreadable;
        return;
    }
    const bool replaces = block.TimeLines.contains(kReplaces);
    if (IsCancelled(*component)) {
        ++read_.Cancelled;
        return;
    }
    ExchangeEvent event;
    event.Uid = UidOf(*component);
    const auto others = replaced_.find(event.Uid);
    auto times =
        times_.Of(*component, replaces || others == replaced_.end() ? TimeSet() : others->second);
    if (!times) {
        ++read_.Unreadable;
        return;
    }
    if (times->empty()) {
        ++read_.Outside;
        return;
    }
    event.Times = std::move(*times);
    event.Rule = times_.Rule(*component, event.Times);
    event.Summary = TextOf(*component, ICAL_SUMMARY_PROPERTY);
    event.Note = TextOf(*component, ICAL_DESCRIPTION_PROPERTY);
    event.Alarm = HasAlarm(*component);
    ReadOwn(*component, event);
    read_.Events.push_back(std::move(event));
}

Result<ReadCalendar> IcalReader::Read(std::string_view bytes) {
    ::tzset();
    const auto cut = CutIcal(bytes);
    if (!cut) {
        return cut.Failure();
    }
    for (const IcalBlock& zone : cut.Value().Zones) {
        zones_.Add(zone.Lines);
    }
    for (const IcalBlock& event : cut.Value().Events) {
        CollectReplaced(event);
    }
    for (const IcalBlock& event : cut.Value().Events) {
        ReadEvent(event);
    }
    return std::move(read_);
}

} // namespace kestrova
