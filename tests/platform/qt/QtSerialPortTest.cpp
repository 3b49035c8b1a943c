// SPDX-License-Identifier: GPL-3.0-or-later
// The real port, on pseudo-terminals with a modem at the far end, and whole calls through it.
#include "platform/qt/QtSerialPort.h"

#include "phone/CallScene.h"
#include "platform/qt/PseudoModem.h"
#include "platform/qt/QtEventLoop.h"

#include <QElapsedTimer>
#include <QTest>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace kestrova {
namespace {

using testing::ElementsAre;

// The real loop, which loses its patience sooner.
struct HastyLoop : EventLoop {
    std::chrono::milliseconds Patience{300};
    QtEventLoop Real;

    bool WaitUntil(const std::function<bool()>& predicate,
                   std::chrono::milliseconds limit) override {
        return Real.WaitUntil(predicate, std::min(limit, Patience));
    }
};

struct RealCall {
    explicit RealCall(PseudoModem::Answer answer) : Modem(std::move(answer)) {
        Settings.ModemPort = "Com:1";
        Files.Put("/k/Modem.Dat",
                  "\"Generic IS-101 Voice Modem\",1\r\n\"Generic Rockwell Voice Modem\",2\r\n"
                  "\"End of List\",0\r\n" +
                      Block({{1, "AT+FCLASS=8"}, {22, "AT+VTX"}, {25, "AT+VLS=1"}}) +
                      Block({{4, "AT#CLS=8"}, {25, "AT#VLS=6"}}));
    }

    PseudoModem Modem;
    QtSerialPort Port{
        [this](int number) { return number == 1 ? std::optional(Modem.Path()) : std::nullopt; }};
    HastyLoop Loop;
    TalkedSpeaker Speech;
    MemoryFileStore Files;
    ScriptedDialogs Boxes;
    StringTable Texts = MsgDefaults();
    AppSettings Settings = FirstSettings(Texts);
    std::string Folder = "/k/";
    LoggedScreen Screen;
    VoiceCaller Caller{{Port, Loop, Speech, Files, Boxes, Texts, Settings, Folder,
                        [this]() -> CallScreen& { return Screen; }}};
};

const std::string kOk = "\r\nOK\r\n";

std::string PlusFamily(const std::string& command) {
    if (command.starts_with("AT#")) {
        return "\r\nERROR\r\n";
    }
    if (command == "AT+VTX") {
        return "\r\nCONNECT\r\n";
    }
    // Whoever answers presses 1 shortly after the words are over.
    return command == "AT+VLS=1" ? kOk + "\v\x10"
                                         "1"
                                 : kOk;
}

TEST(QtSerialPortTest, AModemOfThePlusFamilyCarriesAWholeCall) {
    RealCall call([](const std::string& command) {
        return command == "AT+FMM?" ? "\r\nBox\r\n" + kOk : PlusFamily(command);
    });
    call.Loop.Patience = std::chrono::seconds(2);
    call.Speech.Voice = {std::vector<std::int16_t>(2400, 0), 8000, {}}; // 300 ms
    ASSERT_TRUE(call.Caller.ModemPresent());
    EXPECT_EQ(call.Settings.ModemDescription, "Generic IS-101 Voice Modem");
    EXPECT_FALSE(call.Port.IsOpen());
    EXPECT_TRUE(call.Caller.SendMessage("ATD5;", "Dentist"));
    EXPECT_THAT(call.Screen.Log,
                ElementsAre("Modem Initialised OK", "Made Phone Ring OK", "Made Contact OK",
                            "Given Message OK", "Said Goodbye OK"));
    EXPECT_EQ(call.Modem.SoundBytes(), 3U * (2400 + 2));
}

TEST(QtSerialPortTest, AModemOfTheOtherFamilyCarriesAWholeCall) {
    RealCall call([](const std::string& command) {
        if (command.starts_with("AT+")) {
            return std::string("\r\nERROR\r\n");
        }
        if (command == "AT#MDL?") {
            return "\r\nRC\r\n" + kOk;
        }
        return command == "ATD5" ? std::string("\r\nVCON\r\n") : kOk;
    });
    ASSERT_TRUE(call.Caller.ModemPresent());
    EXPECT_EQ(call.Settings.ModemDescription, "Generic Rockwell Voice Modem");
    EXPECT_FALSE(call.Caller.SendMessage("ATD5", "Dentist")); // nobody presses a key
    EXPECT_EQ(call.Screen.Log.back(), "No Contact");
    EXPECT_EQ(call.Modem.Commands().back(), "ATZ");
}

struct Fault {
    const char* Name;
    const char* At; // the command
    void (PseudoModem::*Happens)();
    const char* LastLine;
};

TEST(QtSerialPortTest, EveryFaultEndsTheCall) {
    const Fault faults[] = {
        {"unplugged while it is set up", "AT+FCLASS=8", &PseudoModem::Unplug, "Modem Failure"},
        {"unplugged while it dials", "ATD5", &PseudoModem::Unplug, "No Ring"},
        {"unplugged before the words", "AT+VTX", &PseudoModem::Unplug, "No Contact"},
        {"unplugged after the words", "AT+VLS=1", &PseudoModem::Unplug, "No Contact"},
        {"unplugged while it hangs up", "ATH0", &PseudoModem::Unplug, "No Contact"},
        {"a flood without end", "ATD5", &PseudoModem::Flood, "No Contact"},
        {"a modem that reads no more", "ATD5", &PseudoModem::StopReading, "No Contact"},
    };
    for (const Fault& fault : faults) {
        SCOPED_TRACE(fault.Name);
        std::atomic<PseudoModem*> armed = nullptr;
        RealCall call([&](const std::string& command) {
            if (armed != nullptr && command == fault.At) {
                (armed.load()->*fault.Happens)();
            }
            return command == "AT+VLS=1" ? kOk : PlusFamily(command);
        });
        call.Speech.Voice = {std::vector<std::int16_t>(800, 0), 8000, {}};
        ASSERT_TRUE(call.Caller.ModemPresent());
        armed = &call.Modem;
        QElapsedTimer time;
        time.start();
        EXPECT_FALSE(call.Caller.SendMessage("ATD5", "x"));
        EXPECT_LT(time.elapsed(), 10000);
        EXPECT_FALSE(call.Port.IsOpen());
        EXPECT_EQ(call.Screen.Log.back(), fault.LastLine);
    }
}

TEST(QtSerialPortTest, APortThatCannotBeHadSaysWhy) {
    QtSerialPort none([](int /*number*/) { return std::nullopt; });
    EXPECT_EQ(none.Open(1, "9600,N,8,1").Failure().Code, ErrorCode::NotFound);
    QtSerialPort gone([](int /*number*/) { return std::optional<std::string>("/dev/not/there"); });
    EXPECT_EQ(gone.Open(1, "9600,N,8,1").Failure().Code, ErrorCode::NotFound);
    QtSerialPort file([](int /*number*/) { return std::optional<std::string>("/etc/passwd"); });
    EXPECT_FALSE(file.Open(1, "9600,N,8,1"));
    EXPECT_FALSE(file.IsOpen());
    EXPECT_FALSE(file.Write("x"));
    EXPECT_EQ(file.ReadAll(), "");
}

TEST(QtSerialPortTest, ADeviceThatTakesNothingIsGivenUp) {
    PseudoModem modem([](const std::string&) { return std::string(); });
    modem.StopReading();
    QtSerialPort port([&](int /*number*/) { return std::optional(modem.Path()); });
    ASSERT_TRUE(port.Open(1, "115200,N,8,1"));
    int written = 0;
    while (port.Write(std::string(1000, 'x')) && written < 1000) {
        ++written;
        QTest::qWait(1);
    }
    EXPECT_LT(written, 200);
    EXPECT_FALSE(port.IsOpen());
}

TEST(QtSerialPortTest, AStreamKeepsItsPace) {
    PseudoModem modem([](const std::string&) { return std::string(); });
    QtSerialPort port([&](int /*number*/) { return std::optional(modem.Path()); });
    ASSERT_TRUE(port.Open(1, "9600,N,8,1"));
    QElapsedTimer time;
    time.start();
    port.Stream(std::string(8000, 'x'), 8000); // of which a part goes ahead
    EXPECT_TRUE(QTest::qWaitFor([&] { return port.Unsent() == 0; }, 5000));
    EXPECT_GT(time.elapsed(), 600);
    port.Stream(std::string(8000, 'x'), 8000);
    port.Stream({}, 8000);
    EXPECT_TRUE(QTest::qWaitFor([&] { return port.Unsent() == 0; }, 500));
}

} // namespace
} // namespace kestrova
