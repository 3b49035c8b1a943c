// SPDX-License-Identifier: GPL-3.0-or-later
// The real port, with a modem that somebody else has written at the far end: a fax modem made of
// software. It knows no voice, and its exchange lies at a port of this machine where nobody is.
#include "phone/CallScene.h"
#include "platform/qt/QtEventLoop.h"
#include "platform/qt/QtSerialPort.h"
#include "platform/qt/QtText.h"

#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>
#include <unistd.h>

namespace kestrova {
namespace {

class SoftwareModem {
public:
    explicit SoftwareModem(const QString& program) {
        QFile file(Config());
        if (!folder_.isValid() || !file.open(QIODevice::WriteOnly)) {
            return;
        }
        file.write("device " + Device().toUtf8() + "\nowner " + std::to_string(geteuid()).c_str() +
                   ":" + std::to_string(getegid()).c_str() +
                   "\nmode 600\nport 45711\nrefresh 0\nserver 127.0.0.1\npeername nobody\n"
                   "secret none\ncidname nobody\ncidnumber 1\ncodec slinear\n");
        file.close();
        // It looks for what it is told below its own folder.
        process_.start(program, {QStringLiteral("../..") + Config()});
        (void)QTest::qWaitFor([this] { return QFile::exists(Device()); }, 5000);
    }

    ~SoftwareModem() {
        process_.terminate();
        process_.waitForFinished(5000);
    }
    SoftwareModem(const SoftwareModem&) = delete;
    SoftwareModem& operator=(const SoftwareModem&) = delete;

    [[nodiscard]] bool IsThere() const { return QFile::exists(Device()); }
    [[nodiscard]] QString Device() const { return folder_.filePath(QStringLiteral("tty")); }

private:
    [[nodiscard]] QString Config() const { return folder_.filePath(QStringLiteral("config")); }

    QTemporaryDir folder_;
    QProcess process_;
};

TEST(SoftwareModemTest, ItIsFoundAndACallThatCannotBeMadeEnds) {
    const QString program = QStandardPaths::findExecutable(QStringLiteral("iaxmodem"));
    if (program.isEmpty()) {
        GTEST_SKIP() << "iaxmodem is not installed";
    }
    const SoftwareModem modem(program);
    ASSERT_TRUE(modem.IsThere());
    QtSerialPort port([&](int) { return std::optional(FromQt(modem.Device())); });
    QtEventLoop loop;
    TalkedSpeaker speech;
    MemoryFileStore files;
    files.Put("/k/Modem.Dat", "\"spandsp\",1\r\n\"Generic IS-101 Voice Modem\",1\r\n"
                              "\"Generic Rockwell Voice Modem\",1\r\n\"End of List\",0\r\n" +
                                  Block({{1, "AT&D0"}, {7, "AT+VIP"}, {10, "AT+VLS=1"}}));
    ScriptedDialogs boxes;
    const StringTable texts = MsgDefaults();
    AppSettings settings = FirstSettings(texts);
    settings.ModemPort = "Com:1";
    const std::string folder = "/k/";
    LoggedScreen screen;
    VoiceCaller caller({port, loop, speech, files, boxes, texts, settings, folder,
                        [&]() -> CallScreen& { return screen; }});
    ASSERT_TRUE(caller.ModemPresent());
    EXPECT_EQ(settings.ModemDescription, "Generic Rockwell Voice Modem"); // it says OK to anything
    EXPECT_FALSE(port.IsOpen());

    EXPECT_FALSE(caller.SendMessage("ATD123", "x"));
    EXPECT_EQ(screen.Log, (std::vector<std::string>{"Modem Initialised OK", "ERR = ", "No Ring"}));
    EXPECT_FALSE(port.IsOpen());
    EXPECT_TRUE(caller.ModemPresent()); // it has been hung up and answers again
}

} // namespace
} // namespace kestrova
