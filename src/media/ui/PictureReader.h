// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/FileStore.h"
#include "platform/Result.h"

#include <QImage>
#include <QString>

#include <stop_token>

namespace kestrova {

// Pictures are read here and nowhere else: photographs (jpg), bitmaps (bmp), gif, ico, png, and the
// drawings of Windows (wmf, emf). What a file is, its content says, not its name. Of a gif the
// first picture is taken, of an ico the largest; a photograph is turned as its camera was held.
//
// All of this may be called in any thread, takes as long as it takes, and returns soon after `stop`
// was requested.

// Reads a picture whole, or, given an area in pixels, no larger than it takes to cover the area
// with its shape kept; nothing is ever made larger than it is, except a drawing, which is made for
// the area. NotFound, Busy, Damaged (no picture, or none that can be read), TooLarge (more bytes or
// pixels than any sensible picture has) or Failed (no memory, stopped).
[[nodiscard]] Result<QImage> ReadPicture(const QString& path, const QSize& area = {},
                                         const std::stop_token& stop = {});

// Whether a file can be read as a picture.
[[nodiscard]] Status CheckPicture(const std::string& path);

// Writes a picture, whole and the right way up, as a bitmap of 24 bits. What is transparent becomes
// white. The target stays as it was unless all went well.
[[nodiscard]] Status SavePicture(FileStore& files, const std::string& source,
                                 const std::string& target);

} // namespace kestrova
