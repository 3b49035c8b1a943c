// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/qt/media/LocalFile.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <system_error>

namespace kestrova {

namespace {

Error SystemError(int number) {
    const auto code = number == ENOENT || number == ENOTDIR ? ErrorCode::NotFound
                      : number == EACCES || number == EPERM ? ErrorCode::Busy
                                                            : ErrorCode::Failed;
    return {code, std::generic_category().message(number) + "."};
}

} // namespace

Result<std::unique_ptr<ByteSource>> LocalFile::Open(const std::string& path) {
    // Without O_NONBLOCK a pipe would wait for its writer right here.
    FileDescriptor file(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    struct stat facts {};
    if (!file || ::fstat(file.Get(), &facts) != 0) {
        return SystemError(errno);
    }
    if (!S_ISREG(facts.st_mode)) {
        return Error{ErrorCode::Damaged, "It is a folder or device, not a file."};
    }
    if (facts.st_size == 0) {
        return Error{ErrorCode::Damaged, "The file is empty."};
    }
    return std::unique_ptr<ByteSource>(new LocalFile(std::move(file), facts.st_size));
}

Status LocalFile::Seek(std::int64_t place) {
    if (::lseek(file_.Get(), place, SEEK_SET) < 0) {
        return SystemError(errno);
    }
    return Done{};
}

Result<std::size_t> LocalFile::Read(std::byte* into, std::size_t count) {
    ssize_t got = 0;
    do {
        got = ::read(file_.Get(), into, count);
    } while (got < 0 && errno == EINTR);
    if (got < 0) {
        return SystemError(errno);
    }
    return static_cast<std::size_t>(got);
}

} // namespace kestrova
