// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/DrawingSurface.h"
#include "print/PageLayout.h"

#include <cstddef>
#include <limits>
#include <string>
#include <string_view>
#include <vector>

namespace kestrova {

inline constexpr std::size_t kAllLines = std::numeric_limits<std::size_t>::max();

// How texts are cut into the lines that are drawn, on paper and in the editor's window alike. A
// character is never cut, nor parted from the marks that stand on it.

// The lines of a caption, which are parted by CR LF (or LF alone), or the first of them.
[[nodiscard]] std::vector<std::string> CaptionLines(std::string_view caption,
                                                    std::size_t first = kAllLines);

// One line as so many (at least one) as it takes not to be wider than `width`: broken at blanks,
// and inside a word that is too wide alone. When that would be more than `most`, the last of them
// ends in an ellipsis.
[[nodiscard]] std::vector<std::string> BreakLine(std::string_view line, int width, int most,
                                                 const FontChoice& font,
                                                 const TextMeasure& measure);

// The lines of an object. Those of a message or of a text of the user's are broken to its width as
// far as its height goes; its own lines are all there, however low it is. A box without width
// breaks nothing. Whoever needs only the first lines spares the work for the others.
[[nodiscard]] std::vector<std::string> ItemLines(const LayoutItem& item, LayoutKind kind,
                                                 const TextMeasure& measure,
                                                 std::size_t first = kAllLines);

// Those that begin on the page; what is below its foot is not to be seen.
[[nodiscard]] std::vector<std::string> LinesOnPage(const LayoutItem& item, LayoutKind kind,
                                                   const TextMeasure& measure, int pageHeight);

} // namespace kestrova
