// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/CalendarFormat.h"

#include <optional>

namespace kestrova {

// Calendar files that hold nothing: what is written into one is what the next one read gives.
class FakeCalendarFormat : public CalendarFormat {
public:
    static constexpr const char* kBytes = "a calendar";

    ReadCalendar Held;
    std::optional<Error> Trouble;
    CalendarSpan Asked;

    Result<std::string> Write(const std::vector<ExchangeEvent>& events,
                              const WallTime& /*now*/) override {
        if (Trouble) {
            return *Trouble;
        }
        Held.Events = events;
        return std::string(kBytes);
    }

    Result<ReadCalendar> Read(std::string_view bytes, const CalendarSpan& span) override {
        Asked = span;
        if (Trouble) {
            return *Trouble;
        }
        return bytes == kBytes ? Result<ReadCalendar>(Held)
                               : Error{ErrorCode::Damaged, std::string(bytes)};
    }
};

} // namespace kestrova
