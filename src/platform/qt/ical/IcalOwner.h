// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <libical/ical.h>

#include <cstdlib>
#include <memory>
#include <string>
#include <vector>

namespace kestrova {

// What the library gives, with an owner.
struct IcalFree {
    void operator()(icalcomponent* component) const { icalcomponent_free(component); }
    void operator()(icalrecur_iterator* iterator) const { icalrecur_iterator_free(iterator); }
    void operator()(icaltimezone* zone) const { icaltimezone_free(zone, 1); }
    void operator()(icalparser* parser) const { icalparser_free(parser); }
    void operator()(char* text) const { icalmemory_free_buffer(text); }
};
using IcalComponent = std::unique_ptr<icalcomponent, IcalFree>;
using IcalIterator = std::unique_ptr<icalrecur_iterator, IcalFree>;
using IcalZone = std::unique_ptr<icaltimezone, IcalFree>;
using IcalParser = std::unique_ptr<icalparser, IcalFree>;
using IcalText = std::unique_ptr<char, IcalFree>;

// The component that stands in unfolded lines; nothing when they are none.
[[nodiscard]] IcalComponent ParseLines(const std::vector<std::string>& lines);

// Calls visit(icalproperty&) for every property of a kind.
template<typename Visit>
void EachProperty(icalcomponent& component, icalproperty_kind kind, Visit visit) {
    for (icalproperty* property = icalcomponent_get_first_property(&component, kind);
         property != nullptr; property = icalcomponent_get_next_property(&component, kind)) {
        visit(*property);
    }
}

// The names of the properties that other programs pass over, before the names of `Own`.
inline constexpr const char* kOwnPrefix = "X-KESTROVA-";

// And among them the texts that others do not keep as they are.
inline constexpr const char* kOwnSummary = "SUMMARY";
inline constexpr const char* kOwnNote = "NOTE";

} // namespace kestrova
