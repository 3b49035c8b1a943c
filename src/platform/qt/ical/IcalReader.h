// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/CalendarFormat.h"
#include "platform/qt/ical/IcalCutter.h"
#include "platform/qt/ical/IcalTimes.h"

#include <map>
#include <string>

namespace kestrova {

// Reads one file.
class IcalReader {
public:
    explicit IcalReader(const CalendarSpan& span) : times_(zones_, span) {}

    Result<ReadCalendar> Read(std::string_view bytes);

private:
    void CollectReplaced(const IcalBlock& block);
    void ReadEvent(const IcalBlock& block);

    IcalZones zones_;
    IcalTimes times_;
    std::map<std::string, TimeSet> replaced_; // by the event's identifier: times told of elsewhere
    ReadCalendar read_;
};

} // namespace kestrova
