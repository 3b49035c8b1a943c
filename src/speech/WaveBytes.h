// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/VoiceEngine.h"

#include <string>

namespace kestrova {

// A recording as the bytes of a wave file: 16 bits, one channel.
[[nodiscard]] std::string WaveBytes(const SpokenSound& sound);

} // namespace kestrova
