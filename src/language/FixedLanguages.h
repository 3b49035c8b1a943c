// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <optional>
#include <string_view>

namespace kestrova {

// A language of the fixed list: the name that block headings are compared with, the caption of its
// item in the language menu, and its name among locales.
struct FixedLanguage {
    std::string_view Name;
    std::string_view MenuCaption;
    std::string_view Locale;
};
inline constexpr int kFixedLanguages = 8;
[[nodiscard]] const std::array<FixedLanguage, kFixedLanguages>& FixedLanguages();

// The place in the list of a name as headings have it, blanks around it ignored.
[[nodiscard]] std::optional<int> FixedLanguageOf(std::string_view name);

} // namespace kestrova
