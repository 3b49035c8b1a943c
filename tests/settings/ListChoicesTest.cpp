// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/ListChoices.h"

#include <gtest/gtest.h>

namespace kestrova {
namespace {

StringTable German() {
    StringTable table = MsgDefaults();
    auto& texts = table.Texts[2];
    texts[0] = "Sprache";
    texts[1] = "Glocke";
    texts[2] = "Keine";
    texts[10] = "Nie";
    texts[13] = "Jede Viertelstunde";
    texts[20] = "Keiner";
    texts[21] = "Anschluss 1";
    return table;
}

TEST(ListChoicesTest, ChoicesAreKnownByTheirTextInTheLanguageInUse) {
    AppSettings settings;
    settings.ChimeType = "Chime";
    settings.ChimeInterval = "On the Quarter Hour";
    EXPECT_EQ(ChimeTypeOf(settings, MsgDefaults()), ChimeType::Chime);
    EXPECT_EQ(ChimeIntervalOf(settings, MsgDefaults()), ChimeInterval::QuarterHour);
    EXPECT_EQ(ChimeTypeOf(settings, German()), std::nullopt);
    EXPECT_EQ(ChimeIntervalOf(settings, German()), std::nullopt);

    // Texts of one list are not taken for those of another.
    settings.ChimeType = "Never";
    settings.ChimeInterval = "None";
    EXPECT_EQ(ChimeTypeOf(settings, MsgDefaults()), std::nullopt);
    EXPECT_EQ(ChimeIntervalOf(settings, MsgDefaults()), std::nullopt);
    settings.ChimeType = "Unused";
    settings.ChimeInterval = "EndUnused";
    EXPECT_EQ(ChimeTypeOf(settings, MsgDefaults()), std::nullopt);
    EXPECT_EQ(ChimeIntervalOf(settings, MsgDefaults()), std::nullopt);
}

TEST(ListChoicesTest, TheFirstPortIsNone) {
    AppSettings settings;
    for (const auto& [port, has] : {std::pair{"", false}, {"None", false}, {"Com:1", true}}) {
        SCOPED_TRACE(port);
        settings.ModemPort = port;
        EXPECT_EQ(HasModemPort(settings), has);
    }
}

TEST(ListChoicesTest, ChoicesFollowAChangeOfLanguageAndBack) {
    AppSettings settings;
    settings.ChimeType = "None";
    settings.ChimeInterval = "On the Quarter Hour";
    settings.ModemPort = "None";
    const AppSettings english = settings;
    TranslateChoices(settings, MsgDefaults(), German());
    EXPECT_EQ(settings.ChimeType, "Keine");
    EXPECT_EQ(settings.ChimeInterval, "Jede Viertelstunde");
    EXPECT_EQ(settings.ModemPort, "Keiner");
    TranslateChoices(settings, German(), MsgDefaults());
    EXPECT_EQ(settings, english);

    settings.ModemPort = "/dev/ttyUSB0";
    settings.ChimeType = "";
    TranslateChoices(settings, MsgDefaults(), German());
    EXPECT_EQ(settings.ModemPort, "/dev/ttyUSB0");
    EXPECT_EQ(settings.ChimeType, "");
}

TEST(ListChoicesTest, AChoiceThatNoListHasIsSettled) {
    const StringTable english = MsgDefaults();
    StringTable german = english;
    german.Texts[2] = {"Ansage", "Gong", "Keiner"};
    german.Texts[2][10] = "Nie";
    german.Texts[2][11] = "Stündlich";
    german.Texts[2][20] = "Kein Modem";
    german.Texts[2][21] = "Com:1";
    AppSettings settings;
    settings.ChimeType = "Chime";         // English, of the time before the file was there
    settings.ChimeInterval = "Alle Tage"; // a word that nobody knows any more
    settings.ModemPort = "Com:1";
    SettleChoices(settings, german, [&](const ItemList& list, std::string_view text) {
        return IndexOf(english, list, text);
    });
    EXPECT_EQ(settings.ChimeType, "Gong");
    EXPECT_EQ(settings.ChimeInterval, "Stündlich");
    EXPECT_EQ(settings.ModemPort, "Com:1");
}

} // namespace
} // namespace kestrova
