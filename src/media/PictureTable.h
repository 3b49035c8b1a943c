// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calendar/Selection.h"
#include "platform/FileStore.h"

#include <array>
#include <string>
#include <string_view>

namespace kestrova {

// The picture and the text of each month: files in the folders `Images` and `Speech`, named by the
// English month name. A picture named by the month and a day ("January15.jpg") takes the month's
// place from that day on, until the program ends.
struct PictureTable {
    std::array<std::string, kMonths> MonthPicture; // full paths; empty when there is none
    std::array<std::string, kMonths> MonthSpeech;

    bool operator==(const PictureTable&) const = default;
};

// Whether a file of this name is a picture, or whatever else, of this stem: the stem, a dot, and an
// ending without another. The case of the letters A to Z does not count.
[[nodiscard]] bool IsPictureOf(std::string_view name, std::string_view stem);

// Looks which files there are. Of several pictures of one name the first in alphabetical order is
// taken, so that every start shows the same; but one that is written exactly so comes before others
// ("january.JPG").
[[nodiscard]] PictureTable ScanPictures(const FileStore& files, const std::string& dataFolder,
                                        const Selection& today);

} // namespace kestrova
