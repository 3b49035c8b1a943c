// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/qt/PageImage.h"

#include <algorithm>
#include <cassert>

namespace kestrova {

namespace {

constexpr std::size_t kKept = 3; // sizes at a time: the page, and the page in another window

QImage Smaller(const QImage& image, const QSize& size) {
    return image.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

} // namespace

PageImage::PageImage(const QImage& image)
    : image_(image.convertToFormat(image.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied
                                                           : QImage::Format_RGB32)) {
    assert(!image.isNull());
    image_.setDevicePixelRatio(1);
}

// While a picture is being sized by hand, each new size is made from few pixels instead of all.
const QImage& PageImage::HalvedDownTo(const QSize& size) const {
    const QImage* best = &image_;
    for (std::size_t i = 0;; ++i) {
        const QSize half(best->width() / 2, best->height() / 2);
        if (half.width() < size.width() || half.height() < size.height()) {
            return *best;
        }
        if (i == halves_.size()) {
            halves_.push_back(Smaller(*best, half));
        }
        best = &halves_[i];
    }
}

QImage PageImage::Scaled(const QSize& size) const {
    const QSize wanted = size.boundedTo(image_.size()).expandedTo({1, 1});
    if (wanted == image_.size()) {
        return image_;
    }
    const auto known = std::find_if(scaled_.begin(), scaled_.end(),
                                    [&](const QImage& kept) { return kept.size() == wanted; });
    if (known != scaled_.end()) {
        std::rotate(scaled_.begin(), known, known + 1);
        return scaled_.front();
    }
    if (scaled_.size() >= kKept) {
        scaled_.pop_back();
    }
    // No copy is made of the halves where they are the size that is wanted.
    const QImage& source = HalvedDownTo(wanted);
    scaled_.insert(scaled_.begin(), source.size() == wanted ? source : Smaller(source, wanted));
    return scaled_.front();
}

} // namespace kestrova
