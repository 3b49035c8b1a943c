// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/qt/PlainFile.h"

#include "platform/qt/QtText.h"

#include <cerrno>
#include <cstring>

#include <fcntl.h>
#include <sys/stat.h>

namespace kestrova {

namespace {

Error SystemError(const QString& path) {
    const int number = errno;
    ErrorCode code = ErrorCode::Failed;
    if (number == ENOENT || number == ENOTDIR) {
        code = ErrorCode::NotFound;
    } else if (number == EACCES || number == EPERM) {
        code = ErrorCode::Busy;
    }
    return {code, std::string(std::strerror(number)) + "\n" + FromQt(path)};
}

} // namespace

Result<std::unique_ptr<PlainFile>> PlainFile::Open(const QString& path, std::size_t limit,
                                                   std::stop_token stop) {
    std::unique_ptr<PlainFile> plain(new PlainFile(std::move(stop)));
    const int number =
        ::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (number < 0) {
        return SystemError(path);
    }
    // The file takes over what is open before anything else can fail.
    if (!plain->file_.open(number, QIODevice::ReadOnly | QIODevice::Unbuffered,
                           QFileDevice::AutoCloseHandle)) {
        return Error{ErrorCode::Failed, FromQt(path)};
    }
    struct stat info {};
    if (::fstat(number, &info) != 0) {
        return SystemError(path);
    }
    if (!S_ISREG(info.st_mode)) {
        return Error{ErrorCode::Damaged, FromQt(path)};
    }
    if (info.st_size < 0 || static_cast<std::size_t>(info.st_size) > limit) {
        return Error{ErrorCode::TooLarge, FromQt(path)};
    }
    plain->open(QIODevice::ReadOnly);
    return plain;
}

bool PlainFile::Stopped() const {
    return stop_.stop_requested() || time_.elapsed() > kMostTime;
}

bool PlainFile::seek(qint64 position) {
    return QIODevice::seek(position) && file_.seek(position);
}

qint64 PlainFile::readData(char* data, qint64 most) {
    return Stopped() ? -1 : file_.read(data, most);
}

} // namespace kestrova
