// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/qt/media/CdioDisc.h"

#include <cdio/cdio.h>
#include <cdio/logging.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cstring>
#include <sys/stat.h>
#include <unistd.h>

namespace kestrova {

namespace {

using namespace std::chrono_literals;

constexpr auto kLongestClose = 1s;

// Between the last audio track and a later session of data lie the end of one session and the
// beginning of the next, which cannot be read (the Blue Book's 6,750 and 4,650 sectors).
constexpr std::int64_t kSessionGap = 11400;

// libcdio's own ends the process at an error.
void DropMessage(cdio_log_level_t /*level*/, const char* /*message*/) {}

bool IsDrive(const std::string& device) {
    struct stat facts {};
    return ::stat(device.c_str(), &facts) == 0 && S_ISBLK(facts.st_mode);
}

Error NoDisc() {
    return {ErrorCode::NotFound, "There is no audio disc in the drive."};
}

Error OpenError(const std::string& device) {
    if (::access(device.c_str(), R_OK) == 0) {
        return IsDrive(device) ? NoDisc()
                               : Error{ErrorCode::Damaged, "The disc image cannot be read."};
    }
    if (errno == EACCES || errno == EPERM) {
        return {ErrorCode::Busy, "The CD drive may not be opened by this user."};
    }
    return {ErrorCode::NotFound, "There is no CD drive."};
}

std::int64_t LastSessionOf(const CdIo_t* disc) {
    lsn_t first = 0;
    return cdio_get_last_session(const_cast<CdIo_t*>(disc), &first) == DRIVER_OP_SUCCESS ? first
                                                                                         : 0;
}

CdTable ReadTable(const CdIo_t* disc) {
    const track_t first = cdio_get_first_track_num(disc);
    const track_t count = cdio_get_num_tracks(disc);
    std::vector<CdTrack> tracks;
    if (first == CDIO_INVALID_TRACK || count == CDIO_INVALID_TRACK) {
        return {};
    }
    const std::int64_t lastSession = LastSessionOf(disc);
    for (int number = first; number < first + count; ++number) {
        const auto track = static_cast<track_t>(number);
        const lsn_t begin = cdio_get_track_lsn(disc, track);
        const lsn_t last = cdio_get_track_last_lsn(disc, track);
        if (cdio_get_track_format(disc, track) != TRACK_FORMAT_AUDIO || begin == CDIO_INVALID_LSN ||
            last == CDIO_INVALID_LSN) {
            continue;
        }
        std::int64_t sectors = std::int64_t{last} - begin + 1;
        if (lastSession > 0 && last + 1 == lastSession) {
            sectors -= kSessionGap;
        }
        if (sectors > 0) {
            tracks.push_back({begin, sectors});
        }
    }
    return CdTable(std::move(tracks));
}

} // namespace

void CdioDisc::Closer::operator()(void* disc) const {
    cdio_destroy(static_cast<CdIo_t*>(disc));
}

Result<std::shared_ptr<CdioDisc>> CdioDisc::Open(const std::string& device) {
    cdio_log_set_handler(DropMessage);
    Handle handle(cdio_open(device.c_str(), DRIVER_UNKNOWN));
    if (!handle) {
        return OpenError(device);
    }
    CdTable table = ReadTable(static_cast<CdIo_t*>(handle.get()));
    if (table.Tracks() == 0) {
        return NoDisc();
    }
    return std::shared_ptr<CdioDisc>(new CdioDisc(device, std::move(handle), std::move(table)));
}

Status CdioDisc::ReadSectors(std::int64_t place, int count, std::byte* into) {
    const std::lock_guard lock(guard_);
    while (count > 0) {
        if (closed_) {
            handle_.reset(); // Close has not waited for it
            return NoDisc();
        }
        const CdTrack rest = table_.RestOfTrack(place);
        const auto part = static_cast<int>(std::min<std::int64_t>(count, rest.Sectors));
        const auto bytes = static_cast<std::size_t>(part * kSectorBytes);
        std::memset(into, 0, bytes); // an image that is cut off fills in less and says nothing
        if (part <= 0 ||
            cdio_read_audio_sectors(static_cast<CdIo_t*>(handle_.get()), into,
                                    static_cast<lsn_t>(rest.FirstSector),
                                    static_cast<uint32_t>(part)) != DRIVER_OP_SUCCESS) {
            return ReadError();
        }
        into += bytes;
        place += part;
        count -= part;
    }
    return Done{};
}

// A disc that has been taken out and one that is scratched fail alike; the table tells them apart.
Error CdioDisc::ReadError() {
    const Handle anew(cdio_open(device_.c_str(), DRIVER_UNKNOWN));
    if (!anew || ReadTable(static_cast<CdIo_t*>(anew.get())).Tracks() == 0) {
        return {ErrorCode::NotFound, "The disc has been taken out of the drive."};
    }
    return {ErrorCode::Damaged, "The disc is damaged and cannot be read any further."};
}

void CdioDisc::Close() {
    closed_ = true;
    const std::unique_lock lock(guard_, kLongestClose);
    if (lock) {
        handle_.reset();
    }
}

Status OpenTray(const std::string& device) {
    cdio_log_set_handler(DropMessage);
    if (::access(device.c_str(), F_OK) != 0) {
        return OpenError(device);
    }
    if (IsDrive(device) && cdio_eject_media_drive(device.c_str()) != DRIVER_OP_SUCCESS) {
        return Error{ErrorCode::Failed, "The tray of the CD drive does not open."};
    }
    return Done{};
}

} // namespace kestrova
