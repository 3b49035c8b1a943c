// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/qt/media/CdPlayer.h"
#include "platform/qt/media/MediaFactory.h"
#include "platform/qt/media/MpvPlayer.h"
#include "platform/qt/media/SoundServer.h"

namespace kestrova {

namespace {

using namespace std::chrono_literals;

constexpr auto kLongestAnswer = 500ms;

class LinuxMedia : public MediaFactory {
public:
    bool HasSound() override { return SoundServerAnswers(kLongestAnswer); }

    std::unique_ptr<MediaPlayer> MakePlayer(MediaKind kind, MediaPlayer::Events events) override {
        return MpvPlayer::Make(kind == MediaKind::Video ? MpvContent::Video : MpvContent::Sound,
                               std::move(events));
    }

    std::unique_ptr<AudioCd> MakeCd(const std::string& device, AudioCd::Events events) override {
        return std::make_unique<CdPlayer>(device, std::move(events));
    }
};

} // namespace

extern "C" [[gnu::visibility("default")]] MediaFactory* KestrovaMedia1() {
    static LinuxMedia media;
    return &media;
}

} // namespace kestrova
