// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/qt/QtText.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>

#include <string>
#include <vector>

namespace kestrova {

// A letter as the server got it.
struct Received {
    std::string From;
    std::vector<std::string> To;
    std::string Data;
    bool Secure = false;
};

// A mail server on 127.0.0.1, as "smtp-server.py" says, with certificates of its own. Its user is
// "jane" with this password.
class SmtpServer {
public:
    static constexpr const char* kPassword = "Geheim=\xC3\xBC 7";

    explicit SmtpServer(const char* way, const char* fault = "") {
        const QString tools = QStringLiteral(MAIL_TEST_TOOLS "/");
        QProcess::execute(tools + QStringLiteral("make-certificates.sh"), {folder_.path()});
        server_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        server_.start(QStringLiteral("python3"),
                      {tools + QStringLiteral("smtp-server.py"), folder_.path(),
                       QString::fromLatin1(way), QString::fromLatin1(fault)});
        server_.waitForReadyRead(20'000);
        Port = server_.readLine().trimmed().toInt();
    }
    ~SmtpServer() {
        server_.kill();
        server_.waitForFinished();
    }
    SmtpServer(const SmtpServer&) = delete;
    SmtpServer& operator=(const SmtpServer&) = delete;
    SmtpServer(SmtpServer&&) = delete;
    SmtpServer& operator=(SmtpServer&&) = delete;

    int Port = 0;

    [[nodiscard]] std::string CaFile() const {
        return FromQt(folder_.filePath(QStringLiteral("ca.pem")));
    }

    [[nodiscard]] std::vector<Received> Letters() const {
        std::vector<Received> letters;
        const QDir folder(folder_.path());
        for (const QString& name :
             folder.entryList({QStringLiteral("*.json")}, QDir::Files, QDir::Name)) {
            const QJsonObject json = QJsonDocument::fromJson(Content(name)).object();
            Received letter{FromQt(json[QLatin1String("from")].toString()),
                            {},
                            FromQt(json[QLatin1String("data")].toString()),
                            json[QLatin1String("secure")].toBool()};
            for (const auto& to : json[QLatin1String("to")].toArray()) {
                letter.To.push_back(FromQt(to.toString()));
            }
            letters.push_back(std::move(letter));
        }
        return letters;
    }

    // What has been said, passwords and all.
    [[nodiscard]] std::string Log() const { return Content(QStringLiteral("log")).toStdString(); }

private:
    [[nodiscard]] QByteArray Content(const QString& name) const {
        QFile file(folder_.filePath(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    QTemporaryDir folder_;
    QProcess server_;
};

} // namespace kestrova
