// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "language/ProgramTexts.h"

#include <span>

namespace kestrova {

struct ProgramTextRow {
    ProgramText Id;
    std::string_view Text;
};

// The program's own texts in one language, in the order of their ids.
using ProgramTextColumn = std::span<const ProgramTextRow, kProgramTexts>;

// Whether no text is missing, empty or out of place: each language asserts it of itself.
template<std::size_t N> consteval bool IsWhole(const ProgramTextRow (&rows)[N]) {
    if (N != kProgramTexts) {
        return false;
    }
    for (std::size_t i = 0; i < N; ++i) {
        if (rows[i].Id != static_cast<ProgramText>(i) || rows[i].Text.empty()) {
            return false;
        }
    }
    return true;
}

// The languages of the fixed list, each in a file of its own.
[[nodiscard]] ProgramTextColumn EnglishTexts();
[[nodiscard]] ProgramTextColumn FrenchTexts();
[[nodiscard]] ProgramTextColumn GermanTexts();
[[nodiscard]] ProgramTextColumn SpanishTexts();
[[nodiscard]] ProgramTextColumn PortugueseTexts();
[[nodiscard]] ProgramTextColumn ItalianTexts();
[[nodiscard]] ProgramTextColumn DutchTexts();
[[nodiscard]] ProgramTextColumn GreekTexts();

} // namespace kestrova
