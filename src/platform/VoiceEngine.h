// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Result.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace kestrova {

// How the mouth stands from a moment of a recording on.
struct MouthMove {
    std::size_t Sample = 0; // counted from the first one
    std::string Phoneme;    // by the engine's own name; empty in a pause

    bool operator==(const MouthMove&) const = default;
};

// Words as a voice has spoken them.
struct SpokenSound {
    std::vector<std::int16_t> Samples; // one channel
    int Rate = 0;                      // samples a second
    std::vector<MouthMove> Mouth;      // in the order of their moments
};

// Which voice speaks, and how.
struct VoiceChoice {
    std::string Locale; // "en", "pt-BR"
    int Pitch = 0;      // 50-400, as the settings have it
    int Speed = 0;      // 50-250
};

// Makes sound of words. It plays nothing.
class VoiceEngine {
public:
    virtual ~VoiceEngine() = default;

    // Whether there is a voice for a locale. Loads the engine.
    [[nodiscard]] virtual bool HasVoice(const std::string& locale) = 0;

    // Speaks a text (UTF-8). Takes milliseconds for a sentence. NotFound: no engine, or no such
    // voice. TooLarge: a text that would keep the program for too long.
    [[nodiscard]] virtual Result<SpokenSound> Say(const std::string& text,
                                                  const VoiceChoice& choice) = 0;
};

} // namespace kestrova
