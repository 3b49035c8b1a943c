// SPDX-License-Identifier: GPL-3.0-or-later
#include "language/ProgramTexts.h"

#include "language/ProgramTextColumn.h"

#include <array>

namespace kestrova {

namespace {

// In the order of the fixed list of languages.
constexpr std::array kColumns = {EnglishTexts,    FrenchTexts,  GermanTexts, SpanishTexts,
                                 PortugueseTexts, ItalianTexts, DutchTexts,  GreekTexts};

} // namespace

std::string TextOf(const StringTable& table, ProgramText text) {
    const auto language = static_cast<std::size_t>(table.ProgramLanguage);
    const auto column = kColumns[language < kColumns.size() ? language : 0]();
    return std::string(column[static_cast<std::size_t>(text)].Text);
}

std::string TextOf(const StringTable& table, ProgramText text, std::string_view value) {
    constexpr std::string_view kPlace = "%1";
    std::string result = TextOf(table, text);
    if (const std::size_t at = result.find(kPlace); at != std::string::npos) {
        result.replace(at, kPlace.size(), value);
    }
    return result;
}

} // namespace kestrova
