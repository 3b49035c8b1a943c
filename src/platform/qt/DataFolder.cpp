// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/qt/DataFolder.h"

#include "platform/qt/QtText.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QStandardPaths>

namespace kestrova {

namespace {

// The entries of the shipped folder that this one has been given, a name on each line. What the
// user has deleted since stays deleted.
constexpr QLatin1String kGivenList("Shipped.lst");

QStringList ReadGiven(const QString& folder) {
    QFile file(folder + kGivenList);
    QStringList names;
    if (file.open(QIODevice::ReadOnly)) { // no list: nothing that is known of has been given
        for (const QByteArray& line : file.readAll().split('\n')) {
            names << QString::fromUtf8(line.trimmed());
        }
    }
    names.removeAll(QString());
    return names;
}

// A list that cannot be written is tried again at the next start, and what is missing then comes
// once more.
void WriteGiven(const QString& folder, const QStringList& names) {
    QSaveFile file(folder + kGivenList);
    if (file.open(QIODevice::WriteOnly)) {
        for (const QString& name : names) {
            file.write(name.toUtf8() + "\r\n");
        }
        file.commit();
    }
}

// The program and its modules are found where they are.
bool IsProgramPart(const QFileInfo& file) {
    return file.isFile() && (file.isExecutable() || file.suffix() == QLatin1String("so"));
}

bool CopyFiles(const QString& from, const QString& to) {
    if (QFileInfo(from).isFile()) {
        return QFile::copy(from, to);
    }
    QDirIterator files(from, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString source = files.next();
        const QString target = to + QLatin1Char('/') + QDir(from).relativeFilePath(source);
        if (!IsProgramPart(QFileInfo(source)) &&
            (!QDir().mkpath(QFileInfo(target).path()) || !QFile::copy(source, target))) {
            return false;
        }
    }
    return true;
}

// Puts a file, or a folder with what is in it, into its place, whole or not at all.
bool Give(const QString& from, const QString& to) {
    const QString half = to + QStringLiteral(".part");
    const auto clear = [&half] {
        QFile::remove(half);
        QDir(half).removeRecursively();
    };
    clear(); // of a start that was broken off
    const bool copied = CopyFiles(from, half);
    const bool empty = copied && !QFileInfo::exists(half); // a folder of programs
    const bool given = empty || (copied && QFile::rename(half, to));
    if (!given) {
        clear();
    }
    return given;
}

// An entry that is there is the user's and stays as it is. One that cannot be copied is tried again
// at the next start.
void GiveNew(const QString& from, const QString& to) {
    QStringList given = ReadGiven(to);
    const qsizetype before = given.size();
    for (const QFileInfo& entry :
         QDir(from).entryInfoList(QDir::Files | QDir::Dirs | QDir::NoDotAndDotDot)) {
        const QString name = entry.fileName();
        if (IsProgramPart(entry) || given.contains(name)) {
            continue;
        }
        if (QFileInfo::exists(to + name) || Give(entry.filePath(), to + name)) {
            given << name;
        }
    }
    if (given.size() != before) {
        WriteGiven(to, given);
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

void FillOwnFolder(const std::string& shipped, const std::string& own) {
    const QString from = ToQt(shipped);
    const QString to = ToQt(own);
    QDir().mkpath(to);
    GiveNew(from, to);
    RenewManual(from, to);
}

std::string FindDataFolder() {
    const QString beside = QCoreApplication::applicationDirPath() + QLatin1Char('/');
    if (QFileInfo(beside).isWritable()) {
        return FromQt(beside);
    }
    const QString own =
        QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation) + QLatin1Char('/');
    FillOwnFolder(FromQt(beside), FromQt(own));
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
