// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/CalendarFormat.h"
#include "platform/Clock.h"
#include "platform/FileStore.h"

#include <iosfwd>
#include <optional>
#include <span>
#include <string>

namespace kestrova {

// What is to be done without a window: the diary to a calendar file, or such a file into it.
struct ExchangeOrder {
    enum class Direction { Export, Import, Unclear } Way = Direction::Unclear;
    std::string Path; // as it was given
};

// "--export FILE.ics" or "--import FILE.ics", of the words behind the name of the program; Unclear
// when one of them stands there and the rest does not fit. Nothing when none does.
[[nodiscard]] std::optional<ExchangeOrder> ExchangeOrderOf(std::span<const char* const> words);

// Carries out such an order. It takes the user's own diary as it is on the disc, in the year to
// which it belongs, while another instance of the program may be using it; that one sees the change
// within seconds. No question is asked, and nothing but the diary or the file is written.
class CommandLine {
public:
    struct Rooms {
        FileStore& Files;
        const Clock& Time;
        CalendarFormat& Format;
        std::string DataFolder; // the program folder, ending in the separator
        std::ostream& Out;      // what has been done
        std::ostream& Trouble;  // why not
    };

    explicit CommandLine(Rooms rooms) : rooms_(std::move(rooms)) {}

    // The exit code: 0 when it is done, 1 when it is not.
    int Run(const ExchangeOrder& order);

private:
    Rooms rooms_;
};

} // namespace kestrova
