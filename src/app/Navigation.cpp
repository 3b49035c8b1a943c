// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Navigation.h"

#include "calendar/MonthSheet.h"
#include "language/ProgramTexts.h"
#include "language/Texts.h"
#include "text/Numbers.h"

#include <algorithm>

namespace kestrova {

namespace {

// The day on which the keyboard stands moves with the month, to its last day if need be.
bool MoveTo(Selection& dates, const std::optional<CalendarDate>& date) {
    if (!date) {
        return false;
    }
    const bool otherMonth = date->Year != dates.PageYear || date->Month != dates.PageMonth;
    dates.PageYear = date->Year;
    dates.PageMonth = date->Month;
    dates.PageDay = std::min(date->Day, NofDays(date->Year, date->Month));
    return otherMonth;
}

} // namespace

bool StepYear(Selection& dates, int years) {
    return MoveTo(dates, StepMonths(dates.Page(), years * kMonths));
}

bool StepMonth(Selection& dates, int months) {
    return MoveTo(dates, StepMonths(dates.Page(), months));
}

bool StepDay(Selection& dates, int days) {
    return MoveTo(dates, StepDays(dates.Page(), days));
}

bool ShowMonth(Selection& dates, int month) {
    return MoveTo(dates, CalendarDate{dates.PageYear, month, dates.PageDay});
}

bool ShowToday(Selection& dates) {
    return MoveTo(dates, CalendarDate{dates.BaseYear, dates.TodayMonth, dates.TodayDay});
}

bool ShowYear(Selection& dates, int year) {
    return MoveTo(dates, CalendarDate{year, dates.TodayMonth, dates.PageDay});
}

std::optional<int> AskYear(Dialogs& dialogs, const StringTable& texts, int offered) {
    for (;;) {
        const auto answer =
            dialogs.Input(texts.Text(texts::kProgramTitle), TextOf(texts, ProgramText::YearPrompt),
                          std::to_string(offered));
        if (!answer || Trim(*answer).empty()) {
            return std::nullopt;
        }
        const auto year = ReadInt16(*answer);
        if (year && *year > kFirstYear && *year <= kLastYear) {
            return *year;
        }
    }
}

} // namespace kestrova
