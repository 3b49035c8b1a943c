// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Result.h"

#include <chrono>
#include <memory>

#include <cups/cups.h>

namespace kestrova {

// A connection to the printing system of this machine, or to the one that the user has set, that
// waits for nothing beyond a moment that is given. Used by the thread that makes it.
class CupsLine {
public:
    using Moment = std::chrono::steady_clock::time_point;

    // IsOpen says whether somebody was there.
    explicit CupsLine(Moment end);

    [[nodiscard]] bool IsOpen() const { return http_ != nullptr; }
    [[nodiscard]] bool InTime() const;

    [[nodiscard]] http_t* Http() const { return http_.get(); }

    // Why the last call on this line has failed.
    [[nodiscard]] Error Trouble() const;

private:
    struct Closer {
        void operator()(http_t* http) const { httpClose(http); }
    };

    std::unique_ptr<Moment> end_; // the library is told where it is
    std::unique_ptr<http_t, Closer> http_;
};

} // namespace kestrova
