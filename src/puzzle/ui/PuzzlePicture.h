// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Result.h"

#include <QColor>
#include <QImage>

#include <string>
#include <string_view>

namespace kestrova {

// A picture as the bytes of a bitmap file that can be cut: of 8 bits when it has a palette, else of
// 24. What is transparent in it shows `ground`. Failed when it cannot be saved so.
[[nodiscard]] Result<std::string> BitmapOf(const QImage& picture, const QColor& ground);

// The picture made no larger than `most`.
[[nodiscard]] QImage FittedTo(const QImage& picture, const QSize& most);

// The picture in the bytes of a bitmap file, no larger than `most`. Damaged when there is none.
[[nodiscard]] Result<QImage> PictureOf(std::string_view bitmap, const QSize& most);

} // namespace kestrova
