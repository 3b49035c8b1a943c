// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <functional>

namespace kestrova {

// Waiting without standing still: while the program waits, the window events and the timer go on.
class EventLoop {
public:
    virtual ~EventLoop() = default;

    // Handles events until the predicate holds or the limit has passed; returns whether it holds.
    // Events handled meanwhile may call back into whoever waits, which must be ready for that.
    virtual bool WaitUntil(const std::function<bool()>& predicate,
                           std::chrono::milliseconds limit) = 0;
};

} // namespace kestrova
