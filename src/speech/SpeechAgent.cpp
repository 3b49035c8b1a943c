// SPDX-License-Identifier: GPL-3.0-or-later
#include "speech/SpeechAgent.h"

#include "speech/SpeechText.h"
#include "speech/WaveBytes.h"

#include <utility>

namespace kestrova {

namespace {

// How a character speaks when nobody says how: as the settings have it before they are changed.
constexpr int kOwnPitch = 50;
constexpr int kOwnSpeed = 100;

// For words that no voice can speak: the time to read them, in seconds.
constexpr double kReadingBegins = 0.8;
constexpr double kReadingOneByte = 0.07;

// How much longer than the words a player may take: one that a hanging sound server holds up is
// not waited for.
constexpr double kPatience = 4; // seconds

bool IsBlank(std::string_view text) {
    return text.find_first_not_of(" \t\r\n") == std::string_view::npos;
}

} // namespace

SpeechAgent::SpeechAgent(const Rooms& rooms, std::function<void()> clicked) : rooms_(rooms) {
    rooms_.Stage.SetEvents({std::move(clicked), [this] {
                                if (player_) {
                                    player_->Stop();
                                }
                                SayingEnded();
                            }});
}

SpeechAgent::~SpeechAgent() {
    rooms_.Stage.SetEvents({});
    Unload();
}

void SpeechAgent::Unload() {
    Stop();
    rooms_.Stage.Hide();
    rooms_.Stage.Unload();
}

void SpeechAgent::Show() {
    hideAfterwards_ = false;
    rooms_.Stage.Show();
}

void SpeechAgent::Hide() {
    hideAfterwards_ = speaking_;
    if (!speaking_) {
        rooms_.Stage.Hide();
    }
}

void SpeechAgent::Speak(const std::string& text, const std::string& locale) {
    const MarkedWords marked = ReadMarks(text);
    const VoiceChoice voice{locale, marked.Pitch.value_or(kOwnPitch),
                            marked.Speed.value_or(kOwnSpeed)};
    for (std::string& piece : CutLongPieces({marked.Words})) {
        waiting_.push_back({std::move(piece), voice});
    }
    if (!speaking_) {
        BeginNext();
    }
}

void SpeechAgent::Stop() {
    waiting_.clear();
    if (std::exchange(speaking_, false)) {
        if (player_) {
            player_->Stop();
        }
        rooms_.Stage.EndSaying();
    }
    if (std::exchange(hideAfterwards_, false)) {
        rooms_.Stage.Hide();
    }
}

void SpeechAgent::BeginNext() {
    speaking_ = false;
    while (!waiting_.empty() && !speaking_) {
        const Words words = std::move(waiting_.front());
        waiting_.pop_front();
        speaking_ = Begin(words);
    }
    if (!speaking_ && std::exchange(hideAfterwards_, false)) {
        rooms_.Stage.Hide();
    }
}

// Whether there is anything in it to be said.
bool SpeechAgent::Begin(const Words& words) {
    if (IsBlank(words.Text)) {
        return false;
    }
    saying_ = Saying{words.Text, {}, 0};
    const auto sound = rooms_.Voice.Say(words.Text, words.Voice);
    double limit = 0;
    if (sound && sound.Value().Rate > 0 && !sound.Value().Samples.empty()) {
        saying_.Mouth = MouthChanges(sound.Value());
        saying_.Seconds = static_cast<double>(sound.Value().Samples.size()) / sound.Value().Rate;
        limit = saying_.Seconds + (PlaySound(sound.Value()) ? kPatience : 0);
    } else {
        saying_.Seconds = kReadingBegins + kReadingOneByte * static_cast<double>(words.Text.size());
        limit = saying_.Seconds;
    }
    rooms_.Stage.Say(saying_, limit);
    return true;
}

bool SpeechAgent::PlaySound(const SpokenSound& sound) {
    if (!player_) {
        player_ = rooms_.Devices.MakePlayer(
            MediaKind::Sound,
            {[this](MediaEnd end, const std::string& /*words*/) { SoundEnded(end); },
             {},
             [this] {
                 if (speaking_) {
                     rooms_.Stage.SetPosition(player_->Position());
                 }
             }});
    }
    if (player_) {
        player_->PlayBytes(WaveBytes(sound));
    }
    return player_ != nullptr;
}

void SpeechAgent::SoundEnded(MediaEnd end) {
    if (!speaking_) {
        return;
    }
    if (end == MediaEnd::Failed) {
        rooms_.Stage.Say(saying_, saying_.Seconds); // in silence, then
    } else {
        SayingEnded();
    }
}

void SpeechAgent::SayingEnded() {
    if (speaking_) {
        rooms_.Stage.EndSaying();
        BeginNext();
    }
}

} // namespace kestrova
