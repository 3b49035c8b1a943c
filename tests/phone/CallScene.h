// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "fakes/FakeSerialPort.h"
#include "fakes/MemoryFileStore.h"
#include "fakes/ScriptedDialogs.h"
#include "fakes/SilentSpeaker.h"
#include "fakes/SteppedLoop.h"
#include "phone/VoiceCaller.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <string>
#include <vector>

namespace kestrova {

// Adds up the waits that nothing has ended.
struct TimedLoop : SteppedLoop {
    std::chrono::milliseconds Elapsed{0};

    bool WaitUntil(const std::function<bool()>& predicate,
                   std::chrono::milliseconds limit) override {
        const bool held = SteppedLoop::WaitUntil(predicate, limit);
        Elapsed += held ? std::chrono::milliseconds(0) : limit;
        return held;
    }
};

struct TalkedSpeaker : SilentSpeaker {
    std::vector<std::string> Spoken;
    SpokenSound Voice; // what a recording gives; none while it is empty
    bool Endless = false;

    void Talk(const std::string& text, AfterSpeaking after) override {
        Spoken.push_back(text + (after == AfterSpeaking::Hide ? " (hide)" : ""));
    }
    [[nodiscard]] bool IsSpeaking() const override { return Endless; }
    [[nodiscard]] Result<SpokenSound> Record(const std::string& text) override {
        if (Voice.Samples.empty()) {
            return Error{ErrorCode::NotFound, text};
        }
        Spoken.push_back("recorded " + text);
        return Voice;
    }
};

struct LoggedScreen : CallScreen {
    std::vector<std::string> Log;
    int Begun = 0;
    int Ended = 0;

    void CallBegins(const std::string& /*number*/) override { ++Begun; }
    void Print(const std::string& line) override { Log.push_back(line); }
    void CallEnds() override { ++Ended; }
};

// A telephone line with somebody at the other end, who presses 1 when a test says so, and a modem
// that answers OK unless it says otherwise.
struct CallScene {
    FakeSerialPort Port;
    TimedLoop Loop;
    TalkedSpeaker Speech;
    MemoryFileStore Files;
    ScriptedDialogs Boxes;
    StringTable Texts = MsgDefaults();
    AppSettings Settings = FirstSettings(Texts);
    std::string Folder = "/k/";
    LoggedScreen Screen;
    VoiceCaller Caller{{Port, Loop, Speech, Files, Boxes, Texts, Settings, Folder,
                        [this]() -> CallScreen& { return Screen; }}};

    std::map<std::string, std::string> Answers; // of commands that are not answered "OK"
    std::vector<int> KeyAt;                     // in which listenings, counted from 1, 1 is pressed
    char Key = '1';
    int Listenings = 0;
    std::function<void(const std::string& command)> OnCommand;

    CallScene() {
        Settings.ModemPort = "Com:2";
        Port.Answer = [this](const std::string& command) {
            if (OnCommand) {
                OnCommand(command);
            }
            const auto answer = Answers.find(command);
            return answer == Answers.end() ? command + "\r\r\nOK\r\n" : answer->second;
        };
        Loop.WhileWaiting = [this] {
            const bool listens = Loop.LastLimit == std::chrono::milliseconds(4500) ||
                                 Loop.LastLimit == std::chrono::milliseconds(5500);
            Listenings += listens ? 1 : 0;
            if (listens && std::count(KeyAt.begin(), KeyAt.end(), Listenings) > 0) {
                Port.Incoming += {'\x10', Key};
            }
        };
    }

    // Puts a list with one block into the program folder and finds the modem.
    void Find(const std::string& block) {
        Answers["AT+FMM?"] = "AT+FMM?\r\r\nBox\r\n\r\nOK\r\n";
        for (const char* const query : {"AT+FMI?", "AT+FMR?", "AT#MDL?", "AT#MFR?", "AT#REV?"}) {
            Answers[query] = "\r\nERROR\r\n";
        }
        Files.Put("/k/Modem.Dat", "\"Box\",1\r\n\"End of List\",0\r\n" + block);
        ASSERT_TRUE(Caller.ModemPresent());
        Port.Sent.clear();
        Port.Opened.clear();
        Loop.Elapsed = {};
    }
};

// A block of the modem list with these lines.
inline std::string Block(const std::map<int, std::string>& lines) {
    std::string text;
    for (int number = 1; number <= 33; ++number) {
        const auto line = lines.find(number);
        text += (line == lines.end() ? "" : line->second) + "\r\n";
    }
    return text + "End of Index\r\n";
}

} // namespace kestrova
