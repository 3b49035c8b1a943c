// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Result.h"

#include <QByteArray>
#include <QImage>
#include <QString>

#include <stop_token>

namespace kestrova {

// Drawings are orders, not pixels: they are made in the size that is wanted, on white paper. The
// area is that of ReadPicture; a drawing for no area in particular is made as large as it says,
// within sensible bounds.

// A Windows metafile in these bytes.
[[nodiscard]] Result<QImage> DrawWmf(const QByteArray& bytes, const QSize& area,
                                     const std::stop_token& stop);

// An enhanced metafile at this path, whose first bytes are given. It is drawn by a program of its
// own, which may crash or hang as it likes over what it is given.
[[nodiscard]] Result<QImage> DrawEmf(const QString& path, const QByteArray& beginning,
                                     const QSize& area, const std::stop_token& stop);

// How large a drawing is made that would be of this size by itself.
[[nodiscard]] QSize DrawnSize(const QSizeF& natural, const QSize& area);

} // namespace kestrova
