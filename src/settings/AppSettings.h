// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calendar/CalendarDate.h"
#include "language/StringTable.h"

#include <array>
#include <cstdint>
#include <string>

namespace kestrova {

// What a colour of the month grid is for.
enum class ColourRole { Background = 0, Text = 1, Today = 2, Event = 3 };
inline constexpr std::size_t kColourRoles = 4;

struct Colour {
    std::int16_t Red = 0; // 0-255 each
    std::int16_t Green = 0;
    std::int16_t Blue = 0;

    bool operator==(const Colour&) const = default;

    // red + 256 x green + 65536 x blue, as files hold a colour in one number.
    [[nodiscard]] std::int32_t Number() const { return Red + 256 * Green + 65536 * Blue; }
};

// How one kind of text is set in print.
struct PrintStyle {
    std::string FontName;
    float Size = 0; // points
    std::int16_t Flag1 = 0;
    std::int16_t Flag2 = 0;
    std::int32_t Colour = 0; // red + 256 x green + 65536 x blue

    bool operator==(const PrintStyle&) const = default;
};
inline constexpr std::size_t kPrintStyles = 4;

// Every choice of the user's: one record, owned by the program, edited by the settings window,
// stored in "Settings.dat". Flags are 0 or 1. Choices from lists are held by their displayed text.
// A member's initial value is what a first start begins with; SetDefault touches only some.
struct AppSettings {
    std::string Reserved1;     // not ours; handed back as it was read
    std::int16_t DataYear = 0; // the year that the diary has been brought forward to
    std::array<Colour, kColourRoles> Colours;
    std::array<std::string, 4> StoredNumbers; // telephone numbers
    std::int16_t KeepAspect = 0;
    std::int16_t StartMaximised = 0;
    std::int16_t ReminderOnClose = 0;
    std::int16_t StartOnBoot = 0; // 0-3
    std::int16_t VideoRepeat = 0;
    std::int16_t VideoFullScreen = 0;
    std::int16_t SpeechEnabled = 0;
    std::int16_t SpeakPicture = 0;
    std::int16_t SpeakWeekDay = 0;
    std::int16_t SpeakDate = 0;
    std::string DiaryViewName;
    std::int16_t HelpTextOn = 0;
    std::int16_t SpeechPitch = 0;
    std::int16_t SpeechSpeed = 0;
    std::string ModemPort;
    std::string ModemDescription;
    std::int16_t LanguageIndex = 0;
    std::int16_t BeepAcknowledge = 0;
    std::string CharacterName;
    std::string PhoneRepeat; // minutes, as typed
    std::string SpeakRepeat;
    std::string ModemName;
    std::array<PrintStyle, kPrintStyles> PrintStyles;
    std::array<std::string, 4> PrintValues; // inches, as typed
    std::int16_t PrintNumber1 = 0;
    std::int16_t PrintNumber2 = 0;
    std::string ChimeType;
    std::string ChimeInterval;
    std::string ChimeSound; // path of a wave file
    std::string Greeting;
    std::string Farewell;
    WeekStart Week = WeekStart::Monday;

    // The "Swap Day/Month" box. Not part of the file: it holds until the program ends.
    bool SwapDayMonth = false;

    bool operator==(const AppSettings&) const = default;

    [[nodiscard]] const Colour& ColourOf(ColourRole role) const {
        return Colours[static_cast<std::size_t>(role)];
    }
};

// Sets the defaults into the fields that have one; the others keep their values.
void SetDefault(AppSettings& settings);

// What a first start begins with: the defaults, and for lists the entry they begin with.
[[nodiscard]] AppSettings FirstSettings(const StringTable& table);

} // namespace kestrova
