// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/EventLoop.h"

namespace kestrova {

class QtEventLoop : public EventLoop {
public:
    bool WaitUntil(const std::function<bool()>& predicate,
                   std::chrono::milliseconds limit) override;
};

} // namespace kestrova
