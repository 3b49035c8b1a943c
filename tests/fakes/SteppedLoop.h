// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/EventLoop.h"

#include <functional>

namespace kestrova {

// An event loop in which nothing takes time: a wait lets one step of a test run, asks once more,
// and is over.
class SteppedLoop : public EventLoop {
public:
    std::function<void()> WhileWaiting;
    std::chrono::milliseconds LastLimit{0};

    bool WaitUntil(const std::function<bool()>& predicate,
                   std::chrono::milliseconds limit) override {
        LastLimit = limit;
        if (!predicate() && WhileWaiting) {
            WhileWaiting();
        }
        return predicate();
    }
};

} // namespace kestrova
