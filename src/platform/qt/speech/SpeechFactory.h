// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/VectorArt.h"
#include "platform/VoiceEngine.h"

namespace kestrova {

// What the speech module gives to the program that has loaded it: a voice, and the drawing of
// characters. Most starts of the program speak no word, and the libraries for both are not small.
class SpeechFactory {
public:
    virtual ~SpeechFactory() = default;

    [[nodiscard]] virtual VoiceEngine& Voice() = 0;
    [[nodiscard]] virtual VectorArt& Art() = 0;
};

// The one function that the module exports; what it returns lives as long as the process. Whoever
// changes one of the interfaces above changes the number in the name, so that a module of another
// version is refused instead of called.
using SpeechEntry = SpeechFactory* (*)();
inline constexpr const char* kSpeechEntryName = "KestrovaSpeech1";

} // namespace kestrova
