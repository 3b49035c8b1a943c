// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "language/Texts.h"

#include <array>
#include <optional>
#include <string_view>

namespace kestrova {

// A run of entries that are the items of a drop-down list, in list order.
struct ItemList {
    TextId First;
    int Count = 0;

    [[nodiscard]] TextId Item(int index) const { return {First.Group, First.Entry + index}; }
};

namespace lists {
inline constexpr ItemList kChimeTypes{texts::kChimeTypes, 3};
inline constexpr ItemList kChimeIntervals{texts::kChimeIntervals, 5};
inline constexpr ItemList kModemPorts{texts::kModemPorts, 5};
inline constexpr ItemList kReminderKinds{texts::kReminderKinds, 7};
inline constexpr ItemList kRepeatKinds{texts::kRepeatKinds, 5};
inline constexpr std::array kAll = {kChimeTypes, kChimeIntervals, kModemPorts, kReminderKinds,
                                    kRepeatKinds};
} // namespace lists

// Where a text stands in a list; nothing for one that is not in it.
[[nodiscard]] std::optional<int> IndexOf(const StringTable& table, const ItemList& list,
                                         std::string_view text);

// A text that two items of one list share: choices are held by their texts, so with it one could
// not be told from the other.
[[nodiscard]] std::optional<std::string> SharedItemText(const StringTable& table);

} // namespace kestrova
