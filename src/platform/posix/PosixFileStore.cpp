// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/posix/PosixFileStore.h"

#include "platform/posix/FileDescriptor.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <dirent.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

namespace kestrova {

namespace {

constexpr mode_t kFileMode = 0666; // narrowed by the user's umask
constexpr mode_t kFolderMode = 0777;
constexpr std::chrono::milliseconds kLockPause{10};
constexpr std::string_view kTemporaryMark = ".new-"; // then six characters

// Up to so many files are synced one by one. Beyond that, syncing the whole file system is quicker,
// although it waits for what other programs have written, too.
constexpr std::size_t kFewFiles = 16;

Error SystemError(const std::string& path) {
    const int number = errno;
    ErrorCode code = ErrorCode::Failed;
    switch (number) {
    case ENOENT:
    case ENOTDIR: code = ErrorCode::NotFound; break;
    case EACCES:
    case EPERM:
    case EROFS:
    case EWOULDBLOCK:
    case EBUSY:
    case ETXTBSY: code = ErrorCode::Busy; break;
    case ENOSPC:
    case EDQUOT:
    case EFBIG: code = ErrorCode::Full; break;
    default: break;
    }
    return {code, std::string(std::strerror(number)) + "\n" + path};
}

std::string FolderOf(const std::string& path) {
    const std::size_t slash = path.rfind('/');
    return slash == std::string::npos ? "." : path.substr(0, slash + 1);
}

bool WriteAll(int file, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t written = ::write(file, bytes.data(), bytes.size());
        if (written < 0 && errno != EINTR) {
            return false;
        }
        bytes.remove_prefix(static_cast<std::size_t>(std::max<ssize_t>(written, 0)));
    }
    return true;
}

// Without this a rename may be lost by a power cut although the file's bytes are safe. A file
// system that cannot sync a folder has nothing to sync.
void SyncFolderOf(const std::string& path) {
    const FileDescriptor folder(::open(FolderOf(path).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (folder) {
        ::fsync(folder.Get());
    }
}

// A new file in the target's folder under a name nobody else uses.
// `like` is the file whose owner, group and mode it takes as far as may be, if that exists.
FileDescriptor OpenTemporary(const std::string& path, const std::string& like,
                             std::string& temporary) {
    temporary = path + std::string(kTemporaryMark) + "XXXXXX";
    FileDescriptor file(::mkostemp(temporary.data(), O_CLOEXEC));
    if (file) {
        struct stat old {};
        const mode_t mask = ::umask(0);
        ::umask(mask);
        const bool exists = ::stat(like.c_str(), &old) == 0;
        if (exists) {
            // Those who could use the file before are to go on using it, above all the friend whose
            // file it is. Only the administrator may give a file away, and only a member may give
            // it to a group; to everyone else the file becomes their own, with the same mode.
            (void)!::fchown(file.Get(), static_cast<uid_t>(-1), old.st_gid);
            (void)!::fchown(file.Get(), old.st_uid, static_cast<gid_t>(-1));
        }
        ::fchmod(file.Get(), exists ? old.st_mode & 07777U : kFileMode & ~mask);
    }
    return file;
}

// What a path leads to: a file that the user has put elsewhere by a link stays there.
std::string Resolve(const std::string& path) {
    struct stat info {};
    if (::lstat(path.c_str(), &info) != 0 || !S_ISLNK(info.st_mode)) {
        return path;
    }
    const std::unique_ptr<char, decltype(&std::free)> target(::realpath(path.c_str(), nullptr),
                                                             &std::free);
    return target ? std::string(target.get()) : path;
}

class PosixLock : public FileLock {
public:
    explicit PosixLock(FileDescriptor file) : file_(std::move(file)) {}

private:
    FileDescriptor file_;
};

// Whether another program has locked the file itself, by either of the two kinds of lock.
bool IsForeignLocked(const std::string& path, LockKind kind) {
    const FileDescriptor file(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    if (!file) {
        return false;
    }
    const int how = kind == LockKind::Shared ? LOCK_SH : LOCK_EX;
    if (::flock(file.Get(), how | LOCK_NB) != 0 && errno == EWOULDBLOCK) {
        return true;
    }
    struct flock range {};
    range.l_type = kind == LockKind::Shared ? F_RDLCK : F_WRLCK;
    range.l_whence = SEEK_SET;
    return ::fcntl(file.Get(), F_GETLK, &range) == 0 && range.l_type != F_UNLCK;
}

Status RenameNoReplace(const std::string& from, const std::string& to) {
    if (::renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE) == 0) {
        return Done{};
    }
    if (errno != EINVAL && errno != ENOSYS) {
        return SystemError(to);
    }
    // File systems without that call: the folder belongs to one user, so nobody races us here.
    struct stat there {};
    if (::stat(to.c_str(), &there) == 0) {
        errno = EEXIST;
        return SystemError(to);
    }
    return ::rename(from.c_str(), to.c_str()) == 0 ? Status(Done{}) : Status(SystemError(to));
}

} // namespace

Result<std::string> PosixFileStore::Read(const std::string& path, std::size_t limit) const {
    // A pipe in the place of a file must not hang the program, hence O_NONBLOCK and the look at it.
    const FileDescriptor file(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    if (!file) {
        return SystemError(path);
    }
    struct stat info {};
    if (::fstat(file.Get(), &info) != 0) {
        return SystemError(path);
    }
    if (!S_ISREG(info.st_mode)) {
        return Error{ErrorCode::Damaged, path};
    }
    if (info.st_size < 0 || static_cast<std::size_t>(info.st_size) > limit) {
        return Error{ErrorCode::TooLarge, path};
    }
    std::string bytes(static_cast<std::size_t>(info.st_size) + 1, '\0');
    std::size_t length = 0;
    for (;;) {
        const ssize_t got = ::read(file.Get(), bytes.data() + length, bytes.size() - length);
        if (got < 0 && errno == EINTR) {
            continue;
        }
        if (got < 0) {
            return SystemError(path);
        }
        if (got == 0) {
            break;
        }
        length += static_cast<std::size_t>(got);
        if (length > limit) {
            return Error{ErrorCode::TooLarge, path};
        }
        if (length == bytes.size()) {
            bytes.resize(bytes.size() * 2);
        }
    }
    bytes.resize(length);
    return bytes;
}

Status PosixFileStore::Replace(const std::string& link, std::string_view bytes) {
    const std::string path = Resolve(link);
    std::string temporary;
    FileDescriptor file = OpenTemporary(path, path, temporary);
    if (!file) {
        return SystemError(path);
    }
    const bool written = WriteAll(file.Get(), bytes) && ::fsync(file.Get()) == 0 && file.Close() &&
                         ::rename(temporary.c_str(), path.c_str()) == 0;
    if (!written) {
        const Error error = SystemError(path);
        ::unlink(temporary.c_str());
        return error;
    }
    SyncFolderOf(path);
    return Done{};
}

Status PosixFileStore::ReplaceMany(std::span<const FileChange> changes) {
    const bool few = changes.size() <= kFewFiles;
    std::string path; // the last one written, in whose file system all are
    for (const FileChange& change : changes) {
        const std::string target = Resolve(change.Path);
        if (!change.Bytes || target != change.Path) {
            // A link may lead to another file system, which the sync below does not reach.
            const Status done = change.Bytes ? Replace(target, *change.Bytes) : Remove(change.Path);
            if (!done) {
                return done;
            }
            path = change.Path;
            continue;
        }
        path = target;
        std::string temporary;
        FileDescriptor file = OpenTemporary(path, path, temporary);
        if (!file) {
            return SystemError(path);
        }
        if (!WriteAll(file.Get(), *change.Bytes) || (few && ::fsync(file.Get()) != 0) ||
            !file.Close() || ::rename(temporary.c_str(), path.c_str()) != 0) {
            const Error error = SystemError(path);
            ::unlink(temporary.c_str());
            return error;
        }
    }
    if (few) {
        if (!path.empty()) {
            SyncFolderOf(path);
        }
        return Done{};
    }
    const FileDescriptor folder(::open(FolderOf(path).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (!folder || ::syncfs(folder.Get()) != 0) {
        return SystemError(path);
    }
    return Done{};
}

Status PosixFileStore::CopyToNew(const std::string& from, const std::string& to) {
    constexpr std::size_t kAnySize = static_cast<std::size_t>(-1) / 2;
    const auto bytes = Read(from, kAnySize);
    if (!bytes) {
        return bytes.Failure();
    }
    std::string temporary;
    FileDescriptor file = OpenTemporary(to, from, temporary);
    if (!file) {
        return SystemError(to);
    }
    if (!WriteAll(file.Get(), bytes.Value()) || ::fsync(file.Get()) != 0 || !file.Close()) {
        const Error error = SystemError(to);
        ::unlink(temporary.c_str());
        return error;
    }
    const Status moved = RenameNoReplace(temporary, to);
    if (moved) {
        SyncFolderOf(to);
    } else {
        ::unlink(temporary.c_str());
    }
    return moved;
}

Status PosixFileStore::MoveToNew(const std::string& from, const std::string& to) {
    const Status moved = RenameNoReplace(from, to);
    if (moved) {
        SyncFolderOf(to);
    }
    return moved;
}

Status PosixFileStore::Remove(const std::string& path) {
    if (::unlink(path.c_str()) == 0 || errno == ENOENT) {
        return Done{};
    }
    return SystemError(path);
}

Status PosixFileStore::MakeFolder(const std::string& path) {
    if (::mkdir(path.c_str(), kFolderMode) == 0 || errno == EEXIST) {
        return Done{};
    }
    const std::string bare = path.substr(0, path.find_last_not_of('/') + 1);
    if (errno == ENOENT && bare.find('/') != std::string::npos && FolderOf(bare) != path) {
        const Status above = MakeFolder(FolderOf(bare));
        if (!above) {
            return above;
        }
        if (::mkdir(path.c_str(), kFolderMode) == 0 || errno == EEXIST) {
            return Done{};
        }
    }
    return SystemError(path);
}

std::optional<FileStamp> PosixFileStore::Stamp(const std::string& path) const {
    struct stat info {};
    if (::stat(path.c_str(), &info) != 0) {
        return std::nullopt;
    }
    return FileStamp{info.st_mtim.tv_sec, info.st_mtim.tv_nsec, info.st_size, info.st_ino};
}

std::vector<std::string> PosixFileStore::List(const std::string& folder) const {
    std::vector<std::string> names;
    DIR* const handle = ::opendir(folder.c_str());
    if (handle == nullptr) {
        return names;
    }
    while (const dirent* const entry = ::readdir(handle)) {
        bool file = entry->d_type == DT_REG;
        if (entry->d_type == DT_UNKNOWN || entry->d_type == DT_LNK) {
            struct stat info {};
            file = ::stat((folder + entry->d_name).c_str(), &info) == 0 && S_ISREG(info.st_mode);
        }
        if (file) {
            names.emplace_back(entry->d_name);
        }
    }
    ::closedir(handle);
    return names;
}

std::optional<std::string> PosixFileStore::FindEntry(const std::string& folder,
                                                     const std::string& name) const {
    struct stat info {};
    if (::stat((folder + name).c_str(), &info) == 0) {
        return name;
    }
    std::optional<std::string> found;
    DIR* const handle = ::opendir(folder.c_str());
    if (handle == nullptr) {
        return found;
    }
    while (const dirent* const entry = ::readdir(handle)) {
        if (IsSameName(entry->d_name, name) && (!found || entry->d_name < *found)) {
            found = entry->d_name;
        }
    }
    ::closedir(handle);
    return found;
}

void PosixFileStore::RemoveLeftovers(const std::string& folder) {
    constexpr std::size_t kTail = kTemporaryMark.size() + 6;
    for (const std::string& name : List(folder)) {
        if (name.size() > kTail &&
            name.compare(name.size() - kTail, kTemporaryMark.size(), kTemporaryMark) == 0) {
            ::unlink((folder + name).c_str());
        }
    }
}

Result<std::unique_ptr<FileLock>> PosixFileStore::Lock(const std::string& path, LockKind kind,
                                                       std::chrono::milliseconds limit) {
    const std::string lockPath = path + ".lock";
    FileDescriptor file(
        ::open(lockPath.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NONBLOCK, kFileMode));
    if (!file) {
        // A companion that another user made can be locked all the same.
        const Error error = SystemError(path);
        file = FileDescriptor(::open(lockPath.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
        if (!file && kind == LockKind::Exclusive) {
            return error;
        }
    }
    const auto end = std::chrono::steady_clock::now() + limit;
    const int how = (kind == LockKind::Shared ? LOCK_SH : LOCK_EX) | LOCK_NB;
    for (;;) {
        // A file system without locks (some network ones) works as if each program were alone.
        const bool held = !file || ::flock(file.Get(), how) == 0 || errno != EWOULDBLOCK;
        if (held && !IsForeignLocked(path, kind)) {
            return std::unique_ptr<FileLock>(std::make_unique<PosixLock>(std::move(file)));
        }
        if (std::chrono::steady_clock::now() >= end) {
            return Error{ErrorCode::Busy, path};
        }
        std::this_thread::sleep_for(kLockPause);
    }
}

} // namespace kestrova
