// SPDX-License-Identifier: GPL-3.0-or-later
#include "ScratchFolder.h"

#include <cstdio>
#include <cstdlib>
#include <filesystem>

namespace kestrova::bench {

ScratchFolder::ScratchFolder() : path_("scratch.XXXXXX") {
    if (::mkdtemp(path_.data()) == nullptr) {
        std::perror("a folder to work in");
        std::exit(1);
    }
    path_ += '/';
}

ScratchFolder::~ScratchFolder() {
    // What cannot be removed lies in a build folder and disturbs nobody.
    std::error_code harmless;
    std::filesystem::remove_all(path_, harmless);
}

} // namespace kestrova::bench
