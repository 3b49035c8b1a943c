// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Printer.h"
#include "print/MonthSource.h"
#include "print/PageLayout.h"

namespace kestrova {

// Prints the diary of a month as a list: a line for each day, below it those of its events, hidden
// ones too, on as many pages as that takes. Each page is headed by the heading's caption in its
// font. A message that is wider than the page goes on in the next line. The job is not finished.
void DoDiary(PrintJob& job, const MonthSource& month, const LayoutItem& heading);

} // namespace kestrova
