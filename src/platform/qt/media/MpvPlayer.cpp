// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/qt/media/MpvPlayer.h"

#include "platform/qt/media/LocalFile.h"
#include "platform/qt/media/MemoryBytes.h"

#include <mpv/client.h>
#include <mpv/render.h>

#include <algorithm>
#include <array>
#include <cctype>
#include <string_view>
#include <utility>

namespace kestrova {

namespace {

constexpr int kPositionMilliseconds = 200;

// What a reply of mpv is about, in the low bits of its tag, above them the number of what was
// asked.
enum class Ask : std::uint64_t { Load = 0, Place = 1, Nothing = 2 };
constexpr unsigned kAskBits = 2;

constexpr std::uint64_t TagOf(Ask ask, std::uint64_t number) {
    return number << kAskBits | static_cast<std::uint64_t>(ask);
}

// What the name of a file says about its format: its extension, where that is a plain one.
std::string HintOf(const std::string& path) {
    const auto plain = [](unsigned char letter) { return letter < 0x80 && std::isalnum(letter); };
    const std::string ending = path.substr(std::min(path.size(), path.find_last_of("./") + 1));
    const bool usable =
        ending.size() < path.size() && std::all_of(ending.begin(), ending.end(), plain);
    return usable ? "file." + ending : "file";
}

std::string WordsFor(int mpvError) {
    switch (mpvError) {
    case MPV_ERROR_LOADING_FAILED: return "The file cannot be opened.";
    case MPV_ERROR_UNKNOWN_FORMAT: return "The file is not of a kind that can be played.";
    case MPV_ERROR_NOTHING_TO_PLAY: return "There is nothing in the file that can be played.";
    case MPV_ERROR_AO_INIT_FAILED: return "The sound cannot be played.";
    default: return std::string("The file cannot be played: ") + mpv_error_string(mpvError) + ".";
    }
}

std::int64_t EntryOf(const mpv_event& reply) {
    const auto& result = static_cast<const mpv_event_command*>(reply.data)->result;
    if (reply.error < 0 || result.format != MPV_FORMAT_NODE_MAP) {
        return -1;
    }
    const mpv_node_list& map = *result.u.list;
    for (int i = 0; i < map.num; ++i) {
        if (std::string_view(map.keys[i]) == "playlist_entry_id") {
            return map.values[i].u.int64;
        }
    }
    return -1;
}

} // namespace

std::unique_ptr<MpvPlayer> MpvPlayer::Make(MpvContent content, Events events) {
    std::unique_ptr<MpvPlayer> player(new MpvPlayer(content, std::move(events)));
    return player->Start() ? std::move(player) : nullptr;
}

MpvPlayer::MpvPlayer(MpvContent content, Events events)
    : content_(content), events_(std::move(events)),
      bell_(std::make_unique<Doorbell>([this] { Answer(); })) {
    positions_.setInterval(kPositionMilliseconds);
    QObject::connect(&positions_, &QTimer::timeout, [this] { AskPosition(); });
}

MpvPlayer::~MpvPlayer() = default;

bool MpvPlayer::Start() {
    core_ = MpvCore::Make(
        content_, [](void* bell) { static_cast<Doorbell*>(bell)->Ring(); }, bell_.get());
    if (core_) {
        mpv_observe_property(core_->Handle(), 0, "duration", MPV_FORMAT_DOUBLE);
    }
    return core_ != nullptr;
}

// ---- commands ----

void MpvPlayer::Play(const std::string& path) {
    Begin([path] { return LocalFile::Open(path); }, HintOf(path), 0);
}

void MpvPlayer::PlayBytes(std::string wave) {
    const auto bytes = std::make_shared<const std::string>(std::move(wave));
    Begin([bytes] { return MemoryBytes::Open(bytes); }, "bytes.wav", 0);
}

void MpvPlayer::Begin(SourceOpener opener, const std::string& name, double seconds) {
    Stop();
    ++file_;
    playing_ = true;
    position_ = seconds;
    if (!core_ && !Start()) { // the one before has hung
        Fail(MPV_ERROR_GENERIC);
        return;
    }
    SetFlag("pause", false);
    const char* const loop[] = {"set", "loop-file", repeat_ ? "inf" : "no", nullptr};
    Command(loop);
    const std::string address = core_->Offer(std::move(opener), name);
    const std::string options = "start=" + std::to_string(seconds);
    const char* load[] = {"loadfile", address.c_str(), "replace", options.c_str(), nullptr};
    if (const int status = mpv_command_async(core_->Handle(), TagOf(Ask::Load, file_), load);
        status < 0) {
        Fail(status);
    }
}

void MpvPlayer::Stop() {
    const bool wasPlaying = playing_;
    Forget();
    if (wasPlaying && !core_->Stop()) {
        core_.reset();
    }
}

void MpvPlayer::Forget() {
    ++places_;
    entry_ = -1;
    playing_ = started_ = open_ = paused_ = hasPicture_ = newPicture_ = moved_ = false;
    position_ = duration_ = 0;
    wantedPlace_.reset();
    outcome_.reset();
    positions_.stop();
}

void MpvPlayer::SetPaused(bool paused) {
    if (playing_ && paused != paused_) {
        paused_ = paused;
        SetFlag("pause", paused);
        AskPosition();
        WatchPosition();
        moved_ = true;
        bell_->Ring();
    }
}

void MpvPlayer::Seek(double seconds) {
    SeekTo(position_ + seconds);
}

void MpvPlayer::SeekTo(double seconds) {
    if (!playing_) {
        return;
    }
    const double place = std::max(0.0, duration_ > 0 ? std::min(seconds, duration_) : seconds);
    ++places_;
    position_ = place; // so that moves which follow one another add up
    moved_ = true;
    bell_->Ring();
    if (!open_) {
        wantedPlace_ = place;
        return;
    }
    const std::string text = std::to_string(place);
    const char* const words[] = {"seek", text.c_str(), "absolute+exact", nullptr};
    Command(words);
}

void MpvPlayer::StepFrame() {
    if (playing_ && content_ == MpvContent::Video) {
        const char* const words[] = {"frame-step", nullptr};
        Command(words);
        paused_ = true;
        WatchPosition();
        moved_ = true;
        bell_->Ring();
    }
}

void MpvPlayer::SetRepeat(bool repeat) {
    repeat_ = repeat;
    if (playing_) {
        const char* const words[] = {"set", "loop-file", repeat ? "inf" : "no", nullptr};
        Command(words);
    }
}

bool MpvPlayer::Render(const PixelRows& target) {
    if (!hasPicture_ || target.Width <= 0 || target.Height <= 0) {
        return false;
    }
    int size[] = {target.Width, target.Height};
    char format[] = "bgr0";
    auto rowBytes = static_cast<std::size_t>(target.RowBytes);
    int wait = 0;
    std::array<mpv_render_param, 6> wanted{{{MPV_RENDER_PARAM_SW_SIZE, size},
                                            {MPV_RENDER_PARAM_SW_FORMAT, format},
                                            {MPV_RENDER_PARAM_SW_STRIDE, &rowBytes},
                                            {MPV_RENDER_PARAM_SW_POINTER, target.Pixels},
                                            {MPV_RENDER_PARAM_BLOCK_FOR_TARGET_TIME, &wait},
                                            {}}};
    return mpv_render_context_render(core_->Renderer(), wanted.data()) >= 0;
}

void MpvPlayer::Command(const char* const* words) {
    mpv_command_async(core_->Handle(), TagOf(Ask::Nothing, file_), const_cast<const char**>(words));
}

void MpvPlayer::SetFlag(const char* property, bool value) {
    int flag = value ? 1 : 0;
    mpv_set_property_async(core_->Handle(), TagOf(Ask::Nothing, file_), property, MPV_FORMAT_FLAG,
                           &flag);
}

// ---- what mpv reports ----

void MpvPlayer::AskPosition() {
    mpv_get_property_async(core_->Handle(), TagOf(Ask::Place, places_), "time-pos",
                           MPV_FORMAT_DOUBLE);
}

void MpvPlayer::WatchPosition() {
    if (open_ && !paused_) {
        positions_.start();
    } else {
        positions_.stop(); // nothing runs while nothing moves
    }
}

void MpvPlayer::Answer() {
    if (core_) {
        TakeAll();
    }
    Tell();
}

void MpvPlayer::TakeAll() {
    while (true) {
        const mpv_event& event = *mpv_wait_event(core_->Handle(), 0);
        if (event.event_id == MPV_EVENT_NONE) {
            break;
        }
        core_->Note(event);
        Take(event);
    }
    if (core_->Renderer() != nullptr &&
        (mpv_render_context_update(core_->Renderer()) & MPV_RENDER_UPDATE_FRAME) != 0 && open_) {
        hasPicture_ = newPicture_ = true;
        if (paused_) { // by a step, or a move
            AskPosition();
        }
    }
}

void MpvPlayer::Take(const mpv_event& event) {
    switch (event.event_id) {
    case MPV_EVENT_COMMAND_REPLY:
    case MPV_EVENT_GET_PROPERTY_REPLY: TakeReply(event); break;
    case MPV_EVENT_PROPERTY_CHANGE:
        TakeProperty(*static_cast<const mpv_event_property*>(event.data));
        break;
    case MPV_EVENT_START_FILE:
        started_ =
            static_cast<const mpv_event_start_file*>(event.data)->playlist_entry_id == entry_;
        break;
    case MPV_EVENT_FILE_LOADED:
        open_ = started_;
        if (open_ && wantedPlace_) {
            SeekTo(*std::exchange(wantedPlace_, std::nullopt));
        }
        WatchPosition();
        break;
    case MPV_EVENT_PLAYBACK_RESTART: // it goes on after a move
        if (open_) {
            AskPosition();
        }
        break;
    case MPV_EVENT_END_FILE: TakeEnd(event); break;
    default: break;
    }
}

void MpvPlayer::TakeReply(const mpv_event& event) {
    const std::uint64_t tag = event.reply_userdata;
    if (tag == TagOf(Ask::Load, file_) && event.event_id == MPV_EVENT_COMMAND_REPLY) {
        entry_ = EntryOf(event);
        if (entry_ < 0 && playing_) {
            Fail(event.error);
        }
    } else if (tag == TagOf(Ask::Place, places_) && event.error >= 0 && playing_ &&
               event.event_id == MPV_EVENT_GET_PROPERTY_REPLY) {
        TakeProperty(*static_cast<const mpv_event_property*>(event.data));
    }
}

void MpvPlayer::TakeProperty(const mpv_event_property& property) {
    if (!started_ || property.format != MPV_FORMAT_DOUBLE) {
        return;
    }
    const double value = std::max(0.0, *static_cast<const double*>(property.data));
    double& known = std::string_view(property.name) == "duration" ? duration_ : position_;
    moved_ |= known != value;
    known = value;
}

void MpvPlayer::TakeEnd(const mpv_event& event) {
    const auto& end = *static_cast<const mpv_event_end_file*>(event.data);
    if (!playing_ || end.playlist_entry_id != entry_) {
        return;
    }
    if (end.reason == MPV_END_FILE_REASON_EOF && !core_->SourceTrouble()) {
        Forget();
        outcome_ = Outcome{};
    } else {
        Fail(end.reason == MPV_END_FILE_REASON_ERROR ? end.error : MPV_ERROR_GENERIC);
    }
}

void MpvPlayer::Fail(int mpvError) {
    const auto trouble = core_ ? core_->SourceTrouble() : std::nullopt;
    Forget();
    trouble_ = trouble.value_or(Error{ErrorCode::Damaged, WordsFor(mpvError)});
    outcome_ = Outcome{MediaEnd::Failed, trouble_.Text};
    bell_->Ring();
}

// Whoever is told may play something else, or do away with this player, at once: nothing of it is
// touched after the last call, and what a call has made out of date is not told.
void MpvPlayer::Tell() {
    if (const auto outcome = std::exchange(outcome_, std::nullopt)) {
        const auto ended = events_.Ended;
        if (ended) {
            ended(outcome->End, outcome->Words);
        }
        return;
    }
    if (std::exchange(newPicture_, false)) {
        if (moved_) {
            bell_->Ring();
        }
        const auto frameReady = events_.FrameReady;
        if (frameReady) {
            frameReady();
        }
        return;
    }
    if (std::exchange(moved_, false)) {
        const auto moved = events_.Moved;
        if (moved) {
            moved();
        }
    }
}

} // namespace kestrova
