// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace kestrova {

// Texts as people search for them: "cafe" finds "Café", "strasse" finds "Straße", "ωρα" finds
// "Ώρα".

// The text in small letters without accents, ligatures taken apart, hard blanks and typographic
// quotes and dashes plain. Of Latin and Greek letters; Cyrillic ones become small, all others stay.
// Two texts that differ in nothing else are the same when folded.
[[nodiscard]] std::string Fold(std::string_view text);

// A part of a text, in bytes.
struct TextPart {
    std::size_t Begin = 0;
    std::size_t End = 0;

    bool operator==(const TextPart&) const = default;
};

// Every place of the text at which one of these words, which are folded, stands when the text is
// folded too: front to back, parts that touch or overlap made one.
[[nodiscard]] std::vector<TextPart> FindFolded(std::string_view text,
                                               const std::vector<std::string>& words);

} // namespace kestrova
