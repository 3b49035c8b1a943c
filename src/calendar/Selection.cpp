// SPDX-License-Identifier: GPL-3.0-or-later
#include "calendar/Selection.h"

namespace kestrova {

void ReadToday(Selection& selection, int month, int day, DayMonthOrder order) {
    selection.TodayMonth = month;
    selection.TodayDay = day;
    if (order == DayMonthOrder::Swapped) {
        selection.TodayMonth = day - 1;
        selection.TodayDay = month + 1;
    }
    if (selection.TodayMonth >= kMonths) {
        const int swappedMonth = selection.TodayDay - 1;
        selection.TodayDay = selection.TodayMonth + 1;
        selection.TodayMonth = swappedMonth;
    }
}

} // namespace kestrova
