// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <unistd.h>
#include <utility>

namespace kestrova {

// Owns an open file, or none.
class FileDescriptor {
public:
    explicit FileDescriptor(int number = -1) : number_(number) {}
    FileDescriptor(FileDescriptor&& other) noexcept : number_(std::exchange(other.number_, -1)) {}
    FileDescriptor& operator=(FileDescriptor&& other) noexcept {
        std::swap(number_, other.number_);
        return *this;
    }
    FileDescriptor(const FileDescriptor&) = delete;
    FileDescriptor& operator=(const FileDescriptor&) = delete;
    ~FileDescriptor() { Close(); }

    [[nodiscard]] int Get() const { return number_; }
    explicit operator bool() const { return number_ >= 0; }

    // False when the system reports, as late as now, that writing has failed.
    bool Close() { return number_ < 0 || ::close(std::exchange(number_, -1)) == 0; }

private:
    int number_;
};

} // namespace kestrova
