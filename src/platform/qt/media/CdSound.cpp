// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/qt/media/CdSound.h"

#include <algorithm>
#include <cstring>

namespace kestrova {

namespace {

// What a drive gives at once.
constexpr int kBlockSectors = 25;

// A scratch is passed over in silence as long as it is no longer than this.
constexpr int kMostLost = 15;

} // namespace

std::int64_t CdSound::Size() const {
    return disc_->Table().Sectors() * kSectorBytes;
}

Status CdSound::Seek(std::int64_t place) {
    if (place < 0 || place > Size()) {
        return Error{ErrorCode::Failed, "There is no such place on the disc."};
    }
    place_ = place;
    return Done{};
}

Result<std::size_t> CdSound::Read(std::byte* into, std::size_t count) {
    if (place_ >= Size()) {
        return std::size_t{0};
    }
    const std::int64_t blockBegin = blockSector_ * kSectorBytes;
    if (place_ < blockBegin || place_ >= blockBegin + std::ssize(block_)) {
        if (const auto fetched = Fetch(place_ / kSectorBytes); !fetched) {
            return fetched.Failure();
        }
    }
    const auto offset = static_cast<std::size_t>(place_ - blockSector_ * kSectorBytes);
    const std::size_t given = std::min(count, block_.size() - offset);
    std::memcpy(into, block_.data() + offset, given);
    place_ += static_cast<std::int64_t>(given);
    return given;
}

Status CdSound::Fetch(std::int64_t sector) {
    const auto count =
        static_cast<int>(std::min<std::int64_t>(kBlockSectors, disc_->Table().Sectors() - sector));
    block_.resize(static_cast<std::size_t>(count * kSectorBytes));
    blockSector_ = sector;
    if (disc_->ReadSectors(sector, count, block_.data())) {
        lost_ = 0;
        return Done{};
    }
    const auto one = FetchOneByOne(sector, count);
    if (!one) {
        block_.clear();
    }
    return one;
}

Status CdSound::FetchOneByOne(std::int64_t sector, int count) {
    for (int i = 0; i < count; ++i) {
        std::byte* const into = block_.data() + i * kSectorBytes;
        const auto read = disc_->ReadSectors(sector + i, 1, into);
        lost_ = read ? 0 : lost_ + 1;
        if (lost_ > kMostLost || (!read && read.Failure().Code == ErrorCode::NotFound)) {
            return read;
        }
        if (!read) {
            std::memset(into, 0, kSectorBytes);
        }
    }
    return Done{};
}

} // namespace kestrova
