// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/qt/speech/SvgArt.h"

#include <QByteArray>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

namespace kestrova {

bool SvgArt::Draw(const std::string& svg, const PixelRows& target) {
    QSvgRenderer picture(QByteArray::fromRawData(svg.data(), static_cast<qsizetype>(svg.size())));
    QImage image(reinterpret_cast<uchar*>(target.Pixels), target.Width, target.Height,
                 target.RowBytes, QImage::Format_ARGB32_Premultiplied);
    if (!picture.isValid() || image.isNull()) {
        return false;
    }
    QPainter painter(&image);
    picture.render(&painter, QRectF(0, 0, target.Width, target.Height));
    return true;
}

} // namespace kestrova
