// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/posix/FileDescriptor.h"
#include "platform/qt/media/ByteSource.h"

#include <string>

namespace kestrova {

// A regular file. Whatever else a path may lead to (a folder, a pipe, a device) is refused: it
// could hold up the reader for ever.
class LocalFile : public ByteSource {
public:
    [[nodiscard]] static Result<std::unique_ptr<ByteSource>> Open(const std::string& path);

    [[nodiscard]] std::int64_t Size() const override { return size_; }
    Status Seek(std::int64_t place) override;
    Result<std::size_t> Read(std::byte* into, std::size_t count) override;

private:
    LocalFile(FileDescriptor file, std::int64_t size) : file_(std::move(file)), size_(size) {}

    FileDescriptor file_;
    std::int64_t size_;
};

} // namespace kestrova
