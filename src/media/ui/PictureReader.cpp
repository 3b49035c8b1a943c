// SPDX-License-Identifier: GPL-3.0-or-later
#include "media/ui/PictureReader.h"

#include "media/ByteFields.h"
#include "media/EmfHeader.h"
#include "media/PictureLimits.h"
#include "media/WmfFile.h"
#include "media/ui/Drawings.h"
#include "platform/qt/PlainFile.h"
#include "platform/qt/QtText.h"

#include <QBuffer>
#include <QImageReader>
#include <QImageWriter>
#include <QPainter>

#include <algorithm>
#include <utility>

namespace kestrova {

namespace {

constexpr qint64 kBeginning = 128;     // bytes that tell what a file is
constexpr int kLongestSide = 16384;    // that can be painted without trouble
constexpr int kAllocationLimit = 1024; // megabytes: the most pixels, of eight bytes each
constexpr QSize kGlance(64, 64);

enum class Kind { Unknown, Jpeg, Bitmap, Gif, Icon, Png, Wmf, Emf };

Kind KindOf(std::string_view bytes) {
    using namespace std::string_view_literals;
    static constexpr std::pair<std::string_view, Kind> kMarks[] = {
        {"\xFF\xD8\xFF"sv, Kind::Jpeg},
        {"BM"sv, Kind::Bitmap},
        {"GIF87a"sv, Kind::Gif},
        {"GIF89a"sv, Kind::Gif},
        {"\x89PNG\r\n\x1A\n"sv, Kind::Png},
        {"\0\0\1\0"sv, Kind::Icon},
        {"\0\0\2\0"sv, Kind::Icon},
    };
    if (IsEmf(bytes)) {
        return Kind::Emf;
    }
    if (IsWmf(bytes)) {
        return Kind::Wmf;
    }
    for (const auto& [mark, kind] : kMarks) {
        if (bytes.starts_with(mark)) {
            return kind;
        }
    }
    return Kind::Unknown;
}

// Named, so that no reader is tried that is not meant.
const char* FormatOf(Kind kind) {
    switch (kind) {
    case Kind::Jpeg: return "jpeg";
    case Kind::Bitmap: return "bmp";
    case Kind::Gif: return "gif";
    case Kind::Icon: return "ico";
    default: return "png";
    }
}

std::string_view View(const QByteArray& bytes) {
    return {bytes.constData(), static_cast<std::size_t>(bytes.size())};
}

Error NoPicture(const QString& path) {
    return {ErrorCode::Damaged, FromQt(path)};
}

bool IsTooLarge(const QSize& size) {
    return qint64{size.width()} * size.height() > kMostPicturePixels;
}

QSize Covering(const QSize& whole, const QSize& area) {
    QSize shown = area.isEmpty() ? whole : whole.scaled(area, Qt::KeepAspectRatioByExpanding);
    if (shown.width() > whole.width()) {
        shown = whole;
    }
    if (!area.isEmpty() && std::max(shown.width(), shown.height()) > kLongestSide) {
        shown.scale(kLongestSide, kLongestSide, Qt::KeepAspectRatio);
    }
    return shown.expandedTo({1, 1});
}

// A bitmap that ends before its rows do would be filled up with whatever lies in the memory.
bool HasAllRows(std::string_view beginning, qint64 size) {
    ByteFields fields(beginning);
    fields.Bytes(10);
    const qint64 offset = fields.UInt32();
    const bool core = fields.UInt32() == 12;
    const qint64 width = core ? static_cast<qint64>(fields.UInt16()) : fields.Int32();
    const qint64 height = core ? static_cast<qint64>(fields.UInt16()) : fields.Int32();
    fields.UInt16();
    const qint64 bits = fields.UInt16();
    const std::uint32_t packing = core ? 0 : fields.UInt32();
    if (packing == 1 || packing == 2) { // runs, which end where they end
        return true;
    }
    const qint64 rows = std::abs(height);
    return fields.Ok() && width > 0 && width * rows <= kMostPicturePixels && bits <= 32 &&
           offset + (width * bits + 31) / 32 * 4 * rows <= size;
}

// Which of an icon's pictures is the largest, and has the most colours.
int LargestOf(std::string_view directory) {
    ByteFields fields(directory);
    fields.Bytes(4);
    const int count = static_cast<int>(fields.UInt16());
    std::pair<int, unsigned> best{-1, 0};
    int index = 0;
    for (int i = 0; i < count; ++i) {
        const int width = fields.Byte();
        const int height = fields.Byte();
        fields.Bytes(4);
        const unsigned bits = fields.UInt16();
        fields.Bytes(8);
        const std::pair found{(width == 0 ? 256 : width) * (height == 0 ? 256 : height), bits};
        if (fields.Ok() && found > best) {
            best = found;
            index = i;
        }
    }
    return index;
}

Result<QImage> ReadPixels(PlainFile& file, Kind kind, const QString& path, const QSize& area) {
    QImageReader reader(&file, FormatOf(kind));
    reader.setAutoDetectImageFormat(false);
    reader.setAutoTransform(true);
    if (kind == Kind::Icon) {
        reader.jumpToImage(LargestOf(View(file.peek(kBeginning * 64))));
    }
    const QSize whole = reader.size();
    if (IsTooLarge(whole)) {
        return Error{ErrorCode::TooLarge, FromQt(path)};
    }
    if (whole.isValid() && !area.isEmpty()) {
        const bool lying =
            reader.transformation().testFlag(QImageIOHandler::TransformationRotate90);
        const QSize shown = Covering(whole, lying ? area.transposed() : area);
        if (shown != whole) {
            reader.setScaledSize(shown);
        }
    }
    QImage image = reader.read();
    if (file.Stopped()) {
        return Error{ErrorCode::Failed, FromQt(path)};
    }
    if (image.isNull() || IsTooLarge(image.size())) {
        return NoPicture(path);
    }
    image.setDevicePixelRatio(1);
    const QSize shown = Covering(image.size(), area);
    return shown == image.size()
               ? image
               : image.scaled(shown, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

} // namespace

Result<QImage> ReadPicture(const QString& path, const QSize& area, const std::stop_token& stop) {
    // One number for the whole program; the bounds here are narrower than it, but for what hides
    // within an icon.
    static const bool limited = (QImageReader::setAllocationLimit(kAllocationLimit), true);
    static_cast<void>(limited);
    const auto opened = PlainFile::Open(path, kMostPictureBytes, stop);
    if (!opened) {
        return opened.Failure();
    }
    PlainFile& file = *opened.Value();
    const QByteArray beginning = file.peek(kBeginning);
    const Kind kind = KindOf(View(beginning));
    switch (kind) {
    case Kind::Unknown: return NoPicture(path);
    case Kind::Emf: return DrawEmf(path, beginning, area, stop);
    case Kind::Wmf:
        if (file.size() > static_cast<qint64>(kMostDrawingBytes)) {
            return Error{ErrorCode::TooLarge, FromQt(path)};
        }
        return DrawWmf(file.readAll(), area, stop);
    case Kind::Bitmap:
        if (!HasAllRows(View(beginning), file.size())) {
            return NoPicture(path);
        }
        break;
    default: break;
    }
    return ReadPixels(file, kind, path, area);
}

Status CheckPicture(const std::string& path) {
    const auto picture = ReadPicture(ToQt(path), kGlance);
    return picture ? Status(Done{}) : Status(picture.Failure());
}

Status SavePicture(FileStore& files, const std::string& source, const std::string& target) {
    const auto picture = ReadPicture(ToQt(source));
    if (!picture) {
        return picture.Failure();
    }
    QImage image = picture.Value();
    if (image.hasAlphaChannel()) {
        QImage flat(image.size(), QImage::Format_RGB32);
        if (flat.isNull()) {
            return Error{ErrorCode::Failed, source};
        }
        flat.fill(Qt::white);
        QPainter(&flat).drawImage(0, 0, image);
        image = flat;
    }
    image = image.convertToFormat(QImage::Format_RGB888);
    QBuffer bytes;
    bytes.open(QIODevice::WriteOnly);
    if (image.isNull() || !QImageWriter(&bytes, "bmp").write(image)) {
        return Error{ErrorCode::Failed, source};
    }
    return files.Replace(target, View(bytes.data()));
}

} // namespace kestrova
