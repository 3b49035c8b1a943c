// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/FileStore.h"

namespace kestrova {

// The discs of a POSIX system. Locks are flock(2) on the companion file "<path>.lock".
class PosixFileStore : public FileStore {
public:
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
    void RemoveLeftovers(const std::string& folder) override;
    Result<std::unique_ptr<FileLock>> Lock(const std::string& path, LockKind kind,
                                           std::chrono::milliseconds limit) override;
};

} // namespace kestrova
