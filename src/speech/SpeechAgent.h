// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/MediaDevices.h"
#include "platform/VoiceEngine.h"
#include "speech/CharacterStage.h"

#include <deque>
#include <memory>
#include <string>
#include <utility>

namespace kestrova {

enum class AudioStatus { Available = 0, Speaking = 4 };

// Lets the character speak: what is to be said is said one text after the other, heard through the
// sound card, with the mouth and the balloon going along. Where nothing can be heard the balloon
// shows the words for as long as they would take.
class SpeechAgent {
public:
    struct Rooms {
        VoiceEngine& Voice;
        MediaDevices& Devices;
        CharacterStage& Stage;
    };

    SpeechAgent(const Rooms& rooms, std::function<void()> clicked);
    ~SpeechAgent();
    SpeechAgent(const SpeechAgent&) = delete;
    SpeechAgent& operator=(const SpeechAgent&) = delete;

    void Load(CharacterFigure figure) { rooms_.Stage.Load(std::move(figure)); }

    // Hides it first, silent.
    void Unload();

    void Show();

    // It goes when it has said what it was given, at once when that is nothing.
    void Hide();
    [[nodiscard]] bool IsVisible() const { return rooms_.Stage.IsVisible(); }

    // Begins to speak and returns. The text may begin with marks of pitch and speed; without them
    // the character has its own.
    void Speak(const std::string& text, const std::string& locale);

    // Falls silent at once and forgets what waits.
    void Stop();

    [[nodiscard]] AudioStatus Status() const {
        return speaking_ ? AudioStatus::Speaking : AudioStatus::Available;
    }

private:
    struct Words {
        std::string Text;
        VoiceChoice Voice;
    };

    void BeginNext();
    [[nodiscard]] bool Begin(const Words& words);
    [[nodiscard]] bool PlaySound(const SpokenSound& sound);
    void SoundEnded(MediaEnd end);
    void SayingEnded();

    Rooms rooms_;
    std::deque<Words> waiting_;
    Saying saying_;
    std::unique_ptr<MediaPlayer> player_; // made with the first words
    bool speaking_ = false;
    bool hideAfterwards_ = false;
};

} // namespace kestrova
