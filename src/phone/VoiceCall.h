// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "phone/VoiceDialogue.h"
#include "settings/ModemState.h"

#include <chrono>
#include <functional>
#include <string>

namespace kestrova {

// How a message is given on the telephone.
enum class CallMode { Speak, Beep };

// One telephone call from dialling to hanging up, as a machine of states: each writes its line into
// the call's log, takes its step, and leads to one state when that went well and to another when it
// did not. The table of states is in the source.
class VoiceCall {
public:
    struct Order {
        std::string Port;       // as the settings name it
        std::string DialString; // the whole command
        std::string Message;
        CallMode Mode = CallMode::Speak;
    };

    // `modem` is asked once the modem has been set up: the user may have switched it off meanwhile.
    VoiceCall(const VoiceDialogue::Rooms& rooms, Order order, std::function<ModemState()> modem)
        : rooms_(rooms), dialogue_(rooms), order_(std::move(order)), modem_(std::move(modem)) {}

    // Places the call and returns when the line is free again, some twenty seconds later when all
    // went well. True when the message was acknowledged.
    bool SendMessage();

private:
    enum class State {
        Start,
        Init,
        Abandoned,
        ModemFailure,
        Initialised,
        NoRing,
        Ringing,
        NoContact,
        Contact,
        NotReceived,
        Given,
        NoGoodbye,
        Goodbye,
        BeepCheck,
        BeepsFailed,
        BeepsDone,
        Finish,
        Stopped,
        End
    };
    struct Row;
    static const Row kStates[];

    [[nodiscard]] static const Row& RowOf(State state);
    [[nodiscard]] State After(const Row& row, Reply reply) const;
    void Print(const Row& row, Reply reply);

    Reply InitModem() { return dialogue_.InitModem(order_.Port); }
    Reply AskModem() { return modem_() == ModemState::On ? Reply::Ok : Reply::Error; }
    Reply DialNumber() { return dialogue_.DialNumber(order_.DialString); }
    Reply AskToReceive() { return dialogue_.AskToReceive(); }
    Reply GiveMessage() { return dialogue_.GiveMessage(order_.Message); }
    Reply SayGoodbye() { return dialogue_.SayGoodbye(); }
    Reply SendBeeps() { return dialogue_.SendBeeps(); }
    Reply Close();
    Reply HangUp();
    Reply HangUpWithGoodbye();
    Reply FinishCall();

    VoiceDialogue::Rooms rooms_;
    VoiceDialogue dialogue_;
    Order order_;
    std::function<ModemState()> modem_;
    Reply init_ = Reply::Ok; // how the set-up has gone
};

// The time that `Delay` takes: one second more than it is told.
[[nodiscard]] inline std::chrono::seconds DelayTime(int seconds) {
    return std::chrono::seconds(seconds + 1);
}

} // namespace kestrova
