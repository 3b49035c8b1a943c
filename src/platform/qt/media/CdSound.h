// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/qt/media/ByteSource.h"
#include "platform/qt/media/CdioDisc.h"

#include <vector>

namespace kestrova {

// All that is to be heard on a disc as one run of samples: no gap between the tracks.
class CdSound : public ByteSource {
public:
    explicit CdSound(std::shared_ptr<CdioDisc> disc) : disc_(std::move(disc)) {}

    [[nodiscard]] std::int64_t Size() const override;
    Status Seek(std::int64_t place) override;
    Result<std::size_t> Read(std::byte* into, std::size_t count) override;

private:
    Status Fetch(std::int64_t sector);
    Status FetchOneByOne(std::int64_t sector, int count);

    std::shared_ptr<CdioDisc> disc_;
    std::int64_t place_ = 0;       // in bytes
    std::vector<std::byte> block_; // the sectors read last
    std::int64_t blockSector_ = 0;
    int lost_ = 0; // sectors in a row that could not be read
};

} // namespace kestrova
