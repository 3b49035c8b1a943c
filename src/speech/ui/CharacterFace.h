// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/VectorArt.h"
#include "speech/CharacterFigure.h"
#include "speech/MouthShapes.h"

#include <QImage>
#include <QPainter>
#include <QRegion>

#include <string_view>
#include <vector>

namespace kestrova {

// How a character looks at a moment.
struct CharacterPose {
    MouthShape Mouth = MouthShape::Closed;
    bool EyesOpen = true;
    int GestureFrame = 0; // 0 at rest

    bool operator==(const CharacterPose&) const = default;
};

// Where a picture is to be seen at all, in units of the screen.
[[nodiscard]] QRegion SeenRegion(const QImage& image);

// A character drawn in one size: a picture of each layer.
class CharacterFace {
public:
    CharacterFace() = default;

    // Draws the layers of a figure. Nothing can be shown of it when there is nobody to draw them.
    CharacterFace(const CharacterFigure& figure, VectorArt& art, const QSize& size, qreal scale);

    [[nodiscard]] bool IsEmpty() const { return layers_.empty(); }
    [[nodiscard]] qreal Scale() const { return scale_; }
    void Draw(QPainter& painter, const CharacterPose& pose) const;
    [[nodiscard]] QRegion Region(const CharacterPose& pose) const;

private:
    struct Layer {
        std::string Id;
        QImage Picture; // only as large as what is to be seen
        QRegion Seen;
    };

    [[nodiscard]] bool IsShown(const Layer& layer, const CharacterPose& pose) const;
    [[nodiscard]] std::string MouthLayer(MouthShape shape) const;

    std::vector<Layer> layers_;
    qreal scale_ = 0;
};

} // namespace kestrova
