// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace kestrova {

// Where the user follows a call.
class CallScreen {
public:
    virtual ~CallScreen() = default;

    // A call of this number begins: it is to be seen, and nothing but stopping it can be done.
    virtual void CallBegins(const std::string& number) = 0;

    // One more line of the call's log.
    virtual void Print(const std::string& line) = 0;

    // The call is over, and the screen goes.
    virtual void CallEnds() = 0;
};

} // namespace kestrova
