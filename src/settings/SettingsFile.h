// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Result.h"
#include "settings/AppSettings.h"

#include <string>
#include <string_view>

namespace kestrova {

// "Settings.dat": 70 lines, one value each, in a fixed order. Numbers stand between a blank (or a
// minus sign) and a blank; texts stand as they are. A text is read up to its first comma, so that
// files written field by field by older programs give the same values; the next line is the next
// field all the same.

inline constexpr std::size_t kSettingsFileLimit = std::size_t{1} << 20U;

// Reads the lines into the record, front to back. Damaged at the first line that is missing, holds
// no number where one belongs, or a number outside its range: fields before it have been read,
// those after it are as they were.
Status ReadSettings(std::string_view bytes, AppSettings& settings);

// The bytes of the file.
[[nodiscard]] std::string WriteSettings(const AppSettings& settings);

} // namespace kestrova
