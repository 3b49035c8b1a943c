// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>

namespace kestrova {

// Whether a sound server of the PulseAudio kind answers within the time. Starts none.
[[nodiscard]] bool SoundServerAnswers(std::chrono::milliseconds limit);

} // namespace kestrova
