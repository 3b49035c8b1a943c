// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/YearTurn.h"

#include "language/ProgramTexts.h"
#include "language/Texts.h"

namespace kestrova {

namespace {

// A diary left alone for longer than a life has no year that one could believe: its settings are
// wrong, and bringing it forward would only lose its events.
constexpr int kLongestGap = 100;

} // namespace

void YearTurn::SetBaseYear(int clockYear) {
    const int dataYear = rooms_.Settings.DataYear;
    rooms_.Dates.BaseYear = clockYear;
    if (clockYear < dataYear) {
        rooms_.Dates.BaseYear = dataYear;
        rooms_.Boxes.Show({rooms_.Texts.Text(texts::kMessengerTitle),
                           TextOf(ProgramText::ClockBehind, std::to_string(clockYear)),
                           DialogIcon::Critical});
    }
}

void YearTurn::YearUpdate() {
    const int baseYear = rooms_.Dates.BaseYear;
    // A roll-over that was under way has its year in the diary's folder, if not yet in the settings.
    const int dataYear = rooms_.Store.RolledTo().value_or(rooms_.Settings.DataYear);
    if (dataYear < baseYear && baseYear - dataYear <= kLongestGap) {
        BringForward(dataYear, baseYear);
    } else if (rooms_.Store.RolledTo() || rooms_.Settings.DataYear != baseYear) {
        Settle(baseYear);
    }
}

void YearTurn::Turn(int year) {
    const int from = rooms_.Dates.BaseYear;
    rooms_.Dates.BaseYear = year;
    BringForward(from, year);
}

void YearTurn::BringForward(int from, int to) {
    const ChangeResult result = rooms_.Store.BringForward(rooms_.DataFolder, from, to);
    if (result == ChangeResult::Saved) {
        Settle(to);
    }
}

// The mark of the roll-over goes only when the settings have the year: a crash before that is found
// at the next start.
void YearTurn::Settle(int year) {
    rooms_.Settings.DataYear = static_cast<std::int16_t>(year);
    if (rooms_.SettingsFile.SaveSettings(rooms_.Settings)) {
        rooms_.Store.FinishRollOver(rooms_.DataFolder);
    }
}

} // namespace kestrova
