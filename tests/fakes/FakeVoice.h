// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/VoiceEngine.h"

#include <algorithm>
#include <string>
#include <vector>

namespace kestrova {

// A voice that takes a tenth of a second for each byte and says "a" all the time.
class FakeVoice : public VoiceEngine {
public:
    static constexpr int kRate = 1000;
    static constexpr std::size_t kSamplesAByte = 100;

    std::vector<std::string> Locales{"en", "fr", "de", "es", "pt-BR", "it", "nl", "el"};
    std::vector<std::string> Asked;
    std::vector<std::string> Said;
    std::vector<VoiceChoice> Choices;

    bool HasVoice(const std::string& locale) override {
        Asked.push_back(locale);
        return std::find(Locales.begin(), Locales.end(), locale) != Locales.end();
    }

    Result<SpokenSound> Say(const std::string& text, const VoiceChoice& choice) override {
        Said.push_back(text);
        Choices.push_back(choice);
        if (!HasVoice(choice.Locale)) {
            return Error{ErrorCode::NotFound, choice.Locale};
        }
        return SpokenSound{
            std::vector<std::int16_t>(text.size() * kSamplesAByte, 1000), kRate, {{0, "a"}}};
    }
};

} // namespace kestrova
