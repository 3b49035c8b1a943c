// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "print/MonthSource.h"
#include "print/PageLayout.h"

namespace kestrova {

// Where everything lies on the page of a month: from top to bottom the header, the picture, the
// names of the days and the cells of the dates, all inside the background's box.

// Whether the page is made afresh: cells and messages take the fonts of the settings, and the
// messages of the diary are put on the page. Otherwise what there is keeps its looks and only
// moves.
enum class FirstLayout { No, Yes };

// The background's box inside the margins of the page, 500 twips at the sides and 2000 above and
// below.
void PlaceBackground(PageLayout& page);

// The page's picture, as large as its proportions and the room below the header allow when each
// cell is to hold its date and the messages of the month's busiest day. Without a picture, or
// without room for one, it takes no height.
void PlacePicture(PageLayout& page, const MonthSource& month, const TextMeasure& measure);

// Both, for a page whose paper has changed.
void NewPage(PageLayout& page, const MonthSource& month, const TextMeasure& measure);

// Gives a label the header's font and colour and the caption of the month, and sizes it to that.
void DoHeader(LayoutItem& label, const MonthSource& month, const TextMeasure& measure);

// Gives the seven labels the names of the days; on a first layout also their font and height.
void NameDays(PageLayout& page, const MonthSource& month, const TextMeasure& measure,
              FirstLayout first);

// Places header, picture, names and cells, and the messages in the cells. For a year that the diary
// does not reach there are no messages.
void DoControls(PageLayout& page, const MonthSource& month, const TextMeasure& measure,
                FirstLayout first);

// Gives a text the looks of a style of the settings.
void TakeStyle(LayoutItem& item, const PrintStyle& style);

} // namespace kestrova
