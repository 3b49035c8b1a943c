// SPDX-License-Identifier: GPL-3.0-or-later
#include "language/FixedLanguages.h"

#include "text/Numbers.h"

namespace kestrova {

const std::array<FixedLanguage, kFixedLanguages>& FixedLanguages() {
    static constexpr std::array<FixedLanguage, kFixedLanguages> kList = {{
        {"English", "&English", "en"},
        {"Français", "&Francais", "fr"},
        {"Deutsch", "&Deutsch", "de"},
        {"Espanol", "E&spanol", "es"},
        {"Português", "&Portugues", "pt_BR"},
        {"Italiano", "&Italiano", "it"},
        {"Nederlands", "&Nederlands", "nl"},
        {"Greek", "&Greek", "el"},
    }};
    return kList;
}

std::optional<int> FixedLanguageOf(std::string_view name) {
    for (int i = 0; i < kFixedLanguages; ++i) {
        if (Trim(name) == FixedLanguages()[static_cast<std::size_t>(i)].Name) {
            return i;
        }
    }
    return std::nullopt;
}

} // namespace kestrova
