// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "language/ItemLists.h"

#include <span>
#include <string_view>

namespace kestrova {

// Which entry of the string table a control shows, as its caption or as its tip.
struct CaptionRow {
    std::string_view Window;
    std::string_view Control; // the name; of an array, with its index
    TextId Text;
};

// Every caption and every tip that windows take from the string table, window by window.
[[nodiscard]] std::span<const CaptionRow> CaptionRows();
[[nodiscard]] std::span<const CaptionRow> TipRows();

// A drop-down list that always offers the same items.
struct ListRow {
    std::string_view Window;
    std::string_view Control;
    ItemList Items;
};
[[nodiscard]] std::span<const ListRow> ListRows();

} // namespace kestrova
