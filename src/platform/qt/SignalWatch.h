// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <memory>

class QSocketNotifier;

namespace kestrova {

// Turns the signals by which a session ends a program (SIGTERM, SIGHUP, SIGINT) into a call on the
// thread of the window events, where the program can end in order. One at a time.
class SignalWatch {
public:
    explicit SignalWatch(std::function<void()> onEnd);
    ~SignalWatch();
    SignalWatch(const SignalWatch&) = delete;
    SignalWatch& operator=(const SignalWatch&) = delete;

private:
    std::unique_ptr<QSocketNotifier> notifier_;
};

} // namespace kestrova
