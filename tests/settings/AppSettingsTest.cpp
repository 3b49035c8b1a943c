// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/AppSettings.h"

#include "settings/WholeFile.h"

#include <gtest/gtest.h>

namespace kestrova {
namespace {

TEST(AppSettingsTest, TheDefaultsLeaveAloneWhatHasNone) {
    AppSettings settings = WholeFileSettings();
    settings.VideoFullScreen = 1;
    settings.StartMaximised = 1;
    settings.SpeechEnabled = 1;
    settings.SpeakWeekDay = 1;
    settings.SwapDayMonth = true;
    settings.ReminderOnClose = 0;
    settings.HelpTextOn = 0;
    settings.StartOnBoot = 0;
    SetDefault(settings);

    // Kept: the first part of the record below; set: everything else.
    AppSettings expected = WholeFileSettings();
    expected.VideoFullScreen = 1;
    expected.Colours = {Colour{193, 193, 193}, Colour{0, 0, 0}, Colour{255, 0, 0},
                        Colour{0, 0, 255}};
    expected.KeepAspect = 0;
    expected.StartMaximised = 0;
    expected.ReminderOnClose = 1;
    expected.StartOnBoot = 1;
    expected.SpeechEnabled = 0;
    expected.SpeakPicture = 0;
    expected.SpeakWeekDay = 0;
    expected.SpeakDate = 0;
    expected.HelpTextOn = 1;
    expected.SpeechPitch = 50;
    expected.SpeechSpeed = 100;
    expected.PhoneRepeat = "15";
    expected.SpeakRepeat = "15";
    expected.PrintStyles = {PrintStyle{"Arial", 20, 1, 0, 0}, PrintStyle{"Arial", 12, 1, 0, 0},
                            PrintStyle{"Arial", 14, 0, 0, 0}, PrintStyle{"Arial", 8, 0, 0, 255}};
    expected.PrintValues = {"0.50", "0.25", "0.25", "1.00"};
    expected.PrintNumber1 = 0;
    expected.PrintNumber2 = 9;
    expected.ChimeSound = "";
    expected.Greeting = "The time is";
    expected.Farewell = "My Master.";
    EXPECT_EQ(settings, expected);
}

TEST(AppSettingsTest, AFirstStartChoosesFromTheListsOfItsLanguage) {
    StringTable table = MsgDefaults();
    EXPECT_EQ(FirstSettings(table).ChimeInterval, "On the Hour");
    table.Texts[2][20] = "Keiner";
    table.Texts[2][0] = "Sprache";
    const AppSettings settings = FirstSettings(table);
    EXPECT_EQ(settings.ModemPort, "Keiner");
    EXPECT_EQ(settings.ChimeType, "Sprache");
}

TEST(AppSettingsTest, AColourIsOneNumberWithRedFirst) {
    EXPECT_EQ((Colour{1, 2, 3}).Number(), 1 + 256 * 2 + 65536 * 3);
    EXPECT_EQ((Colour{255, 255, 255}).Number(), 16777215);
}

} // namespace
} // namespace kestrova
