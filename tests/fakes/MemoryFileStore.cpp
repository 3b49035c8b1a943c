// SPDX-License-Identifier: GPL-3.0-or-later
#include "fakes/MemoryFileStore.h"

namespace kestrova {

class MemoryFileStore::HeldLock : public FileLock {
public:
    explicit HeldLock(int& count) : count_(count) { ++count_; }
    ~HeldLock() override { --count_; }
    HeldLock(const HeldLock&) = delete;
    HeldLock& operator=(const HeldLock&) = delete;

private:
    int& count_;
};

std::optional<std::string> MemoryFileStore::Content(const std::string& path) const {
    const auto file = files_.find(path);
    return file == files_.end() ? std::nullopt : std::optional(file->second.Bytes);
}

void MemoryFileStore::Put(const std::string& path, std::string bytes) {
    ++time_;
    const FileStamp stamp{time_, 0, static_cast<std::int64_t>(bytes.size()),
                          static_cast<std::uint64_t>(time_)};
    files_[path] = {std::move(bytes), stamp};
}

std::set<std::string> MemoryFileStore::Paths() const {
    std::set<std::string> paths;
    for (const auto& [path, file] : files_) {
        paths.insert(path);
    }
    return paths;
}

std::optional<Error> MemoryFileStore::RefuseWrite() {
    if (writesLeft_ && (*writesLeft_)-- <= 0) {
        return Error{ErrorCode::Failed, "the machine has crashed"};
    }
    if (!writeError_) {
        ++writes_;
    }
    return writeError_;
}

Result<std::string> MemoryFileStore::Read(const std::string& path, std::size_t limit) const {
    if (readError_ && (unreadable_.empty() || unreadable_ == path)) {
        return *readError_;
    }
    const auto file = files_.find(path);
    if (file == files_.end()) {
        return Error{ErrorCode::NotFound, path};
    }
    if (file->second.Bytes.size() > limit) {
        return Error{ErrorCode::TooLarge, path};
    }
    return file->second.Bytes;
}

Status MemoryFileStore::Replace(const std::string& path, std::string_view bytes) {
    if (const auto error = RefuseWrite()) {
        return *error;
    }
    Put(path, std::string(bytes));
    return Done{};
}

// Each file is a write of its own: a crash may come between any two.
Status MemoryFileStore::ReplaceMany(std::span<const FileChange> changes) {
    for (const FileChange& change : changes) {
        const Status done =
            change.Bytes ? Replace(change.Path, *change.Bytes) : Remove(change.Path);
        if (!done) {
            return done;
        }
    }
    return Done{};
}

Status MemoryFileStore::CopyToNew(const std::string& from, const std::string& to) {
    if (const auto error = RefuseWrite()) {
        return *error;
    }
    const auto bytes = Content(from);
    if (!bytes || files_.contains(to)) {
        return Error{ErrorCode::Failed, to};
    }
    Put(to, *bytes);
    return Done{};
}

Status MemoryFileStore::MoveToNew(const std::string& from, const std::string& to) {
    if (const auto error = RefuseWrite()) {
        return *error;
    }
    if (!files_.contains(from) || files_.contains(to)) {
        return Error{ErrorCode::Failed, to};
    }
    files_[to] = files_[from];
    files_.erase(from);
    return Done{};
}

Status MemoryFileStore::Remove(const std::string& path) {
    if (const auto error = RefuseWrite()) {
        return *error;
    }
    files_.erase(path);
    return Done{};
}

Status MemoryFileStore::MakeFolder(const std::string& /*path*/) {
    return Done{};
}

std::optional<FileStamp> MemoryFileStore::Stamp(const std::string& path) const {
    const auto file = files_.find(path);
    return file == files_.end() ? std::nullopt : std::optional(file->second.Stamp);
}

std::vector<std::string> MemoryFileStore::List(const std::string& folder) const {
    std::vector<std::string> names;
    for (const auto& [path, file] : files_) {
        if (path.starts_with(folder) && path.find('/', folder.size()) == std::string::npos) {
            names.push_back(path.substr(folder.size()));
        }
    }
    return names;
}

std::optional<std::string> MemoryFileStore::FindEntry(const std::string& folder,
                                                      const std::string& name) const {
    std::optional<std::string> found;
    for (const auto& [path, file] : files_) {
        if (!path.starts_with(folder)) {
            continue;
        }
        const std::string entry =
            path.substr(folder.size(), path.find('/', folder.size()) - folder.size());
        if (entry == name) {
            return name;
        }
        if (!found && IsSameName(entry, name)) {
            found = entry;
        }
    }
    return found;
}

Result<std::unique_ptr<FileLock>> MemoryFileStore::Lock(const std::string& path, LockKind /*kind*/,
                                                        std::chrono::milliseconds limit) {
    if (BeforeLock) {
        BeforeLock();
    }
    if (held_.contains(path)) {
        Waited += limit;
        return Error{ErrorCode::Busy, path};
    }
    return std::unique_ptr<FileLock>(std::make_unique<HeldLock>(locksHeld_));
}

} // namespace kestrova
