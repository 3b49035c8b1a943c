// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <concepts>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace kestrova {

// The text without the blanks and tabs at both ends.
[[nodiscard]] std::string_view Trim(std::string_view text);

// The decimal number that the text holds, blanks around it ignored. Nothing when the text is
// empty, holds anything else, or the number does not fit 16 bits, the width of every number in
// this program's files.
[[nodiscard]] std::optional<std::int16_t> ReadInt16(std::string_view text);

// The same for 32 bits: colours, which are 24-bit numbers.
[[nodiscard]] std::optional<std::int32_t> ReadInt32(std::string_view text);

// The decimal fraction that the text holds (a point, never a comma), blanks around it ignored.
[[nodiscard]] std::optional<float> ReadFloat(std::string_view text);

// Appends a number as this program's files hold it: a blank in place of the plus sign, the
// digits, one blank. 9 is the three characters " 9 ".
void AppendNumber(std::string& out, std::int32_t value);

// The number in decimal with at least two digits: 7 gives "07".
[[nodiscard]] std::string TwoDigits(int value);

} // namespace kestrova
