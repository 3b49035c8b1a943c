// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "diary/DiaryTable.h"
#include "language/StringTable.h"

namespace kestrova::bench {

// A diary in which every stored slot, 9,152 of them, holds an event with all its texts, each day's
// in the order of their times. Every kind of repeat occurs.
[[nodiscard]] DiaryTable FullDiary(const StringTable& texts);

} // namespace kestrova::bench
