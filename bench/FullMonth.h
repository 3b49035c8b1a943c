// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "print/PageComposer.h"

#include <string>

namespace kestrova::bench {

// A month of 31 days with ten messages on each, all too wide for their cells.
class FullMonth {
public:
    static constexpr std::size_t kMessages = 310;

    FullMonth() {
        SetDefault(settings_);
        for (int day = 1; day <= kMaxDays; ++day) {
            for (int slot = 1; slot <= kEventsPerDay; ++slot) {
                DiaryEvent& event = table_.At({slot, day, kMonth, 0});
                event.Msg =
                    "Meet Anna and the children at the station, platform " + std::to_string(slot);
            }
        }
    }

    [[nodiscard]] PageLayout Composed(const PageSize& surface, const TextMeasure& measure) const {
        const MonthSource month{kYear,       kMonth, settings_,
                                table_,      kYear,  {"Mo", "Tu", "We", "Th", "Fr", "Sa", "Su"},
                                "July  2026"};
        PageLayout page;
        page.Surface = surface;
        page.GridOn = true;
        NameDays(page, month, measure, FirstLayout::Yes);
        NewPage(page, month, measure);
        DoHeader(page.LabCurMth, month, measure);
        DoControls(page, month, measure, FirstLayout::Yes);
        return page;
    }

private:
    static constexpr int kYear = 2026;
    static constexpr int kMonth = 6; // July

    AppSettings settings_;
    DiaryTable table_;
};

} // namespace kestrova::bench
