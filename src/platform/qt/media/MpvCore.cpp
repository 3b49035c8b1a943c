// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/qt/media/MpvCore.h"

#include "platform/qt/media/MpvSource.h"

#include <mpv/client.h>
#include <mpv/render.h>
#include <mpv/stream_cb.h>

#include <array>
#include <clocale>
#include <thread>

namespace kestrova {

namespace {

using namespace std::chrono_literals;
using MonotonicClock = std::chrono::steady_clock;

constexpr auto kLongestStop = 1500ms;
constexpr uint64_t kStopTag = ~uint64_t{0}; // no number of a file

struct Option {
    const char* Name;
    const char* Value;
};

// What holds whatever is played.
constexpr Option kOptions[] = {
    {"idle", "yes"},
    {"ao", "pulse"},
    {"audio-client-name", "Kestrova"},
    // Without a sound server, or when it goes, a film must go on.
    {"audio-fallback-to-null", "yes"},
    // Else the end is told a third of a second before it is heard.
    {"gapless-audio", "no"},
    {"hwdec", "no"},
    {"hr-seek", "yes"},
    // A few threads and little reading ahead: files lie on a disc and are short.
    {"vd-lavc-threads", "2"},
    {"cache", "no"},
    {"demuxer-max-bytes", "4MiB"},
    {"demuxer-max-back-bytes", "0"},
    // Nothing of the user's own mpv, and nothing but the picture.
    {"config", "no"},
    {"load-scripts", "no"},
    {"load-osd-console", "no"},
    {"load-stats-overlay", "no"},
    {"load-auto-profiles", "no"},
    {"resume-playback", "no"},
    {"save-position-on-quit", "no"},
    {"use-filedir-conf", "no"},
    {"osc", "no"},
    {"osd-level", "0"},
    {"terminal", "no"},
    {"input-default-bindings", "no"},
    {"input-builtin-bindings", "no"},
    {"input-media-keys", "no"},
    {"stop-screensaver", "no"},
    // Nothing but the bytes it is given: no file beside them, none that they name.
    {"ytdl", "no"},
    {"autoload-files", "no"},
    {"audio-display", "no"},
    {"sid", "no"},
    {"load-unsafe-playlists", "no"},
    {"access-references", "no"},
    {"ordered-chapters", "no"},
    {"demuxer-lavf-o", "protocol_whitelist=none"},
};

// Known containers only: the other readers are for playlists and discs.
constexpr Option kSoundOptions[] = {{"demuxer", "lavf"}, {"vid", "no"}, {"vo", "null"}};
// The scaler is the one that draws a picture in time without a graphics card.
constexpr Option kVideoOptions[] = {
    {"demuxer", "lavf"}, {"vo", "libmpv"}, {"zimg-scaler", "bilinear"}, {"zimg-dither", "no"}};
constexpr Option kSampleOptions[] = {
    {"demuxer", "rawaudio"},
    {"demuxer-rawaudio-format", "s16le"},
    {"demuxer-rawaudio-channels", "2"},
    {"demuxer-rawaudio-rate", "44100"},
    {"vid", "no"},
    {"vo", "null"},
    // A drive that stumbles over a scratch takes its time.
    {"demuxer-readahead-secs", "4"},
};

template<std::size_t N> bool Apply(mpv_handle* handle, const Option (&options)[N]) {
    for (const auto& option : options) {
        if (mpv_set_option_string(handle, option.Name, option.Value) < 0) {
            return false;
        }
    }
    return true;
}

bool SetUp(mpv_handle* handle, MpvContent content) {
    if (!Apply(handle, kOptions)) {
        return false;
    }
    switch (content) {
    case MpvContent::Sound: return Apply(handle, kSoundOptions);
    case MpvContent::Video: return Apply(handle, kVideoOptions);
    case MpvContent::Samples: return Apply(handle, kSampleOptions);
    }
    return false;
}

} // namespace

struct MpvCore::Parts {
    mpv_handle* Handle = nullptr;
    mpv_render_context* Renderer = nullptr;
    MpvSource Source;

    Parts() = default;
    Parts(const Parts&) = delete;
    Parts& operator=(const Parts&) = delete;

    ~Parts() {
        if (Renderer != nullptr) { // it must go before the handle
            PassOverPicture();
            mpv_render_context_free(Renderer);
        }
        if (Handle != nullptr) {
            mpv_terminate_destroy(Handle);
        }
    }

    // A picture that waits to be drawn holds up the renderer's end for a fifth of a second.
    void PassOverPicture() const {
        int skip = 1;
        std::array<mpv_render_param, 2> wanted{{{MPV_RENDER_PARAM_SKIP_RENDERING, &skip}, {}}};
        mpv_render_context_update(Renderer);
        mpv_render_context_render(Renderer, wanted.data());
    }

    void StopWaking() const {
        mpv_set_wakeup_callback(Handle, nullptr, nullptr);
        if (Renderer != nullptr) {
            mpv_render_context_set_update_callback(Renderer, nullptr, nullptr);
        }
    }
};

std::unique_ptr<MpvCore> MpvCore::Make(MpvContent content, Wake wake, void* context) {
    // mpv refuses to start where numbers are written with a comma; our own never depend on it.
    std::setlocale(LC_NUMERIC, "C");
    auto parts = std::make_unique<Parts>();
    parts->Handle = mpv_create();
    if (parts->Handle == nullptr || !SetUp(parts->Handle, content) ||
        mpv_initialize(parts->Handle) < 0 ||
        mpv_stream_cb_add_ro(parts->Handle, kMpvProtocol, &parts->Source, MpvSource::Open) < 0) {
        return nullptr;
    }
    if (content == MpvContent::Video) {
        char api[] = MPV_RENDER_API_TYPE_SW;
        std::array<mpv_render_param, 2> wanted{{{MPV_RENDER_PARAM_API_TYPE, api}, {}}};
        if (mpv_render_context_create(&parts->Renderer, parts->Handle, wanted.data()) < 0) {
            return nullptr;
        }
        mpv_render_context_set_update_callback(parts->Renderer, wake, context);
    }
    mpv_set_wakeup_callback(parts->Handle, wake, context);
    return std::unique_ptr<MpvCore>(new MpvCore(std::move(parts)));
}

MpvCore::MpvCore(std::unique_ptr<Parts> parts) : parts_(std::move(parts)) {}

MpvCore::~MpvCore() {
    parts_->StopWaking();
    if (!answers_ || !Stop()) {
        // It ends when the server that holds it up answers or goes, which nobody waits for.
        std::thread([parts = std::move(parts_)]() mutable { parts.reset(); }).detach();
    }
}

mpv_handle* MpvCore::Handle() const {
    return parts_->Handle;
}

mpv_render_context* MpvCore::Renderer() const {
    return parts_->Renderer;
}

std::string MpvCore::Offer(SourceOpener opener, const std::string& name) {
    return parts_->Source.Offer(std::move(opener), name);
}

std::optional<Error> MpvCore::SourceTrouble() const {
    return parts_->Source.Trouble();
}

void MpvCore::Note(const mpv_event& event) {
    if (event.event_id == MPV_EVENT_START_FILE) {
        inFile_ = true;
    } else if (event.event_id == MPV_EVENT_END_FILE) {
        inFile_ = false;
    }
}

bool MpvCore::Stop() {
    const char* command[] = {"stop", nullptr};
    bool carriedOut = mpv_command_async(parts_->Handle, kStopTag, command) < 0;
    const auto deadline = MonotonicClock::now() + kLongestStop;
    while (!carriedOut || inFile_) {
        const std::chrono::duration<double> left = deadline - MonotonicClock::now();
        if (left.count() <= 0) {
            answers_ = false;
            return false;
        }
        const mpv_event& event = *mpv_wait_event(parts_->Handle, left.count());
        Note(event);
        carriedOut |= event.event_id == MPV_EVENT_COMMAND_REPLY && event.reply_userdata == kStopTag;
    }
    return true;
}

} // namespace kestrova
