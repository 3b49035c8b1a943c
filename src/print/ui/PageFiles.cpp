// SPDX-License-Identifier: GPL-3.0-or-later
#include "print/ui/PageFiles.h"

#include "media/ui/BusyCursor.h"
#include "media/ui/PictureReader.h"
#include "media/ui/WaitBeside.h"
#include "platform/qt/PageImage.h"
#include "platform/qt/QtText.h"

#include <QDateTime>
#include <QFileInfo>

namespace kestrova {

namespace {

constexpr QSize kSheet(3508, 2480); // A4 at 300 dots to the inch
constexpr std::int64_t kMostPixels = std::int64_t{192} << 20;

// A disc that does not answer is not waited for long.
constexpr std::chrono::seconds kPatience{3};

std::string StampOf(const QString& path) {
    const QFileInfo file(path);
    return FromQt(
        QStringLiteral("%1 %2").arg(file.size()).arg(file.lastModified().toMSecsSinceEpoch()));
}

struct Read {
    std::string Stamp;
    Result<QImage> Picture;
};

} // namespace

std::int64_t PageFiles::PixelsShown() const {
    std::int64_t pixels = 0;
    for (const auto& [path, shown] : shown_) {
        if (const PagePicturePtr picture = shown.Picture.lock()) {
            pixels += std::int64_t{picture->Width()} * picture->Height();
        }
    }
    return pixels;
}

Result<PagePicturePtr> PageFiles::Load(const std::string& path) {
    std::erase_if(shown_, [](const auto& shown) { return shown.second.Picture.expired(); });
    const BusyCursor busy;
    std::string known;
    if (const auto found = shown_.find(path); found != shown_.end()) {
        known = found->second.Stamp;
    }
    const auto read = OutcomeBeside(
        [path = ToQt(path), known]() -> Read {
            std::string stamp = StampOf(path);
            if (stamp == known) {
                return {std::move(stamp), QImage()};
            }
            return {std::move(stamp), ReadPicture(path, kSheet)};
        },
        kPatience);
    if (!read) {
        return Error{ErrorCode::Busy, path};
    }
    if (!read->Picture) {
        return read->Picture.Failure();
    }
    if (const QImage& image = read->Picture.Value(); !image.isNull()) {
        if (PixelsShown() + std::int64_t{image.width()} * image.height() > kMostPixels) {
            return Error{ErrorCode::TooLarge, path};
        }
        const PagePicturePtr picture = std::make_shared<const PageImage>(image);
        shown_[path] = {read->Stamp, picture};
        return picture;
    }
    if (PagePicturePtr picture = shown_[path].Picture.lock()) {
        return picture;
    }
    return Load(path); // it has gone from the page meanwhile
}

} // namespace kestrova
