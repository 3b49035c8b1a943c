// SPDX-License-Identifier: GPL-3.0-or-later
#include "language/Kinds.h"

#include <gtest/gtest.h>

namespace kestrova {
namespace {

TEST(KindsTest, RemindersAreKnownByTheirCaption) {
    struct Row {
        const char* Caption;
        std::optional<ReminderKind> Kind;
    };
    const Row rows[] = {
        {"Screen", ReminderKind::Screen}, {"Speak", ReminderKind::Speak},
        {"Phone", ReminderKind::Phone},   {"Email", ReminderKind::Email},
        {"Media", ReminderKind::Media},   {"Music", ReminderKind::Music},
        {"None", ReminderKind::None},     {"none", std::nullopt},
        {"None ", std::nullopt},          {"", std::nullopt},
        {"Telefon", std::nullopt},        {"Unused", std::nullopt},
    };
    const StringTable table = MsgDefaults();
    for (const Row& row : rows) {
        SCOPED_TRACE(row.Caption);
        EXPECT_EQ(ReminderKindOf(table, row.Caption), row.Kind);
        if (row.Kind) {
            EXPECT_EQ(ReminderCaption(table, *row.Kind), row.Caption);
        }
    }
}

TEST(KindsTest, RepeatsAreKnownByTheirCaption) {
    const auto monthly = [](int ordinal, int weekday) {
        return Repeat{RepeatKind::MonthlyByWeekday, {ordinal, weekday}};
    };
    struct Row {
        const char* Caption;
        std::optional<Repeat> Expected;
    };
    const Row rows[] = {
        {"Never", Repeat{RepeatKind::Never, {}}},
        {"Daily", Repeat{RepeatKind::Daily, {}}},
        {"Weekly", Repeat{RepeatKind::Weekly, {}}},
        {"Monthly", Repeat{RepeatKind::Monthly, {}}},
        {"Annually", Repeat{RepeatKind::Annually, {}}},
        {"1st  Monday", monthly(1, 1)},
        {"2nd  Tuesday", monthly(2, 2)},
        {"3rd  Sunday", monthly(3, 7)},
        {"Last Friday", monthly(4, 5)},
        {"Last", std::nullopt},
        {"Friday", std::nullopt},
        {"5th  Friday", std::nullopt},
        {"never", std::nullopt},
        {"", std::nullopt},
    };
    const StringTable table = MsgDefaults();
    for (const Row& row : rows) {
        SCOPED_TRACE(row.Caption);
        EXPECT_EQ(RepeatOf(table, row.Caption), row.Expected);
        if (row.Expected && row.Expected->Kind != RepeatKind::MonthlyByWeekday) {
            EXPECT_EQ(RepeatCaption(table, row.Expected->Kind), row.Caption);
        }
    }
}

TEST(KindsTest, TheMonthlyCaptionNamesTheWeekdayOfTheDate) {
    struct Row {
        CalendarDate Date;
        const char* Caption;
        OrdinalWeekday Which;
    };
    const Row rows[] = {
        {{2026, 9, 1}, "1st  Thursday", {1, 4}},  {{2026, 9, 7}, "1st  Wednesday", {1, 3}},
        {{2026, 9, 8}, "2nd  Thursday", {2, 4}},  {{2026, 9, 21}, "3rd  Wednesday", {3, 3}},
        {{2026, 9, 22}, "Last Thursday", {4, 4}}, {{2026, 9, 28}, "Last Wednesday", {4, 3}},
        {{2026, 9, 31}, "Last Saturday", {4, 6}},
    };
    const StringTable table = MsgDefaults();
    for (const Row& row : rows) {
        SCOPED_TRACE(row.Caption);
        EXPECT_EQ(OrdinalWeekdayCaption(table, row.Date), row.Caption);
        EXPECT_EQ(RepeatOf(table, row.Caption), (Repeat{RepeatKind::MonthlyByWeekday, row.Which}));
    }
}

TEST(KindsTest, ATranslatedTableKnowsItsOwnWordsOnly) {
    StringTable german = MsgDefaults();
    german.Texts[2][32] = "Telefon";
    german.Texts[2][41] = "T\xC3\xA4glich";
    german.WeekdayNames[1] = "Dienstag";
    EXPECT_EQ(ReminderKindOf(german, "Telefon"), ReminderKind::Phone);
    EXPECT_EQ(ReminderKindOf(german, "Phone"), std::nullopt);
    EXPECT_EQ(RepeatOf(german, "T\xC3\xA4glich"), (Repeat{RepeatKind::Daily, {}}));
    EXPECT_EQ(RepeatOf(german, "Daily"), std::nullopt);
    EXPECT_EQ(OrdinalWeekdayCaption(german, {2026, 9, 13}), "2nd  Dienstag");
    EXPECT_EQ(RepeatOf(german, "2nd  Dienstag"), (Repeat{RepeatKind::MonthlyByWeekday, {2, 2}}));
}

TEST(KindsTest, ADayWithoutANameIsNoRepeat) {
    StringTable table = MsgDefaults();
    table.WeekdayNames.fill("");
    EXPECT_EQ(RepeatOf(table, "2nd  Tuesday"), std::nullopt);
}

} // namespace
} // namespace kestrova
