// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/VoiceEngine.h"

#include <string>
#include <vector>

namespace kestrova {

// What becomes of the character when it has spoken.
enum class AfterSpeaking { Stay, Hide };

// The speaking character, as the rest of the program uses it.
class Speaker {
public:
    virtual ~Speaker() = default;

    // The names of the characters that there are to choose from.
    [[nodiscard]] virtual std::vector<std::string> Characters() const = 0;

    // Loads the character that the settings name; false when none can be had.
    virtual bool LoadCharacter() = 0;

    // Whether a character is loaded.
    [[nodiscard]] virtual bool AgentLoaded() const = 0;

    [[nodiscard]] virtual bool IsVisible() const = 0;
    virtual void Show() = 0;
    virtual void Hide() = 0;

    // Begins to speak and returns at once; texts are spoken one after the other.
    virtual void Speak(const std::string& text) = 0;

    // Whether words are being spoken, or wait to be.
    [[nodiscard]] virtual bool IsSpeaking() const = 0;

    // The words as the character would speak them, with the pitch and speed of the settings;
    // nothing is heard. NotFound when there is no voice.
    [[nodiscard]] virtual Result<SpokenSound> Record(const std::string& text) = 0;

    // Set when the user clicks the character, by which a spoken reminder is acknowledged.
    [[nodiscard]] virtual bool StopSpeaking() const = 0;
    virtual void SetStopSpeaking(bool stop) = 0;

    // How often the user has clicked the character while it was to be seen. Unlike the flag, which
    // ends whatever is talked, it is never set back.
    [[nodiscard]] virtual int Clicks() const = 0;

    // Speaks a text of any length and returns when it has been spoken. Nothing happens while speech
    // is switched off.
    virtual void Talk(const std::string& text, AfterSpeaking after) = 0;

    // Shows the character and speaks a short text without waiting.
    virtual void TellTime(const std::string& text, AfterSpeaking after) = 0;

    // A telephone call begins, whose open line hears what is said: until it ends, nothing is talked
    // but by TalkInCall, and no time is told. What is talked when it begins ends with the piece
    // that is being spoken. Reminders are not talked but spoken, and are not kept from anybody.
    virtual void BeginCall() = 0;
    virtual void EndCall() = 0;

    // As Talk, for the call.
    virtual void TalkInCall(const std::string& text, AfterSpeaking after) = 0;
};

// Keeps the character for a call for as long as it lives.
class KeptForCall {
public:
    explicit KeptForCall(Speaker& speech) : speech_(speech) { speech_.BeginCall(); }
    ~KeptForCall() { speech_.EndCall(); }
    KeptForCall(const KeptForCall&) = delete;
    KeptForCall& operator=(const KeptForCall&) = delete;
    KeptForCall(KeptForCall&&) = delete;
    KeptForCall& operator=(KeptForCall&&) = delete;

private:
    Speaker& speech_;
};

} // namespace kestrova
