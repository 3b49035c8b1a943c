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

#include <string_view>

namespace kestrova {

namespace {

// How an installation is laid out, as seen from the folder of the executable: cmake/Install.cmake.
constexpr std::string_view kInstalledFiles = "../../share/kestrova/shipped/";
constexpr std::string_view kInstalledLauncher = "../../bin/kestrova";

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

// An installed file may be older than the day on which its elder was copied. So a copy bears the
// time of what it was copied from, and another time or size tells that the program ships another
// file.
bool IsCopyOf(const QFileInfo& source, const QFileInfo& target) {
    return target.exists() && source.size() == target.size() &&
           source.lastModified() == target.lastModified();
}

// A copy that could not be given its time is made again at the next start.
void CopyWithTime(const QFileInfo& source, const QString& target) {
    QFile copy(target);
    if (QFile::copy(source.filePath(), target) && copy.open(QIODevice::Append)) {
        copy.setFileTime(source.lastModified(), QFileDevice::FileModificationTime);
    }
}

// The manual is nobody's but the program's: that of another program makes room for this one's.
// Other files are not brought back: the user may have deleted them.
void RenewManual(const QString& from, const QString& to) {
    QStringList names = {QStringLiteral("Help.htm")};
    for (const QString& picture : QDir(from + QStringLiteral("Help")).entryList(QDir::Files)) {
        names << QStringLiteral("Help/") + picture;
    }
    for (const QString& name : names) {
        const QFileInfo source(from + name);
        const QFileInfo target(to + name);
        if (source.exists() && !IsCopyOf(source, target)) {
            QDir().mkpath(target.path());
            QFile::remove(target.filePath());
            CopyWithTime(source, target.filePath());
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

std::string DataFolderOf(const std::string& programFolder, const std::string& own) {
    // An installed program leaves its folder alone even when root, who can write there, runs it.
    const std::string installed = programFolder + std::string(kInstalledFiles);
    if (QFileInfo(ToQt(installed)).isDir()) {
        FillOwnFolder(installed, own);
        return own;
    }
    if (QFileInfo(ToQt(programFolder)).isWritable()) {
        return programFolder;
    }
    FillOwnFolder(programFolder, own);
    return own;
}

std::string FindDataFolder() {
    return DataFolderOf(
        FromQt(QCoreApplication::applicationDirPath() + QLatin1Char('/')),
        FromQt(QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation) +
               QLatin1Char('/')));
}

std::string AutostartFolder() {
    return FromQt(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
                  QStringLiteral("/autostart/"));
}

std::string LauncherOf(const std::string& executable) {
    const QFileInfo program(ToQt(executable));
    const QFileInfo launcher(program.path() + QLatin1Char('/') + ToQt(kInstalledLauncher));
    const bool leads =
        launcher.exists() && launcher.canonicalFilePath() == program.canonicalFilePath();
    return leads ? FromQt(QDir::cleanPath(launcher.filePath())) : executable;
}

std::string ExecutablePath() {
    return LauncherOf(FromQt(QCoreApplication::applicationFilePath()));
}

} // namespace kestrova
