// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/SettingsRules.h"

#include <gtest/gtest.h>

namespace kestrova {
namespace {

TEST(SettingsRulesTest, RepeatsAreTwoTo999Minutes) {
    const struct {
        const char* Text;
        bool Taken;
    } rows[] = {{"2", true},   {"15", true},    {"999", true}, {"1", false},
                {"0", false},  {"1000", false}, {"", false},   {"2m", false},
                {" 2", false}, {"-9", false},   {"002", true}, {"001", false}};
    for (const auto& row : rows) {
        EXPECT_EQ(IsRepeatMinutes(row.Text), row.Taken) << row.Text;
    }
}

TEST(SettingsRulesTest, AWaveIsKnownByItsHead) {
    EXPECT_TRUE(IsWave(std::string_view("RIFF\0\0\0\0WAVEfmt ", 16)));
    for (const std::string_view bytes :
         {std::string_view("RIFF\0\0\0\0AVI ", 12), std::string_view("RIFF"),
          std::string_view("RIFFWAVE"), std::string_view("ID3"), std::string_view()}) {
        EXPECT_FALSE(IsWave(bytes)) << bytes;
    }
}

} // namespace
} // namespace kestrova
