// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <benchmark/benchmark.h>
#include <functional>
#include <string>
#include <vector>

namespace kestrova::bench {

using Timed = std::function<void(benchmark::State&)>;

// Work that is to be done within a bound: so many times the limit, which is the least that such
// work takes on this machine, or so many seconds.
struct BoundedWork {
    std::string Name;
    Timed Run;
    Timed Limit; // empty: the bound is in seconds
    double Bound;
};

// All the work there is.
[[nodiscard]] std::vector<BoundedWork>& AllWork();

// Adds work to the table when the program starts; one object of this kind for each piece of work.
class AtMost {
public:
    static AtMost TimesTheLimit(double times, const std::string& name, Timed run, Timed limit);
    static AtMost Seconds(double seconds, const std::string& name, Timed run);
};

} // namespace kestrova::bench
