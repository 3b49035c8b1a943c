// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/qt/media/CdPlayer.h"

#include "platform/qt/media/CdSound.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace kestrova {

namespace {

constexpr int kPrevSeconds = 3;

} // namespace

void CdPlayer::Returns::Tell(std::function<void()> tiding) {
    const std::lock_guard lock(Guard);
    if (Bell != nullptr) {
        Tidings.push_back(std::move(tiding));
        Bell->Ring();
    }
}

CdPlayer::CdPlayer(std::string device, Events events)
    : device_(std::move(device)), events_(std::move(events)), bell_([this] { Hear(); }),
      returns_(std::make_shared<Returns>()) {
    returns_->Bell = &bell_;
}

CdPlayer::~CdPlayer() {
    ShutDisc();
    const std::lock_guard lock(returns_->Guard);
    returns_->Bell = nullptr;
}

// ---- opening and closing ----

void CdPlayer::Open() {
    if (state_ != CdState::Closed) {
        return;
    }
    Change(CdState::Opening);
    drive_.Do([device = device_, returns = returns_, number = ++opening_, this] {
        auto found = CdioDisc::Open(device);
        // `this` is touched only where it is known to be there still: on the window's thread.
        returns->Tell([found = std::move(found), number, this] {
            if (number == opening_ && state_ == CdState::Opening) {
                TakeDisc(found);
            }
        });
    });
}

void CdPlayer::Close() {
    if (state_ != CdState::Closed) {
        ShutDisc();
        Change(CdState::Closed);
    }
}

void CdPlayer::ShutDisc() {
    ++opening_;
    kept_.clear();
    player_.reset();
    if (disc_) {
        disc_->Close();
        disc_.reset();
    }
    restPlace_ = 0;
}

void CdPlayer::Eject() {
    Close();
    drive_.Do([device = device_, returns = returns_, this] {
        if (const auto opened = OpenTray(device); !opened) {
            returns->Tell([error = opened.Failure(), this] {
                if (const auto failed = events_.Failed) {
                    failed(error);
                }
            });
        }
    });
}

void CdPlayer::Hear() {
    // One at a time: whoever is told may do away with this player.
    std::function<void()> tiding;
    {
        const std::lock_guard lock(returns_->Guard);
        if (!returns_->Tidings.empty()) {
            tiding = std::move(returns_->Tidings.front());
            returns_->Tidings.erase(returns_->Tidings.begin());
            bell_.Ring();
        }
    }
    if (tiding) {
        tiding();
    } else if (std::exchange(toTell_, false)) {
        told_ = Position();
        if (const auto status = events_.Status) {
            status();
        }
    }
}

void CdPlayer::TakeDisc(const Found& found) {
    if (!found) {
        Fail(found.Failure());
        return;
    }
    disc_ = found.Value();
    Change(CdState::Stopped);
    for (const auto command : std::exchange(kept_, {})) {
        (this->*command)();
    }
}

// By value: the error may be the player's own, which goes here.
void CdPlayer::Fail(Error error) { // NOLINT(performance-unnecessary-value-param)
    ShutDisc();
    Change(CdState::Closed);
    if (const auto failed = events_.Failed) {
        failed(error);
    }
}

// ---- playing ----

bool CdPlayer::ReadyFor(void (CdPlayer::*command)()) {
    if (state_ == CdState::Opening) {
        kept_.push_back(command);
    }
    return disc_ != nullptr;
}

void CdPlayer::Play() {
    if (!ReadyFor(&CdPlayer::Play)) {
        return;
    }
    if (state_ == CdState::Paused) {
        Pause();
    } else if (state_ == CdState::Stopped) {
        PlayFrom(restPlace_);
    }
}

void CdPlayer::PlayFrom(std::int64_t place) {
    if (!player_) {
        MpvPlayer::Events events;
        events.Ended = [this](MediaEnd end, const std::string& /*words*/) { TakeEnd(end); };
        events.Moved = [this] { TellIfMoved(); };
        player_ = MpvPlayer::Make(MpvContent::Samples, std::move(events));
    }
    if (!player_) {
        returns_->Tell([number = opening_, this] {
            if (number == opening_) {
                Fail({ErrorCode::Failed, "The disc cannot be played."});
            }
        });
        return;
    }
    const auto open = [disc = disc_]() -> Result<std::unique_ptr<ByteSource>> {
        return std::unique_ptr<ByteSource>(std::make_unique<CdSound>(disc));
    };
    player_->Begin(open, "disc", static_cast<double>(place) / kSectorsPerSecond);
    Change(CdState::Playing);
}

void CdPlayer::Pause() {
    if (!ReadyFor(&CdPlayer::Pause) || state_ == CdState::Stopped) {
        return;
    }
    const bool pauses = state_ == CdState::Playing;
    player_->SetPaused(pauses);
    Change(pauses ? CdState::Paused : CdState::Playing);
}

void CdPlayer::Stop() {
    if (!ReadyFor(&CdPlayer::Stop)) {
        return;
    }
    if (player_) {
        player_->Stop();
    }
    restPlace_ = 0;
    Change(CdState::Stopped);
}

void CdPlayer::Prev() {
    if (ReadyFor(&CdPlayer::Prev)) {
        const CdPosition now = Position();
        const bool isFar = now.Minutes > 0 || now.Seconds >= kPrevSeconds;
        GoTo(isFar ? now.Track : std::max(1, now.Track - 1));
    }
}

void CdPlayer::Next() {
    if (ReadyFor(&CdPlayer::Next) && Position().Track < Tracks()) {
        GoTo(Position().Track + 1);
    }
}

void CdPlayer::GoTo(int track) {
    const std::int64_t place = disc_->Table().BeginOf(track);
    if (state_ == CdState::Stopped) {
        restPlace_ = place;
    } else {
        player_->SeekTo(static_cast<double>(place) / kSectorsPerSecond);
    }
    TellLater();
}

void CdPlayer::TakeEnd(MediaEnd end) {
    if (end == MediaEnd::Failed) {
        Fail(player_->Trouble());
        return;
    }
    restPlace_ = 0;
    Change(CdState::Stopped);
}

// ---- where it is ----

std::int64_t CdPlayer::Place() const {
    const bool rests = state_ == CdState::Stopped || !player_;
    // A place is stored in seconds, and must not come back as the sector before.
    constexpr double kRounding = 0.01;
    return rests ? restPlace_
                 : std::llround(std::floor(player_->Position() * kSectorsPerSecond + kRounding));
}

CdPosition CdPlayer::Position() const {
    return disc_ ? disc_->Table().At(Place()) : CdPosition{};
}

void CdPlayer::Change(CdState state) {
    state_ = state;
    TellLater();
}

void CdPlayer::TellIfMoved() {
    if (Position() != told_) {
        TellLater();
    }
}

void CdPlayer::TellLater() {
    toTell_ = true;
    bell_.Ring();
}

} // namespace kestrova
