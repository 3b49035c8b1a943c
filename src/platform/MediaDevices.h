// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/AudioCd.h"
#include "platform/MediaPlayer.h"

#include <memory>
#include <string>

namespace kestrova {

// What the machine plays media with. The libraries behind it are large and loaded at the first
// call that needs them.
class MediaDevices {
public:
    virtual ~MediaDevices() = default;

    // Whether the libraries are there; does not load them.
    [[nodiscard]] virtual bool IsInstalled() const = 0;

    // Whether a sound server answers. Asks it anew at each call, half a second at most.
    [[nodiscard]] virtual bool HasSound() = 0;

    // The drive or image that discs are played from; empty when there is none. Does not load the
    // libraries.
    [[nodiscard]] virtual std::string CdDevice() const = 0;

    // Null when the libraries cannot be loaded.
    [[nodiscard]] virtual std::unique_ptr<MediaPlayer> MakePlayer(MediaKind kind,
                                                                  MediaPlayer::Events events) = 0;
    [[nodiscard]] virtual std::unique_ptr<AudioCd> MakeCd(const std::string& device,
                                                          AudioCd::Events events) = 0;
};

} // namespace kestrova
