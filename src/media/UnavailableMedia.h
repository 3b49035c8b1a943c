// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "media/MediaPanel.h"

namespace kestrova {

// The panel of a program that can play nothing.
class UnavailableMedia : public MediaPanel {
public:
    [[nodiscard]] bool SoundWorks() const override { return false; }
    [[nodiscard]] bool VideoWorks() const override { return false; }
    [[nodiscard]] bool CdWorks() const override { return false; }
    [[nodiscard]] bool ShowsVideo() const override { return false; }
    void MakeSound(const std::string& /*path*/) override {}
    bool PlayReminder(const std::string& /*path*/) override { return false; }
    bool PlayCd() override { return false; }
    void CleanUp() override {}
};

} // namespace kestrova
