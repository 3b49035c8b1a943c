// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "settings/AppSettings.h"

#include <string>
#include <string_view>
#include <vector>

namespace kestrova {

// A settings file line by line, every value another where that can be, and the record it holds.
inline std::vector<std::string> WholeFileLines() {
    return {
        "someone else's", // 1: not ours
        " 2026 ",         // 2: year
        " 11 ",
        " 12 ",
        " 13 ",
        "01234 567890", // 3-6: background and the first number
        " 21 ",
        " 22 ",
        " 23 ",
        "", // 7-10: text
        " 31 ",
        " 32 ",
        " 33 ",
        "+44 20 7946 0", // 11-14: today
        " 0 ",
        " 128 ",
        " 255 ",
        "*99#",                       // 15-18: events
        " 1 ",                        // 19: keep aspect
        " 0 ",                        // 20: start maximised
        " 1 ",                        // 21: reminder on close
        " 5 ",                        // 22: start on boot, video repeat
        " 0 ",                        // 23: speech
        " 1 ",                        // 24: picture
        " 0 ",                        // 25: week day
        " 1 ",                        // 26: date
        "My Diary",                   // 27
        " 1 ",                        // 28: help text
        " 45 ",                       // 29: pitch
        "-110 ",                      // 30: speed
        "Com:2",                      // 31
        "Generic Modem Found",        // 32
        " 3 ",                        // 33: language
        " 1 ",                        // 34: beep
        "Owl",                        // 35
        "15",                         // 36: telephone repeat
        "20",                         // 37: speech repeat
        "Generic IS-101 Voice Modem", // 38
        "Arial",
        " 20 ",
        " 1 ",
        " 0 ",
        " 16777215 ", // 39-43
        "Courier",
        " 8.25 ",
        " 0 ",
        " 1 ",
        " 255 ", // 44-48
        "",
        " 14 ",
        " 0 ",
        " 0 ",
        " 0 ", // 49-53
        "Gr\xC3\xB6\xC3\x9F"
        "e",
        " 7 ",
        " 1 ",
        " 1 ",
        " 65280 ", // 54-58
        "0.50",
        "0.25",
        "0.75",
        "1.00", // 59-62
        " 2 ",
        " 9 ",                  // 63-64
        "Chime",                // 65
        "On the Half Hour",     // 66
        "C:\\Sounds\\gong.wav", // 67
        "Gr\xC3\xBC\xC3\x9F"
        "e um",        // 68: greeting
        "My Master. ", // 69: farewell
        " 2 ",         // 70: week start
    };
}

inline AppSettings WholeFileSettings() {
    AppSettings settings;
    settings.Reserved1 = "someone else's";
    settings.DataYear = 2026;
    settings.Colours = {Colour{11, 12, 13}, Colour{21, 22, 23}, Colour{31, 32, 33},
                        Colour{0, 128, 255}};
    settings.StoredNumbers = {"01234 567890", "", "+44 20 7946 0", "*99#"};
    settings.KeepAspect = 1;
    settings.ReminderOnClose = 1;
    settings.StartOnBoot = 1;
    settings.VideoRepeat = 1;
    settings.SpeakPicture = 1;
    settings.SpeakDate = 1;
    settings.DiaryViewName = "My Diary";
    settings.HelpTextOn = 1;
    settings.SpeechPitch = 45;
    settings.SpeechSpeed = -110;
    settings.ModemPort = "Com:2";
    settings.ModemDescription = "Generic Modem Found";
    settings.LanguageIndex = 3;
    settings.BeepAcknowledge = 1;
    settings.CharacterName = "Owl";
    settings.PhoneRepeat = "15";
    settings.SpeakRepeat = "20";
    settings.ModemName = "Generic IS-101 Voice Modem";
    settings.PrintStyles = {PrintStyle{"Arial", 20, 1, 0, 0xFFFFFF},
                            PrintStyle{"Courier", 8.25F, 0, 1, 0x0000FF},
                            PrintStyle{"", 14, 0, 0, 0},
                            PrintStyle{"Gr\xC3\xB6\xC3\x9F"
                                       "e",
                                       7, 1, 1, 0x00FF00}};
    settings.PrintValues = {"0.50", "0.25", "0.75", "1.00"};
    settings.PrintNumber1 = 2;
    settings.PrintNumber2 = 9;
    settings.ChimeType = "Chime";
    settings.ChimeInterval = "On the Half Hour";
    settings.ChimeSound = "C:\\Sounds\\gong.wav";
    settings.Greeting = "Gr\xC3\xBC\xC3\x9F"
                        "e um";
    settings.Farewell = "My Master. ";
    settings.Week = WeekStart::Saturday;
    return settings;
}

inline std::string JoinLines(const std::vector<std::string>& lines, std::string_view end = "\r\n") {
    std::string bytes;
    for (const std::string& line : lines) {
        bytes.append(line).append(end);
    }
    return bytes;
}

} // namespace kestrova
