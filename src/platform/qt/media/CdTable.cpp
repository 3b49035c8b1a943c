// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/qt/media/CdTable.h"

#include <cassert>

namespace kestrova {

std::int64_t CdTable::Sectors() const {
    return BeginOf(Tracks() + 1);
}

std::int64_t CdTable::BeginOf(int track) const {
    std::int64_t place = 0;
    for (int before = 1; before < track; ++before) {
        place += tracks_[static_cast<std::size_t>(before) - 1].Sectors;
    }
    return place;
}

int CdTable::TrackAt(std::int64_t place) const {
    int track = 1;
    while (track < Tracks() && place >= BeginOf(track + 1)) {
        ++track;
    }
    return track;
}

CdPosition CdTable::At(std::int64_t place) const {
    if (tracks_.empty()) {
        return {};
    }
    const int track = TrackAt(place);
    const int seconds = static_cast<int>((place - BeginOf(track)) / kSectorsPerSecond);
    return {track, seconds / 60, seconds % 60};
}

CdTrack CdTable::RestOfTrack(std::int64_t place) const {
    assert(!tracks_.empty());
    const int track = TrackAt(place);
    const CdTrack& whole = tracks_[static_cast<std::size_t>(track) - 1];
    const std::int64_t within = place - BeginOf(track);
    return {whole.FirstSector + within, whole.Sectors - within};
}

} // namespace kestrova
