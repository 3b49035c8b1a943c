// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calendar/CalendarDate.h"

#include <array>
#include <string>
#include <string_view>

namespace kestrova {

inline constexpr int kTextGroups = 6;
inline constexpr int kTextsPerGroup = 51;

// The groups of texts. The numbers are their order in a language block.
enum class TextGroup {
    Captions = 0,  // window titles and frame captions
    Buttons = 1,   // "Buttons & Options"
    Selectors = 2, // items of drop-down lists
    Labels = 3,
    Tips = 4,    // "Mouse Tip Text"
    Messages = 5 // "Message Boxes"
};

// One text of the table, cited as group.entry.
struct TextId {
    TextGroup Group = TextGroup::Captions;
    int Entry = 0; // 0-50
};

// An entry with this text is a placeholder: no window shows it, nobody may edit it.
inline constexpr std::string_view kUnusedText = "Unused";

// How the title of the month on show is set.
struct TitleFont {
    float Size = 12; // points
    bool Bold = true;
    bool Italic = false;

    bool operator==(const TitleFont&) const = default;
};

// Every text of the language in use: 306 entries, the names of months and days, and the font for
// all of them. One instance, owned by the program, written when the language changes.
struct StringTable {
    std::array<std::array<std::string, kTextsPerGroup>, kTextGroups> Texts;
    std::array<std::string, kMonths> MonthNames; // padded by blanks in the built-in English
    std::array<std::string, kMonths>
        MonthMenu; // captions of the month menu, "&" before access keys
    std::array<std::string, kDaysOfWeek> WeekdayNames; // Monday first, whatever the week start
    std::string LanguageFont;                          // empty: the desktop's own
    TitleFont Title;
    int ProgramLanguage = 0; // which of the fixed list the program's own texts are in

    [[nodiscard]] const std::string& Text(TextId id) const {
        return Texts[static_cast<std::size_t>(id.Group)][static_cast<std::size_t>(id.Entry)];
    }

    // The name of the weekday in a grid column 0-6.
    [[nodiscard]] const std::string& DayName(int column, WeekStart weekStart) const {
        return WeekdayNames[static_cast<std::size_t>(WeekdayOfColumn(column, weekStart) - 1)];
    }

    bool operator==(const StringTable&) const = default;
};

// The built-in English texts, which stand wherever a language file has nothing to say.
[[nodiscard]] StringTable MsgDefaults();

// The English names of the months as files are named by them, whatever the language.
[[nodiscard]] std::string_view EnglishMonthName(int month);

} // namespace kestrova
