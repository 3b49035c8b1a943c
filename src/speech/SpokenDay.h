// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "diary/DiaryTable.h"
#include "language/StringTable.h"

#include <string>

namespace kestrova {

// A day's visible events as they are read aloud: each numbered from 1, with its time and its
// message. Empty when there are none.
[[nodiscard]] std::string SpokenDay(const DiaryTable& table, const DayPlace& day,
                                    const StringTable& texts);

} // namespace kestrova
