// SPDX-License-Identifier: GPL-3.0-or-later
#include "language/ProgramTexts.h"

#include <array>

namespace kestrova {

namespace {

constexpr std::array<std::string_view, static_cast<std::size_t>(ProgramText::Count)> kEnglish = {
    "Diary Busy",
    "Year ?",
    "This day holds ten events already. Delete one before adding another.",
    "The event being edited has not been saved.",
    "Save It",
    "Go On Editing",
    "The computer's clock shows the year %1, which is before the year of your diary.\n\nIf the "
    "clock "
    "is wrong, keep the diary's year and set the clock: until then no reminders are given. If the "
    "clock is right, the diary can go by it; a copy of it as it is now is kept.",
    "Go by the Clock",
    "Keep the Diary's Year",
    "Try Again",
    "Close Kestrova",
    "&File",
    "&Month",
    "&Week Start",
    "&Language",
    "Current Month",
    "Previous Month",
    "Next Month",
    "Year ...",
    "&Full Screen",
    "&Repeat Mode",
    "&Manual",
    "&About",
    "E&xit",
    "&Delete Event",
    "Delete &All Alike",
    "&Undo Delete",
    "&New Event",
    "E&xit",
    "Picture calendar and personal diary.\n\nFree software under the GNU General Public License, "
    "version 3 or later.",
    "The help page is not there: %1",
    "Previous year",
    "Next year",
    "Hour",
    "Minute",
    "Hide on the calendar",
    "Picture of the month",
    "Media Files (*.mpg;*.avi;*.mov;*.wav;*.mp2;*.mp3)|*.mpg;*.mpeg;*.avi;*.mov;*.wav;*.mp2;*.mp3",
    "*.wav|*.wav",
    "Messenger Reminder Service.",
    "At.",
};

} // namespace

std::string_view TextOf(ProgramText text) {
    return kEnglish[static_cast<std::size_t>(text)];
}

std::string TextOf(ProgramText text, std::string_view value) {
    constexpr std::string_view kPlace = "%1";
    std::string result(TextOf(text));
    if (const std::size_t at = result.find(kPlace); at != std::string::npos) {
        result.replace(at, kPlace.size(), value);
    }
    return result;
}

} // namespace kestrova
