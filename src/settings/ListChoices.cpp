// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/ListChoices.h"

#include "language/Texts.h"

namespace kestrova {

namespace {

constexpr int kChimeTypes = 3;
constexpr int kChimeIntervals = 5;
constexpr int kModemPorts = 5;

const std::string& Item(const StringTable& table, TextId first, int index) {
    return table.Text({first.Group, first.Entry + index});
}

std::optional<int> IndexOf(const StringTable& table, TextId first, int count,
                           std::string_view text) {
    for (int i = 0; i < count; ++i) {
        if (text == Item(table, first, i)) {
            return i;
        }
    }
    return std::nullopt;
}

} // namespace

std::optional<ChimeType> ChimeTypeOf(const AppSettings& settings, const StringTable& table) {
    const auto index = IndexOf(table, texts::kChimeTypes, kChimeTypes, settings.ChimeType);
    return index ? std::optional(static_cast<ChimeType>(*index)) : std::nullopt;
}

std::optional<ChimeInterval> ChimeIntervalOf(const AppSettings& settings,
                                             const StringTable& table) {
    const auto index =
        IndexOf(table, texts::kChimeIntervals, kChimeIntervals, settings.ChimeInterval);
    return index ? std::optional(static_cast<ChimeInterval>(*index)) : std::nullopt;
}

bool HasModemPort(const AppSettings& settings) {
    return settings.ModemPort.starts_with("Com");
}

void TranslateChoices(AppSettings& settings, const StringTable& before, const StringTable& after) {
    const auto translate = [&](std::string& text, TextId first, int count) {
        if (const auto index = IndexOf(before, first, count, text)) {
            text = Item(after, first, *index);
        }
    };
    translate(settings.ChimeType, texts::kChimeTypes, kChimeTypes);
    translate(settings.ChimeInterval, texts::kChimeIntervals, kChimeIntervals);
    translate(settings.ModemPort, texts::kModemPorts, kModemPorts);
}

} // namespace kestrova
