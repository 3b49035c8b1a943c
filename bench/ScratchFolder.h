// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace kestrova::bench {

// A folder of its own in the current one, gone with the object. The current folder, for that is on
// a disc, which what lies under /tmp often is not.
class ScratchFolder {
public:
    ScratchFolder();
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;
    ~ScratchFolder();

    // Ends in the separator.
    [[nodiscard]] const std::string& Path() const { return path_; }

private:
    std::string path_;
};

} // namespace kestrova::bench
