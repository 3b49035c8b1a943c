// SPDX-License-Identifier: GPL-3.0-or-later
// Whole calls, against a modem and a person that a table plays.
#include "phone/VoiceCall.h"
#include "phone/CallScene.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace kestrova {
namespace {

using Lines = std::vector<std::string>;
using testing::ElementsAre;
using testing::IsEmpty;

const std::string kScript = Block({{2, "SET"},
                                   {13, "PRE"},
                                   {16, "POST"},
                                   {22, "IN"},
                                   {25, "OUT"},
                                   {28, "BEEP1"},
                                   {30, "BEEP3"},
                                   {10, "SET10"}});
constexpr const char* kPrompt = "Messenger Reminder Service: Press One! To Recieve.";
constexpr const char* kDetails = ",Dentist. Press One: To Accept.";
constexpr const char* kThanks = "Message accepted. Have a nice day. GoodBye! (hide)";
constexpr const char* kBye = "GoodBye (hide)";

struct CallCase {
    const char* Name;
    CallMode Mode;
    std::map<std::string, std::string> Answers;
    std::vector<int> KeyAt;
    bool Done;
    Lines Log;
    Lines Spoken;
    int Seconds; // that the call waits in vain, about
};

void Check(const CallCase& row) {
    SCOPED_TRACE(row.Name);
    CallScene scene;
    scene.Find(kScript);
    scene.Answers.insert(row.Answers.begin(), row.Answers.end());
    scene.KeyAt = row.KeyAt;
    scene.Settings.BeepAcknowledge = row.Mode == CallMode::Beep ? 1 : 0;
    EXPECT_EQ(scene.Caller.SendMessage("ATD123;", "Dentist"), row.Done);
    EXPECT_EQ(scene.Screen.Log, row.Log);
    EXPECT_EQ(scene.Speech.Spoken, row.Spoken);
    EXPECT_EQ(std::chrono::duration_cast<std::chrono::seconds>(scene.Loop.Elapsed).count(),
              row.Seconds);
    ASSERT_GE(scene.Port.Sent.size(), 2U);
    EXPECT_EQ(scene.Port.Sent.end()[-2], "ATH0");
    EXPECT_EQ(scene.Port.Sent.back(), "ATZ");
    EXPECT_FALSE(scene.Port.IsOpen());
    EXPECT_EQ(scene.Screen.Begun, 1);
    EXPECT_EQ(scene.Screen.Ended, 1);
}

TEST(VoiceCallTest, EveryEndOfASpokenCall) {
    const Lines reached = {"Modem Initialised OK", "Made Phone Ring OK", "Made Contact OK"};
    const auto log = [&](std::size_t of, Lines more) {
        Lines all(reached.begin(), reached.begin() + static_cast<std::ptrdiff_t>(of));
        all.insert(all.end(), more.begin(), more.end());
        return all;
    };
    const std::string error = "\r\nERROR\r\n";
    const CallMode speak = CallMode::Speak;
    const CallCase cases[] = {
        {"all goes well",
         speak,
         {{"ATD123;", "\r\nVCON\r\n"}},
         {1, 2},
         true,
         log(3, {"Given Message OK", "Said Goodbye OK"}),
         {kPrompt, kDetails, kThanks},
         21},
        {"the key at the third prompt",
         speak,
         {},
         {3, 4},
         true,
         log(3, {"Given Message OK", "Said Goodbye OK"}),
         {kPrompt, kPrompt, kPrompt, kDetails, kThanks},
         30},
        {"the key at the fourth prompt",
         speak,
         {},
         {4},
         false,
         log(2, {"No Contact"}),
         {kPrompt, kPrompt, kPrompt, kPrompt, kBye},
         13},
        {"nobody",
         speak,
         {},
         {},
         false,
         log(2, {"No Contact"}),
         {kPrompt, kPrompt, kPrompt, kPrompt, kBye},
         18},
        {"the message is not accepted",
         speak,
         {},
         {1, 5},
         false,
         log(3, {"Message Not Recieved"}),
         {kPrompt, kDetails, kDetails, kDetails, kDetails, kBye},
         13},
        {"a silent modem",
         speak,
         {{"ATV1Q0 E1", ""}},
         {},
         false,
         {"ERR = ", "Modem Failure"},
         {},
         20},
        {"an error while it is set up",
         speak,
         {{"SET10", error}},
         {},
         false,
         {"ERR = ", "Modem Failure"},
         {},
         0},
        {"an error before dialling",
         speak,
         {{"PRE", error}},
         {},
         false,
         log(1, {"ERR = ", "No Ring"}),
         {},
         0},
        {"no carrier",
         speak,
         {{"ATD123;", "\r\nNO CARRIER\r\n"}},
         {},
         false,
         log(1, {"ERR = ", "No Ring"}),
         {},
         20},
        {"an error after dialling",
         speak,
         {{"POST", error}},
         {},
         false,
         log(1, {"ERR = ", "No Ring"}),
         {},
         0},
        {"an error before the words",
         speak,
         {{"IN", error}},
         {},
         false,
         log(2, {"ERR = ", "No Contact"}),
         {kBye},
         0},
        {"an error after the words",
         speak,
         {{"OUT", error}},
         {},
         false,
         log(2, {"ERR = ", "No Contact"}),
         {kPrompt, kBye},
         0},
        {"garbage",
         speak,
         {{"OUT", std::string(100000, '\x7F')}},
         {},
         false,
         log(2, {"ERR = ", "No Contact"}),
         {kPrompt, kBye},
         20},
        {"no reply to hanging up",
         speak,
         {{"ATD123;", error}, {"ATH0", ""}, {"ATZ", ""}},
         {},
         false,
         log(1, {"ERR = ", "No Ring"}),
         {},
         7},
    };
    for (const CallCase& row : cases) {
        Check(row);
    }
}

TEST(VoiceCallTest, EveryEndOfACallThatBeeps) {
    const CallMode beep = CallMode::Beep;
    const Lines rung = {"Modem Initialised OK", "Made Phone Ring OK"};
    const CallCase cases[] = {
        {"the key", beep, {}, {1}, true, {rung[0], rung[1], "Beeps Acknowledged OK"}, {}, 21},
        {"the key at the eighth",
         beep,
         {},
         {8},
         true,
         {rung[0], rung[1], "Beeps Acknowledged OK"},
         {},
         7 * 5 + 3 + 21},
        {"the key at the ninth", beep, {}, {9}, false, {rung[0], rung[1], "No Contact"}, {}, 44},
        {"nobody", beep, {}, {}, false, {rung[0], rung[1], "No Contact"}, {}, 49},
        {"an error",
         beep,
         {{"BEEP3", "\r\nERROR\r\n"}},
         {},
         false,
         {rung[0], rung[1], "ERR = ", "No Contact"},
         {},
         0},
    };
    for (const CallCase& row : cases) {
        Check(row);
    }
}

TEST(VoiceCallTest, OnlyTheOneAccepts) {
    CallScene scene;
    scene.Key = '7';
    scene.KeyAt = {1, 2, 3, 4};
    EXPECT_FALSE(scene.Caller.SendMessage("ATD5", "x"));
    EXPECT_EQ(scene.Listenings, 4);
    EXPECT_EQ(scene.Screen.Log.back(), "No Contact");
}

TEST(VoiceCallTest, TheCommandsComeInTheirOrder) {
    CallScene scene;
    scene.Find(kScript);
    scene.KeyAt = {1, 2};
    scene.Caller.SendMessage("ATD5", "x");
    EXPECT_THAT(scene.Port.Sent, ElementsAre("ATV1Q0 E1", "SET", "SET10", "PRE", "ATD5", "POST",
                                             "IN", "OUT", "IN", "OUT", "IN", "OUT", "ATH0", "ATZ"));
    EXPECT_THAT(scene.Port.Opened, ElementsAre("2 9600,N,8,1"));
    scene.Port.Sent.clear();
    scene.Listenings = 0;
    scene.KeyAt = {1};
    scene.Settings.BeepAcknowledge = 1;
    scene.Caller.SendMessage("ATD5", "x");
    EXPECT_THAT(scene.Port.Sent, ElementsAre("ATV1Q0 E1", "SET", "SET10", "PRE", "ATD5", "POST",
                                             "BEEP1", "BEEP3", "SET10", "ATH0", "ATZ"));
}

TEST(VoiceCallTest, AModemThatIsNotInTheListStillCalls) {
    CallScene scene;
    scene.KeyAt = {1, 2};
    EXPECT_TRUE(scene.Caller.SendMessage("ATD5", "x"));
    EXPECT_THAT(scene.Port.Sent, ElementsAre("ATV1Q0 E1", "ATD5", "ATH0", "ATZ"));
}

TEST(VoiceCallTest, ADisabledModemIsAbandoned) {
    CallScene scene;
    scene.Caller.SwitchOff();
    EXPECT_FALSE(scene.Caller.SendMessage("ATD5", "x"));
    EXPECT_THAT(scene.Screen.Log, IsEmpty());
    EXPECT_THAT(scene.Port.Sent, ElementsAre("ATV1Q0 E1"));
    EXPECT_FALSE(scene.Port.IsOpen());
    EXPECT_EQ(scene.Screen.Ended, 1);
}

TEST(VoiceCallTest, AVoiceThatNeverEndsHoldsTheLineForAMinuteOnly) {
    CallScene scene;
    scene.Speech.Endless = true;
    scene.KeyAt = {1, 2};
    EXPECT_TRUE(scene.Caller.SendMessage("ATD5", "x"));
    EXPECT_LT(scene.Loop.Elapsed, std::chrono::minutes(4));
}

// The port goes, or the user stops the call, or the program ends, at each command in turn.
TEST(VoiceCallTest, ACallThatIsCutShortEndsAtOnce) {
    for (const std::string command : {"ATV1Q0 E1", "SET", "ATD5", "IN", "OUT", "ATH0"}) {
        for (const char what : {'u', 's', 'e'}) {
            SCOPED_TRACE(command + " " + what);
            CallScene scene;
            scene.Find(kScript);
            scene.KeyAt = {1, 2};
            scene.OnCommand = [&](const std::string& sent) {
                if (sent == command && what == 'u') {
                    scene.Port.Unplug();
                } else if (sent == command) {
                    what == 's' ? scene.Caller.Stop() : scene.Caller.End();
                }
            };
            const bool done = scene.Caller.SendMessage("ATD5", "x");
            EXPECT_EQ(done, command == "ATH0");
            EXPECT_FALSE(scene.Port.IsOpen());
            EXPECT_FALSE(scene.Caller.IsBusy());
            EXPECT_LT(scene.Loop.Elapsed, std::chrono::seconds(22));
            if (what == 's' && !done) {
                EXPECT_EQ(scene.Screen.Log.back(), "Call Stopped");
                EXPECT_EQ(scene.Port.Sent.back(), "ATZ");
            }
            if (what == 'e') {
                EXPECT_EQ(scene.Port.Sent.back(), "ATH0");
                EXPECT_FALSE(scene.Caller.SendMessage("ATD5", "x"));
            }
        }
    }
}

// What was opened meanwhile handles the events, the ticks among them, in the call's place.
TEST(VoiceCallTest, ACallThatIsHeldUpGivesTheLineBack) {
    CallScene scene;
    scene.Find(kScript);
    scene.Answers["ATD5"] = "";
    scene.OnCommand = [&](const std::string& sent) {
        if (sent == "ATD5") {
            scene.Loop.WhileWaiting = [&] {
                const auto now = std::chrono::steady_clock::now();
                scene.Caller.Tick(now + std::chrono::seconds(20));
                EXPECT_TRUE(scene.Port.IsOpen());
                scene.Caller.Tick(now + std::chrono::seconds(27));
                EXPECT_FALSE(scene.Port.IsOpen());
                EXPECT_EQ(scene.Port.Sent.back(), "ATH0");
            };
        }
    };
    EXPECT_FALSE(scene.Caller.SendMessage("ATD5", "x"));
    EXPECT_FALSE(scene.Caller.IsBusy());
    scene.Caller.Tick(std::chrono::steady_clock::now() + std::chrono::hours(1)); // nothing is due
}

TEST(VoiceCallTest, NoSecondCallAndNoSearchWhileOneRuns) {
    CallScene scene;
    scene.Find(kScript);
    int asked = 0;
    scene.OnCommand = [&](const std::string& sent) {
        if (sent == "ATD5") {
            ++asked;
            EXPECT_FALSE(scene.Caller.SendMessage("ATD6", "y"));
            EXPECT_TRUE(scene.Caller.ModemPresent());
        }
    };
    scene.Caller.SendMessage("ATD5", "x");
    EXPECT_EQ(asked, 1);
    EXPECT_EQ(scene.Screen.Begun, 1);
}

TEST(VoiceCallTest, TheRestBetweenCallsTakesASecondMoreThanItIsTold) {
    CallScene scene;
    scene.Caller.Delay(20);
    EXPECT_EQ(scene.Loop.Elapsed, std::chrono::seconds(21));
}

struct LineVoiceScene : CallScene {
    LineVoiceScene() {
        Find(Block({{1, "AT+VSM=1,8000"}, {13, "AT+VTX"}, {23, "AT+VTX"}, {26, "OUT"}}));
        Answers["AT+VTX"] = "\r\nCONNECT\r\n";
        Answers["\x10\x03"] = "\r\nVCON\r\n";
        Speech.Voice = {std::vector<std::int16_t>(80, 0), 8000, {}};
    }
};

TEST(VoiceCallTest, AModemThatTakesSoundGetsTheWords) {
    LineVoiceScene scene;
    scene.KeyAt = {1, 2};
    EXPECT_TRUE(scene.Caller.SendMessage("ATD5", "x"));
    EXPECT_EQ(scene.Port.Streamed, std::string(3 * 80, '\x80'));
    EXPECT_THAT(scene.Speech.Spoken,
                ElementsAre("recorded " + std::string(kPrompt), testing::_, testing::_));
    const std::string end = "\x10\x03";
    EXPECT_THAT(scene.Port.Sent, // the first one had nothing to say
                ElementsAre("ATV1Q0 E1", "AT+VSM=1,8000", "AT+VTX", end, "ATD5", "AT+VTX", end,
                            "OUT", "AT+VTX", end, "OUT", "AT+VTX", end, "OUT", "ATH0", "ATZ"));
    EXPECT_THAT(scene.Port.Opened, ElementsAre("2 115200,N,8,1"));
}

TEST(VoiceCallTest, AKeyThatIsPressedDuringTheWordsCounts) {
    LineVoiceScene scene;
    scene.OnCommand = [&](const std::string& sent) {
        if (sent == "AT+VTX") {
            scene.Port.Taking = false; // until it is waited for
        }
    };
    const auto listen = scene.Loop.WhileWaiting;
    scene.Loop.WhileWaiting = [&] {
        if (scene.Port.Unsent() > 0) {
            scene.Port.Incoming += "\x10"
                                   "1";
            scene.Port.Taking = true;
            scene.Port.Stream({}, 1);
        }
        listen();
    };
    EXPECT_TRUE(scene.Caller.SendMessage("ATD5", "x"));
    EXPECT_EQ(scene.Listenings, 0);
}

TEST(VoiceCallTest, WordsThatTheModemDoesNotTakeEndTheCall) {
    LineVoiceScene scene;
    scene.Port.Taking = false;
    EXPECT_FALSE(scene.Caller.SendMessage("ATD5", "x"));
    EXPECT_EQ(scene.Screen.Log.back(), "No Contact");
    // Led out of the sound before it is told to hang up.
    EXPECT_EQ(scene.Port.Sent.end()[-3], "\x10\x18\x10\x03");
    EXPECT_EQ(scene.Port.Sent.end()[-2], "ATH0");
}

TEST(VoiceCallTest, WithoutARecordingTheCharacterSpeaks) {
    LineVoiceScene scene;
    scene.Speech.Voice = {};
    scene.KeyAt = {1, 2};
    EXPECT_TRUE(scene.Caller.SendMessage("ATD5", "Dentist"));
    EXPECT_THAT(scene.Speech.Spoken, ElementsAre(kPrompt, kDetails, kThanks));
}

} // namespace
} // namespace kestrova
