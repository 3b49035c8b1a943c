// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace kestrova {

// Whether a folder is there, asked of the disc or server itself and not of what the system
// remembers of it. May take for ever on a network folder whose server has gone. From any thread.
[[nodiscard]] bool FolderAnswers(const std::string& folder);

} // namespace kestrova
