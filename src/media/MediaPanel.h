// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace kestrova {

// Sounds, video in the picture area and the CD player, as the rest of the program uses them.
class MediaPanel {
public:
    virtual ~MediaPanel() = default;

    [[nodiscard]] virtual bool SoundWorks() const = 0;
    [[nodiscard]] virtual bool VideoWorks() const = 0;
    [[nodiscard]] virtual bool CdWorks() const = 0;

    // Whether a video has the picture area (the media display state is not 0).
    [[nodiscard]] virtual bool ShowsVideo() const = 0;

    // Plays a sound file, or shows any other media file as video.
    virtual void MakeSound(const std::string& path) = 0;

    // Delivers a media reminder: opens the panel and plays the file, or tells why it cannot.
    virtual void PlayReminder(const std::string& path) = 0;

    // Delivers a music reminder: starts the CD, or tells that there is no player.
    virtual void PlayCd() = 0;

    // Ends what is playing before the window goes.
    virtual void CleanUp() = 0;
};

} // namespace kestrova
