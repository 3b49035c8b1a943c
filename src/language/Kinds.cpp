// SPDX-License-Identifier: GPL-3.0-or-later
#include "language/Kinds.h"

#include "language/ItemLists.h"

#include <array>

namespace kestrova {

namespace {

// Four characters each; a fourth and a fifth weekday of a month are both its last.
constexpr std::array<std::string_view, 5> kOrdinalNames = {"1st ", "2nd ", "3rd ", "Last", "Last"};

constexpr std::array kFixedKinds = {RepeatKind::Never, RepeatKind::Daily, RepeatKind::Weekly,
                                    RepeatKind::Monthly, RepeatKind::Annually};

std::optional<OrdinalWeekday> OrdinalWeekdayOf(const StringTable& table, std::string_view text) {
    for (int weekday = 1; weekday <= kDaysOfWeek; ++weekday) {
        const std::string& name = table.WeekdayNames[static_cast<std::size_t>(weekday - 1)];
        if (name.empty() || text.find(name) == std::string_view::npos) {
            continue;
        }
        for (std::size_t k = 0; k < kOrdinalNames.size(); ++k) {
            if (text.find(kOrdinalNames[k]) != std::string_view::npos) {
                return OrdinalWeekday{static_cast<int>(k) + 1, weekday};
            }
        }
        return std::nullopt;
    }
    return std::nullopt;
}

} // namespace

const std::string& ReminderCaption(const StringTable& table, ReminderKind kind) {
    return table.Text(lists::kReminderKinds.Item(static_cast<int>(kind)));
}

std::optional<ReminderKind> ReminderKindOf(const StringTable& table, std::string_view text) {
    const auto index = IndexOf(table, lists::kReminderKinds, text);
    return index ? std::optional(static_cast<ReminderKind>(*index)) : std::nullopt;
}

const std::string& RepeatCaption(const StringTable& table, RepeatKind kind) {
    int index = 0;
    for (std::size_t i = 0; i < kFixedKinds.size(); ++i) {
        if (kFixedKinds[i] == kind) {
            index = static_cast<int>(i);
        }
    }
    return table.Text(lists::kRepeatKinds.Item(index));
}

std::string OrdinalWeekdayCaption(const StringTable& table, const CalendarDate& date) {
    const auto ordinal = static_cast<std::size_t>((date.Day - 1) / kDaysOfWeek);
    const auto weekday = static_cast<std::size_t>(WeekdayOf(date) - 1);
    return std::string(kOrdinalNames[ordinal]) + " " + table.WeekdayNames[weekday];
}

std::optional<Repeat> RepeatOf(const StringTable& table, std::string_view text) {
    if (const auto index = IndexOf(table, lists::kRepeatKinds, text)) {
        return Repeat{kFixedKinds[static_cast<std::size_t>(*index)], {}};
    }
    if (const auto which = OrdinalWeekdayOf(table, text)) {
        return Repeat{RepeatKind::MonthlyByWeekday, *which};
    }
    return std::nullopt;
}

} // namespace kestrova
