// SPDX-License-Identifier: GPL-3.0-or-later
#include "phone/PhoneNumbers.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace kestrova {
namespace {

using testing::ElementsAre;

TEST(PhoneNumbersTest, OpeningTheListTakesWhatIsTyped) {
    PhoneNumbers numbers;
    numbers.Fill({"", "1", "", "2"});
    EXPECT_THAT(numbers.List(), ElementsAre("1", "2"));
    numbers.Opened("3");
    EXPECT_THAT(numbers.List(), ElementsAre("1", "2", "3"));
    numbers.Select(1);
    numbers.Opened("4"); // no room: it replaces the selected one
    EXPECT_THAT(numbers.List(), ElementsAre("1", "4", "3"));
    numbers.Opened("3"); // known
    EXPECT_THAT(numbers.List(), ElementsAre("1", "4", "3"));
    numbers.Opened(""); // takes the selected one away
    EXPECT_THAT(numbers.List(), ElementsAre("1", "3"));
    numbers.Left("");
    numbers.Left("5");
    EXPECT_THAT(numbers.List(), ElementsAre("1", "3", "5"));
    EXPECT_THAT(numbers.Stored(), ElementsAre("", "1", "3", "5"));
}

TEST(PhoneNumbersTest, OnlyDigitsMakeANumber) {
    PhoneNumbers numbers;
    EXPECT_TRUE(numbers.AreValid());
    numbers.Fill({"", "0123456789", "12 34", ""});
    EXPECT_FALSE(numbers.AreValid());
}

TEST(PhoneNumbersTest, TheNumberInTheBoxIsDialledElseTheFirst) {
    PhoneNumbers numbers;
    EXPECT_EQ(numbers.ToDial(""), "");
    numbers.Fill({"", "1", "2", ""});
    EXPECT_EQ(numbers.ToDial(""), "1");
    EXPECT_EQ(numbers.ToDial("9"), "9");
    EXPECT_EQ(DialString("9", "Generic IS-101 Voice Modem"), "ATD9;");
    EXPECT_EQ(DialString("9", "Generic Rockwell Voice Modem"), "ATD9");
}

TEST(PhoneNumbersTest, TheWarningNamesThemAll) {
    PhoneNumbers numbers;
    numbers.Fill({"", "1", "2", ""});
    EXPECT_EQ(NumbersWarning(MsgDefaults(), numbers),
              "Kestrova will attempt to call the following numbers\n1\n2\n\nCheck carefully as "
              "wrong numbers will cause a nuisance \nAnd can be Costly!");
}

} // namespace
} // namespace kestrova
