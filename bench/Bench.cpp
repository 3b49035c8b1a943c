// SPDX-License-Identifier: GPL-3.0-or-later
// Runs all the work and prints a row for each: what was done, its time, the limit's time, how many
// times the limit (or which part of the time allowed) it took, the bound, whether it is met. The
// cells are parted by tabs, for bench/run-all. Ends with 1 when a bound is not met.
//
//   kestrova_bench [--once] [Google Benchmark's own options]
//
// With --once, every piece of work is run once to see that it runs, and no bound is judged.
#include "BoundedWork.h"

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <map>

namespace kestrova::bench {

std::vector<BoundedWork>& AllWork() {
    static std::vector<BoundedWork> all;
    return all;
}

AtMost AtMost::TimesTheLimit(double times, const std::string& name, Timed run, Timed limit) {
    AllWork().push_back({name, std::move(run), std::move(limit), times});
    return {};
}

AtMost AtMost::Seconds(double seconds, const std::string& name, Timed run) {
    AllWork().push_back({name, std::move(run), {}, seconds});
    return {};
}

namespace {

constexpr const char* kLimitMark = " (limit)";

// Gathers the time that one iteration took, for every repetition, by name.
class Times : public benchmark::BenchmarkReporter {
public:
    bool ReportContext(const Context& /*context*/) override { return true; }

    void ReportRuns(const std::vector<Run>& runs) override {
        for (const Run& run : runs) {
            if (run.error_occurred) {
                std::fprintf(stderr, "%s: %s\n", run.run_name.function_name.c_str(),
                             run.error_message.c_str());
                failed_ = true;
            } else if (run.run_type == Run::RT_Iteration) {
                seconds_[run.run_name.function_name].push_back(run.real_accumulated_time /
                                                               static_cast<double>(run.iterations));
            }
        }
    }

    // Of all repetitions the one in the middle.
    [[nodiscard]] double Median(const std::string& name) {
        std::vector<double>& times = seconds_[name];
        if (times.empty()) {
            return 0;
        }
        const auto middle = times.begin() + static_cast<std::ptrdiff_t>(times.size() / 2);
        std::nth_element(times.begin(), middle, times.end());
        return *middle;
    }

    [[nodiscard]] bool Failed() const { return failed_; }

private:
    std::map<std::string, std::vector<double>> seconds_;
    bool failed_ = false;
};

std::string InUnits(double seconds) {
    char text[32];
    if (seconds < 1e-3) {
        std::snprintf(text, sizeof text, "%.2f us", seconds * 1e6);
    } else {
        std::snprintf(text, sizeof text, "%.2f ms", seconds * 1e3);
    }
    return text;
}

bool PrintRow(const BoundedWork& work, Times& times) {
    const double run = times.Median(work.Name);
    const double limit = work.Limit ? times.Median(work.Name + kLimitMark) : work.Bound;
    const double ratio = limit > 0 ? run / limit : 0;
    const bool met = run > 0 && ratio <= (work.Limit ? work.Bound : 1);
    char bound[32];
    std::snprintf(bound, sizeof bound, "%.3g x", work.Bound);
    std::printf("%s\t%s\t%s\t%.2f\t%s\t%s\n", work.Name.c_str(), InUnits(run).c_str(),
                work.Limit ? InUnits(limit).c_str() : "-", ratio,
                work.Limit ? bound : InUnits(work.Bound).c_str(), met ? "met" : "NOT MET");
    return met;
}

void Register(const std::string& name, const Timed& timed) {
    benchmark::RegisterBenchmark(name.c_str(), timed)->UseRealTime();
}

} // namespace

} // namespace kestrova::bench

int main(int argc, char* argv[]) {
    using namespace kestrova::bench;
    std::vector<char*> arguments(argv, argv + argc);
    const auto once = std::find_if(arguments.begin(), arguments.end(),
                                   [](const char* a) { return std::strcmp(a, "--once") == 0; });
    const bool judged = once == arguments.end();
    // Work and limit take turns, so that a moment in which the machine is busy hits both.
    std::string repetitions = "--benchmark_repetitions=11";
    std::string interleaving = "--benchmark_enable_random_interleaving=true";
    std::string shortest = "--benchmark_min_time=0.1";
    if (judged) {
        const auto options = {repetitions.data(), interleaving.data(), shortest.data()};
        arguments.insert(arguments.begin() + 1, options.begin(), options.end());
    } else {
        arguments.erase(once);
    }
    // The files register their work in no order that one could rely on.
    std::sort(AllWork().begin(), AllWork().end(),
              [](const BoundedWork& a, const BoundedWork& b) { return a.Name < b.Name; });
    int count = static_cast<int>(arguments.size());
    arguments.push_back(nullptr);
    benchmark::Initialize(&count, arguments.data());
    if (benchmark::ReportUnrecognizedArguments(count, arguments.data())) {
        return 2;
    }
    for (const BoundedWork& work : AllWork()) {
        Register(work.Name, work.Run);
        if (work.Limit) {
            Register(work.Name + kLimitMark, work.Limit);
        }
    }
    Times times;
    benchmark::RunSpecifiedBenchmarks(&times);
    bool met = true;
    for (const BoundedWork& work : AllWork()) {
        met = PrintRow(work, times) && met;
    }
    return times.Failed() || (judged && !met) ? 1 : 0;
}
