// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/VectorArt.h"
#include "platform/VoiceEngine.h"

#include <string>

namespace kestrova {

class SpeechFactory;

// The voices and the drawing of characters as the module beside the executable has them. It is
// loaded at the first need and stays loaded.
class SpeechModule : public VoiceEngine, public VectorArt {
public:
    // Where the module lies beside the executable that is running.
    [[nodiscard]] static std::string ShippedPath();

    explicit SpeechModule(std::string path) : path_(std::move(path)) {}

    [[nodiscard]] bool HasVoice(const std::string& locale) override;
    [[nodiscard]] Result<SpokenSound> Say(const std::string& text,
                                          const VoiceChoice& choice) override;
    [[nodiscard]] bool Draw(const std::string& svg, const PixelRows& target) override;

    // Why it could not be loaded, in the words of the system; empty while it was not tried.
    [[nodiscard]] const std::string& Trouble() const { return trouble_; }

private:
    SpeechFactory* Load();

    std::string path_;
    SpeechFactory* factory_ = nullptr; // the module's own
    std::string trouble_;
};

} // namespace kestrova
