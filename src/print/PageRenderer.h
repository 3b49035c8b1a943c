// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/DrawingSurface.h"
#include "print/PageLayout.h"

#include <span>
#include <string>

namespace kestrova {

// Draws a page as it stands onto paper or its image; the two are drawn by the same steps.

// The border: the background's box, and further lines spread evenly between it and the page's edge.
void DoBorder(const PageLayout& page, DrawingSurface& output);

// Every object that is not deleted, later ones over earlier ones. Of the cells, those of the
// month's days are drawn.
void DoPrint(const PageLayout& page, int daysShown, DrawingSurface& output);

// One object, unless it is deleted. A text's lines are given by whoever keeps them from one drawing
// to the next; they begin on the page. A cell is framed on request.
void PrintItem(const LayoutItem& item, LayoutKind kind, std::span<const std::string> lines,
               bool framed, DrawingSurface& output);

} // namespace kestrova
