// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "language/StringTable.h"

class QWidget;

namespace kestrova {

// What becomes of the tips of a window's controls.
enum class TipTexts {
    Apply, // the table's are put on
    Leave, // tips put on earlier stay
    Remove // none is left
};

// Writes the texts of the string table into a window's controls, labels, buttons, lists and menus,
// and gives it the language's font. A list goes on standing on the item that it stood on. Which
// text belongs to which control is the caption table's to say.
void ApplyCaptions(QWidget& window, const StringTable& table, TipTexts tips);

// The tips alone.
void ApplyTips(QWidget& window, const StringTable& table, TipTexts tips);

} // namespace kestrova
