// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

namespace kestrova {

// Texts that the 306 entries of a language block have no room for: the block's layout is fixed, and
// language files that people have made must go on fitting. In menu captions "&" marks the access
// key.
enum class ProgramText {
    DiaryBusy,
    YearPrompt,
    DayFull,
    SaveEdit,
    KeepEdit,
    GoOnEditing,
    ClockBehind,
    GoByTheClock,
    KeepTheYear,
    Retry,
    CloseProgram,
    MenuFile,
    MenuMonth,
    MenuWeekStart,
    MenuLanguage,
    MenuThisMonth,
    MenuPreviousMonth,
    MenuNextMonth,
    MenuYear,
    MenuFullScreen,
    MenuRepeatMode,
    MenuManual,
    MenuAbout,
    MenuExit,
    MenuDelete,
    MenuDeleteAll,
    MenuUndo,
    MenuNewEvent,
    MenuCloseDay,
    AboutText,
    NoHelp,
    PreviousYear,
    NextYear,
    EventHour,
    EventMinute,
    HideFromMonth,
    PictureOfMonth,
    MediaFilter,
    WaveFilter,
    ReminderService,
    SpokenAt,
    Count
};

[[nodiscard]] std::string_view TextOf(ProgramText text);

// The text with `value` in the place of its "%1".
[[nodiscard]] std::string TextOf(ProgramText text, std::string_view value);

} // namespace kestrova
