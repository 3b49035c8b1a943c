// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/VoiceEngine.h"

#include <string_view>
#include <vector>

namespace kestrova {

// How a mouth stands. A character has a drawing of each, or lets the next plainer one do.
enum class MouthShape {
    Closed, // m, b, p, and silence
    Small,  // most consonants, dull vowels
    Wide,   // e, i
    Open,   // a
    Round,  // o, u
    Teeth   // f, v
};
inline constexpr int kMouthShapes = 6;

// The shape for a phoneme by the engine's name for it, whatever the language.
[[nodiscard]] MouthShape MouthOf(std::string_view phoneme);

struct MouthChange {
    double Seconds = 0; // from the first sample on
    MouthShape Shape = MouthShape::Closed;

    bool operator==(const MouthChange&) const = default;
};

// The changes of shape during a recording, the last of which closes the mouth. What is too short to
// be seen is left out.
[[nodiscard]] std::vector<MouthChange> MouthChanges(const SpokenSound& sound);

} // namespace kestrova
