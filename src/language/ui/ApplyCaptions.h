// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "language/StringTable.h"

class QWidget;

namespace kestrova {

// Whether tips are put on as well as captions. Tips put on earlier stay.
enum class TipTexts { Apply, Leave };

// Writes the texts of the string table into a window's controls, labels, buttons and menus, and
// gives it the language's font. Which text belongs to which control is the caption table's to say.
void ApplyCaptions(QWidget& window, const StringTable& table, TipTexts tips);

} // namespace kestrova
