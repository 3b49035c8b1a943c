// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Result.h"
#include "platform/qt/media/CdTable.h"

#include <atomic>
#include <cstddef>
#include <memory>
#include <mutex>
#include <string>

namespace kestrova {

// An audio disc that lies in a drive, or the image of one, through libcdio. From any thread.
class CdioDisc {
public:
    // Reads the table; takes as long as the drive does.
    [[nodiscard]] static Result<std::shared_ptr<CdioDisc>> Open(const std::string& device);

    [[nodiscard]] const CdTable& Table() const { return table_; }

    // The samples of `count` sectors from a place on.
    Status ReadSectors(std::int64_t place, int count, std::byte* into);

    // Lets go of the drive. Waits for a read that is under way, but not for ever: the drive is then
    // let go as soon as that ends. What is read later fails.
    void Close();

private:
    struct Closer {
        void operator()(void* disc) const;
    };
    using Handle = std::unique_ptr<void, Closer>; // what libcdio knows the disc by

    CdioDisc(std::string device, Handle handle, CdTable table)
        : device_(std::move(device)), handle_(std::move(handle)), table_(std::move(table)) {}
    [[nodiscard]] Error ReadError();

    std::string device_;
    std::timed_mutex guard_; // of the handle
    Handle handle_;
    CdTable table_;
    std::atomic<bool> closed_ = false;
};

// Opens the tray. A disc image has none, and that is no error.
[[nodiscard]] Status OpenTray(const std::string& device);

} // namespace kestrova
