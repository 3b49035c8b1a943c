// SPDX-License-Identifier: GPL-3.0-or-later
#include "phone/CallScene.h"

#include "phone/ModemList.h"

#include <gtest/gtest.h>

namespace kestrova {
namespace {

TEST(ModemProbeTest, TheAnswerIsTheFirstLineBehindTheEcho) {
    EXPECT_EQ(AnswerIn("AT+FMM?\r\r\nBox 56K\r\n\r\nOK\r\n", "AT+FMM?"), "Box 56K");
    EXPECT_EQ(AnswerIn("\r\nB\r\nox\r\nOK\r\n", "AT+FMM?"), "Box"); // one character is no answer
    EXPECT_EQ(AnswerIn("AT+FMI?\r\nx", "AT+FMM?"), "AT+FMI?");      // another's echo stays
    EXPECT_EQ(AnswerIn(std::string(2000, '\n') + "late", "AT+FMM?"), "");
    EXPECT_EQ(AnswerIn(std::string(2000, 'x'), "AT+FMM?").size(), 1000U);
}

struct ProbeCase {
    const char* Name;
    std::map<std::string, std::string> Answers;
    bool Present;
    const char* Description;
    const char* Family;
    const char* Port;
    int Seconds; // that waiting for it takes, about
};

TEST(ModemProbeTest, AModemIsWhatItSaysItIs) {
    const std::string error = "\r\nERROR\r\n";
    const std::string flood(100000, 'x');
    const std::map<std::string, std::string> all = {{"AT+FMM?", "AT+FMM?\r\r\nM\r\nodel\r\nOK\r\n"},
                                                    {"AT+FMI?", "\r\nMaker\r\n\r\nOK\r\n"},
                                                    {"AT+FMR?", error},
                                                    {"AT#MDL?", error},
                                                    {"AT#MFR?", error},
                                                    {"AT#REV?", error}};
    const auto with = [&](std::map<std::string, std::string> some) {
        some.insert(all.begin(), all.end());
        return some;
    };
    const ProbeCase cases[] = {
        {"the plus family", all, true, "ModelMaker", "Generic IS-101 Voice Modem", "Com:2", 0},
        {"the last that answers decides", with({{"AT#REV?", "\r\nR7\r\nOK\r\n"}}), true,
         "ModelMakerR7", "Generic Rockwell Voice Modem", "Com:2", 0},
        {"nobody", {{"ATV1Q0 E1", ""}}, false, "old", "", "None", 3},
        {"an error", {{"ATV1Q0 E1", error}}, false, "old", "", "None", 0},
        {"garbage without end", {{"ATV1Q0 E1", flood}}, false, "old", "", "None", 3},
        {"no voice modem",
         {{"AT+FMM?", error},
          {"AT+FMI?", error},
          {"AT+FMR?", error},
          {"AT#MDL?", error},
          {"AT#MFR?", error},
          {"AT#REV?", error}},
         false,
         "",
         "",
         "Com:2",
         0},
        {"one that falls silent", with({{"AT+FMR?", ""}, {"AT#MDL?", ""}}), true, "ModelMaker",
         "Generic IS-101 Voice Modem", "Com:2", 7},
    };
    for (const ProbeCase& row : cases) {
        SCOPED_TRACE(row.Name);
        CallScene scene;
        scene.Settings.ModemDescription = "old";
        scene.Answers = row.Answers;
        scene.Files.Put("/k/MODEM.DAT",
                        "\"ModelMaker\",1\n\"ModelMakerR7\",1\n\"End of List\",0\n");
        scene.Caller.SwitchOff();
        EXPECT_EQ(scene.Caller.ModemPresent(), row.Present);
        EXPECT_EQ(scene.Settings.ModemDescription, row.Description);
        EXPECT_EQ(scene.Settings.ModemName, row.Family);
        EXPECT_EQ(scene.Settings.ModemPort, row.Port);
        EXPECT_EQ(scene.Caller.Modem() == ModemState::On, row.Present);
        EXPECT_EQ(std::chrono::duration_cast<std::chrono::seconds>(scene.Loop.Elapsed).count(),
                  row.Seconds);
        EXPECT_FALSE(scene.Port.IsOpen());
        EXPECT_EQ(scene.Port.Opened, std::vector<std::string>{"2 9600,N,8,1"});
    }
}

TEST(ModemProbeTest, AMissingListIsToldAndTheBuiltInScriptIsUsed) {
    for (const bool tooLarge : {false, true}) {
        CallScene scene;
        if (tooLarge) {
            scene.Files.Put("/k/Modem.Dat", std::string(kModemListLimit + 1, '\n'));
        }
        EXPECT_TRUE(scene.Caller.ModemPresent());
        ASSERT_EQ(scene.Boxes.Shown.size(), 1U);
        EXPECT_EQ(scene.Boxes.Shown[0].Title, "Kestrova Messenger");
        EXPECT_EQ(scene.Boxes.Shown[0].Text, "Cannot Find File Modem.Dat");
        EXPECT_EQ(scene.Boxes.Shown[0].Icon, DialogIcon::Critical);
        EXPECT_EQ(scene.Settings.ModemDescription, "Generic Modem Found");
    }
}

TEST(ModemProbeTest, WithoutAPortThereIsNoModem) {
    CallScene scene;
    scene.Port.Exists = false;
    EXPECT_FALSE(scene.Caller.ModemPresent());
    EXPECT_EQ(scene.Loop.Elapsed.count(), 0);
    EXPECT_EQ(scene.Caller.Modem(), ModemState::Off);
    scene.Settings.ModemPort = "Com:4"; // chosen by the user
    EXPECT_EQ(scene.Caller.Modem(), ModemState::On);
    scene.Caller.SwitchOff();
    EXPECT_EQ(scene.Caller.Modem(), ModemState::Off);
    scene.Caller.PortChosen();
    EXPECT_EQ(scene.Caller.Modem(), ModemState::On);
}

} // namespace
} // namespace kestrova
