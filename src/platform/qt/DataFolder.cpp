// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/qt/DataFolder.h"

#include "platform/qt/QtText.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QStandardPaths>

namespace kestrova {

namespace {

// Copies what is not there yet, but for the program and its parts, which are found beside it; a
// file that is there is the user's and stays. A file that cannot be copied is missing as it would
// be from a damaged installation.
void Seed(const QString& from, const QString& to) {
    QDirIterator files(from, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString source = files.next();
        const QString target = to + QDir(from).relativeFilePath(source);
        if (QFileInfo(source).isExecutable() || QFileInfo::exists(target)) {
            continue;
        }
        QDir().mkpath(QFileInfo(target).path());
        QFile::copy(source, target);
    }
}

// The manual is nobody's but the program's: an older one makes room for that of a newer program.
// Other files are not brought back: the user may have deleted them.
void RenewManual(const QString& from, const QString& to) {
    QStringList names = {QStringLiteral("Help.htm")};
    for (const QString& picture : QDir(from + QStringLiteral("Help")).entryList(QDir::Files)) {
        names << QStringLiteral("Help/") + picture;
    }
    for (const QString& name : names) {
        const QFileInfo source(from + name);
        const QFileInfo target(to + name);
        if (source.exists() &&
            (!target.exists() || source.lastModified() > target.lastModified())) {
            QDir().mkpath(target.path());
            QFile::remove(target.filePath());
            QFile::copy(source.filePath(), target.filePath());
        }
    }
}

} // namespace

std::string FindDataFolder() {
    const QString beside = QCoreApplication::applicationDirPath() + QLatin1Char('/');
    if (QFileInfo(beside).isWritable()) {
        return FromQt(beside);
    }
    const QString own =
        QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation) + QLatin1Char('/');
    if (!QFileInfo::exists(own)) {
        QDir().mkpath(own);
        Seed(beside, own);
    } else {
        RenewManual(beside, own);
    }
    return FromQt(own);
}

std::string AutostartFolder() {
    return FromQt(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
                  QStringLiteral("/autostart/"));
}

std::string ExecutablePath() {
    return FromQt(QCoreApplication::applicationFilePath());
}

} // namespace kestrova
