// SPDX-License-Identifier: GPL-3.0-or-later
#include "media/WmfPicture.h"
#include "media/ui/Drawings.h"
#include "media/ui/WmfPaper.h"

#include <algorithm>

namespace kestrova {

namespace {

constexpr int kSmallestDrawing = 1024; // pixels of the longer side, for no area in particular
constexpr int kLargestDrawing = 4096;
constexpr int kLongestSide = 8192;
constexpr qint64 kMostDrawnPixels = qint64{16} << 20;

// Drawn larger and made smaller again, edges are smooth, and areas that touch do so without a seam.
constexpr int kFineness = 2;

} // namespace

QSize DrawnSize(const QSizeF& natural, const QSize& area) {
    QSizeF size = natural;
    if (area.isEmpty()) {
        const double longer = std::max(size.width(), size.height());
        const double wanted = std::clamp<double>(longer, kSmallestDrawing, kLargestDrawing);
        size *= wanted / longer;
    } else {
        size.scale(area, Qt::KeepAspectRatioByExpanding);
    }
    const double longer = std::max(size.width(), size.height());
    size *= std::min(1.0, kLongestSide / longer);
    const double pixels = size.width() * size.height();
    size *= std::min(1.0, std::sqrt(static_cast<double>(kMostDrawnPixels) / pixels));
    return size.toSize().expandedTo({1, 1});
}

Result<QImage> DrawWmf(const QByteArray& bytes, const QSize& area, const std::stop_token& stop) {
    const auto picture = OpenWmf({bytes.constData(), static_cast<std::size_t>(bytes.size())});
    if (!picture) {
        return picture.Failure();
    }
    const QSize size = DrawnSize({picture.Value().Width, picture.Value().Height}, area);
    const QSize fine = size * kFineness;
    QImage image(fine, QImage::Format_RGB32);
    if (image.isNull()) {
        return Error{ErrorCode::Failed, "no memory for a drawing"};
    }
    image.fill(Qt::white);
    {
        WmfPaper paper(image, kFineness, stop);
        if (PlayWmf(picture.Value(), fine.width(), fine.height(), paper) == 0) {
            return Error{ErrorCode::Damaged, "a metafile that cannot be read"};
        }
    }
    if (stop.stop_requested()) {
        return Error{ErrorCode::Failed, "stopped"};
    }
    return image.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

} // namespace kestrova
