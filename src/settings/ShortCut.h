// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/FileStore.h"
#include "settings/AppSettings.h"

#include <string>

namespace kestrova {

// The program's desktop entry ("Kestrova.desktop", as freedesktop.org's Desktop Entry Specification
// has it) in the program folder, and its copy in the user's autostart folder, by which the session
// starts the program.
class ShortCut {
public:
    // The folders end in the separator; `executable` is the path of the program.
    ShortCut(FileStore& files, std::string programFolder, std::string autostartFolder,
             std::string executable)
        : files_(files), entry_(std::move(programFolder) + "Kestrova.desktop"),
          autostartFolder_(std::move(autostartFolder)), executable_(std::move(executable)) {}

    // Makes the entry in the program folder if there is none.
    Status GetShortCut(const AppSettings& settings);

    // Writes the entry anew; copies it to the autostart folder, or removes the copy, as the
    // settings say.
    Status SetShortCut(const AppSettings& settings);

    // Removes both.
    Status Remove();

private:
    [[nodiscard]] std::string Started() const { return autostartFolder_ + "Kestrova.desktop"; }
    [[nodiscard]] Result<std::string> Entry(const AppSettings& settings) const;

    FileStore& files_;
    std::string entry_;
    std::string autostartFolder_;
    std::string executable_;
};

} // namespace kestrova
