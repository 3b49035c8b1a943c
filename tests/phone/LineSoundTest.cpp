// SPDX-License-Identifier: GPL-3.0-or-later
#include "phone/LineSound.h"

#include <gtest/gtest.h>

#include <cmath>

namespace kestrova {
namespace {

TEST(LineSoundTest, TheScriptSaysHowTheModemTakesItsSamples) {
    struct Row {
        const char* SetUp;
        const char* Transmit;
        LineFormat Expected;
    };
    const Row rows[] = {
        {"AT", "AT+VTX", {SampleForm::Unsigned, 8000}},
        {"AT", "AT#VTX", {SampleForm::Unsigned, 7200}},
        {"AT+VSM=1,7200", "AT+VTX", {SampleForm::Unsigned, 7200}},
        {"AT+VSM=0,11025,0,0", "AT+VTX", {SampleForm::Signed, 11025}},
        {"AT+VSM=4", "AT+VTX", {SampleForm::MuLaw, 8000}},
        {"AT+VSM=131,8000", "AT+VTX", {SampleForm::MuLaw, 8000}},
        {"AT+VSM=,99999", "AT+VTX", {SampleForm::Unsigned, 8000}},
        {"AT#VSR=11025", "AT#VTX", {SampleForm::Unsigned, 11025}},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.SetUp);
        ModemScript script;
        script.SetLine(3, row.SetUp);
        script.SetLine(22, row.Transmit);
        EXPECT_EQ(FormatOf(script), row.Expected);
    }
}

TEST(LineSoundTest, OnlyTheLastLineBeforeTheWordsLetsThemOnTheLine) {
    ModemScript script;
    script.SetLine(22, "AT+VTX");
    EXPECT_EQ(TransmitLine(script), 22);
    script.SetLine(24, "AT+VLS=7");
    EXPECT_EQ(TransmitLine(script), 0);
}

TEST(LineSoundTest, SamplesBecomeBytesOfTheForm) {
    const SpokenSound sound{{0, 32767, -32768, 256, -28672}, 8000, {}};
    EXPECT_EQ(LineBytes(sound, {SampleForm::Unsigned, 8000}),
              std::string("\x80\xFF\x00\x81\x10\x10", 6)); // the DLE is doubled
    EXPECT_EQ(LineBytes(sound, {SampleForm::Signed, 8000}), std::string("\0\x7F\x80\x01\x90", 5));
    EXPECT_EQ(LineBytes({{0, 32767, -32768}, 8000, {}}, {SampleForm::MuLaw, 8000}),
              std::string("\xFF\x80\x00", 3));
}

TEST(LineSoundTest, AToneKeepsItsPitchAtTheModemsRate) {
    SpokenSound sound{{}, 22050, {}};
    for (int i = 0; i < 22050; ++i) {
        sound.Samples.push_back(static_cast<std::int16_t>(16000 * std::sin(i * 0.1)));
    }
    const std::string bytes = LineBytes(sound, {SampleForm::Unsigned, 8000});
    int crossings = 0;
    for (std::size_t i = 1; i < bytes.size(); ++i) {
        const auto above = [&](std::size_t at) {
            return static_cast<unsigned char>(bytes[at]) >= 128;
        };
        crossings += !above(i - 1) && above(i) ? 1 : 0;
    }
    EXPECT_NEAR(crossings, 22050 * 0.1 / 6.2832, 2);
}

TEST(LineSoundTest, OddSoundsAreNoTrouble) {
    EXPECT_EQ(LineBytes({}, {}), "");
    EXPECT_EQ(LineBytes({{1, 2, 3}, 0, {}}, {}), "");
    EXPECT_EQ(LineBytes({{0, 0}, 4000, {}}, {}).size(), 4U);
    const SpokenSound endless{std::vector<std::int16_t>(std::size_t{8000} * 300, 0), 8000, {}};
    EXPECT_EQ(LineBytes(endless, {}).size(), std::size_t{8000} * 120);
}

} // namespace
} // namespace kestrova
