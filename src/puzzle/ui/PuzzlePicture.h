// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Result.h"

#include <QColor>
#include <QImage>

#include <string>
#include <string_view>

namespace kestrova {

// A picture as a puzzle shows it: of no more pixels than cover `most`, since more are never seen,
// and with `ground` where it is transparent. Null when there is no picture, or no memory for it.
[[nodiscard]] QImage PuzzlePicture(const QImage& picture, const QSize& most, const QColor& ground);

// Such a picture as the bytes of a bitmap file that can be cut: of 8 bits when it has a palette,
// else of 24. Failed when it cannot be saved so.
[[nodiscard]] Result<std::string> BitmapOf(const QImage& picture);

// The picture in the bytes of a bitmap file. Damaged when there is none.
[[nodiscard]] Result<QImage> PictureOf(std::string_view bitmap);

} // namespace kestrova
