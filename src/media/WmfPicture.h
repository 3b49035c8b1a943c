// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "media/WmfCanvas.h"
#include "media/WmfFile.h"

#include <string_view>

namespace kestrova {

// A Windows metafile that can be played. The bytes are not owned.
struct WmfPicture {
    WmfFile File;
    WmfBox Window;     // the part of the drawing's plane that is to be seen
    double Width = 0;  // of the picture, in pixels of a screen of 96 to the inch
    double Height = 0; // both above 0
};

// Damaged when there is no metafile, or not one order in it that could be obeyed.
[[nodiscard]] Result<WmfPicture> OpenWmf(std::string_view bytes);

// Plays the drawing on a canvas of so many pixels, until its end, its first damaged order, or
// until the canvas has no more time; what was drawn till then stands. Returns how many orders
// were obeyed.
int PlayWmf(const WmfPicture& picture, double width, double height, WmfCanvas& canvas);

} // namespace kestrova
