// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace kestrova {

// The library drops the blanks at both ends of a value that it reads, and some control characters
// of one that it writes.

// A text as the value of a property of our own, which comes back as it was: in brackets, control
// characters as "%0C".
[[nodiscard]] std::string InBrackets(std::string_view text);

// Nothing when the value is not of that form.
[[nodiscard]] std::optional<std::string> OutOfBrackets(std::string_view value);

// Whether a text comes back as it was from a property of others.
[[nodiscard]] bool ComesBack(std::string_view text);

// The text as it was before it lost blanks and control characters: `exact`, unless somebody has
// changed the text since.
[[nodiscard]] std::string AsItWas(const std::string& text, const std::optional<std::string>& exact);

} // namespace kestrova
