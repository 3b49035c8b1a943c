// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/SettingsRules.h"

#include "text/Numbers.h"

#include <algorithm>

namespace kestrova {

bool IsRepeatMinutes(std::string_view text) {
    constexpr int kLeast = 2;
    const auto isDigit = [](char c) { return c >= '0' && c <= '9'; };
    return text.size() <= 3 && std::all_of(text.begin(), text.end(), isDigit) &&
           ReadInt16(text).value_or(0) >= kLeast;
}

bool IsWave(std::string_view bytes) {
    constexpr std::size_t kSizeField = 4;
    constexpr std::string_view kContainer = "RIFF";
    return bytes.starts_with(kContainer) && bytes.substr(kContainer.size()).size() > kSizeField &&
           bytes.substr(kContainer.size() + kSizeField).starts_with("WAVE");
}

} // namespace kestrova
