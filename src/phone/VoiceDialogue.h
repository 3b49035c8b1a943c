// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "language/StringTable.h"
#include "phone/CallScreen.h"
#include "phone/ModemLine.h"
#include "phone/ModemScript.h"
#include "speech/Speaker.h"

#include <functional>
#include <string>

namespace kestrova {

// The steps of a telephone call. Each drives the modem by lines of its script and ends at the first
// reply that is an error.
//
// Words reach the line in one of two ways. A script whose last line before the words makes the
// modem take sound ("AT+VTX") has them sent as samples through the port; the keys that are pressed
// come back among them, each behind a DLE. Any other script leaves them to the character and the
// sound card, and to how the modem is connected with it.
class VoiceDialogue {
public:
    struct Rooms {
        ModemLine& Line;
        Speaker& Speech;
        const StringTable& Texts;
        const ModemScript& Script;
        CallScreen& Screen;
    };

    explicit VoiceDialogue(const Rooms& rooms) : rooms_(rooms) {}

    // Opens the port that the settings name and sets the modem up.
    Reply InitModem(const std::string& port);

    Reply DialNumber(const std::string& dialString);

    // Asks whoever answers to press 1, until it is heard. An answer to the fourth prompt is none.
    Reply AskToReceive();

    // Speaks the message and waits for 1 in the same way.
    Reply GiveMessage(const std::string& message);

    Reply SayGoodbye();

    // Sends beeps until 1 is pressed. An answer to the ninth is none.
    Reply SendBeeps();

private:
    enum class Sound { Keep, End };

    Reply ModemCommand(const std::string& command);
    Reply RunLines(ScriptLines lines);
    Reply RunLine(int number, Sound sound);
    Reply SayThroughLine(const std::string& words, AfterSpeaking after, bool& keyHeard);
    Reply SayThroughCard(const std::string& words, AfterSpeaking after);
    Reply Say(const std::string& words, AfterSpeaking after, bool& keyHeard);
    Reply EndSound();
    Reply UntilKey(int attempts, int listenSeconds, const std::function<Reply(bool&)>& call);
    Reply AskWith(const std::string& words);
    Reply Beep();

    Rooms rooms_;
};

} // namespace kestrova
