// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "settings/AppSettings.h"
#include "settings/ListChoices.h"

#include <string>

namespace kestrova {

// Whether the clock chimes in this minute, 0-59, of the hour.
[[nodiscard]] bool ChimeDue(ChimeInterval interval, int minute);

// What is said instead of a chime: "The time is. 14:30. My Master."
[[nodiscard]] std::string TimeSentence(const AppSettings& settings, int hour, int minute);

} // namespace kestrova
