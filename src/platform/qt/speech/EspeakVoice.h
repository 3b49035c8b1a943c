// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/VoiceEngine.h"

#include <functional>

namespace kestrova {

// The voices of libespeak-ng. There is one engine in a process, which bears no two callers at a
// time: everything it does is done in a thread that ends with it. One that never comes back is left
// behind, and there are no voices from then on.
class EspeakVoice : public VoiceEngine {
public:
    [[nodiscard]] bool HasVoice(const std::string& locale) override;
    [[nodiscard]] Result<SpokenSound> Say(const std::string& text,
                                          const VoiceChoice& choice) override;

private:
    [[nodiscard]] bool Do(std::function<void()> work);

    bool stuck_ = false;
};

} // namespace kestrova
