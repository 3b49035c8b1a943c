// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "speech/Speaker.h"

namespace kestrova {

// A speaker without a voice: there is no character, and none can be loaded.
class SilentSpeaker : public Speaker {
public:
    [[nodiscard]] std::vector<std::string> Characters() const override { return {}; }
    bool LoadCharacter() override { return false; }
    [[nodiscard]] bool AgentLoaded() const override { return false; }
    [[nodiscard]] bool IsVisible() const override { return false; }
    void Show() override {}
    void Hide() override {}
    void Speak(const std::string& /*text*/) override {}
    [[nodiscard]] bool IsSpeaking() const override { return false; }
    [[nodiscard]] Result<SpokenSound> Record(const std::string& /*text*/) override {
        return Error{ErrorCode::NotFound, "no voice"};
    }
    [[nodiscard]] bool StopSpeaking() const override { return false; }
    void SetStopSpeaking(bool /*stop*/) override {}
    void Talk(const std::string& /*text*/, AfterSpeaking /*after*/) override {}
    void TellTime(const std::string& /*text*/, AfterSpeaking /*after*/) override {}
    [[nodiscard]] int Clicks() const override { return 0; }
    void BeginCall() override {}
    void EndCall() override {}
    void TalkInCall(const std::string& text, AfterSpeaking after) override { Talk(text, after); }
};

} // namespace kestrova
