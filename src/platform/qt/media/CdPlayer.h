// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/AudioCd.h"
#include "platform/qt/media/CdioDisc.h"
#include "platform/qt/media/Doorbell.h"
#include "platform/qt/media/DriveThread.h"
#include "platform/qt/media/MpvPlayer.h"

#include <functional>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

namespace kestrova {

// Plays the samples that libcdio reads, through libmpv: so a drive needs no cable to the sound
// card, and an image is as good as a drive.
class CdPlayer : public AudioCd {
public:
    CdPlayer(std::string device, Events events);
    ~CdPlayer() override;

    void Open() override;
    void Close() override;
    void Prev() override;
    void Next() override;
    void Play() override;
    void Pause() override;
    void Stop() override;
    void Eject() override;

    [[nodiscard]] CdState State() const override { return state_; }
    [[nodiscard]] CdPosition Position() const override;
    [[nodiscard]] int Tracks() const override { return disc_ ? disc_->Table().Tracks() : 0; }

private:
    using Found = Result<std::shared_ptr<CdioDisc>>;

    // Where the drive's thread leaves what is to be done on the window's.
    struct Returns {
        std::mutex Guard;
        Doorbell* Bell = nullptr; // null once nobody listens
        std::vector<std::function<void()>> Tidings;

        void Tell(std::function<void()> tiding);
    };

    void Hear();
    void TakeDisc(const Found& found);
    void TakeEnd(MediaEnd end);
    void Fail(Error error);
    void ShutDisc();

    // Whether a disc is open. While one is being opened, the command is kept for then.
    bool ReadyFor(void (CdPlayer::*command)());
    void GoTo(int track);
    void PlayFrom(std::int64_t place);
    [[nodiscard]] std::int64_t Place() const;
    void Change(CdState state);
    void TellIfMoved();
    void TellLater();

    std::string device_;
    Events events_;
    CdState state_ = CdState::Closed;
    std::shared_ptr<CdioDisc> disc_;
    std::int64_t restPlace_ = 0; // where it begins when it is played; a place in the disc's table
    CdPosition told_;
    bool toTell_ = false;
    std::vector<void (CdPlayer::*)()> kept_;
    int opening_ = 0; // counts: what an opening that was given up brings is dropped

    Doorbell bell_;
    std::shared_ptr<Returns> returns_;
    DriveThread drive_;
    std::unique_ptr<MpvPlayer> player_;
};

} // namespace kestrova
