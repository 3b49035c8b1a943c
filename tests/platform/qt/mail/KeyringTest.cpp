// SPDX-License-Identifier: GPL-3.0-or-later
// The keyring through the real module, over a message bus of the test's own.
#include "platform/qt/MailModule.h"
#include "platform/qt/QtEventLoop.h"

#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <csignal>
#include <memory>

namespace kestrova {
namespace {

using namespace std::chrono_literals;

class KeyringTest : public testing::Test {
protected:
    // One bus for all: a process stays on the bus that it was on first.
    static void SetUpTestSuite() {
        // The library that is on the bus ends us when the bus goes, as it is right for a session.
        std::signal(SIGTERM, SIG_IGN);
        scene_ = std::make_unique<Scene>();
    }
    static void TearDownTestSuite() { scene_.reset(); }

    static void End(QProcess& process) {
        process.kill();
        process.waitForFinished();
    }

    struct Scene {
        Scene() {
            qputenv("XDG_DATA_HOME", QFile::encodeName(Folder.path()));
            qputenv("XDG_RUNTIME_DIR", QFile::encodeName(Folder.path()));
            // A bus that starts no service by itself.
            QFile config(Folder.filePath(QStringLiteral("bus.conf")));
            EXPECT_TRUE(config.open(QIODevice::WriteOnly));
            config.write("<busconfig><type>session</type><listen>unix:dir=" +
                         QFile::encodeName(Folder.path()) +
                         "</listen><policy context=\"default\"><allow send_destination=\"*\" "
                         "eavesdrop=\"true\"/><allow eavesdrop=\"true\"/>"
                         "<allow own=\"*\"/></policy></busconfig>");
            config.close();
            Bus.start(QStringLiteral("dbus-daemon"),
                      {QStringLiteral("--config-file=") + config.fileName(),
                       QStringLiteral("--nofork"), QStringLiteral("--print-address")});
            Bus.waitForReadyRead(10'000);
            qputenv("DBUS_SESSION_BUS_ADDRESS", Bus.readLine().trimmed());
        }
        ~Scene() {
            End(Service);
            End(Bus);
        }
        Scene(const Scene&) = delete;
        Scene& operator=(const Scene&) = delete;
        Scene(Scene&&) = delete;
        Scene& operator=(Scene&&) = delete;

        QTemporaryDir Folder;
        QProcess Bus;
        QProcess Service;
    };

    // Starts a keyring that is open; false where none is installed.
    bool StartService() {
        if (QStandardPaths::findExecutable(QStringLiteral("gnome-keyring-daemon")).isEmpty()) {
            return false;
        }
        QProcess& service = scene_->Service;
        if (service.state() == QProcess::Running) {
            return true;
        }
        service.start(QStringLiteral("gnome-keyring-daemon"),
                      {QStringLiteral("--foreground"), QStringLiteral("--unlock"),
                       QStringLiteral("--components=secrets")});
        service.write("open"); // the keyring's own password
        service.closeWriteChannel();
        MailModule mail(KESTROVA_MAIL, {}, 10s);
        return QtEventLoop().WaitUntil(
            [&] {
                const auto read = mail.Read("nobody");
                return !read && read.Failure().Code == ErrorCode::NotFound;
            },
            10s);
    }

    static inline std::unique_ptr<Scene> scene_;
};

TEST_F(KeyringTest, WithoutAKeyringTheAnswerComesAtOnce) {
    MailModule mail(KESTROVA_MAIL, {}, 10s);
    const auto begin = std::chrono::steady_clock::now();
    EXPECT_EQ(mail.Read("jane").Failure().Code, ErrorCode::Failed);
    EXPECT_FALSE(mail.Write("jane", "secret"));
    EXPECT_LT(std::chrono::steady_clock::now() - begin, 8s);
}

TEST_F(KeyringTest, APasswordIsKeptReplacedAndFoundAgain) {
    if (!StartService()) {
        GTEST_SKIP() << "gnome-keyring is not installed";
    }
    MailModule mail(KESTROVA_MAIL, {}, 10s);
    for (const char* const password : {"s\xC3\xA9"
                                       "cret",
                                       "another"}) {
        EXPECT_TRUE(mail.Write("jane on mail", password));
        const auto kept = mail.Read("jane on mail");
        ASSERT_TRUE(kept);
        EXPECT_EQ(kept.Value(), password);
    }
}

TEST_F(KeyringTest, AKeyringThatDoesNotAnswerIsNotWaitedForAgainAndItsLateAnswerCounts) {
    if (!StartService()) {
        GTEST_SKIP() << "gnome-keyring is not installed";
    }
    EXPECT_TRUE(MailModule(KESTROVA_MAIL, {}, 10s).Write("jane", "secret"));
    const auto service = static_cast<pid_t>(scene_->Service.processId());
    ::kill(service, SIGSTOP);
    MailModule mail(KESTROVA_MAIL, {}, 500ms);
    const auto begin = std::chrono::steady_clock::now();
    EXPECT_EQ(mail.Read("jane").Failure().Code, ErrorCode::Busy);
    EXPECT_GE(std::chrono::steady_clock::now() - begin, 500ms);
    EXPECT_EQ(mail.Read("jane").Failure().Code, ErrorCode::Busy);
    EXPECT_EQ(mail.Write("jane", "other").Failure().Code, ErrorCode::Busy);
    EXPECT_LT(std::chrono::steady_clock::now() - begin, 3s);
    ::kill(service, SIGCONT);
    std::string late;
    EXPECT_TRUE(QtEventLoop().WaitUntil(
        [&] {
            const auto read = mail.Read("jane");
            late = read ? read.Value() : "";
            return read.Ok();
        },
        10s));
    EXPECT_EQ(late, "secret");
    EXPECT_TRUE(mail.Write("jane", "other"));
}

} // namespace
} // namespace kestrova
