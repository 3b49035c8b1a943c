// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/AudioCd.h"
#include "platform/MediaPlayer.h"

#include <memory>
#include <string>

namespace kestrova {

// What the media module gives to the program that has loaded it. The module is a file of its own so
// that the program starts, and runs where the large media libraries are missing, without them.
class MediaFactory {
public:
    virtual ~MediaFactory() = default;

    [[nodiscard]] virtual bool HasSound() = 0;
    [[nodiscard]] virtual std::unique_ptr<MediaPlayer> MakePlayer(MediaKind kind,
                                                                  MediaPlayer::Events events) = 0;
    [[nodiscard]] virtual std::unique_ptr<AudioCd> MakeCd(const std::string& device,
                                                          AudioCd::Events events) = 0;
};

// The one function that the module exports; what it returns lives as long as the process. Whoever
// changes one of the interfaces above changes the number in the name, so that a module of another
// version is refused instead of called.
using MediaEntry = MediaFactory* (*)();
inline constexpr const char* kMediaEntryName = "KestrovaMedia2";

} // namespace kestrova
