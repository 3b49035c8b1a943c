// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/MediaDevices.h"

#include <string>
#include <vector>

namespace kestrova {

// A player that plays nothing and remembers what it was told; a test raises its events.
class FakePlayer : public MediaPlayer {
public:
    explicit FakePlayer(Events events) : On(std::move(events)) {}

    Events On;
    std::vector<std::string> Played;
    bool Playing = false;
    bool Paused = false;
    bool Repeat = false;
    int Steps = 0;
    double Now = 0;
    double Length = 0;

    void End(MediaEnd end) {
        Playing = false;
        On.Ended(end, end == MediaEnd::Failed ? "no such format" : "");
    }

    void Play(const std::string& path) override {
        Played.push_back(path);
        Playing = true;
        Paused = false;
    }
    void PlayBytes(std::string wave) override { Play(wave); }
    void Stop() override { Playing = false; }
    bool IsPlaying() const override { return Playing; }
    void SetPaused(bool paused) override { Paused = paused; }
    bool IsPaused() const override { return Paused; }
    void Seek(double seconds) override { Now += seconds; }
    void SeekTo(double seconds) override { Now = seconds; }
    void StepFrame() override { ++Steps; }
    void SetRepeat(bool repeat) override { Repeat = repeat; }
    double Position() const override { return Now; }
    double Duration() const override { return Length; }
    bool Render(const PixelRows& /*target*/) override { return true; }
};

class FakeCd : public AudioCd {
public:
    explicit FakeCd(Events events) : On(std::move(events)) {}

    Events On;
    CdState Now = CdState::Closed;
    CdPosition Place;
    std::string Told; // a letter for each command

    void Fail(const Error& error) {
        Now = CdState::Closed;
        On.Failed(error);
    }

    void Open() override { Tell('o', CdState::Stopped); }
    void Close() override { Tell('c', CdState::Closed); }
    void Prev() override { Told += '<'; }
    void Next() override { Told += '>'; }
    void Play() override { Tell('p', CdState::Playing); }
    void Pause() override { Tell('=', CdState::Paused); }
    void Stop() override { Tell('s', CdState::Stopped); }
    void Eject() override { Tell('e', CdState::Closed); }
    CdState State() const override { return Now; }
    CdPosition Position() const override { return Place; }
    int Tracks() const override { return 9; }

private:
    void Tell(char letter, CdState state) {
        Told += letter;
        Now = state;
    }
};

// A machine whose devices a test looks into. It has nothing until it is given something.
class FakeMediaDevices : public MediaDevices {
public:
    bool Installed = false;
    bool Sound = false;
    std::string Drive;
    FakePlayer* Waves = nullptr; // those that have been made
    FakePlayer* Films = nullptr;
    FakeCd* Cd = nullptr;

    bool IsInstalled() const override { return Installed; }
    bool HasSound() override { return Sound; }
    std::string CdDevice() const override { return Drive; }
    std::unique_ptr<MediaPlayer> MakePlayer(MediaKind kind, MediaPlayer::Events events) override {
        if (!Installed) {
            return nullptr;
        }
        auto player = std::make_unique<FakePlayer>(std::move(events));
        (kind == MediaKind::Sound ? Waves : Films) = player.get();
        return player;
    }
    std::unique_ptr<AudioCd> MakeCd(const std::string& /*device*/,
                                    AudioCd::Events events) override {
        if (!Installed) {
            return nullptr;
        }
        auto cd = std::make_unique<FakeCd>(std::move(events));
        Cd = cd.get();
        return cd;
    }
};

} // namespace kestrova
