// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/qt/media/CdPlayer.h"
#include "platform/qt/media/MediaFactory.h"
#include "platform/qt/media/MpvPlayer.h"
#include "platform/qt/media/SoundServer.h"

#include <malloc.h>

namespace kestrova {

namespace {

using namespace std::chrono_literals;

constexpr auto kLongestAnswer = 500ms;

class LinuxMedia : public MediaFactory {
public:
    // Each file brings threads and large buffers that come and go. Unless the allocator is told to
    // give the buffers back, and not to set up a heap for every thread, the program keeps twice the
    // memory that it needs, and more from film to film.
    LinuxMedia() {
        constexpr int kLargeBytes = 128 * 1024;
        ::mallopt(M_MMAP_THRESHOLD, kLargeBytes);
        ::mallopt(M_ARENA_MAX, 2);
    }

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

extern "C" [[gnu::visibility("default")]] MediaFactory* KestrovaMedia2() {
    static LinuxMedia media;
    return &media;
}

} // namespace kestrova
