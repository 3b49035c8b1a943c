// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/MediaPlayer.h"
#include "platform/qt/media/Doorbell.h"
#include "platform/qt/media/MpvCore.h"

#include <QTimer>

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

struct mpv_event_property;

namespace kestrova {

// A file, or any other source of bytes, playing through libmpv. All talk with mpv goes through its
// queue, so that no call waits for it; only ending a file does, for its silence, at most 1.5 s.
//
// Every Play has a number. What mpv reports is tagged with it, and reports about an earlier file
// are dropped.
class MpvPlayer : public MediaPlayer {
public:
    // Null when libmpv does not start.
    [[nodiscard]] static std::unique_ptr<MpvPlayer> Make(MpvContent content, Events events);
    ~MpvPlayer() override;

    // As Play, with bytes from anywhere, from `seconds` on. The name is a hint at their format.
    void Begin(SourceOpener opener, const std::string& name, double seconds);

    // Why the last file that failed did so.
    [[nodiscard]] const Error& Trouble() const { return trouble_; }

    void Play(const std::string& path) override;
    void PlayBytes(std::string wave) override;
    void Stop() override;
    [[nodiscard]] bool IsPlaying() const override { return playing_; }
    void SetPaused(bool paused) override;
    [[nodiscard]] bool IsPaused() const override { return playing_ && paused_; }
    void Seek(double seconds) override;
    void SeekTo(double seconds) override;
    void StepFrame() override;
    void SetRepeat(bool repeat) override;
    [[nodiscard]] double Position() const override { return position_; }
    [[nodiscard]] double Duration() const override { return duration_; }
    bool Render(const PixelRows& target) override;

private:
    struct Outcome {
        MediaEnd End = MediaEnd::Finished;
        std::string Words;
    };

    MpvPlayer(MpvContent content, Events events);
    [[nodiscard]] bool Start();
    void Forget();

    void Answer();
    void TakeAll();
    void Take(const mpv_event& event);
    void TakeReply(const mpv_event& event);
    void TakeProperty(const mpv_event_property& property);
    void TakeEnd(const mpv_event& event);
    void Fail(int mpvError);
    void Tell();

    void Command(const char* const* words);
    void SetFlag(const char* property, bool value);
    void AskPosition();
    void WatchPosition();

    MpvContent content_;
    Events events_;
    std::unique_ptr<Doorbell> bell_; // outlives the core, which rings it
    std::unique_ptr<MpvCore> core_;
    QTimer positions_;

    std::uint32_t file_ = 0;   // the number of the file
    std::int64_t entry_ = -1;  // mpv's own number of it
    std::uint32_t places_ = 0; // counts what moves: an answer about a place before is out of date
    bool playing_ = false;
    bool started_ = false; // mpv reports about this file, no longer about the one before
    bool open_ = false;    // it can be moved in
    bool paused_ = false;
    bool repeat_ = false;
    bool hasPicture_ = false;
    double position_ = 0;
    double duration_ = 0;
    std::optional<double> wantedPlace_; // moved to before it was open

    bool newPicture_ = false; // what is to be told
    bool moved_ = false;
    std::optional<Outcome> outcome_;
    Error trouble_;
};

} // namespace kestrova
