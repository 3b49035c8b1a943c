// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/AudioCd.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace kestrova {

inline constexpr int kSectorsPerSecond = 75;
inline constexpr std::int64_t kSectorBytes = 2352;

struct CdTrack {
    std::int64_t FirstSector = 0; // on the disc
    std::int64_t Sectors = 0;
};

// The audio tracks of a disc as if they lay side by side, whatever data lie between them: a place
// is a sector counted from the beginning of the first track. Tracks are numbered from 1.
class CdTable {
public:
    CdTable() = default;
    explicit CdTable(std::vector<CdTrack> tracks) : tracks_(std::move(tracks)) {}

    [[nodiscard]] int Tracks() const { return static_cast<int>(tracks_.size()); }
    [[nodiscard]] std::int64_t Sectors() const;
    [[nodiscard]] std::int64_t BeginOf(int track) const;

    // The track at a place and the time within it; the last track beyond the end.
    [[nodiscard]] CdPosition At(std::int64_t place) const;

    // Where on the disc a place lies, and how many sectors of the track there are from it on.
    [[nodiscard]] CdTrack RestOfTrack(std::int64_t place) const;

private:
    [[nodiscard]] int TrackAt(std::int64_t place) const;

    std::vector<CdTrack> tracks_;
};

} // namespace kestrova
