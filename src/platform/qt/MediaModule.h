// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/MediaDevices.h"

#include <string>

namespace kestrova {

class MediaFactory;

// The media devices as the module beside the executable makes them. It is loaded at the first need
// and stays loaded.
class MediaModule : public MediaDevices {
public:
    // Where the module lies beside the executable that is running.
    [[nodiscard]] static std::string ShippedPath();

    // `cdDevice` is empty for the machine's own drive.
    explicit MediaModule(std::string path, std::string cdDevice = {});

    [[nodiscard]] bool IsInstalled() const override;
    [[nodiscard]] bool HasSound() override;
    [[nodiscard]] std::string CdDevice() const override;
    [[nodiscard]] std::unique_ptr<MediaPlayer> MakePlayer(MediaKind kind,
                                                          MediaPlayer::Events events) override;
    [[nodiscard]] std::unique_ptr<AudioCd> MakeCd(const std::string& device,
                                                  AudioCd::Events events) override;

    // Why it could not be loaded, in the words of the system; empty while it was not tried.
    [[nodiscard]] const std::string& Trouble() const { return trouble_; }

private:
    MediaFactory* Load();

    std::string path_;
    std::string cdDevice_;
    MediaFactory* factory_ = nullptr; // the module's own
    std::string trouble_;
};

} // namespace kestrova
