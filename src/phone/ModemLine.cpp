// SPDX-License-Identifier: GPL-3.0-or-later
#include "phone/ModemLine.h"

#include "phone/LineSound.h"
#include "phone/ModemScript.h"

#include <algorithm>

namespace kestrova {

namespace {

using std::chrono::milliseconds;
using std::chrono::seconds;

constexpr int kReplySeconds = 20;
constexpr int kHangUpSeconds = 3;
constexpr seconds kGrace{5}; // for a wait to notice that its time is up

// More than any answer that is read. Of a modem that never stops the first and the last bytes are
// kept: the first are its answer, the last may be its result.
constexpr std::size_t kLongestAnswer = 16384;
constexpr std::size_t kKeptFront = 4096;

// "More than so many seconds", in whole ones, is a moment within the second after.
milliseconds MoreThan(int wholeSeconds) {
    return seconds(wholeSeconds) + milliseconds(500);
}

} // namespace

std::string_view ReplyText(Reply reply) {
    return reply == Reply::Error ? "ERROR" : "OK";
}

Status ModemLine::Open(std::string_view choice, std::string_view settings) {
    const int number = choice.empty() ? 0 : choice.back() - '0';
    sounding_ = sounding_ && port_.IsOpen();
    return port_.Open(number, settings);
}

void ModemLine::Stop() {
    stopped_ = true;
    due_ = std::min(due_, std::chrono::steady_clock::now());
}

void ModemLine::End() {
    ended_ = true;
    Stop();
}

bool ModemLine::Wait(const std::function<bool()>& predicate, milliseconds limit) {
    due_ = std::chrono::steady_clock::now() + limit;
    const bool holds = loop_.WaitUntil(predicate, limit);
    due_ = Moment::max();
    return holds;
}

void ModemLine::DropOverdue(Moment now) {
    if (due_ == Moment::max() || now < due_ + kGrace || !port_.IsOpen()) {
        return;
    }
    if (sounding_) {
        port_.Stream({}, 1);
        port_.Write(kDropAndEnd);
        sounding_ = false;
    }
    port_.Write("ATH0\r");
    port_.Close();
}

void ModemLine::Gather() {
    buffer_ += port_.ReadAll();
    if (buffer_.size() > kLongestAnswer) {
        buffer_.erase(kKeptFront, buffer_.size() - kLongestAnswer / 2 - kKeptFront);
    }
}

bool ModemLine::Holds(std::string_view text) const {
    return buffer_.find(text) != std::string::npos;
}

bool ModemLine::HoldsAny(std::initializer_list<std::string_view> texts) const {
    return std::any_of(texts.begin(), texts.end(),
                       [this](std::string_view text) { return Holds(text); });
}

void ModemLine::Collect(std::initializer_list<std::string_view> ends, milliseconds limit,
                        Patience patience) {
    buffer_.clear();
    Wait(
        [&] {
            Gather();
            return HoldsAny(ends) || !port_.IsOpen() ||
                   (stopped_ && patience == Patience::UntilStopped);
        },
        limit);
}

std::string ModemLine::Ask(std::string_view command, int seconds) {
    port_.Write(std::string(command) + '\r');
    Collect({kOkLine, kErrorLine}, MoreThan(seconds));
    return port_.IsOpen() && !stopped_ ? buffer_ : std::string("ERROR");
}

Reply ModemLine::ReplyInBuffer(std::string_view command) const {
    if (Holds(kVoiceLine) || Holds(kOkLine)) {
        return Reply::Ok;
    }
    return TransmitsVoice(command) && Holds(kConnectLine) ? Reply::Connect : Reply::Error;
}

Reply ModemLine::Command(std::string_view command) {
    port_.Write(std::string(command) + '\r');
    if (TransmitsVoice(command)) {
        Collect({kVoiceLine, kOkLine, kErrorLine, kConnectLine}, MoreThan(kReplySeconds));
    } else {
        Collect({kVoiceLine, kOkLine, kErrorLine}, MoreThan(kReplySeconds));
    }
    const Reply reply = ReplyInBuffer(command);
    sounding_ = reply == Reply::Connect;
    return stopped_ ? Reply::Error : reply;
}

Heard ModemLine::SendSound(std::string bytes, int rate) {
    const milliseconds length(bytes.size() * 1000 / static_cast<std::size_t>(std::max(rate, 1)));
    constexpr std::string_view kKeyCode = "\x10"
                                          "1";
    buffer_.clear();
    bool key = false;
    port_.Stream(std::move(bytes), rate);
    WaitFor(
        [&] {
            Gather();
            key = key || Holds(kKeyCode);
            return port_.Unsent() == 0;
        },
        2 * length + seconds(kReplySeconds));
    const bool whole = port_.IsOpen() && !stopped_ && port_.Unsent() == 0;
    port_.Stream({}, rate);
    if (!whole) {
        return Heard::Gone;
    }
    return key ? Heard::Key : Heard::Nothing;
}

Reply ModemLine::EndSound() {
    port_.Write(kEndOfSound);
    Collect({kVoiceLine, kOkLine, kErrorLine}, MoreThan(kReplySeconds));
    const Reply reply = ReplyInBuffer({});
    sounding_ = reply != Reply::Ok;
    return stopped_ ? Reply::Error : reply;
}

Heard ModemLine::Listen(int wholeSeconds) {
    Collect({std::string_view("1")}, MoreThan(wholeSeconds));
    if (!port_.IsOpen() || stopped_) {
        return Heard::Gone;
    }
    return Holds("1") ? Heard::Key : Heard::Nothing;
}

void ModemLine::HangUp() {
    if (!port_.IsOpen()) {
        return;
    }
    if (sounding_) {
        // Words still on their way would swallow the command.
        port_.Stream({}, 1);
        port_.Write(kDropAndEnd);
        Collect({kVoiceLine, kOkLine, kErrorLine}, MoreThan(kHangUpSeconds), Patience::ToTheEnd);
        sounding_ = false;
    }
    // A program that is ending waits for no reply: a reset on the heels of the command could take
    // its effect away.
    const std::initializer_list<std::string_view> commands = {"ATH0\r", "ATZ\r"};
    for (const std::string_view command : commands) {
        port_.Write(command);
        if (ended_) {
            break;
        }
        Collect({kOkLine, kErrorLine}, MoreThan(kHangUpSeconds), Patience::ToTheEnd);
    }
    port_.Close();
}

void ModemLine::Rest(milliseconds time) {
    Wait([this] { return stopped_; }, time);
}

void ModemLine::WaitFor(const std::function<bool()>& predicate, milliseconds limit) {
    Wait([&] { return predicate() || stopped_ || !port_.IsOpen(); }, limit);
}

} // namespace kestrova
