// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <compare>

namespace kestrova {

// A moment as the clock on the wall shows it.
struct WallTime {
    int Year = 2000;
    int Month = 0; // 0 = January ... 11 = December
    int Day = 1;   // 1-31
    int Hour = 0;
    int Minute = 0;
    int Second = 0;

    // clang-tidy 14 takes the zero in what the compiler makes of this for a pointer.
    auto operator<=>(const WallTime&) const = default; // NOLINT(modernize-use-nullptr)
};

// The one source of the time. Nothing else in the program reads a clock, so that a test can set it.
class Clock {
public:
    virtual ~Clock() = default;

    // The local time now. It may jump either way between two calls: the user sets the clock, summer
    // time begins, the machine was asleep.
    [[nodiscard]] virtual WallTime Now() const = 0;
};

} // namespace kestrova
