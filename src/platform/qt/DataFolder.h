// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace kestrova {

// The folder, ending in the separator, in which all data are kept: `DataFolderOf` the program that
// is running.
[[nodiscard]] std::string FindDataFolder();

// The folder of the executable. When the program has been installed, or that folder cannot be
// written, it is the user's own one, which is filled with what ships with the program: with what
// the installation has put aside, else with what lies beside the executable. All paths end in the
// separator.
[[nodiscard]] std::string DataFolderOf(const std::string& programFolder, const std::string& own);

// Gives a user's own folder what is shipped and has not been given to it before: the files and
// folders of a first installation, and later those that a newer program is the first to ship.
// Nothing that is there is changed, but for the manual, which becomes that of the program. Both
// paths end in the separator.
void FillOwnFolder(const std::string& shipped, const std::string& own);

// The folder, ending in the separator, whose desktop entries the session starts at log-in.
[[nodiscard]] std::string AutostartFolder();

// The path by which the program is started: that of the link among the system's programs where an
// installation has made one, which stays when a later version lies elsewhere, else `executable`.
[[nodiscard]] std::string LauncherOf(const std::string& executable);

// The same of the program that is running.
[[nodiscard]] std::string ExecutablePath();

} // namespace kestrova
