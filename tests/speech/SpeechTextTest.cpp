// SPDX-License-Identifier: GPL-3.0-or-later
#include "speech/SpeechText.h"

#include <gtest/gtest.h>

namespace kestrova {
namespace {

using Pieces = std::vector<std::string>;

std::string Repeated(const std::string& text, int times) {
    std::string all;
    for (int i = 0; i < times; ++i) {
        all += text;
    }
    return all;
}

TEST(SpeechTextTest, APieceEndsAfterTheWordWithTheStopSign) {
    const struct {
        std::string Text;
        Pieces Wanted;
    } rows[] = {
        {"", {}},
        {"a", {"a"}},
        {"Hi", {"Hi"}},
        {"Hi you", {"Hi you"}},
        {"Meet Bob at 3.15 today.", {"Meet Bob at 3.15 ", "today."}},
        {"Well! Go on? Yes: it is.", {"Well! ", "Go on? ", "Yes: ", "it is."}},
        {"One, two, three", {"One, two, three"}},
        {"End. x", {"End. ", "x"}},
        {"Where?! Here it is", {"Where?!", " Here it is"}},
        // The line end stands in both pieces, as a break of the voice.
        {"First line\r\nSecond line", {"First line\r\r", "\nSecond line"}},
        {"Last\r\n", {"Last\r", "\n"}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.Text);
        EXPECT_EQ(CutSpeech(row.Text), row.Wanted);
    }
}

TEST(SpeechTextTest, ALongPieceEndsBeforeAShortWord) {
    const std::string sixty = Repeated("abcdefghi ", 6);
    // The 61st character is a blank.
    const std::string long61 = sixty.substr(0, 59) + "x ";
    ASSERT_EQ(long61.size(), 61U);
    EXPECT_EQ(CutSpeech(long61 + "to be continued here"), (Pieces{long61, "to be continued here"}));
    EXPECT_EQ(CutSpeech(long61 + "yes be continued here").front(), long61);
    EXPECT_EQ(CutSpeech(long61 + "into something larger anyway"),
              (Pieces{long61 + "into something larger anyway"}));
    // One character earlier a blank is too early; the next one will do.
    const std::string early = sixty.substr(0, 59) + " ";
    EXPECT_EQ(CutSpeech(early + "to be continued here").front(), early + "to ");
    // The last word is as long as it is.
    EXPECT_EQ(CutSpeech(long61 + "end"), (Pieces{long61, "end"}));
    EXPECT_EQ(CutSpeech(long61 + "ends"), (Pieces{long61 + "ends"}));
}

TEST(SpeechTextTest, WhatIsTooLongForAVoiceIsCutBehindABlank) {
    const std::string word = "Σίγουρα "; // 8 characters, 15 bytes
    const Pieces book{"Short.", Repeated(word, 200)};
    EXPECT_EQ(CutLongPieces(book),
              (Pieces{"Short.", Repeated(word, 75), Repeated(word, 75), Repeated(word, 50)}));
    const std::string solid(1300, 'a');
    EXPECT_EQ(CutLongPieces({solid + " b"}),
              (Pieces{solid.substr(0, 600), solid.substr(0, 600), solid.substr(1200) + " b"}));
    EXPECT_EQ(CutLongPieces({solid.substr(0, 599) + "é"}).size(), 1U);
    EXPECT_EQ(CutLongPieces({}), Pieces());
}

TEST(SpeechTextTest, LongWordsWithoutAStopSignAreOnePiece) {
    const std::string text = Repeated("somewhere ", 20).substr(0, 199) + "e";
    ASSERT_EQ(text.size(), 200U);
    EXPECT_EQ(CutSpeech(text), Pieces{text});
}

TEST(SpeechTextTest, CharactersAreCountedAndNeverCut) {
    // Sixty characters are not long, however many bytes they take.
    const std::string greek = Repeated("\u03b1\u03b2 ", 19) + "\u03cc\u03bb\u03b1";
    EXPECT_EQ(CutSpeech(greek), Pieces{greek});
    const std::string umlauts = "F\u00fc\u00dfe. \u00dcber";
    EXPECT_EQ(CutSpeech(umlauts), (Pieces{"F\u00fc\u00dfe. ", "\u00dcber"}));
    // What is no text at all is spoken as it comes.
    const std::string torn = "\xff\x80.\xc3";
    std::string together;
    for (const std::string& piece : CutSpeech(torn)) {
        together += piece;
    }
    EXPECT_EQ(together, torn);
}

TEST(SpeechTextTest, MarksSayPitchAndSpeed) {
    EXPECT_EQ(WithMarks(120, 150, "Good morning."), "\\Pit=120\\\\Spd=150\\Good morning.");
    const MarkedWords marked = ReadMarks("\\Pit=120\\\\Spd=150\\Good \\Pit=1\\ morning.");
    EXPECT_EQ(marked.Pitch, 120);
    EXPECT_EQ(marked.Speed, 150);
    EXPECT_EQ(marked.Words, "Good \\Pit=1\\ morning.");
    for (const char* const text :
         {"", "Good morning.", "\\Pit=", "\\Pit=x\\Hello", "\\Spd=99999999\\"}) {
        SCOPED_TRACE(text);
        const MarkedWords plain = ReadMarks(text);
        EXPECT_FALSE(plain.Pitch || plain.Speed);
        EXPECT_EQ(plain.Words, text);
    }
}

} // namespace
} // namespace kestrova
