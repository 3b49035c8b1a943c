// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/DrawingSurface.h"
#include "print/PageLayout.h"
#include "settings/AppSettings.h"

#include <string>

namespace kestrova {

// What the user adds to a page.

// Adds a picture at the top left: its own size at 96 pixels an inch, scaled down to 2000 twips high
// and then to 5000 wide where it is larger. An empty one gets a box of 2000 by 2000. When there
// are kMaxImagePaths already, none is added, and the reference finds nothing.
LayoutRef AddPicture(PageLayout& page, const std::string& path, PagePicturePtr picture);

// Adds a text "New Text" of this style at the top left, sized to its text. When there are
// kMaxLabels already, none is added, and the reference finds nothing.
LayoutRef AddFreeText(PageLayout& page, const PrintStyle& style, const TextMeasure& measure);

// Moves the user's texts and pictures so that they begin on the page, and end on it where they are
// not larger than it is.
void KeepInsidePage(PageLayout& page);

} // namespace kestrova
