// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/qt/QtInstanceLink.h"

#include "platform/qt/QtText.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QFileInfo>
#include <QLocalSocket>
#include <QThread>

#include <sys/stat.h>
#include <unistd.h>

namespace kestrova {

namespace {

constexpr int kPokeWait = 300;     // milliseconds for one attempt to reach the running program
constexpr int kJoinWait = 5'000;   // and for all of them
constexpr qint64 kPokeLimit = 256; // bytes; no text of the conversation is longer

// A folder that belongs to this user alone; empty when there is none to be had.
QString PrivateFolder(const QString& path) {
    const std::string native = FromQt(path);
    ::mkdir(native.c_str(), S_IRWXU);
    struct stat info {};
    const bool own = ::lstat(native.c_str(), &info) == 0 && S_ISDIR(info.st_mode) &&
                     info.st_uid == ::getuid() && (info.st_mode & (S_IRWXG | S_IRWXO)) == 0;
    return own ? path : QString();
}

QString RuntimeFolder() {
    const QString runtime = qEnvironmentVariable("XDG_RUNTIME_DIR");
    if (!runtime.isEmpty() && QFileInfo(runtime).isDir()) {
        return PrivateFolder(runtime + QStringLiteral("/kestrova"));
    }
    return PrivateFolder(QDir::tempPath() + QStringLiteral("/kestrova-%1").arg(::getuid()));
}

QString SocketPath(const QString& folder) {
    return folder + QLatin1Char('/') +
           ToQt(kInstanceTopic).replace(QLatin1Char('|'), QLatin1Char('.')) + QLatin1Char('.') +
           ToQt(kInstanceItem);
}

// Tells the running program that a newcomer is there; false when nobody answers.
bool Poke(const QString& path) {
    QLocalSocket socket;
    socket.connectToServer(path);
    if (!socket.waitForConnected(kPokeWait)) {
        return false;
    }
    socket.write(kInstancePoke.data(), static_cast<qint64>(kInstancePoke.size()));
    const bool sent = socket.waitForBytesWritten(kPokeWait);
    socket.disconnectFromServer();
    return sent;
}

} // namespace

QtInstanceLink::QtInstanceLink(const std::string& folder)
    : folder_(folder.empty() ? RuntimeFolder() : PrivateFolder(ToQt(folder))) {
    QObject::connect(&server_, &QLocalServer::newConnection, &server_, [this] { Receive(); });
}

QtInstanceLink::~QtInstanceLink() {
    server_.close();
}

InstanceRole QtInstanceLink::Join() {
    if (folder_.isEmpty()) {
        return InstanceRole::Alone;
    }
    const QString path = SocketPath(folder_);
    lock_ = std::make_unique<QLockFile>(path + QStringLiteral(".lock"));
    // Held for years by one program: its age says nothing, only whether its owner lives.
    lock_->setStaleLockTime(0);
    const QDeadlineTimer deadline(kJoinWait);
    do {
        if (lock_->tryLock(0)) {
            return Listen() ? InstanceRole::First : InstanceRole::Alone;
        }
        if (lock_->error() != QLockFile::LockFailedError) {
            return InstanceRole::Alone;
        }
        // The owner of the lock may not have come to listening yet.
        if (Poke(path)) {
            return InstanceRole::Newcomer;
        }
        QThread::msleep(20);
    } while (!deadline.hasExpired());
    // Somebody runs but is stuck. A second program on the same files would do no good.
    return InstanceRole::Newcomer;
}

bool QtInstanceLink::Listen() {
    const QString path = SocketPath(folder_);
    QLocalServer::removeServer(path); // what a killed program left
    server_.setSocketOptions(QLocalServer::UserAccessOption);
    return server_.listen(path);
}

void QtInstanceLink::Receive() {
    while (QLocalSocket* const socket = server_.nextPendingConnection()) {
        const auto read = [this, socket] {
            const std::string text = socket->read(kPokeLimit).toStdString();
            if (text.empty()) {
                return;
            }
            if (handler_) {
                handler_(text);
            } else {
                early_.push_back(text);
            }
        };
        QObject::connect(socket, &QLocalSocket::readyRead, socket, read);
        QObject::connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
        read();
    }
}

void QtInstanceLink::OnPoke(std::function<void(std::string_view)> handler) {
    handler_ = std::move(handler);
    for (const std::string& text : std::exchange(early_, {})) {
        handler_(text);
    }
}

} // namespace kestrova
