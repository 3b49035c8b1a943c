// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/YearTurn.h"

#include "language/ProgramTexts.h"
#include "language/Texts.h"

#include <algorithm>

namespace kestrova {

namespace {

// A diary left alone for longer than a life has no year that one could believe: its settings are
// wrong, and bringing it forward would only lose its events.
constexpr int kLongestGap = 100;

} // namespace

void YearTurn::YearUpdate() {
    const int baseYear = rooms_.Dates.BaseYear;
    const int rolledTo = rooms_.Store.RolledTo(rooms_.DataFolder).value_or(0);
    const int dataYear = std::max<int>(rooms_.Settings.DataYear, rolledTo);
    if (dataYear > baseYear) {
        SettleWithClockBehind(dataYear, baseYear);
    } else if (dataYear == baseYear || baseYear - dataYear > kLongestGap) {
        Settle(baseYear);
    } else if (!BringForward(dataYear, baseYear, SaveMessages::Show)) {
        rooms_.Dates.BaseYear = dataYear;
    }
}

void YearTurn::SettleWithClockBehind(int dataYear, int clockYear) {
    const bool byTheClock =
        rooms_.Boxes.Ask({rooms_.Texts.Text(texts::kMessengerTitle),
                          TextOf(rooms_.Texts, ProgramText::ClockBehind, std::to_string(clockYear)),
                          DialogIcon::Question},
                         {TextOf(rooms_.Texts, ProgramText::GoByTheClock),
                          TextOf(rooms_.Texts, ProgramText::KeepTheYear)});
    if (byTheClock && rooms_.Store.SetYear(rooms_.DataFolder, clockYear) == ChangeResult::Saved) {
        Settle(clockYear);
    } else {
        rooms_.Dates.BaseYear = dataYear;
    }
}

void YearTurn::Turn(int year) {
    const int from = rooms_.Dates.BaseYear;
    if (year - from <= kLongestGap && BringForward(from, year, SaveMessages::Keep)) {
        rooms_.Dates.BaseYear = year;
    }
}

bool YearTurn::BringForward(int from, int to, SaveMessages messages) {
    const ChangeResult result = rooms_.Store.BringForward(rooms_.DataFolder, from, to, messages);
    if (result != ChangeResult::Saved) {
        return false;
    }
    Settle(to);
    return true;
}

// The settings follow the diary. A save that fails has been told, and is made up for at the next
// start.
void YearTurn::Settle(int year) {
    if (rooms_.Settings.DataYear != year) {
        rooms_.Settings.DataYear = static_cast<std::int16_t>(year);
        (void)rooms_.SettingsFile.SaveSettings(rooms_.Settings);
    }
}

} // namespace kestrova
