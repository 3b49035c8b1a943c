// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTcpServer>
#include <QTcpSocket>

#include <memory>
#include <vector>

namespace kestrova {

// Stands before a real scheduler and passes everything on, until a connection has brought so many
// bytes: from then on nothing comes or goes there, though it stays open, or it is broken off. With
// none to pass on, it is a system that never says a word. It works while events go on.
class SlowCups {
public:
    enum class Then { Silence, HangUp };

    SlowCups(int scheduler, qint64 most, Then then = Then::Silence);

    [[nodiscard]] int Port() const { return server_.serverPort(); }
    [[nodiscard]] bool IsStuck() const { return stuck_; }

private:
    void Accept(int scheduler, qint64 most, Then then);

    bool stuck_ = false;
    std::vector<std::unique_ptr<QTcpSocket>> onward_;
    QTcpServer server_;
};

inline SlowCups::SlowCups(int scheduler, qint64 most, Then then) {
    server_.listen(QHostAddress::LocalHost);
    QObject::connect(&server_, &QTcpServer::newConnection, &server_,
                     [this, scheduler, most, then] { Accept(scheduler, most, then); });
}

inline void SlowCups::Accept(int scheduler, qint64 most, Then then) {
    QTcpSocket* const from = server_.nextPendingConnection(); // the server's child
    from->setReadBufferSize(65'536);
    if (most == 0) {
        stuck_ = true;
        return;
    }
    onward_.push_back(std::make_unique<QTcpSocket>());
    QTcpSocket* const to = onward_.back().get();
    to->connectToHost(QHostAddress::LocalHost, static_cast<quint16>(scheduler));
    const auto passed = std::make_shared<qint64>(0);
    QObject::connect(from, &QTcpSocket::readyRead, to, [this, from, to, passed, most, then] {
        if (*passed >= most) {
            stuck_ = true;
            if (then == Then::HangUp) {
                from->abort();
            }
            return;
        }
        *passed += to->write(from->readAll());
    });
    QObject::connect(to, &QTcpSocket::readyRead, from, [from, to, passed, most] {
        if (*passed < most) {
            from->write(to->readAll());
        }
    });
    QObject::connect(from, &QTcpSocket::disconnected, to, &QTcpSocket::disconnectFromHost);
}

} // namespace kestrova
