// SPDX-License-Identifier: GPL-3.0-or-later
#include "puzzle/ui/PuzzlePicture.h"

#include "puzzle/Bitmap.h"

#include <QPainter>

namespace kestrova {

namespace {

constexpr int kPaletteBits = 8;
constexpr int kColourBits = 24;

void AddColour(std::string& bytes, QRgb colour) {
    for (const int part : {qBlue(colour), qGreen(colour), qRed(colour), 0}) {
        bytes += static_cast<char>(part);
    }
}

} // namespace

QImage PuzzlePicture(const QImage& picture, const QSize& most, const QColor& ground) {
    const QSize covering = picture.size().scaled(most, Qt::KeepAspectRatioByExpanding);
    QImage seen = covering.width() < picture.width()
                      ? picture.scaled(covering, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                      : picture;
    seen.setDevicePixelRatio(1); // pixel on pixel
    if (!seen.hasAlphaChannel()) {
        return seen;
    }
    QImage flat(seen.size(), QImage::Format_RGB32);
    if (!flat.isNull()) {
        flat.fill(ground);
        QPainter(&flat).drawImage(0, 0, seen);
    }
    return flat;
}

Result<std::string> BitmapOf(const QImage& picture) {
    // The two forms whose rows are those of a bitmap, byte for byte.
    const bool palette = picture.format() == QImage::Format_Indexed8 && picture.colorCount() > 0;
    const QImage image = palette ? picture : picture.convertToFormat(QImage::Format_BGR888);
    if (image.isNull()) {
        return Error{ErrorCode::Failed, "the picture cannot be saved as a bitmap"};
    }
    const int bits = palette ? kPaletteBits : kColourBits;
    const int colours = palette ? image.colorCount() : 0;
    const BitmapHeader header = HeaderOf(image.width(), image.height(), bits, colours);
    std::string bytes = PutHeader(header);
    bytes.reserve(header.FileSize);
    for (int i = 0; i < colours; ++i) {
        AddColour(bytes, image.color(i));
    }
    for (int row = image.height() - 1; row >= 0; --row) {
        bytes.append(reinterpret_cast<const char*>(image.constScanLine(row)),
                     RowBytes(image.width(), bits));
    }
    return bytes;
}

Result<QImage> PictureOf(std::string_view bitmap) {
    const QImage picture = QImage::fromData(
        QByteArrayView(bitmap.data(), static_cast<qsizetype>(bitmap.size())), "BMP");
    if (picture.isNull()) {
        return Error{ErrorCode::Damaged, "a piece that is no picture"};
    }
    return picture.convertToFormat(QImage::Format_RGB32);
}

} // namespace kestrova
