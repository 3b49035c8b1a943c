// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/MediaPlayer.h"

#include <string>

namespace kestrova {

// Draws pictures that are made of lines and surfaces.
class VectorArt {
public:
    virtual ~VectorArt() = default;

    // Draws an SVG document over what the rows hold already, its view box filling them. Their
    // fourth byte says how opaque a pixel is, and the colours are multiplied by it. False when the
    // document cannot be read, or there is nobody to draw it.
    [[nodiscard]] virtual bool Draw(const std::string& svg, const PixelRows& target) = 0;
};

} // namespace kestrova
