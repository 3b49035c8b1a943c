// SPDX-License-Identifier: GPL-3.0-or-later
// The desktop's notifications over a message bus of the test's own, with a service of its own that
// shows nothing and remembers everything.
#include "platform/qt/DesktopNotifier.h"

#include "platform/qt/QtEventLoop.h"
#include "platform/qt/QtText.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QFile>
#include <QLocalServer>
#include <QProcess>
#include <QTemporaryDir>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace kestrova {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;

const auto kService = QStringLiteral("org.freedesktop.Notifications");
const auto kPath = QStringLiteral("/org/freedesktop/Notifications");

class Desktop : public QDBusVirtualObject {
public:
    QStringList Can{QStringLiteral("body"), QStringLiteral("actions"),
                    QStringLiteral("body-markup")};
    bool Hangs = false;
    bool HangsAtNotify = false;
    int Questions = 0;
    std::vector<QVariantList> Shown;
    std::vector<unsigned> ClosedIds;

    [[nodiscard]] QString introspect(const QString& /*path*/) const override { return {}; }

    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override {
        ++Questions;
        const bool notify = message.member() == QStringLiteral("Notify");
        if (Hangs || (HangsAtNotify && notify)) {
            message.setDelayedReply(true);
            return true;
        }
        if (message.member() == QStringLiteral("GetCapabilities")) {
            return connection.send(message.createReply(Can));
        }
        if (notify) {
            Shown.push_back(message.arguments());
            const unsigned replaced = message.arguments().value(1).toUInt();
            return connection.send(message.createReply(replaced != 0 ? replaced : 7U));
        }
        ClosedIds.push_back(message.arguments().value(0).toUInt());
        return connection.send(message.createReply());
    }
};

// A process looks only once where its bus is: all tests have theirs in the same place.
class DesktopNotifierTest : public testing::Test {
protected:
    static void SetUpTestSuite() {
        folder_ = std::make_unique<QTemporaryDir>();
        qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=" + QFile::encodeName(Socket()));
    }
    static void TearDownTestSuite() { folder_.reset(); }

    static QString Socket() { return folder_->filePath(QStringLiteral("bus")); }

    void SetUp() override { StartBus(); }
    void TearDown() override { EndBus(); }

    void StartBus() {
        QFile config(folder_->filePath(QStringLiteral("bus.conf")));
        ASSERT_TRUE(config.open(QIODevice::WriteOnly));
        config.write(
            "<busconfig><type>session</type><listen>unix:path=" + QFile::encodeName(Socket()) +
            "</listen><policy context=\"default\"><allow send_destination=\"*\" "
            "eavesdrop=\"true\"/><allow eavesdrop=\"true\"/>"
            "<allow own=\"*\"/></policy></busconfig>");
        config.close();
        Bus.start(QStringLiteral("dbus-daemon"),
                  {QStringLiteral("--config-file=") + config.fileName(), QStringLiteral("--nofork"),
                   QStringLiteral("--print-address")});
        ASSERT_TRUE(Bus.waitForReadyRead(10'000));
    }

    void EndBus() {
        for (const QString& name : Names) {
            QDBusConnection::disconnectFromBus(name);
        }
        Names.clear();
        Bus.kill();
        Bus.waitForFinished();
        QFile::remove(Socket());
    }

    // A connection of its own: who speaks on another is somebody else.
    QDBusConnection Join(const char* name) {
        Names.push_back(QLatin1String(name));
        return QDBusConnection::connectToBus(QDBusConnection::SessionBus, Names.back());
    }

    void Serve(Desktop& desktop) {
        QDBusConnection server = Join("server");
        ASSERT_TRUE(server.registerVirtualObject(kPath, &desktop));
        ASSERT_TRUE(server.registerService(kService));
    }

    static void Say(const QDBusConnection& who, const char* signal, unsigned id,
                    const QVariant& what) {
        QDBusMessage message = QDBusMessage::createSignal(kPath, kService, QLatin1String(signal));
        message << id << what;
        EXPECT_TRUE(who.send(message));
    }

    static bool Await(const std::function<bool()>& condition) {
        return QtEventLoop().WaitUntil(condition, 10s);
    }

    // What is on its way arrives.
    static void LetPass() {
        QtEventLoop().WaitUntil([] { return false; }, 200ms);
    }

    QProcess Bus;
    std::vector<QString> Names;

private:
    static inline std::unique_ptr<QTemporaryDir> folder_;
};

const Notification kTea{"Kestrova Messenger", "09:05    tea & <b>cake</b>", {{"show", "Show"}}};

TEST_F(DesktopNotifierTest, WhatIsShownIsReplacedAnsweredAndClosed) {
    Desktop desktop;
    Serve(desktop);
    std::vector<std::string> chosen;
    DesktopNotifier notifier;
    notifier.OnAction([&](const std::string& key) { chosen.push_back(key); });
    notifier.Show(kTea);
    EXPECT_EQ(desktop.Questions, 0) << "nobody waits";
    ASSERT_TRUE(Await([&] { return desktop.Shown.size() == 1; }));
    const QVariantList& shown = desktop.Shown.front();
    EXPECT_EQ(shown[1].toUInt(), 0U);
    EXPECT_EQ(shown[3].toString(), QStringLiteral("Kestrova Messenger"));
    EXPECT_EQ(shown[4].toString(), QStringLiteral("09:05    tea &amp; &lt;b&gt;cake&lt;/b&gt;"));
    EXPECT_EQ(shown[5].toStringList(),
              QStringList({QStringLiteral("show"), QStringLiteral("Show")}));
    LetPass();

    notifier.Show({"t",
                   std::string("a\0b\x1B"
                               "c\nd",
                               7),
                   {}});
    ASSERT_TRUE(Await([&] { return desktop.Shown.size() == 2; }));
    EXPECT_EQ(desktop.Shown[1][1].toUInt(), 7U) << "in the place of the first";
    EXPECT_EQ(desktop.Shown[1][4].toString(), QStringLiteral("a b c\nd"));

    const QDBusConnection server(QStringLiteral("server"));
    Say(Join("stranger"), "ActionInvoked", 7, QStringLiteral("forged"));
    Say(server, "ActionInvoked", 8, QStringLiteral("another's"));
    Say(server, "ActionInvoked", 7, QStringLiteral("show"));
    ASSERT_TRUE(Await([&] { return !chosen.empty(); }));
    EXPECT_THAT(chosen, ElementsAre("show"));

    notifier.Close();
    ASSERT_TRUE(Await([&] { return !desktop.ClosedIds.empty(); }));
    notifier.Close();
    LetPass();
    EXPECT_THAT(desktop.ClosedIds, ElementsAre(7U));
    EXPECT_EQ(notifier.Trouble(), "");
}

TEST_F(DesktopNotifierTest, OneThatTheUserHasClosedIsNotClosedAgainNorReplaced) {
    Desktop desktop;
    Serve(desktop);
    DesktopNotifier notifier;
    notifier.Show(kTea);
    ASSERT_TRUE(Await([&] { return desktop.Shown.size() == 1; }));
    LetPass();
    Say(QDBusConnection(QStringLiteral("server")), "NotificationClosed", 7, 2U);
    LetPass();
    notifier.Close();
    notifier.Show(kTea);
    ASSERT_TRUE(Await([&] { return desktop.Shown.size() == 2; }));
    EXPECT_EQ(desktop.Shown[1][1].toUInt(), 0U);
    EXPECT_THAT(desktop.ClosedIds, IsEmpty());
}

TEST_F(DesktopNotifierTest, WhatIsTakenBackAtOnceDoesNotStay) {
    Desktop desktop;
    Serve(desktop);
    DesktopNotifier notifier;
    notifier.Show(kTea);
    notifier.Close();
    LetPass();
    EXPECT_THAT(desktop.Shown, IsEmpty());
    notifier.Show(kTea);
    ASSERT_TRUE(Await([&] { return desktop.Questions == 2; })); // the answer is still on its way
    notifier.Close();
    EXPECT_TRUE(Await([&] { return !desktop.ClosedIds.empty(); }));
}

TEST_F(DesktopNotifierTest, ADesktopThatTakesNeitherMarkupNorAnswersGetsNone) {
    Desktop desktop;
    desktop.Can = QStringList{QStringLiteral("body")};
    Serve(desktop);
    {
        DesktopNotifier notifier;
        notifier.Show(kTea);
        ASSERT_TRUE(Await([&] { return desktop.Shown.size() == 1; }));
        EXPECT_EQ(desktop.Shown[0][4].toString(), QStringLiteral("09:05    tea & <b>cake</b>"));
        EXPECT_TRUE(desktop.Shown[0][5].toStringList().isEmpty());
        LetPass();
    }
    EXPECT_TRUE(Await([&] { return !desktop.ClosedIds.empty(); })) << "it goes with the program";
}

TEST_F(DesktopNotifierTest, WithoutAServiceNothingHappensUntilOneComes) {
    DesktopNotifier notifier;
    notifier.Show(kTea);
    EXPECT_TRUE(Await([&] { return !notifier.Trouble().empty(); }));
    Desktop desktop;
    Serve(desktop);
    LetPass();
    EXPECT_EQ(desktop.Questions, 0) << "what is past is past";
    notifier.Show(kTea);
    EXPECT_TRUE(Await([&] { return desktop.Shown.size() == 1; }));
    EXPECT_EQ(notifier.Trouble(), "");
}

TEST_F(DesktopNotifierTest, AServiceThatHangsHoldsUpNobody) {
    for (const bool atOnce : {true, false}) {
        SCOPED_TRACE(atOnce);
        Desktop desktop;
        desktop.Hangs = atOnce;
        desktop.HangsAtNotify = !atOnce;
        Serve(desktop);
        const auto begin = std::chrono::steady_clock::now();
        {
            DesktopNotifier notifier(500ms);
            notifier.Show(kTea);
            ASSERT_TRUE(Await([&] { return desktop.Questions == (atOnce ? 1 : 2); }));
            notifier.Show(kTea);
            notifier.Close();
            notifier.Show(kTea);
            EXPECT_EQ(desktop.Questions, atOnce ? 1 : 2) << "one question at a time";
            EXPECT_TRUE(Await([&] { return !notifier.Trouble().empty(); }));
            desktop.Hangs = false;
            desktop.HangsAtNotify = false;
            notifier.Show(kTea);
            EXPECT_TRUE(Await([&] { return desktop.Shown.size() == 1; }));
            desktop.Hangs = true; // also when the program ends
        }
        EXPECT_LT(std::chrono::steady_clock::now() - begin, 5s);
        EndBus();
        StartBus();
    }
}

TEST_F(DesktopNotifierTest, ABusThatGoesIsLeftAndThatComesBackIsUsed) {
    DesktopNotifier notifier;
    {
        Desktop desktop;
        Serve(desktop);
        notifier.Show(kTea);
        ASSERT_TRUE(Await([&] { return desktop.Shown.size() == 1; }));
        LetPass();
        EndBus();
    }
    LetPass();
    for (int i = 0; i < 3; ++i) {
        notifier.Show(kTea);
        notifier.Close();
        LetPass();
    }
    EXPECT_NE(notifier.Trouble(), "");
    StartBus();
    Desktop desktop;
    Serve(desktop);
    notifier.Show(kTea);
    ASSERT_TRUE(Await([&] { return desktop.Shown.size() == 1; }));
    EXPECT_EQ(desktop.Shown[0][1].toUInt(), 0U) << "this desktop shows nothing to be replaced";
}

TEST_F(DesktopNotifierTest, ABusThatHangsOrIsMissingHoldsUpNobody) {
    EndBus();
    DesktopNotifier missing;
    missing.Show(kTea);
    EXPECT_TRUE(Await([&] { return !missing.Trouble().empty(); }));

    QLocalServer deaf;
    ASSERT_TRUE(deaf.listen(Socket()));
    const auto begin = std::chrono::steady_clock::now();
    {
        DesktopNotifier left;
        left.Show(kTea);
        LetPass();
    }
    EXPECT_LT(std::chrono::steady_clock::now() - begin, 2s) << "who goes does not wait for it";
    DesktopNotifier patient;
    patient.Show(kTea);
    EXPECT_TRUE(Await([&] { return !patient.Trouble().empty(); }));
    deaf.close();
    StartBus();
}

} // namespace
} // namespace kestrova
