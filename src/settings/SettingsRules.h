// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "settings/AppSettings.h"

#include <string_view>

namespace kestrova {

// A vertical scroll bar grows downwards, what it sets grows upwards: bar and value add up to a
// number of their own. A colour's component 0-255 stands at 256 - component, so black is at the
// bottom.
inline constexpr int kColourBarSum = 256;
inline constexpr int kPitchBarSum = 450;
inline constexpr int kSpeedBarSum = 300;

// What the voices can do.
inline constexpr int kLeastPitch = 50;
inline constexpr int kGreatestPitch = 400;
inline constexpr int kLeastSpeed = 50;
inline constexpr int kGreatestSpeed = 250;

// How the program is started with the session: two bits of `AppSettings::StartOnBoot`.
inline constexpr int kStartsOnBoot = 1;
inline constexpr int kStartsHidden = 2;

// Whether a box takes this text as minutes between repeats: 2 to 999.
[[nodiscard]] bool IsRepeatMinutes(std::string_view text);

// Whether the bytes begin like a wave file.
[[nodiscard]] bool IsWave(std::string_view bytes);

} // namespace kestrova
