// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calendar/Selection.h"
#include "platform/FileStore.h"

#include <array>
#include <string>

namespace kestrova {

// The picture and the text of each month: files in the folders `Images` and `Speech`, named by the
// English month name. A picture named by the month and a day ("January15.jpg") takes the month's
// place from that day on, until the program ends.
struct PictureTable {
    std::array<std::string, kMonths> MonthPicture; // full paths; empty when there is none
    std::array<std::string, kMonths> MonthSpeech;

    bool operator==(const PictureTable&) const = default;
};

// Looks which files there are. Of several pictures of one name the first in alphabetical order is
// taken, so that every start shows the same.
[[nodiscard]] PictureTable ScanPictures(const FileStore& files, const std::string& dataFolder,
                                        const Selection& today);

} // namespace kestrova
