// SPDX-License-Identifier: GPL-3.0-or-later
#include "media/MediaService.h"

#include "language/Texts.h"
#include "media/MediaFiles.h"

#include <algorithm>
#include <cmath>

namespace kestrova {

namespace {

constexpr double kJump = 10;           // seconds
constexpr double kStepBack = 1.0 / 25; // one picture of most films, in seconds
constexpr int kSecondsAMinute = 60;
constexpr int kSecondsAnHour = 3600;
constexpr double kLongest = 360000; // seconds; what a damaged file claims beyond is not shown

std::string TwoDigits(int number) {
    return (number < 10 ? "0" : "") + std::to_string(number);
}

// "1:05", "1:02:07"
std::string PlayingTime(double seconds) {
    const int whole =
        std::isfinite(seconds) ? static_cast<int>(std::clamp(seconds, 0.0, kLongest)) : 0;
    const int hours = whole / kSecondsAnHour;
    const int minutes = whole / kSecondsAMinute % kSecondsAMinute;
    const std::string rest = ":" + TwoDigits(whole % kSecondsAMinute);
    return hours > 0 ? std::to_string(hours) + ":" + TwoDigits(minutes) + rest
                     : std::to_string(minutes) + rest;
}

} // namespace

MediaService::MediaService(const Rooms& rooms, std::function<void(const std::string&)> tell)
    : rooms_(rooms), tell_(std::move(tell)) {}

MediaService::~MediaService() = default;

void MediaService::SoundIni() {
    videoAvailable_ = rooms_.Devices.IsInstalled();
}

void MediaService::MusicIni() {
    cdUnavailable_ = !rooms_.Devices.IsInstalled() || rooms_.Devices.CdDevice().empty();
}

bool MediaService::SoundWorks() const {
    return rooms_.Devices.HasSound();
}

void MediaService::ShowChange() {
    if (window_ != nullptr) {
        window_->ShowMedia();
    }
}

MediaViewMode MediaService::View() const {
    if (full_) {
        return MediaViewMode::Full;
    }
    return half_ ? MediaViewMode::Half : MediaViewMode::Normal;
}

// ---- sounds ----

void MediaService::MakeSound(const std::string& path) {
    if (!IsWaveFile(path) && videoAvailable_) {
        PlayFile(path);
        return;
    }
    if (soundPlaying_) {
        return;
    }
    if (!sound_) {
        sound_ = rooms_.Devices.MakePlayer(MediaKind::Sound,
                                           {[this](MediaEnd end, const std::string& /*words*/) {
                                                soundPlaying_ = false;
                                                if (end == MediaEnd::Failed) {
                                                    rooms_.Bell.Beep();
                                                }
                                            },
                                            {},
                                            {}});
    }
    if (!sound_) {
        rooms_.Bell.Beep();
        return;
    }
    soundPlaying_ = true;
    sound_->Play(path);
}

// ---- films and music files ----

bool MediaService::LoadClip() {
    if (!clip_) {
        clip_ = rooms_.Devices.MakePlayer(
            MediaKind::Video,
            {[this](MediaEnd end, const std::string& words) { ClipEnded(end, words); },
             [this] { ClipFrame(); },
             [this] {
                 clipMoved_ = true;
                 ShowChange();
             }});
    }
    videoAvailable_ = clip_ != nullptr;
    return videoAvailable_;
}

void MediaService::PlayFile(const std::string& path) {
    if (!LoadClip()) {
        tell_(TextOf(rooms_.Texts, ProgramText::MediaFailed, path));
        return;
    }
    const bool film = IsVideoFile(path);
    VideoCleanUp();
    if (music_ && music_->State() == CdState::Playing) {
        music_->Pause();
    }
    clipPath_ = path;
    clipPlaying_ = true;
    clipMoved_ = false;
    display_ = film ? MediaDisplay::Opening : MediaDisplay::Picture;
    clip_->SetRepeat(film && rooms_.Settings.VideoRepeat != 0);
    clip_->Play(path);
    ShowChange();
}

// A film is shown from its first picture on; until then the month's picture stays.
void MediaService::ClipFrame() {
    if (!clipPlaying_) {
        return;
    }
    if (display_ != MediaDisplay::Video) {
        display_ = MediaDisplay::Video;
        full_ = full_ || rooms_.Settings.VideoFullScreen != 0;
        ShowChange();
    }
    if (window_ != nullptr) {
        window_->ShowFrame();
    }
}

void MediaService::ClipEnded(MediaEnd end, const std::string& words) {
    const std::string path = clipPath_;
    VideoCleanUp();
    if (end == MediaEnd::Failed) {
        tell_(TextOf(rooms_.Texts, ProgramText::MediaFailed, path) +
              (words.empty() ? "" : "\n" + words));
    }
}

void MediaService::VideoCleanUp() {
    if (!clipPlaying_) {
        return;
    }
    clip_->Stop();
    clipPlaying_ = false;
    if (std::exchange(display_, MediaDisplay::Picture) != MediaDisplay::Picture) {
        full_ = false; // a song leaves the full view of the picture alone
    }
    if (std::exchange(halfForClip_, false)) {
        half_ = false;
    }
    ShowChange();
}

void MediaService::CleanUp() {
    VideoCleanUp();
    SwitchCd(false);
    full_ = false;
    half_ = false;
    ShowChange();
}

void MediaService::SettingsChanged() {
    if (clipPlaying_ && display_ != MediaDisplay::Picture) {
        clip_->SetRepeat(rooms_.Settings.VideoRepeat != 0);
    }
}

bool MediaService::IsPaused() const {
    if (clipPlaying_) {
        return clip_->IsPaused();
    }
    return music_ && music_->State() == CdState::Paused;
}

double MediaService::Position() const {
    return clipPlaying_ ? clip_->Position() : 0;
}

double MediaService::Duration() const {
    return clipPlaying_ ? clip_->Duration() : 0;
}

void MediaService::SeekTo(double seconds) {
    if (clipPlaying_) {
        clip_->SeekTo(seconds);
    }
}

std::string MediaService::StatusText() const {
    if (clipPlaying_) {
        return clipMoved_ ? PlayingTime(Position()) + " / " + PlayingTime(Duration())
                          : rooms_.Texts.Text(texts::kFullScreenTip);
    }
    const CdPosition place = music_ ? music_->Position() : CdPosition();
    return "(" + std::to_string(place.Track) + ") " + TwoDigits(place.Minutes) + ":" +
           TwoDigits(place.Seconds);
}

// ---- the reminders ----

void MediaService::PlayReminder(const std::string& path) {
    if (!rooms_.Files.Stamp(path)) {
        tell_(TextOf(rooms_.Texts, ProgramText::MediaGone, path));
        return;
    }
    if (!cdUnavailable_ && !cdOn_) {
        cdAsked_ = false;
        SwitchCd(true);
    }
    if (window_ != nullptr) {
        window_->BringUp();
    }
    half_ = false;
    full_ = false;
    rooms_.Settings.VideoFullScreen = 0;
    rooms_.Settings.VideoRepeat = 1;
    if (window_ != nullptr) {
        window_->SettingsChanged();
    }
    PlayFile(path);
    if (ShowsVideo()) {
        LabMusic_Click();
        halfForClip_ = true;
    }
    ShowChange();
}

void MediaService::PlayCd() {
    if (cdUnavailable_ || !LoadCd()) {
        tell_(rooms_.Texts.Text(texts::kCdInactive) + "\n" +
              rooms_.Texts.Text(texts::kAtTheMoment));
        return;
    }
    cdAsked_ = true;
    SwitchCd(true);
    music_->Play();
}

// ---- the CD ----

bool MediaService::LoadCd() {
    if (!music_) {
        music_ = rooms_.Devices.MakeCd(
            rooms_.Devices.CdDevice(),
            {[this] { ShowChange(); }, [this](const Error& error) { CdFailed(error); }});
    }
    cdUnavailable_ = music_ == nullptr;
    return !cdUnavailable_;
}

void MediaService::CdFailed(const Error& error) {
    if (music_->State() == CdState::Closed) {
        cdOn_ = false;
    }
    ShowChange();
    if (!cdAsked_) {
        return; // nobody has asked for a disc
    }
    if (error.Code == ErrorCode::NotFound) {
        tell_(TextOf(rooms_.Texts, ProgramText::CdMissing));
    } else {
        tell_(TextOf(rooms_.Texts, ProgramText::CdFailed) + "\n" + error.Text);
    }
}

void MediaService::SwitchCd(bool on) {
    if (on && LoadCd()) {
        cdOn_ = true;
        music_->Open();
    } else if (music_) {
        cdOn_ = false;
        music_->Close();
    }
    ShowChange();
}

void MediaService::ChkCD_Click(bool on) {
    half_ = false;
    halfForClip_ = false;
    cdAsked_ = on;
    SwitchCd(on);
    if (on && !cdOn_) {
        tell_(TextOf(rooms_.Texts, ProgramText::CdFailed));
    }
}

void MediaService::ControlCd(PlayerButton button) {
    if (!music_ || !cdOn_) {
        return;
    }
    cdAsked_ = true;
    switch (button) {
    case PlayerButton::Previous: music_->Prev(); break;
    case PlayerButton::Next: music_->Next(); break;
    case PlayerButton::Play: music_->Play(); break;
    case PlayerButton::Pause: music_->Pause(); break;
    case PlayerButton::Stop: music_->Stop(); break;
    case PlayerButton::Eject:
        music_->Eject();
        cdOn_ = false;
        break;
    }
}

// In a film at rest the first two buttons go by one picture.
void MediaService::ControlClip(PlayerButton button) {
    switch (button) {
    case PlayerButton::Previous: clip_->Seek(clip_->IsPaused() ? -kStepBack : -kJump); break;
    case PlayerButton::Next:
        if (clip_->IsPaused() && display_ == MediaDisplay::Video) {
            clip_->StepFrame();
        } else {
            clip_->Seek(kJump);
        }
        break;
    case PlayerButton::Play: clip_->SetPaused(false); break;
    case PlayerButton::Pause: clip_->SetPaused(!clip_->IsPaused()); break;
    case PlayerButton::Stop:
    case PlayerButton::Eject: VideoCleanUp(); break;
    }
}

void MediaService::Ctrl_Click(PlayerButton button) {
    if (clipPlaying_) {
        ControlClip(button);
    } else {
        ControlCd(button);
    }
    ShowChange();
}

// ---- the views ----

void MediaService::LabMusic_Click() {
    if (full_) {
        LeaveView();
        return;
    }
    half_ = !half_;
    halfForClip_ = false;
    ShowChange();
}

void MediaService::LabMusic_DblClick() {
    full_ = !full_;
    ShowChange();
}

void MediaService::LeaveView() {
    if (full_) {
        full_ = false;
    } else {
        half_ = false;
    }
    ShowChange();
}

} // namespace kestrova
