// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/EventLoop.h"
#include "platform/SerialPort.h"

#include <chrono>
#include <functional>
#include <initializer_list>
#include <string>
#include <string_view>

namespace kestrova {

// What ends a modem's answer.
inline constexpr std::string_view kOkLine = "OK\r\n";
inline constexpr std::string_view kErrorLine = "ERROR\r\n";
inline constexpr std::string_view kVoiceLine = "VCON\r\n";
inline constexpr std::string_view kConnectLine = "CONNECT\r\n";

// The outcome of a command and of every step of a call.
enum class Reply {
    Ok,
    Error,
    Connect // from here on the modem takes what is sent for sound
};
[[nodiscard]] std::string_view ReplyText(Reply reply);

// Whether a key of the telephone has been heard.
enum class Heard { Key, Nothing, Gone };

// The exchange with a modem: what is sent, and how long it is listened for. Every wait handles
// events and ends early when the port goes and when the user or the program stops the call.
class ModemLine {
public:
    ModemLine(SerialPort& port, EventLoop& loop) : port_(port), loop_(loop) {}

    // Opens the port that the settings name ("Com:2") unless it is open. NotFound, Busy (somebody
    // else's) or Failed.
    [[nodiscard]] Status Open(std::string_view choice, std::string_view settings);
    [[nodiscard]] bool IsOpen() const { return port_.IsOpen(); }
    void Close() { port_.Close(); }

    // Sends a command and gives what comes back, up to OK or ERROR, or what has come when more than
    // so many seconds have passed. "ERROR" alone when the port has closed.
    std::string Ask(std::string_view command, int seconds);

    // Sends a command and waits up to 20 seconds for its reply.
    Reply Command(std::string_view command);

    // Sends sound to a modem that takes it, at the pace at which it is spoken; `rate` in bytes a
    // second. Key: the 1 has been pressed meanwhile, the words being spoken to their end.
    Heard SendSound(std::string bytes, int rate);

    // Ends the sound and waits for the modem's reply.
    Reply EndSound();

    // Listens for the key 1.
    Heard Listen(int seconds);

    // Hangs up, resets the modem and closes the port. It hurries when the program is ending.
    void HangUp();

    // Lets time pass, unless the call is stopped.
    void Rest(std::chrono::milliseconds time);

    // Handles events until the predicate holds, the call is stopped, the port goes or time is up.
    void WaitFor(const std::function<bool()>& predicate, std::chrono::milliseconds limit);

    // Every wait of the call that is under way ends at once. With `Ended`, so do those of all later
    // ones.
    void Stop();
    void End();
    void Begin() { stopped_ = ended_; }
    [[nodiscard]] bool Stopped() const { return stopped_; }
    [[nodiscard]] bool Ended() const { return ended_; }

    // A wait cannot end while something that was opened meanwhile, a message say, handles events
    // in its place. To be called now and then: when a wait should have ended a while ago, hangs up
    // without waiting for a reply and closes the port, and whoever waits will find it closed.
    void DropOverdue(std::chrono::steady_clock::time_point now);

private:
    using Moment = std::chrono::steady_clock::time_point;
    enum class Patience { UntilStopped, ToTheEnd };

    bool Wait(const std::function<bool()>& predicate, std::chrono::milliseconds limit);
    void Gather();
    [[nodiscard]] bool Holds(std::string_view text) const;
    [[nodiscard]] bool HoldsAny(std::initializer_list<std::string_view> texts) const;
    void Collect(std::initializer_list<std::string_view> ends, std::chrono::milliseconds limit,
                 Patience patience = Patience::UntilStopped);
    Reply ReplyInBuffer(std::string_view command) const;

    SerialPort& port_;
    EventLoop& loop_;
    std::string buffer_;
    bool stopped_ = false;
    bool ended_ = false;
    bool sounding_ = false;      // the modem takes what is sent for sound
    Moment due_ = Moment::max(); // when the wait under way is to have ended
};

} // namespace kestrova
