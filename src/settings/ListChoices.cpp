// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/ListChoices.h"

#include "language/ItemLists.h"

namespace kestrova {

std::optional<ChimeType> ChimeTypeOf(const AppSettings& settings, const StringTable& table) {
    const auto index = IndexOf(table, lists::kChimeTypes, settings.ChimeType);
    return index ? std::optional(static_cast<ChimeType>(*index)) : std::nullopt;
}

std::optional<ChimeInterval> ChimeIntervalOf(const AppSettings& settings,
                                             const StringTable& table) {
    const auto index = IndexOf(table, lists::kChimeIntervals, settings.ChimeInterval);
    return index ? std::optional(static_cast<ChimeInterval>(*index)) : std::nullopt;
}

bool HasModemPort(const AppSettings& settings) {
    return settings.ModemPort.starts_with("Com");
}

void SettleChoices(AppSettings& settings, const StringTable& table, const FindItem& find) {
    const auto settle = [&](std::string& text, const ItemList& list, int first) {
        if (!IndexOf(table, list, text)) {
            text = table.Text(list.Item(find(list, text).value_or(first)));
        }
    };
    settle(settings.ChimeType, lists::kChimeTypes, 0);
    settle(settings.ChimeInterval, lists::kChimeIntervals, 1);
    settle(settings.ModemPort, lists::kModemPorts, 0);
}

void TranslateChoices(AppSettings& settings, const StringTable& before, const StringTable& after) {
    const auto translate = [&](std::string& text, const ItemList& list) {
        if (const auto index = IndexOf(before, list, text)) {
            text = after.Text(list.Item(*index));
        }
    };
    translate(settings.ChimeType, lists::kChimeTypes);
    translate(settings.ChimeInterval, lists::kChimeIntervals);
    translate(settings.ModemPort, lists::kModemPorts);
}

} // namespace kestrova
