// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/posix/CdDrive.h"

#include <algorithm>
#include <filesystem>
#include <utility>

namespace kestrova {

std::string FindCdDrive(const std::string& devices) {
    namespace fs = std::filesystem;
    std::error_code noMatter; // what cannot be read holds no drive
    if (const fs::path usual = fs::path(devices) / "cdrom"; fs::exists(usual, noMatter)) {
        return usual.string();
    }
    std::string found;
    const auto rank = [](const std::string& path) { return std::pair(path.size(), path); };
    for (fs::directory_iterator entry(devices, noMatter), end; !noMatter && entry != end;
         entry.increment(noMatter)) {
        const std::string name = entry->path().filename().string();
        const bool isDrive = name.size() > 2 && name.starts_with("sr") &&
                             std::all_of(name.begin() + 2, name.end(), [](char letter) {
                                 return letter >= '0' && letter <= '9';
                             });
        const std::string path = entry->path().string();
        if (isDrive && (found.empty() || rank(path) < rank(found))) {
            found = path;
        }
    }
    return found;
}

} // namespace kestrova
