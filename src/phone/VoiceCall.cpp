// SPDX-License-Identifier: GPL-3.0-or-later
#include "phone/VoiceCall.h"

#include "language/ProgramTexts.h"
#include "phone/PhoneNumbers.h"

#include <algorithm>
#include <iterator>
#include <optional>

namespace kestrova {

namespace {

constexpr int kRestAfterCall = 20;

enum class LogLine { Bare, WithReply };
enum class Who { Always, WhoSpeaks, WhoBeeps };

} // namespace

struct VoiceCall::Row {
    State Now;
    std::optional<ProgramText> Text; // of its line in the log
    LogLine Line;
    Reply (VoiceCall::*Step)();
    State Well;
    State Ill;
    Who For = Who::Always; // those that it is not for go on to Other
    State Other = State::End;
};

// clang-format off
const VoiceCall::Row VoiceCall::kStates[] = {
    {State::Start, {}, LogLine::Bare, &VoiceCall::InitModem, State::Init, State::Init},
    {State::Init, {}, LogLine::Bare, &VoiceCall::AskModem, State::Initialised, State::Abandoned},
    {State::Abandoned, {}, LogLine::Bare, &VoiceCall::Close, State::End, State::End},
    {State::ModemFailure, ProgramText::CallModemFailure, LogLine::Bare,
     &VoiceCall::HangUp, State::End, State::End},
    {State::Initialised, ProgramText::CallInitialised, LogLine::WithReply,
     &VoiceCall::DialNumber, State::Ringing, State::NoRing},
    {State::NoRing, ProgramText::CallNoRing, LogLine::Bare,
     &VoiceCall::HangUp, State::End, State::End},
    {State::Ringing, ProgramText::CallRinging, LogLine::WithReply,
     &VoiceCall::AskToReceive, State::Contact, State::NoContact,
     Who::WhoSpeaks, State::BeepCheck},
    {State::NoContact, ProgramText::CallNoContact, LogLine::Bare,
     &VoiceCall::HangUpWithGoodbye, State::End, State::End},
    {State::Contact, ProgramText::CallContact, LogLine::WithReply,
     &VoiceCall::GiveMessage, State::Given, State::NotReceived},
    {State::NotReceived, ProgramText::CallNotReceived, LogLine::Bare,
     &VoiceCall::HangUpWithGoodbye, State::End, State::End},
    {State::Given, ProgramText::CallGiven, LogLine::WithReply,
     &VoiceCall::SayGoodbye, State::Goodbye, State::NoGoodbye},
    {State::NoGoodbye, ProgramText::CallNoGoodbye, LogLine::Bare,
     &VoiceCall::HangUpWithGoodbye, State::End, State::End},
    {State::Goodbye, ProgramText::CallSaidGoodbye, LogLine::WithReply,
     nullptr, State::BeepCheck, State::BeepCheck},
    {State::BeepCheck, {}, LogLine::Bare, &VoiceCall::SendBeeps,
     State::BeepsDone, State::BeepsFailed, Who::WhoBeeps, State::Finish},
    {State::BeepsFailed, ProgramText::CallNoContact, LogLine::Bare,
     &VoiceCall::HangUp, State::End, State::End},
    {State::BeepsDone, ProgramText::CallBeepsDone, LogLine::WithReply,
     nullptr, State::Finish, State::Finish},
    {State::Finish, {}, LogLine::Bare, &VoiceCall::FinishCall, State::End, State::End},
    {State::Stopped, ProgramText::CallStopped, LogLine::Bare,
     &VoiceCall::HangUp, State::End, State::End},
};
// clang-format on

const VoiceCall::Row& VoiceCall::RowOf(State state) {
    return *std::find_if(std::begin(kStates), std::end(kStates),
                         [state](const Row& row) { return row.Now == state; });
}

void VoiceCall::Print(const Row& row, Reply reply) {
    if (row.Text) {
        std::string line = TextOf(rooms_.Texts, *row.Text);
        if (row.Line == LogLine::WithReply) {
            line.append(" ").append(ReplyText(reply));
        }
        rooms_.Screen.Print(line);
    }
}

VoiceCall::State VoiceCall::After(const Row& row, Reply reply) const {
    // A failed set-up shows after the modem has been found switched off, not before.
    if (row.Now == State::Init && reply == Reply::Ok && init_ == Reply::Error) {
        return State::ModemFailure;
    }
    return reply == Reply::Error ? row.Ill : row.Well;
}

bool VoiceCall::SendMessage() {
    State state = State::Start;
    Reply reply = Reply::Ok;
    bool finished = false;
    rooms_.Screen.CallBegins(NumberIn(order_.DialString));
    while (state != State::End) {
        const Row& row = RowOf(state);
        Print(row, reply);
        const CallMode mode = row.For == Who::WhoBeeps ? CallMode::Beep : CallMode::Speak;
        if (row.For != Who::Always && mode != order_.Mode) {
            state = row.Other;
            continue;
        }
        finished = finished || state == State::Finish;
        if (row.Step != nullptr) {
            reply = (this->*row.Step)();
        }
        if (state == State::Start) {
            init_ = reply;
        }
        const State next = After(row, reply);
        state = rooms_.Line.Stopped() && next != State::End ? State::Stopped : next;
    }
    rooms_.Screen.CallEnds();
    return finished;
}

// Nothing has been said to the modem that hanging up would undo.
Reply VoiceCall::Close() {
    rooms_.Line.Close();
    return Reply::Ok;
}

Reply VoiceCall::HangUp() {
    rooms_.Line.HangUp();
    return Reply::Ok;
}

Reply VoiceCall::HangUpWithGoodbye() {
    HangUp();
    if (!rooms_.Line.Stopped()) {
        rooms_.Speech.TalkInCall(TextOf(rooms_.Texts, ProgramText::CallGoodbye),
                                 AfterSpeaking::Hide);
    }
    return Reply::Ok;
}

Reply VoiceCall::FinishCall() {
    HangUp();
    rooms_.Line.Rest(DelayTime(kRestAfterCall));
    return Reply::Ok;
}

} // namespace kestrova
