// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/qt/ical/IcalOwner.h"

namespace kestrova {

// Line by line: given a whole text, the library looks for the end of a long line again and again.
IcalComponent ParseLines(const std::vector<std::string>& lines) {
    const IcalParser parser(icalparser_new());
    for (std::string line : lines) { // a copy, into which the parser writes
        if (icalcomponent* const whole = icalparser_add_line(parser.get(), line.data())) {
            return IcalComponent(whole);
        }
    }
    return nullptr;
}

} // namespace kestrova
