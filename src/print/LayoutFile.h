// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Result.h"
#include "print/PageLayout.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace kestrova {

// The layout file ("*.kly"): a value on each line, texts between double quotes, lines ended by
// CR LF. A text may run over several lines. In this order:
//
//   the path of the background's picture; the background's box
//   the path of the page's picture; its box
//   for each of the user's pictures: its path, its box
//   "End of Pictures"
//   the header, the 7 names of the days, the 31 cells: a full record each
//   for each message and each of the user's texts: "Label", a full record
//   "End of Labels"
//   whether the grid is on; the number of border lines
//
// A box is whether the object is there at all (-1, or 0 when it was deleted), left, top, width and
// height; a full record adds whether it is visible, colour, font, size in whole points, bold,
// italic and the caption. Messages come back as texts of the user's.

inline constexpr std::size_t kLayoutFileLimit = std::size_t{2} << 20U;
inline constexpr std::size_t kLayoutTextLimit = std::size_t{32} << 10U;

// Ranges of the numbers: all edges of a box lie this far from the page's corner at most (17
// metres), sizes are not below 0, fonts have 1 to 1638 points, colours are those of the screen.
inline constexpr int kFarthestTwip = 1'000'000;
inline constexpr int kLargestFontSize = 1638;
inline constexpr std::int32_t kLastColour = 0xFFFFFF;

// The bytes of the file. A double quote in a text would end it, so it is written as a typographic
// one, opening and closing ones in turn. A box that lies farther away than boxes are read, as the
// composer may have put it, is written as far away as they are.
[[nodiscard]] std::string WriteLayout(const PageLayout& page);

struct LayoutReading {
    // Damaged: a value is missing, of the wrong kind or out of its range. TooLarge: there are more
    // labels than a page can have, or more pictures. What a picture could not be loaded for. The
    // text names the line.
    Status Trouble = Done{};
    bool ToTheEnd = false; // everything that the page has room for has been read
};

// Reads a layout into the page, which has lost its messages and the user's texts and pictures
// before. Reading ends at the first value that is not what it should be, or at one of the user's
// pictures that cannot be loaded; what was read before stays. Background and page's picture are
// loaded too, but where that fails, the object keeps the picture it has.
[[nodiscard]] LayoutReading ReadLayout(std::string_view bytes, PageLayout& page,
                                       PagePictures& pictures);

// Whether all that is in the bytes of a layout can be read again, pictures aside. What cannot, such
// as a text of more than kLayoutTextLimit bytes or more than kMaxLabels messages and texts
// together, is better not written.
[[nodiscard]] bool IsReadable(std::string_view bytes);

} // namespace kestrova
