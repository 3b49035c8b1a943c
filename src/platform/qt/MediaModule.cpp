// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/qt/MediaModule.h"

#include "platform/posix/CdDrive.h"
#include "platform/qt/QtText.h"
#include "platform/qt/media/MediaFactory.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QLibrary>

namespace kestrova {

namespace {

// The list by which the system finds libraries, and its own way to name another folder for them.
constexpr auto kLibraryList = "/etc/ld.so.cache";
constexpr auto kLibraryFolders = "LD_LIBRARY_PATH";

QByteArray ContentOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// The file name of a library as the module asks for it, "libmpv.so.2"; empty when it does not.
QByteArray AskedFor(const QByteArray& module, const QByteArray& library) {
    const auto begin = module.indexOf(library + ".so.");
    return begin < 0 ? QByteArray() : QByteArray(module.constData() + begin);
}

bool IsThere(const QByteArray& list, const QByteArray& library) {
    for (const QByteArray& folder : qgetenv(kLibraryFolders).split(':')) {
        if (!folder.isEmpty() && QFileInfo::exists(QFile::decodeName(folder + '/' + library))) {
            return true;
        }
    }
    // Where there is no such list we do not know, and loading will tell.
    return list.isEmpty() || list.contains('/' + library + '\0');
}

} // namespace

std::string MediaModule::ShippedPath() {
    return FromQt(QCoreApplication::applicationDirPath() + QStringLiteral("/kestrova_media.so"));
}

MediaModule::MediaModule(std::string path, std::string cdDevice)
    : path_(std::move(path)), cdDevice_(std::move(cdDevice)) {}

bool MediaModule::IsInstalled() const {
    if (factory_ != nullptr || !trouble_.empty()) {
        return factory_ != nullptr;
    }
    const QByteArray module = ContentOf(ToQt(path_));
    const QByteArray list = ContentOf(QString::fromLatin1(kLibraryList));
    const auto isThere = [&](const char* library) {
        return IsThere(list, AskedFor(module, library));
    };
    return !module.isEmpty() && isThere("libmpv") && isThere("libcdio") && isThere("libpulse");
}

MediaFactory* MediaModule::Load() {
    if (factory_ != nullptr || !trouble_.empty()) {
        return factory_;
    }
    QLibrary library(ToQt(path_));
    // Threads of the libraries may outlive all players.
    library.setLoadHints(QLibrary::PreventUnloadHint);
    const auto entry = reinterpret_cast<MediaEntry>(library.resolve(kMediaEntryName));
    if (entry == nullptr) {
        trouble_ = FromQt(library.errorString());
        return nullptr;
    }
    factory_ = entry();
    return factory_;
}

bool MediaModule::HasSound() {
    MediaFactory* const factory = Load();
    return factory != nullptr && factory->HasSound();
}

std::string MediaModule::CdDevice() const {
    return cdDevice_.empty() ? FindCdDrive() : cdDevice_;
}

std::unique_ptr<MediaPlayer> MediaModule::MakePlayer(MediaKind kind, MediaPlayer::Events events) {
    MediaFactory* const factory = Load();
    return factory == nullptr ? nullptr : factory->MakePlayer(kind, std::move(events));
}

std::unique_ptr<AudioCd> MediaModule::MakeCd(const std::string& device, AudioCd::Events events) {
    MediaFactory* const factory = Load();
    return factory == nullptr ? nullptr : factory->MakeCd(device, std::move(events));
}

} // namespace kestrova
