// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace kestrova {

// Reading a property, the library drops the blanks at both ends of its value. Brackets keep those
// of a value of our own; those of another's text stand in a property of their own.

[[nodiscard]] std::string InBrackets(std::string_view text);

// Nothing when the value is not in brackets.
[[nodiscard]] std::optional<std::string> OutOfBrackets(std::string_view value);

// The blanks and tabs at both ends of a text that are lost without it: "[  ][ ]". Empty when there
// are none.
[[nodiscard]] std::string EdgesOf(std::string_view text);

// The text with those blanks; unchanged when the edges are not what EdgesOf gives.
[[nodiscard]] std::string WithEdges(std::string text, std::string_view edges);

} // namespace kestrova
