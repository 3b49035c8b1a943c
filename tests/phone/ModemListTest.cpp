// SPDX-License-Identifier: GPL-3.0-or-later
#include "phone/ModemList.h"

#include "platform/posix/PosixFileStore.h"

#include <gtest/gtest.h>

namespace kestrova {
namespace {

constexpr const char* kList = "\"Own, of its \r\n" // no second quote: the rest is the name
                              "\"Box 1\",2\r\n"
                              "\"Generic IS-101 Voice Modem\", 1 \r\n"
                              "\"Late\",9\r\n"
                              "\"None\",0\r\n"
                              "\"Huge\",99999\r\n"
                              "\"End of List\",0\r\n"
                              "one,\"a\"\r\n\r\nthree\r\nEnd of Index\r\n"
                              "two\nb\nEnd of Index\n"
                              "last\r\nx\x01y\r\n";

struct ListCase {
    const char* Name;
    std::string Bytes;
    const char* Description;
    const char* ExpectedDescription;
    const char* FirstLine;
    const char* ThirdLine;
};

TEST(ModemListTest, FindsTheScriptOfAModem) {
    const std::string list = kList;
    const ListCase cases[] = {
        {"its own block", list, "Box 1", "Box 1", "two", ""},
        {"its family's, read whole", list, "Unheard of", "Generic IS-101 Voice Modem", "one,\"a\"",
         "three"},
        {"a number past the last block", list, "Late", "Late", "last", ""},
        {"no such block", list, "None", "Generic IS-101 Voice Modem", "one,\"a\"", "three"},
        {"a number that is none", list, "Huge", "Generic IS-101 Voice Modem", "one,\"a\"", "three"},
        {"no record", "\"Else\",1\r\n\"End of List\",0\r\nx\r\n", "Box", "Generic Modem Found", "",
         ""},
        {"no end of the list", "\"Box\",1\r\n", "Box", "Generic Modem Found", "", ""},
        {"nothing behind the list", "\"Box\",1\n\"End of List\"\n", "Box", "Box", "", ""},
        {"nothing", "", "Box", "Generic Modem Found", "", ""},
        {"a hostile list", std::string(100000, '"') + std::string(1000, '\0') + "\n\n,,\n", "",
         "Generic Modem Found", "", ""},
    };
    for (const ListCase& row : cases) {
        SCOPED_TRACE(row.Name);
        ModemInUse modem{row.Description, std::string(kIs101Family), {}};
        modem.Script.SetLine(3, "old");
        ChooseScript(row.Bytes, modem);
        EXPECT_EQ(modem.Description, row.ExpectedDescription);
        EXPECT_EQ(modem.Script.Line(1), row.FirstLine);
        EXPECT_EQ(modem.Script.Line(3), row.ThirdLine);
    }
}

TEST(ModemListTest, ABlockHasNoMoreThanItsLinesAndNothingThatCannotBeSent) {
    std::string bytes = "\"Box\",1\n\"End of List\",0\n";
    for (int i = 1; i <= 50; ++i) {
        bytes += std::to_string(i) + std::string(1, '\0') + "\x1B" + std::string(1000, 'x') + "\n";
    }
    ModemInUse modem{"Box", {}, {}};
    ChooseScript(bytes, modem);
    EXPECT_EQ(modem.Script.Line(33).substr(0, 4), "33xx");
    EXPECT_LE(modem.Script.Line(33).size(), 250U);
    EXPECT_EQ(modem.Script.Line(34), "");
}

TEST(ModemListTest, WithoutAListEachFamilyHasItsBuiltInScript) {
    ModemInUse modem{"Box", std::string(kIs101Family), {}};
    modem.Script.SetLine(2, "old");
    ChooseBuiltInScript(modem);
    EXPECT_EQ(modem.Description, "Generic Modem Found");
    EXPECT_EQ(modem.Script.Line(1), "AT&D0 +FCLASS=8");
    EXPECT_EQ(modem.Script.Line(2), "");
    EXPECT_EQ(modem.Script.Line(22), "AT+VLS=7");
    EXPECT_EQ(modem.Script.Line(28), "AT+VTS=300,600,5");
    modem.Family = "anything else";
    ChooseBuiltInScript(modem);
    EXPECT_EQ(modem.Script.Line(4), "AT#CLS=8");
    EXPECT_EQ(modem.Script.Line(22), "");
    EXPECT_EQ(modem.Script.Line(30), "AT#VTS={1,4}");
}

TEST(ModemListTest, TheListThatShipsKnowsBothFamilies) {
    const auto bytes = PosixFileStore().Read(SHIPPED_MODEMS, kModemListLimit);
    ASSERT_TRUE(bytes);
    for (const auto& [family, first, last] :
         {std::tuple(kIs101Family, "AT&D0 +FCLASS=8", "AT+VTS=[1200,0,40]"),
          std::tuple(kRockwellFamily, "AT&D0", "AT#VTS={1,4}")}) {
        ModemInUse modem{"Some Box", std::string(family), {}};
        ChooseScript(bytes.Value(), modem);
        EXPECT_EQ(modem.Description, family);
        EXPECT_EQ(modem.Script.Line(1), first);
        EXPECT_EQ(modem.Script.Line(30), last);
        for (int number = 31; number <= 34; ++number) {
            EXPECT_EQ(modem.Script.Line(number), "");
        }
    }
}

} // namespace
} // namespace kestrova
