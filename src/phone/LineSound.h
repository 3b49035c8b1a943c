// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "phone/ModemScript.h"
#include "platform/VoiceEngine.h"

#include <string>
#include <string_view>

namespace kestrova {

// Words as they go to a modem that puts them on the telephone line itself: one byte a sample,
// among which a DLE is sent twice.

// How a modem wants its samples.
enum class SampleForm {
    Unsigned, // linear, silence being 128
    Signed,   // linear, two's complement
    MuLaw     // G.711
};

struct LineFormat {
    SampleForm Form = SampleForm::Unsigned;
    int Rate = 8000; // samples a second

    bool operator==(const LineFormat&) const = default;
};

// What the last command of the set-up that chooses a form has chosen ("+VSM=1,8000", "#VSR=7200"),
// else what is usual in the family. The numbers of the methods are those of V.253 and of the
// manuals of the chips that most such modems are made with: makers who number otherwise need a
// script of their own.
[[nodiscard]] LineFormat FormatOf(const ModemScript& script);

// What begins and ends things in the stream of samples, both ways.
inline constexpr char kDle = '\x10';
inline constexpr std::string_view kEndOfSound = "\x10\x03";         // DLE ETX
inline constexpr std::string_view kDropAndEnd = "\x10\x18\x10\x03"; // DLE CAN first

// The sound at the modem's rate and in its form, every DLE doubled. No more than the first two
// minutes of it.
[[nodiscard]] std::string LineBytes(const SpokenSound& sound, const LineFormat& format);

} // namespace kestrova
