// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "media/WmfCanvas.h"

namespace kestrova {

// The curves of a metafile as so many straight lines that nobody sees them.

[[nodiscard]] WmfPoints EllipsePoints(const WmfBox& box);
[[nodiscard]] WmfPoints RoundBoxPoints(const WmfBox& box, double cornerWidth, double cornerHeight);

// Against the clock along the ellipse in the box, from where the line out of its centre through one
// point meets it, to the same of the other.
[[nodiscard]] WmfPoints ArcPoints(const WmfBox& box, const WmfPoint& from, const WmfPoint& to);

} // namespace kestrova
