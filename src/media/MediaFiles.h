// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>

namespace kestrova {

// What a file is played as goes by its name alone: it is known before the file has been opened.

// A short sound, which the chime's device plays ("wav").
[[nodiscard]] bool IsWaveFile(std::string_view path);

// A film, which takes the picture area (".mpeg", ".mpg", ".avi", ".mov", ".vob", ".ifo").
[[nodiscard]] bool IsVideoFile(std::string_view path);

} // namespace kestrova
