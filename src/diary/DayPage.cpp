// SPDX-License-Identifier: GPL-3.0-or-later
#include "diary/DayPage.h"

namespace kestrova {

std::array<DayRow, kEventsPerDay> DayRows(const DiaryTable& table, const DayPlace& day) {
    std::array<DayRow, kEventsPerDay> rows;
    for (int slot = 1; slot <= kEventsPerDay; ++slot) {
        const DiaryEvent& event = table.At({slot, day});
        if (!event.IsFree()) {
            rows[static_cast<std::size_t>(slot - 1)] = {EventTime(event), event.Msg, event.Rpt,
                                                        event.Rmd, event.Hide == 1};
        }
    }
    return rows;
}

std::string DayHeading(const StringTable& table, const CalendarDate& date) {
    const std::string gap = "  ";
    return table.WeekdayNames[static_cast<std::size_t>(WeekdayOf(date) - 1)] + gap +
           std::to_string(date.Day) + gap + table.MonthNames[static_cast<std::size_t>(date.Month)] +
           gap + std::to_string(date.Year);
}

std::optional<std::string> DayMark(const DiaryTable& table, const DayPlace& day) {
    for (int slot = 1; slot <= kEventsPerDay; ++slot) {
        const DiaryEvent& event = table.At({slot, day});
        if (event.IsFree()) {
            return std::nullopt;
        }
        if (event.Hide == 0) {
            return event.Msg;
        }
    }
    return std::nullopt;
}

} // namespace kestrova
