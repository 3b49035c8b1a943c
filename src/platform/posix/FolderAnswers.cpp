// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/posix/FolderAnswers.h"

#include "platform/posix/FileDescriptor.h"

#include <cerrno>
#include <fcntl.h>

namespace kestrova {

bool FolderAnswers(const std::string& folder) {
    // Opening makes a network file system ask its server, which a mere stat may spare itself.
    const FileDescriptor handle(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    // A folder that we may not list has answered, too: what is in it may be open to us.
    return handle || errno == EACCES;
}

} // namespace kestrova
