// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "language/StringTable.h"

#include <optional>
#include <string>
#include <string_view>

namespace kestrova {

// How an event reminds. An event holds the caption of its kind in the language in use when it was
// saved; these functions are the only place that says which kind a text is. The order is that of
// the reminder list.
enum class ReminderKind { Screen, Speak, Phone, Email, Media, Music, None };
inline constexpr int kReminderKinds = 7;

[[nodiscard]] const std::string& ReminderCaption(const StringTable& table, ReminderKind kind);

// Nothing for a text of no kind of this language: such a reminder is kept, and never delivered.
[[nodiscard]] std::optional<ReminderKind> ReminderKindOf(const StringTable& table,
                                                         std::string_view text);

// How an event repeats, in the order of the repeat list.
enum class RepeatKind { Never, Daily, Weekly, Monthly, MonthlyByWeekday, Annually };

// Which weekday of a month: the first, second, third or last of a weekday.
struct OrdinalWeekday {
    int Ordinal = 1; // 1-4, 4 being the last
    int Weekday = 1; // 1 = Monday ... 7 = Sunday

    bool operator==(const OrdinalWeekday&) const = default;
};

struct Repeat {
    RepeatKind Kind = RepeatKind::Never;
    OrdinalWeekday Which; // for MonthlyByWeekday

    bool operator==(const Repeat&) const = default;
};

// The caption of a kind that is the same for every date; not for MonthlyByWeekday.
[[nodiscard]] const std::string& RepeatCaption(const StringTable& table, RepeatKind kind);

// The caption for events that repeat on the same weekday of the month as this date: the ordinal in
// four characters, a blank, the weekday: "2nd  Tuesday", "Last Friday" (also for a fourth one).
[[nodiscard]] std::string OrdinalWeekdayCaption(const StringTable& table, const CalendarDate& date);

// Nothing for a text of no kind of this language: such an event is kept, and not repeated.
[[nodiscard]] std::optional<Repeat> RepeatOf(const StringTable& table, std::string_view text);

} // namespace kestrova
