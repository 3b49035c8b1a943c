// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string_view>

namespace kestrova {

// What the beginning of an enhanced metafile says of its size.
struct EmfSize {
    double Width = 0; // pixels of a screen of 96 to the inch; both above 0
    double Height = 0;
};

// How many bytes of the file it takes to know.
inline constexpr std::size_t kEmfBeginning = 48;

[[nodiscard]] bool IsEmf(std::string_view beginning);

// Nothing when the header says nothing sensible.
[[nodiscard]] std::optional<EmfSize> EmfSizeOf(std::string_view beginning);

} // namespace kestrova
