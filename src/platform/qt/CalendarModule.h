// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/CalendarFormat.h"

#include <string>

namespace kestrova {

// Calendar files as the module beside the executable knows them. It is loaded at the first need and
// stays loaded.
class CalendarModule : public CalendarFormat {
public:
    // Where the module lies beside the executable that is running.
    [[nodiscard]] static std::string ShippedPath();

    explicit CalendarModule(std::string path) : path_(std::move(path)) {}

    Result<std::string> Write(const std::vector<ExchangeEvent>& events,
                              const WallTime& now) override;
    Result<ReadCalendar> Read(std::string_view bytes, const CalendarSpan& span) override;

private:
    CalendarFormat* Load();

    std::string path_;
    CalendarFormat* format_ = nullptr; // the module's own
    std::string trouble_;              // why it could not be loaded, in the words of the system
};

} // namespace kestrova
