// SPDX-License-Identifier: GPL-3.0-or-later
#include "language/ItemLists.h"

namespace kestrova {

std::optional<int> IndexOf(const StringTable& table, const ItemList& list, std::string_view text) {
    for (int i = 0; i < list.Count; ++i) {
        if (text == table.Text(list.Item(i))) {
            return i;
        }
    }
    return std::nullopt;
}

std::optional<std::string> SharedItemText(const StringTable& table) {
    for (const ItemList& list : lists::kAll) {
        for (int i = 0; i < list.Count; ++i) {
            const std::string& text = table.Text(list.Item(i));
            if (IndexOf(table, list, text) != i) {
                return text;
            }
        }
    }
    return std::nullopt;
}

} // namespace kestrova
