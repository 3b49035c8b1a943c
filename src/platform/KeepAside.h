// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Clock.h"
#include "platform/FileStore.h"

#include <string>
#include <string_view>

namespace kestrova {

// Words that say in a file's name why it was kept.
inline constexpr std::string_view kDamagedMark = "damaged";

// Keeps a file beside itself before it is replaced, under a name that says why and when:
// "Settings.dat" becomes "Settings damaged 2026-11-22 23.59.01.dat". Nothing that stands there
// already is overwritten. Moving needs no room on the disc; copying leaves the file where it is.
Status MoveAside(FileStore& files, const WallTime& now, const std::string& path,
                 std::string_view mark);
Status CopyAside(FileStore& files, const WallTime& now, const std::string& path,
                 std::string_view mark);

// Writes bytes that are about to be lost beside a file, under such a name.
Status WriteNewAside(FileStore& files, const WallTime& now, const std::string& path,
                     std::string_view mark, std::string_view bytes);

} // namespace kestrova
