// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/AppSettings.h"

#include "language/Texts.h"

namespace kestrova {

void SetDefault(AppSettings& settings) {
    settings.Colours = {Colour{193, 193, 193}, Colour{0, 0, 0}, Colour{255, 0, 0},
                        Colour{0, 0, 255}};
    settings.KeepAspect = 0;
    settings.StartMaximised = 0;
    settings.ReminderOnClose = 1;
    settings.StartOnBoot = 1;
    settings.SpeechEnabled = 0;
    settings.SpeakPicture = 0;
    settings.SpeakWeekDay = 0;
    settings.SpeakDate = 0;
    settings.SwapDayMonth = false;
    settings.HelpTextOn = 1;
    settings.SpeechPitch = 50;
    settings.SpeechSpeed = 100;
    settings.PhoneRepeat = "15";
    settings.SpeakRepeat = "15";
    const std::int32_t text = settings.ColourOf(ColourRole::Text).Number();
    const std::int32_t today = settings.ColourOf(ColourRole::Today).Number();
    settings.PrintStyles = {
        PrintStyle{"Arial", 20, 1, 0, text}, PrintStyle{"Arial", 12, 1, 0, text},
        PrintStyle{"Arial", 14, 0, 0, text}, PrintStyle{"Arial", 8, 0, 0, today}};
    settings.PrintValues = {"0.50", "0.25", "0.25", "1.00"};
    settings.PrintNumber1 = 0;
    settings.PrintNumber2 = 9;
    settings.ChimeSound.clear();
    settings.Greeting = "The time is";
    settings.Farewell = "My Master.";
}

AppSettings FirstSettings(const StringTable& table) {
    AppSettings settings;
    SetDefault(settings);
    settings.ModemPort = table.Text(texts::kModemPorts);
    settings.ChimeType = table.Text(texts::kChimeTypes);
    settings.ChimeInterval =
        table.Text({texts::kChimeIntervals.Group, texts::kChimeIntervals.Entry + 1});
    return settings;
}

} // namespace kestrova
