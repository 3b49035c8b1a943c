// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kestrova {

// Cuts a text into pieces that are spoken one after another, the user having a say in between. A
// piece ends with the word that holds a stop sign, or before a short word once it is long; the
// pieces together are the text (a line end that closes a piece stands in it twice).
[[nodiscard]] std::vector<std::string> CutSpeech(std::string_view text);

// Cuts such pieces further, behind a blank where there is one, as a voice is not to be given more
// than some 600 characters at a time: a text without stop signs is a single piece, be it a book.
[[nodiscard]] std::vector<std::string> CutLongPieces(const std::vector<std::string>& pieces);

// Words with the marks that say how they are to be spoken.
[[nodiscard]] std::string WithMarks(int pitch, int speed, std::string_view words);

// What the marks at the front of a text say, and the words behind them.
struct MarkedWords {
    std::optional<int> Pitch;
    std::optional<int> Speed;
    std::string Words;
};
[[nodiscard]] MarkedWords ReadMarks(std::string_view text);

} // namespace kestrova
