// SPDX-License-Identifier: GPL-3.0-or-later
#include "speech/ui/CharacterFace.h"

#include "platform/qt/Compositing.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace kestrova {

namespace {

// How opaque a pixel must be to belong to the window: where nothing shows through windows, what is
// fainter would be a black seam.
constexpr int kFaintest = 1;
constexpr int kFaintestAlone = 128;

constexpr std::array<std::string_view, kMouthShapes> kMouthLayers = {
    "mouth-closed", "mouth-small", "mouth-wide", "mouth-open", "mouth-round", "mouth-teeth"};

bool IsSeen(const QImage& image, const QRect& block, int faintest) {
    const QRect inside = block & image.rect();
    for (int row = inside.top(); row <= inside.bottom(); ++row) {
        const auto* const pixels = reinterpret_cast<const QRgb*>(image.constScanLine(row));
        if (std::any_of(pixels + inside.left(), pixels + inside.right() + 1,
                        [faintest](QRgb pixel) { return qAlpha(pixel) >= faintest; })) {
            return true;
        }
    }
    return false;
}

} // namespace

QRegion SeenRegion(const QImage& image) {
    const qreal scale = image.devicePixelRatio();
    const QSize size = image.deviceIndependentSize().toSize();
    const int faintest = IsComposited() ? kFaintest : kFaintestAlone;
    const int block = static_cast<int>(std::ceil(scale));
    const auto isSeen = [&](int x, int y) {
        return IsSeen(image,
                      {static_cast<int>(x * scale), static_cast<int>(y * scale), block, block},
                      faintest);
    };
    std::vector<QRect> spans;
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            const int begin = x;
            while (x < size.width() && isSeen(x, y)) {
                ++x;
            }
            if (x > begin) {
                spans.emplace_back(begin, y, x - begin, 1);
            }
        }
    }
    QRegion region;
    region.setRects(spans.data(), static_cast<int>(spans.size()));
    return region;
}

CharacterFace::CharacterFace(const CharacterFigure& figure, VectorArt& art, const QSize& size,
                             qreal scale)
    : scale_(scale) {
    const QSize pixels(static_cast<int>(std::lround(size.width() * scale)),
                       static_cast<int>(std::lround(size.height() * scale)));
    for (const CharacterLayer& layer : figure.Layers) {
        QImage image(pixels, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        if (!art.Draw(layer.Document, {reinterpret_cast<std::byte*>(image.bits()), image.width(),
                                       image.height(), image.bytesPerLine()})) {
            layers_.clear();
            return;
        }
        image.setDevicePixelRatio(scale);
        QRegion seen = SeenRegion(image);
        const QRect bounds = seen.boundingRect().adjusted(-1, -1, 1, 1);
        const QRect inPixels =
            QRectF(bounds.topLeft() * scale, QSizeF(bounds.size()) * scale).toAlignedRect();
        QImage cut = image.copy(inPixels);
        cut.setDevicePixelRatio(scale);
        cut.setOffset(inPixels.topLeft());
        layers_.push_back({layer.Id, std::move(cut), std::move(seen)});
    }
}

std::string CharacterFace::MouthLayer(MouthShape shape) const {
    const auto has = [this](std::string_view id) {
        return std::any_of(layers_.begin(), layers_.end(),
                           [id](const Layer& layer) { return layer.Id == id; });
    };
    const std::string_view wanted = kMouthLayers[static_cast<std::size_t>(shape)];
    return std::string(has(wanted) ? wanted : "mouth-open");
}

bool CharacterFace::IsShown(const Layer& layer, const CharacterPose& pose) const {
    const std::string_view id = layer.Id;
    if (id.starts_with("mouth-")) {
        return id == MouthLayer(pose.Mouth);
    }
    if (id.starts_with("eyes-")) {
        return id == (pose.EyesOpen ? "eyes-open" : "eyes-closed");
    }
    if (id.starts_with("gesture-")) {
        return id == "gesture-" + std::to_string(pose.GestureFrame);
    }
    return id != "rest" || pose.GestureFrame == 0;
}

void CharacterFace::Draw(QPainter& painter, const CharacterPose& pose) const {
    for (const Layer& layer : layers_) {
        if (IsShown(layer, pose)) {
            painter.drawImage(QPointF(layer.Picture.offset()) / scale_, layer.Picture);
        }
    }
}

QRegion CharacterFace::Region(const CharacterPose& pose) const {
    QRegion region;
    for (const Layer& layer : layers_) {
        if (IsShown(layer, pose)) {
            region += layer.Seen;
        }
    }
    return region;
}

} // namespace kestrova
