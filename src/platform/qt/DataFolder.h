// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace kestrova {

// The program folder, ending in the separator: the folder of the executable, where all data are
// kept. When that cannot be written, as in a system-wide installation, it is the user's own data
// folder, which is filled with what ships beside the executable.
[[nodiscard]] std::string FindDataFolder();

// Gives a user's own folder what is shipped and has not been given to it before: the files and
// folders of a first installation, and later those that a newer program is the first to ship.
// Nothing that is there is changed, but for the manual, which becomes that of the program. Both
// paths end in the separator.
void FillOwnFolder(const std::string& shipped, const std::string& own);

// The folder, ending in the separator, whose desktop entries the session starts at log-in.
[[nodiscard]] std::string AutostartFolder();

// The path of the program that is running.
[[nodiscard]] std::string ExecutablePath();

} // namespace kestrova
