// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace kestrova {

// The program folder, ending in the separator: the folder of the executable, where all data are
// kept. When that cannot be written, as in a system-wide installation, it is the user's own data
// folder, into which the files that ship beside the executable are copied once, and the manual
// whenever it is newer.
[[nodiscard]] std::string FindDataFolder();

// The folder, ending in the separator, whose desktop entries the session starts at log-in.
[[nodiscard]] std::string AutostartFolder();

// The path of the program that is running.
[[nodiscard]] std::string ExecutablePath();

} // namespace kestrova
