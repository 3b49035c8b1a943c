// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>
#include <string>

namespace kestrova {

// One slot of the diary. A slot whose message is empty is free, whatever its other fields hold.
struct DiaryEvent {
    std::int16_t Hour = 0;
    std::int16_t Minute = 0;
    std::string Msg;
    std::string Rpt; // caption of the repeat, in the language in use when the event was saved
    std::string Rmd; // caption of the reminder, likewise
    std::array<std::string, 4> Extra; // what the reminder needs: numbers, an address, a file
    std::int16_t Hide = 0;            // 1: does not mark its date on the month grid

    bool operator==(const DiaryEvent&) const = default;

    [[nodiscard]] bool IsFree() const { return Msg.empty(); }

    // Minutes since midnight, by which a day's events are ordered.
    [[nodiscard]] int Key() const { return Hour * 60 + Minute; }

    // The same time and message, which is how two programs that share a diary know an event again
    // although one of them has changed how it reminds.
    [[nodiscard]] bool SameAppointment(const DiaryEvent& other) const {
        return Hour == other.Hour && Minute == other.Minute && Msg == other.Msg;
    }
};

// The time as windows show it: "07:03".
[[nodiscard]] std::string EventTime(const DiaryEvent& event);

} // namespace kestrova
