// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "language/StringTable.h"

#include <string>
#include <string_view>

namespace kestrova {

// An event holds how it repeats and reminds as captions of a language. In a calendar file stand
// words that are the same in every language, so that a diary written in one can be read in another.
// A caption of no known kind stands there as it is, behind "=".

[[nodiscard]] std::string RepeatCode(const StringTable& texts, const std::string& caption);
[[nodiscard]] std::string ReminderCode(const StringTable& texts, const std::string& caption);

// The caption of a word; that of "Never" or "None" for a word that is none.
[[nodiscard]] std::string RepeatOfCode(const StringTable& texts, std::string_view code);
[[nodiscard]] std::string ReminderOfCode(const StringTable& texts, std::string_view code);

// The names under which a calendar file holds what only this program knows of an event.
namespace own {
inline constexpr const char* kRepeat = "REPEAT";
inline constexpr const char* kReminder = "REMINDER";
inline constexpr const char* kDetail = "DETAIL-"; // and the number of the detail, from 0
inline constexpr const char* kHidden = "HIDDEN";
inline constexpr const char* kPlace = "PLACE"; // among the events of its day at the same time
} // namespace own

} // namespace kestrova
