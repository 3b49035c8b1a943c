// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

namespace kestrova {

// Texts are UTF-8 in memory and in every file this program writes. Files written by older
// programs hold single-byte text, so a line that is not valid UTF-8 is taken as Windows-1252.

// True when the bytes are well-formed UTF-8 (no overlong forms, surrogates or values past
// U+10FFFF).
[[nodiscard]] bool IsUtf8(std::string_view bytes);

// The bytes of a Windows-1252 text as UTF-8. Every byte has a meaning: the five that the code page
// leaves undefined become the control characters of the same number.
[[nodiscard]] std::string Utf8FromWindows1252(std::string_view bytes);

// The bytes as UTF-8: as they are when they are UTF-8 already, else read as Windows-1252.
[[nodiscard]] std::string AsUtf8(std::string_view bytes);

} // namespace kestrova
