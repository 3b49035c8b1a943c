// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/qt/SpeechModule.h"

#include "speech/MouthShapes.h"

#include <QColor>
#include <QImage>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <set>

namespace kestrova {
namespace {

const VoiceChoice kEnglish{"en", 50, 100};

double Seconds(const SpokenSound& sound) {
    return static_cast<double>(sound.Samples.size()) / sound.Rate;
}

double Level(const SpokenSound& sound) {
    double sum = 0;
    for (const std::int16_t sample : sound.Samples) {
        sum += static_cast<double>(sample) * sample;
    }
    return std::sqrt(sum / static_cast<double>(sound.Samples.size())) / 32768;
}

SpokenSound Say(const std::string& text, const VoiceChoice& choice = kEnglish) {
    SpeechModule module(KESTROVA_SPEECH);
    const auto sound = module.Say(text, choice);
    EXPECT_TRUE(sound) << module.Trouble() << choice.Locale;
    return sound ? sound.Value() : SpokenSound();
}

TEST(SpeechModuleTest, EveryLanguageIsSpoken) {
    SpeechModule module(KESTROVA_SPEECH);
    const struct {
        const char* Locale;
        const char* Words;
    } rows[] = {{"en", "Good morning"}, {"fr", "Bonjour à tous"}, {"de", "Schönen Morgen"},
                {"es", "Buenos días"},  {"pt-BR", "Bom dia"},     {"it", "Buongiorno"},
                {"nl", "Goedemorgen"},  {"el", "Καλημέρα"},       {"pt_BR", "Bom dia"}};
    for (const auto& row : rows) {
        EXPECT_TRUE(module.HasVoice(row.Locale)) << row.Locale;
        const SpokenSound sound = Say(row.Words, {row.Locale, 50, 100});
        EXPECT_GT(Seconds(sound), 0.3) << row.Locale;
        EXPECT_LT(Seconds(sound), 3) << row.Locale;
        EXPECT_GT(Level(sound), 0.02) << row.Locale;
    }
    EXPECT_FALSE(module.HasVoice("xx"));
    EXPECT_FALSE(module.Say("Hello", {"xx", 50, 100}));
}

TEST(SpeechModuleTest, TheMouthGoesWithTheSound) {
    const SpokenSound sound = Say("Mama, bye.");
    EXPECT_EQ(sound.Mouth.front().Phoneme, "m");
    EXPECT_TRUE(
        std::is_sorted(sound.Mouth.begin(), sound.Mouth.end(),
                       [](const MouthMove& a, const MouthMove& b) { return a.Sample < b.Sample; }));
    EXPECT_LE(sound.Mouth.back().Sample, sound.Samples.size());
    // The comma is a pause.
    EXPECT_TRUE(std::any_of(sound.Mouth.begin(), sound.Mouth.end() - 2,
                            [](const MouthMove& move) { return move.Phoneme.empty(); }));
    std::set<MouthShape> shapes;
    for (const MouthChange& change : MouthChanges(Say("We often go to a fair, Bob."))) {
        shapes.insert(change.Shape);
    }
    EXPECT_EQ(shapes.size(), static_cast<std::size_t>(kMouthShapes));
}

TEST(SpeechModuleTest, SpeedAndPitchAreHeard) {
    const std::string words = "The quick brown fox is at the dentist at three.";
    const double slow = Seconds(Say(words, {"en", 50, 50}));
    const double usual = Seconds(Say(words, {"en", 50, 100}));
    const double fast = Seconds(Say(words, {"en", 50, 250}));
    EXPECT_GT(slow, 1.2 * usual);
    EXPECT_GT(usual, 1.5 * fast);
    const auto crossings = [&](int pitch) {
        const SpokenSound sound = Say("aaaa", {"en", pitch, 100});
        return std::count_if(sound.Samples.begin() + 1, sound.Samples.end(),
                             [last = sound.Samples.front()](std::int16_t sample) mutable {
                                 const bool crosses = last < 0 && sample >= 0;
                                 last = sample;
                                 return crosses;
                             });
    };
    EXPECT_GT(crossings(400), crossings(50));
    // What is out of range is taken for what is nearest.
    EXPECT_GT(Seconds(Say(words, {"en", -5, -5})), usual);
    EXPECT_GT(Seconds(Say(words, {"en", 32000, 32000})), 0.5);
}

TEST(SpeechModuleTest, WhatIsNotMeantToBeSpokenDoesNoHarm) {
    for (const std::string& text :
         {std::string(), std::string("\r\n"), std::string("\xff\xfe\x80"),
          std::string("[[h@l'oU]]"), std::string("<speak><audio src='/etc/passwd'/></speak>"),
          std::string("a\0b", 3)}) {
        EXPECT_LT(Seconds(Say(text)), 20);
    }
    EXPECT_GT(Seconds(Say(std::string(5000, 'a'))), 1);
    const auto book = SpeechModule(KESTROVA_SPEECH).Say(std::string(100'001, 'a'), kEnglish);
    EXPECT_EQ(book.Failure().Code, ErrorCode::TooLarge);
}

TEST(SpeechModuleTest, PicturesAreDrawnOverWhatIsThere) {
    SpeechModule module(KESTROVA_SPEECH);
    QImage image(20, 10, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    const PixelRows rows{reinterpret_cast<std::byte*>(image.bits()), 20, 10, image.bytesPerLine()};
    EXPECT_TRUE(module.Draw("<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 2 1\">"
                            "<rect width=\"1\" height=\"1\" fill=\"red\"/></svg>",
                            rows));
    EXPECT_EQ(image.pixelColor(4, 4), QColor(Qt::red));
    EXPECT_EQ(image.pixelColor(14, 4).alpha(), 0);
    EXPECT_FALSE(module.Draw("no picture", rows));
}

TEST(SpeechModuleTest, AModuleThatIsNotThereIsNoVoice) {
    SpeechModule module("/nowhere/speech.so");
    EXPECT_FALSE(module.HasVoice("en"));
    EXPECT_FALSE(module.Say("Hello", kEnglish));
    EXPECT_FALSE(module.Trouble().empty());
}

} // namespace
} // namespace kestrova
