// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/posix/SystemClock.h"

#include "calendar/CalendarDate.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>
#include <optional>
#include <string>

namespace kestrova {
namespace {

// Sets the time zone and puts it back as it was.
class ZoneKeeper {
public:
    ZoneKeeper() {
        if (const char* const zone = std::getenv("TZ")) {
            before_ = zone;
        }
    }
    ~ZoneKeeper() {
        if (before_) {
            Set(*before_);
        } else {
            ::unsetenv("TZ");
        }
    }
    ZoneKeeper(const ZoneKeeper&) = delete;
    ZoneKeeper& operator=(const ZoneKeeper&) = delete;

    static void Set(const std::string& zone) { ::setenv("TZ", zone.c_str(), 1); }

private:
    std::optional<std::string> before_;
};

// Seconds since 1970 that a clock on the wall shows, by the calendar.
long SecondsOf(const WallTime& time) {
    namespace chrono = std::chrono;
    const chrono::sys_days day = chrono::year(time.Year) /
                                 chrono::month(static_cast<unsigned>(time.Month) + 1U) /
                                 chrono::day(static_cast<unsigned>(time.Day));
    return day.time_since_epoch().count() * 86400L + time.Hour * 3600L + time.Minute * 60L +
           time.Second;
}

TEST(SystemClockTest, TheTimeFollowsTheZoneWhileTheProgramRuns) {
    const ZoneKeeper keeper;
    const SystemClock clock;
    struct Row {
        const char* Zone;
        long Ahead; // seconds before the time of Greenwich
    };
    for (const Row row :
         {Row{"AAA0", 0}, Row{"BBB-14", 14 * 3600}, Row{"CCC11:30", -41400}, Row{"AAA0", 0}}) {
        SCOPED_TRACE(row.Zone);
        ZoneKeeper::Set(row.Zone);
        const std::time_t before = std::time(nullptr);
        const WallTime now = clock.Now();
        const std::time_t after = std::time(nullptr);
        EXPECT_GE(SecondsOf(now) - row.Ahead, before);
        EXPECT_LE(SecondsOf(now) - row.Ahead, after);
    }
}

} // namespace
} // namespace kestrova
