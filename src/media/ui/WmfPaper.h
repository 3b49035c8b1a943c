// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "media/WmfCanvas.h"

#include <QElapsedTimer>
#include <QImage>
#include <QPainter>

#include <stop_token>

namespace kestrova {

// Draws a Windows metafile into an image of 32 bits without transparency.
class WmfPaper : public WmfCanvas {
public:
    static constexpr qint64 kMostTime = 10'000; // milliseconds for a drawing

    // `fineness` is how many pixels of the image will be one that is seen.
    WmfPaper(QImage& image, int fineness, std::stop_token stop);

    [[nodiscard]] bool GoesOn() override;
    void Areas(const std::vector<WmfPoints>& areas, const WmfContext& context) override;
    void Line(const WmfPoints& points, const WmfContext& context) override;
    void Fill(const WmfBox& box, WmfMix mix, const WmfContext& context) override;
    void Image(const DibImage& image, const WmfBox& part, const WmfBox& box, WmfMix mix,
               const WmfContext& context) override;
    double Text(const WmfText& text, const WmfContext& context) override;

private:
    void Begin(const WmfContext& context, WmfMix mix);
    [[nodiscard]] QPen PenOf(const WmfContext& context, const QRectF& extent) const;
    [[nodiscard]] QBrush BrushOf(const WmfBrush& brush) const;
    [[nodiscard]] QFont FontOf(const WmfFont& font) const;

    QSize size_;
    int fineness_;
    std::stop_token stop_;
    QElapsedTimer time_;
    QPainter painter_;
    WmfClip clip_; // as the painter has it
};

} // namespace kestrova
