// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calendar/Selection.h"
#include "language/StringTable.h"
#include "platform/Dialogs.h"

#include <optional>

namespace kestrova {

// Moving through the calendar: what the arrows, the prompt and the keyboard do to the selection.
// Each returns whether the month on show is another afterwards. Nothing leads out of the years that
// the calendar shows.
bool StepYear(Selection& dates, int years);
bool StepMonth(Selection& dates, int months);
bool StepDay(Selection& dates, int days);
bool ShowMonth(Selection& dates, int month);
bool ShowToday(Selection& dates);

// Goes to the current month of another year.
bool ShowYear(Selection& dates, int year);

// Asks for a year until the answer is one that can be shown. Nothing when the answer is empty.
[[nodiscard]] std::optional<int> AskYear(Dialogs& dialogs, const StringTable& texts, int offered);

} // namespace kestrova
