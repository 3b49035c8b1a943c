// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/VectorArt.h"

namespace kestrova {

// Drawing with the toolkit's own reader of SVG.
class SvgArt : public VectorArt {
public:
    [[nodiscard]] bool Draw(const std::string& svg, const PixelRows& target) override;
};

} // namespace kestrova
