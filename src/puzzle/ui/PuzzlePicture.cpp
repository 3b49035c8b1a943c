// SPDX-License-Identifier: GPL-3.0-or-later
#include "puzzle/ui/PuzzlePicture.h"

#include "puzzle/Bitmap.h"

#include <QPainter>

namespace kestrova {

namespace {

constexpr int kPaletteBits = 8;
constexpr int kColourBits = 24;

// The picture in one of the two forms whose rows are those of a bitmap, byte for byte. Null when
// there is no memory for it.
QImage InBitmapForm(const QImage& picture, const QColor& ground) {
    if (!picture.hasAlphaChannel()) {
        const bool palette =
            picture.format() == QImage::Format_Indexed8 && picture.colorCount() > 0;
        return palette ? picture : picture.convertToFormat(QImage::Format_BGR888);
    }
    QImage flat(picture.size(), QImage::Format_RGB32);
    if (!flat.isNull()) {
        flat.fill(ground);
        QImage source = picture;
        source.setDevicePixelRatio(1); // pixel on pixel
        QPainter(&flat).drawImage(0, 0, source);
    }
    return flat.convertToFormat(QImage::Format_BGR888);
}

void AddColour(std::string& bytes, QRgb colour) {
    for (const int part : {qBlue(colour), qGreen(colour), qRed(colour), 0}) {
        bytes += static_cast<char>(part);
    }
}

} // namespace

Result<std::string> BitmapOf(const QImage& picture, const QColor& ground) {
    const Error unfit{ErrorCode::Failed, "the picture cannot be saved as a bitmap"};
    // One that is larger than what is read back is not worth the memory.
    const auto pixels =
        static_cast<std::size_t>(picture.width()) * static_cast<std::size_t>(picture.height());
    if (pixels > kMaxBitmapBytes / 3) {
        return unfit;
    }
    const QImage image = InBitmapForm(picture, ground);
    if (image.isNull()) {
        return unfit;
    }
    const bool palette = image.format() == QImage::Format_Indexed8;
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

Result<QImage> PictureOf(std::string_view bitmap, const QSize& most) {
    QImage picture = QImage::fromData(
        QByteArrayView(bitmap.data(), static_cast<qsizetype>(bitmap.size())), "BMP");
    if (picture.isNull()) {
        return Error{ErrorCode::Damaged, "a piece that is no picture"};
    }
    return FittedTo(picture, most).convertToFormat(QImage::Format_RGB32);
}

QImage FittedTo(const QImage& picture, const QSize& most) {
    const QSize size = picture.size().boundedTo(most);
    return size == picture.size()
               ? picture
               : picture.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

} // namespace kestrova
