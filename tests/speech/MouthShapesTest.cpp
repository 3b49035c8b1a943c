// SPDX-License-Identifier: GPL-3.0-or-later
#include "speech/MouthShapes.h"
#include "speech/WaveBytes.h"

#include <gtest/gtest.h>

namespace kestrova {
namespace {

TEST(MouthShapesTest, APhonemeOfAnyLanguageHasAShape) {
    const struct {
        const char* Phoneme;
        MouthShape Shape;
    } rows[] = {
        {"", MouthShape::Closed},  {"_:", MouthShape::Closed}, {"m", MouthShape::Closed},
        {"b", MouthShape::Closed}, {"f", MouthShape::Teeth},   {"v#", MouthShape::Teeth},
        {"V", MouthShape::Open},   {"aI", MouthShape::Open},   {"A:", MouthShape::Open},
        {"&U~", MouthShape::Open}, {"i:", MouthShape::Wide},   {"E~", MouthShape::Wide},
        {"oU", MouthShape::Round}, {"y:", MouthShape::Round},  {"W~", MouthShape::Round},
        {"0", MouthShape::Round},  {"@@", MouthShape::Small},  {"tS", MouthShape::Small},
        {";", MouthShape::Small},  {"*", MouthShape::Small},   {"'a", MouthShape::Open},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(MouthOf(row.Phoneme), row.Shape) << row.Phoneme;
    }
}

TEST(MouthShapesTest, ChangesAreThoseOneCanSeeAndTheLastClosesTheMouth) {
    const SpokenSound sound{
        std::vector<std::int16_t>(1000),
        1000,
        {{0, "h"}, {10, "a"}, {200, "aI"}, {300, "b"}, {310, "o"}, {500, "u:"}}};
    EXPECT_EQ(MouthChanges(sound), (std::vector<MouthChange>{{0.01, MouthShape::Open},
                                                             {0.3, MouthShape::Closed},
                                                             {0.5, MouthShape::Round},
                                                             {1.0, MouthShape::Closed}}));
    EXPECT_TRUE(MouthChanges({}).empty());
}

TEST(WaveBytesTest, ARecordingIsAWaveFile) {
    const std::string wave = WaveBytes({{1, -2}, 22050, {}});
    EXPECT_EQ(wave, std::string("RIFF\x28\0\0\0WAVEfmt \x10\0\0\0\x01\0\x01\0"
                                "\x22\x56\0\0\x44\xac\0\0\x02\0\x10\0data\x04\0\0\0\x01\0\xfe\xff",
                                48));
}

} // namespace
} // namespace kestrova
