// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/FileStore.h"

#include <functional>
#include <map>
#include <optional>
#include <set>
#include <string>

namespace kestrova {

// A disc in memory, on which things go wrong as a test wants them to. Folders need not be made.
class MemoryFileStore : public FileStore {
public:
    // What a file holds; nothing when it is not there.
    [[nodiscard]] std::optional<std::string> Content(const std::string& path) const;

    // Puts a file there as another program would, with a stamp of its own.
    void Put(const std::string& path, std::string bytes);

    // Every write fails with this from now on, until `{}`.
    void FailWrites(std::optional<Error> error) { writeError_ = std::move(error); }

    // So does every read; with a path, every read of that file.
    void FailReads(std::optional<Error> error, std::string path = {}) {
        readError_ = std::move(error);
        unreadable_ = std::move(path);
    }

    // Someone else holds the lock of this file.
    void HoldLock(const std::string& path) { held_.insert(path); }
    void ReleaseLock(const std::string& path) { held_.erase(path); }

    // The so-many-th write (or removal) from now on, counted from 0, and all after it do nothing
    // and fail: the disc as it is after a crash at that moment.
    void CrashAfter(int writes) { writesLeft_ = writes; }
    void Recover() { writesLeft_.reset(); }

    // Called before each lock is given: a moment in which another program may act.
    std::function<void()> BeforeLock;

    [[nodiscard]] int Writes() const { return writes_; }
    [[nodiscard]] int LocksHeld() const { return locksHeld_; }

    // How long all locks that were refused have been waited for.
    std::chrono::milliseconds Waited{0};

    // Every path there is.
    [[nodiscard]] std::set<std::string> Paths() const;

    Result<std::string> Read(const std::string& path, std::size_t limit) const override;
    Status Replace(const std::string& path, std::string_view bytes) override;
    Status ReplaceMany(std::span<const FileChange> changes) override;
    Status CopyToNew(const std::string& from, const std::string& to) override;
    Status MoveToNew(const std::string& from, const std::string& to) override;
    Status Remove(const std::string& path) override;
    Status MakeFolder(const std::string& path) override;
    [[nodiscard]] std::optional<FileStamp> Stamp(const std::string& path) const override;
    [[nodiscard]] std::vector<std::string> List(const std::string& folder) const override;
    [[nodiscard]] std::optional<std::string> FindEntry(const std::string& folder,
                                                       const std::string& name) const override;
    void RemoveLeftovers(const std::string& /*folder*/) override {}
    Result<std::unique_ptr<FileLock>> Lock(const std::string& path, LockKind kind,
                                           std::chrono::milliseconds limit) override;

private:
    struct File {
        std::string Bytes;
        FileStamp Stamp;
    };
    class HeldLock;

    std::optional<Error> RefuseWrite();

    std::map<std::string, File> files_;
    std::set<std::string> held_;
    std::optional<Error> writeError_;
    std::optional<Error> readError_;
    std::string unreadable_; // empty: every file
    std::optional<int> writesLeft_;
    std::int64_t time_ = 0;
    int writes_ = 0;
    int locksHeld_ = 0;
};

} // namespace kestrova
