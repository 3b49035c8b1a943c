// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/DrawingSurface.h"

#include <QImage>

#include <vector>

namespace kestrova {

// A picture of the page. Paper gets all its pixels; a window gets a copy of the size it needs, made
// once, however often the page is painted. Used by the thread of the windows.
class PageImage : public PagePicture {
public:
    // The image must not be empty.
    explicit PageImage(const QImage& image);

    [[nodiscard]] int Width() const override { return image_.width(); }
    [[nodiscard]] int Height() const override { return image_.height(); }

    [[nodiscard]] const QImage& Whole() const { return image_; }

    // The picture in at most so many pixels: it is made smaller, never larger.
    [[nodiscard]] QImage Scaled(const QSize& size) const;

private:
    [[nodiscard]] const QImage& HalvedDownTo(const QSize& size) const;

    QImage image_;
    mutable std::vector<QImage> halves_; // each half as wide and high as the one before
    mutable std::vector<QImage> scaled_; // the last few that were asked for
};

} // namespace kestrova
