// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "language/ItemLists.h"
#include "settings/AppSettings.h"

#include <functional>
#include <optional>
#include <string_view>

namespace kestrova {

// Choices from lists are held by their displayed text. The numbers are the list indexes.
enum class ChimeType { Speech = 0, Chime = 1, None = 2 };
enum class ChimeInterval { Never = 0, Hour = 1, HalfHour = 2, QuarterHour = 3, FiveMinutes = 4 };

// Nothing for a text that is in no list of this language.
[[nodiscard]] std::optional<ChimeType> ChimeTypeOf(const AppSettings& settings,
                                                   const StringTable& table);
[[nodiscard]] std::optional<ChimeInterval> ChimeIntervalOf(const AppSettings& settings,
                                                           const StringTable& table);

// Whether a modem port is chosen: "Com:1" to "Com:4", in every language.
[[nodiscard]] bool HasModemPort(const AppSettings& settings);

// Where a text stands in a list of some language; nothing when no language knows it.
using FindItem = std::function<std::optional<int>(const ItemList& list, std::string_view text)>;

// Gives a choice whose text is in no list of this language the text that it has there, or, when
// `find` does not know it either, the item that the list begins with: what the settings window
// shows is what the program goes by.
void SettleChoices(AppSettings& settings, const StringTable& table, const FindItem& find);

// Gives every choice the text that the new language has for it. A text that the old language does
// not know is kept.
void TranslateChoices(AppSettings& settings, const StringTable& before, const StringTable& after);

} // namespace kestrova
