// SPDX-License-Identifier: GPL-3.0-or-later
#include "exchange/ExchangeCodes.h"

#include "language/Kinds.h"

#include <array>
#include <optional>
#include <utility>

namespace kestrova {

namespace {

constexpr char kAsItIs = '=';

constexpr std::array<std::pair<RepeatKind, std::string_view>, 5> kRepeatWords = {{
    {RepeatKind::Never, "never"},
    {RepeatKind::Daily, "daily"},
    {RepeatKind::Weekly, "weekly"},
    {RepeatKind::Monthly, "monthly"},
    {RepeatKind::Annually, "annually"},
}};

// In the order of the kinds.
constexpr std::array<std::string_view, kReminderKinds> kReminderWords = {
    "screen", "speak", "phone", "email", "media", "music", "none"};

// "monthly-2-3" is the second Wednesday of a month.
constexpr std::string_view kByWeekday = "monthly-";

std::string ByWeekdayCaption(const StringTable& texts, const OrdinalWeekday& which) {
    CalendarDate date{2000, 0, (which.Ordinal - 1) * kDaysOfWeek + 1};
    date.Day += (which.Weekday - WeekdayOf(date) + kDaysOfWeek) % kDaysOfWeek;
    return OrdinalWeekdayCaption(texts, date);
}

std::optional<OrdinalWeekday> WhichOf(std::string_view code) {
    constexpr int kLast = 4;
    if (!code.starts_with(kByWeekday) || code.size() != kByWeekday.size() + 3) {
        return std::nullopt;
    }
    const int ordinal = code[kByWeekday.size()] - '0';
    const int weekday = code.back() - '0';
    const bool sound = ordinal >= 1 && ordinal <= kLast && weekday >= 1 && weekday <= kDaysOfWeek &&
                       code[kByWeekday.size() + 1] == '-';
    return sound ? std::optional(OrdinalWeekday{ordinal, weekday}) : std::nullopt;
}

std::string WordOf(const Repeat& repeat) {
    for (const auto& [kind, word] : kRepeatWords) {
        if (kind == repeat.Kind) {
            return std::string(word);
        }
    }
    return std::string(kByWeekday) + std::to_string(repeat.Which.Ordinal) + "-" +
           std::to_string(repeat.Which.Weekday);
}

} // namespace

std::string RepeatCode(const StringTable& texts, const std::string& caption) {
    if (const auto repeat = RepeatOf(texts, caption)) {
        const std::string word = WordOf(*repeat);
        if (RepeatOfCode(texts, word) == caption) {
            return word;
        }
    }
    return kAsItIs + caption;
}

std::string ReminderCode(const StringTable& texts, const std::string& caption) {
    const auto kind = ReminderKindOf(texts, caption);
    return kind ? std::string(kReminderWords.at(static_cast<std::size_t>(*kind)))
                : kAsItIs + caption;
}

std::string RepeatOfCode(const StringTable& texts, std::string_view code) {
    if (code.starts_with(kAsItIs)) {
        return std::string(code.substr(1));
    }
    if (const auto which = WhichOf(code)) {
        return ByWeekdayCaption(texts, *which);
    }
    for (const auto& [kind, word] : kRepeatWords) {
        if (word == code) {
            return RepeatCaption(texts, kind);
        }
    }
    return RepeatCaption(texts, RepeatKind::Never);
}

std::string ReminderOfCode(const StringTable& texts, std::string_view code) {
    if (code.starts_with(kAsItIs)) {
        return std::string(code.substr(1));
    }
    for (std::size_t i = 0; i < kReminderWords.size(); ++i) {
        if (kReminderWords[i] == code) {
            return ReminderCaption(texts, static_cast<ReminderKind>(i));
        }
    }
    return ReminderCaption(texts, ReminderKind::None);
}

} // namespace kestrova
