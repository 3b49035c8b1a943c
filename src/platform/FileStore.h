// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Result.h"

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace kestrova {

// What tells one version of a file from another: any rewrite changes at least one of these.
struct FileStamp {
    std::int64_t Seconds = 0;
    std::int64_t Nanoseconds = 0;
    std::int64_t Size = 0;
    std::uint64_t Inode = 0;

    bool operator==(const FileStamp&) const = default;
};

// Whether two names of files are one where the case of the letters A to Z does not count.
[[nodiscard]] inline bool IsSameName(std::string_view a, std::string_view b) {
    const auto lower = [](char c) {
        return c >= 'A' && c <= 'Z' ? static_cast<char>(c | 0x20) : c;
    };
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [lower](char x, char y) { return lower(x) == lower(y); });
}

// An advisory lock, held until the object goes.
class FileLock {
public:
    virtual ~FileLock() = default;
};

enum class LockKind {
    Shared,   // while reading: keeps writers out
    Exclusive // while saving: keeps everyone out
};

// What is to become of one file of many.
struct FileChange {
    std::string Path;
    std::optional<std::string_view> Bytes; // nothing: the file is to go
};

// The discs. Paths are native, in UTF-8; folders end in the separator. No operation
// waits for anyone, except Lock.
class FileStore {
public:
    virtual ~FileStore() = default;

    // The whole file. NotFound, Busy (not permitted), TooLarge (more than `limit` bytes), Damaged
    // (a folder or a pipe in the file's place) or Failed.
    virtual Result<std::string> Read(const std::string& path, std::size_t limit) const = 0;

    // Puts a file with these bytes in the place of the old one, as one step: after a crash at any
    // moment the path holds the old bytes or the new ones, whole. The bytes are on the disc when
    // this returns. On any failure the old file stands as it was. Busy, Full, NotFound (the folder)
    // or Failed.
    virtual Status Replace(const std::string& path, std::string_view bytes) = 0;

    // Replaces and removes many files of one folder in much less time than one by one. They are
    // all on the disc when this returns, but not before: a crash meanwhile, or a failure, may leave
    // any of them done or not, and one that a power cut hits even empty. For a caller who can do it
    // all again.
    virtual Status ReplaceMany(std::span<const FileChange> changes) = 0;

    // Copies a file to a path where nothing stands yet. Failed when something does.
    virtual Status CopyToNew(const std::string& from, const std::string& to) = 0;

    // Gives a file another name in the same folder, where nothing stands yet. Failed when something
    // does.
    virtual Status MoveToNew(const std::string& from, const std::string& to) = 0;

    // Deletes a file; one that is not there is no error.
    virtual Status Remove(const std::string& path) = 0;

    // Makes a folder and those above it; one that is there already is no error.
    virtual Status MakeFolder(const std::string& path) = 0;

    // Nothing when there is no such file, or it cannot be asked about.
    [[nodiscard]] virtual std::optional<FileStamp> Stamp(const std::string& path) const = 0;

    // The names of the files in a folder, in no particular order, folders left out. Empty when
    // there is no such folder.
    [[nodiscard]] virtual std::vector<std::string> List(const std::string& folder) const = 0;

    // The name that an entry of a folder, be it file or folder, has on the disc, when it is asked
    // for without regard to case (of the letters A to Z). An entry of exactly this name comes
    // first; of several others, the first in the order of their bytes. Nothing when there is none.
    [[nodiscard]] virtual std::optional<std::string> FindEntry(const std::string& folder,
                                                               const std::string& name) const = 0;

    // Deletes what writes that a crash has cut short have left in a folder. Only for a folder in
    // which nobody is writing.
    virtual void RemoveLeftovers(const std::string& folder) = 0;

    // Locks the file at `path` for everyone who uses this function, by way of a small companion
    // file beside it, and refuses when another program has locked the file itself. Waits at most
    // `limit`. Busy when someone else holds it or the folder cannot be written (Exclusive); a
    // folder that cannot be written is no obstacle to a Shared lock.
    virtual Result<std::unique_ptr<FileLock>> Lock(const std::string& path, LockKind kind,
                                                   std::chrono::milliseconds limit) = 0;
};

} // namespace kestrova
