// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/SettingsFile.h"

#include "settings/WholeFile.h"

#include <gtest/gtest.h>

#include <random>

namespace kestrova {
namespace {

TEST(SettingsFileTest, SeventyLinesByteForByte) {
    ASSERT_EQ(WholeFileLines().size(), 70U);
    EXPECT_EQ(WriteSettings(WholeFileSettings()), JoinLines(WholeFileLines()));
}

TEST(SettingsFileTest, AFileIsReadHoweverItsLinesEnd) {
    const std::string whole = JoinLines(WholeFileLines());
    const std::string variants[] = {whole, JoinLines(WholeFileLines(), "\n"),
                                    "\xEF\xBB\xBF" + whole, whole.substr(0, whole.size() - 2)};
    for (std::size_t i = 0; i < std::size(variants); ++i) {
        SCOPED_TRACE("variant " + std::to_string(i));
        AppSettings settings;
        EXPECT_TRUE(ReadSettings(variants[i], settings));
        EXPECT_EQ(settings, WholeFileSettings());
    }
}

TEST(SettingsFileTest, EveryNumberStandsOnItsOwnLine) {
    struct Row {
        std::size_t Line;
        std::int16_t AppSettings::*Field;
    };
    const Row rows[] = {
        {2, &AppSettings::DataYear},         {19, &AppSettings::KeepAspect},
        {20, &AppSettings::StartMaximised},  {21, &AppSettings::ReminderOnClose},
        {23, &AppSettings::SpeechEnabled},   {24, &AppSettings::SpeakPicture},
        {25, &AppSettings::SpeakWeekDay},    {26, &AppSettings::SpeakDate},
        {28, &AppSettings::HelpTextOn},      {29, &AppSettings::SpeechPitch},
        {30, &AppSettings::SpeechSpeed},     {33, &AppSettings::LanguageIndex},
        {34, &AppSettings::BeepAcknowledge}, {63, &AppSettings::PrintNumber1},
        {64, &AppSettings::PrintNumber2},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE("line " + std::to_string(row.Line));
        auto lines = WholeFileLines();
        AppSettings expected = WholeFileSettings();
        const bool isOne = lines[row.Line - 1] == " 1 ";
        lines[row.Line - 1] = isOne ? " 0 " : " 1 ";
        expected.*row.Field = isOne ? 0 : 1;
        AppSettings settings;
        EXPECT_TRUE(ReadSettings(JoinLines(lines), settings));
        EXPECT_EQ(settings, expected);
        EXPECT_EQ(WriteSettings(expected), JoinLines(lines));
    }
}

TEST(SettingsFileTest, ThreeChoicesShareLineTwentyTwo) {
    struct Row {
        std::int16_t Boot;
        std::int16_t Repeat;
        std::int16_t FullScreen;
        const char* Line;
    };
    const Row rows[] = {{0, 0, 0, " 0 "},  {1, 0, 0, " 1 "},  {0, 1, 0, " 4 "},
                        {1, 1, 0, " 5 "},  {0, 0, 1, " 16 "}, {1, 0, 1, " 17 "},
                        {0, 1, 1, " 20 "}, {1, 1, 1, " 21 "}, {3, 1, 1, " 23 "}};
    for (const Row& row : rows) {
        SCOPED_TRACE(row.Line);
        auto lines = WholeFileLines();
        lines[21] = row.Line;
        AppSettings expected = WholeFileSettings();
        expected.StartOnBoot = row.Boot;
        expected.VideoRepeat = row.Repeat;
        expected.VideoFullScreen = row.FullScreen;
        EXPECT_EQ(WriteSettings(expected), JoinLines(lines));
        AppSettings settings;
        EXPECT_TRUE(ReadSettings(JoinLines(lines), settings));
        EXPECT_EQ(settings, expected);
    }
    // Either bit of a pair switches a choice on.
    auto lines = WholeFileLines();
    lines[21] = " 42 ";
    AppSettings settings;
    EXPECT_TRUE(ReadSettings(JoinLines(lines), settings));
    EXPECT_EQ(settings.StartOnBoot, 2);
    EXPECT_EQ(settings.VideoRepeat, 1);
    EXPECT_EQ(settings.VideoFullScreen, 1);
}

TEST(SettingsFileTest, TextsAreReadFromTheFirstCharacterToTheFirstComma) {
    struct Row {
        const char* Line;
        const char* Greeting;
    };
    const Row rows[] = {
        {"Good day, it is now", "Good day"},
        {"  It is now", "It is now"},
        {"It  is  now  ", "It  is  now  "},
        {"\"It is now\"", "\"It is now\""},
        {",", ""},
        {"", ""},
        {"Gr\xFC\xDF Gott", "Gr\xC3\xBC\xC3\x9F Gott"},
        {"Gr\xC3\xBC\xC3\x9F Gott", "Gr\xC3\xBC\xC3\x9F Gott"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.Line);
        auto lines = WholeFileLines();
        lines[67] = row.Line;
        AppSettings expected = WholeFileSettings();
        expected.Greeting = row.Greeting;
        AppSettings settings;
        EXPECT_TRUE(ReadSettings(JoinLines(lines), settings));
        EXPECT_EQ(settings, expected);
    }
}

TEST(SettingsFileTest, AWrongLineIsNamedAndEndsTheReading) {
    struct Row {
        int Line;
        const char* Text;
    };
    const Row rows[] = {
        {2, "this year"}, {2, ""},      {2, "32768"},     {2, "2026.5"},    {3, "256"},
        {4, "-1 "},       {17, "1000"}, {19, "True"},     {22, "-1 "},      {22, "65536"},
        {29, "50%"},      {33, "-1 "},  {40, "big"},      {40, "nan"},      {40, "inf"},
        {40, "-1 "},      {43, "-1 "},  {43, "16777216"}, {43, "&H00FFFF"}, {70, " 3 "},
        {70, "-1 "},      {70, ""},     {70, "Monday"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(std::to_string(row.Line) + ": " + row.Text);
        auto lines = WholeFileLines();
        lines[static_cast<std::size_t>(row.Line - 1)] = row.Text;
        AppSettings settings;
        const Status read = ReadSettings(JoinLines(lines), settings);
        ASSERT_FALSE(read);
        EXPECT_EQ(read.Failure().Code, ErrorCode::Damaged);
        EXPECT_EQ(read.Failure().Text, "line " + std::to_string(row.Line));
        EXPECT_EQ(settings.Reserved1, "someone else's");
        EXPECT_EQ(settings.StoredNumbers[0], row.Line > 6 ? "01234 567890" : "");
        EXPECT_EQ(settings.CharacterName, row.Line > 35 ? "Owl" : "");
        EXPECT_EQ(settings.Farewell, row.Line > 69 ? "My Master. " : "");
        EXPECT_EQ(settings.Week, WeekStart::Monday);
    }
}

TEST(SettingsFileTest, AFileCutAnywhereKeepsWhatStandsBeforeTheCut) {
    const auto whole = WholeFileLines();
    AppSettings before;
    before.Reserved1 = "kept";
    before.StartOnBoot = 3;
    before.ChimeType = "kept";
    before.Week = WeekStart::Sunday;
    for (std::size_t count = 0; count < whole.size(); ++count) {
        SCOPED_TRACE("cut after line " + std::to_string(count));
        const std::vector<std::string> lines(whole.begin(),
                                             whole.begin() + static_cast<std::ptrdiff_t>(count));
        AppSettings settings = before;
        const Status read = ReadSettings(JoinLines(lines), settings);
        ASSERT_FALSE(read);
        EXPECT_EQ(read.Failure().Text, "line " + std::to_string(count + 1));
        EXPECT_EQ(settings.Reserved1, count >= 1 ? "someone else's" : "kept");
        EXPECT_EQ(settings.DataYear, count >= 2 ? 2026 : 0);
        EXPECT_EQ(settings.StartOnBoot, count >= 22 ? 1 : 3);
        EXPECT_EQ(settings.VideoRepeat, count >= 22 ? 1 : 0);
        EXPECT_EQ(settings.ModemPort, count >= 31 ? "Com:2" : "");
        EXPECT_EQ(settings.PrintStyles[3].Colour, count >= 58 ? 65280 : 0);
        EXPECT_EQ(settings.ChimeType, count >= 65 ? "Chime" : "kept");
        EXPECT_EQ(settings.Week, WeekStart::Sunday);
    }
}

TEST(SettingsFileTest, NoTextCanAddALineToTheFile) {
    AppSettings settings = WholeFileSettings();
    settings.Greeting = "It\r\nis\nnow";
    settings.ChimeSound = std::string("gong\0.wav", 9);
    const std::string bytes = WriteSettings(settings);
    EXPECT_EQ(std::count(bytes.begin(), bytes.end(), '\n'), 70);
    AppSettings read;
    EXPECT_TRUE(ReadSettings(bytes, read));
    EXPECT_EQ(read.Greeting, "It  is now");
    EXPECT_EQ(read.ChimeSound, "gong .wav");
    EXPECT_EQ(read.Farewell, settings.Farewell);
}

TEST(SettingsFileTest, RandomRecordsComeBackAsTheyWere) {
    const auto seed = std::random_device{}();
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 random(seed);
    const auto number = [&random](int low, int high) {
        return static_cast<std::int16_t>(std::uniform_int_distribution<int>(low, high)(random));
    };
    const auto text = [&] {
        static const char* const kPieces[] = {"a",
                                              "Z",
                                              "9",
                                              "'",
                                              "\"",
                                              ".",
                                              ":",
                                              "\\",
                                              "/",
                                              "#",
                                              "\t",
                                              "\xC3\xA9",
                                              "\xCE\xB2",
                                              "\xE2\x82\xAC",
                                              "\xF0\x9F\x98\x80",
                                              " x",
                                              "x "};
        std::string made;
        for (int length = number(0, 30); length > 0; --length) {
            made += kPieces[static_cast<std::size_t>(number(0, std::size(kPieces) - 1))];
        }
        return made.substr(std::min(made.find_first_not_of(' '), made.size()));
    };
    for (int round = 0; round < 500; ++round) {
        AppSettings settings;
        for (std::int16_t* const field :
             {&settings.DataYear, &settings.KeepAspect, &settings.StartMaximised,
              &settings.ReminderOnClose, &settings.SpeechEnabled, &settings.SpeakPicture,
              &settings.SpeakWeekDay, &settings.SpeakDate, &settings.HelpTextOn,
              &settings.SpeechPitch, &settings.SpeechSpeed, &settings.BeepAcknowledge,
              &settings.PrintNumber1, &settings.PrintNumber2}) {
            *field = number(-32768, 32767);
        }
        settings.StartOnBoot = number(0, 3);
        settings.VideoRepeat = number(0, 1);
        settings.VideoFullScreen = number(0, 1);
        settings.LanguageIndex = number(0, 32767);
        settings.Week = static_cast<WeekStart>(number(0, 2));
        for (std::string* const field :
             {&settings.Reserved1, &settings.DiaryViewName, &settings.ModemPort,
              &settings.ModemDescription, &settings.CharacterName, &settings.PhoneRepeat,
              &settings.SpeakRepeat, &settings.ModemName, &settings.ChimeType,
              &settings.ChimeInterval, &settings.ChimeSound, &settings.Greeting,
              &settings.Farewell}) {
            *field = text();
        }
        for (std::size_t i = 0; i < 4; ++i) {
            settings.Colours[i] = {number(0, 255), number(0, 255), number(0, 255)};
            settings.StoredNumbers[i] = text();
            settings.PrintValues[i] = text();
            settings.PrintStyles[i] = {text(), static_cast<float>(number(0, 32767)) / 7.0F,
                                       number(-32768, 32767), number(-32768, 32767),
                                       number(0, 255) * 65536 + number(0, 255)};
        }
        const std::string bytes = WriteSettings(settings);
        AppSettings read;
        ASSERT_TRUE(ReadSettings(bytes, read));
        ASSERT_EQ(read, settings) << bytes;
        ASSERT_EQ(WriteSettings(read), bytes);
    }
}

TEST(SettingsFileTest, AByteOrderMarkInTheFirstTextComesBack) {
    AppSettings settings;
    settings.Reserved1 = "\xEF\xBB\xBFmarked";
    AppSettings read;
    ASSERT_TRUE(ReadSettings(WriteSettings(settings), read).Ok());
    EXPECT_EQ(read.Reserved1, settings.Reserved1);
}

} // namespace
} // namespace kestrova
