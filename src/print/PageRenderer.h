// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/DrawingSurface.h"
#include "print/PageLayout.h"

namespace kestrova {

// Draws a page as it stands onto paper or its image; the two are drawn by the same steps.

// The border: the background's box, and further lines spread evenly between it and the page's edge.
void DoBorder(const PageLayout& page, DrawingSurface& output);

// Every object that is not deleted, later ones over earlier ones. Of the cells, those of the
// month's days are drawn.
void DoPrint(const PageLayout& page, int daysShown, DrawingSurface& output);

} // namespace kestrova
