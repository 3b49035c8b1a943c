// SPDX-License-Identifier: GPL-3.0-or-later
// The character speaks aloud: the real voice and the real player, heard by a recorder.
#include "platform/qt/SpeechModule.h"
#include "platform/qt/media/LoopbackSound.h"
#include "platform/qt/media/MadeFiles.h"
#include "platform/qt/media/WatchedPlayer.h"
#include "speech/FakeStage.h"
#include "speech/SpeechAgent.h"

#include <QElapsedTimer>

#include <gtest/gtest.h>

namespace kestrova {
namespace {

constexpr const char* kWords = "Good morning. The dentist expects you at three o'clock.";

class SpokenSoundTest : public testing::Test {
protected:
    [[nodiscard]] double WholeTime() const {
        double seconds = 0;
        for (const Saying& saying : Stage.Said) {
            seconds += saying.Seconds;
        }
        return seconds;
    }
    [[nodiscard]] bool IsSilent() const { return Agent.Status() == AudioStatus::Available; }

    SpeechModule Voice{KESTROVA_SPEECH};
    MediaModule Devices{KESTROVA_MEDIA};
    FakeStage Stage;
    SpeechAgent Agent{{Voice, Devices, Stage}, [] {}};
};

TEST_F(SpokenSoundTest, WordsAreHeardInTheirTimeWhileTheMouthIsToldWhereTheyAre) {
    if (!LoopbackSound::IsThere()) {
        GTEST_SKIP() << "there is no pulseaudio";
    }
    LoopbackSound sound;
    ASSERT_TRUE(sound.Start());
    ASSERT_TRUE(sound.Record());
    Agent.Speak(kWords, "en");
    Agent.Speak("Guten Morgen.", "de");
    ASSERT_TRUE(WaitFor([this] { return IsSilent(); }));
    const Heard heard = sound.StopRecording();
    EXPECT_GT(WholeTime(), 3);
    EXPECT_NEAR(heard.Seconds(), WholeTime(), 1);
    EXPECT_GT(heard.Level(), 0.02);
    ASSERT_GT(Stage.Positions.size(), 5U);
    EXPECT_FALSE(Stage.Saying);
}

TEST_F(SpokenSoundTest, StoppedItIsSilentAtOnce) {
    if (!LoopbackSound::IsThere()) {
        GTEST_SKIP() << "there is no pulseaudio";
    }
    LoopbackSound sound;
    ASSERT_TRUE(sound.Start());
    ASSERT_TRUE(sound.Record());
    for (int i = 0; i < 10; ++i) {
        Agent.Speak(kWords, "en");
    }
    ASSERT_TRUE(WaitFor([&] { return sound.HasSounded(); }));
    Agent.Stop();
    EXPECT_TRUE(IsSilent());
    ASSERT_TRUE(WaitFor([&] { return sound.IsSilentAgain(); }));
    EXPECT_LT(sound.StopRecording().Seconds(), 10);
}

TEST_F(SpokenSoundTest, WithoutASoundServerTheWordsTakeTheirTime) {
    const LoopbackSound silent; // not started
    QElapsedTimer timer;
    timer.start();
    Agent.Speak("Good morning.", "en");
    ASSERT_TRUE(WaitFor([this] { return IsSilent(); }));
    EXPECT_GT(timer.elapsed(), 800 * WholeTime());
    EXPECT_LT(timer.elapsed(), 1000 * WholeTime() + 3000);
}

TEST(PlayBytesTest, AWaveInMemoryIsHeardAsOneOnDisc) {
    if (!LoopbackSound::IsThere()) {
        GTEST_SKIP() << "there is no pulseaudio";
    }
    const QTemporaryDir folder;
    const std::string path = folder.filePath(QStringLiteral("tone.wav")).toStdString();
    WriteWave(path, {440, 1});
    LoopbackSound sound;
    ASSERT_TRUE(sound.Start());
    WatchedPlayer player(MediaKind::Sound);
    ASSERT_TRUE(sound.Record());
    player->PlayBytes(ContentOf(path));
    EXPECT_TRUE(player->IsPlaying());
    ASSERT_TRUE(player.WaitForEnd());
    EXPECT_EQ(player.Ends.front(), MediaEnd::Finished) << player.Words;
    const Heard heard = sound.StopRecording();
    EXPECT_NEAR(heard.Seconds(), 1.0, 0.15);
    EXPECT_NEAR(heard.Level(), 0.354, 0.03);
    EXPECT_NEAR(heard.Pitch(0.4), 440, 10);
    for (const char* const torn : {"", "RIFF", "no wave at all"}) {
        player.Ends.clear();
        player->PlayBytes(torn);
        ASSERT_TRUE(player.WaitForEnd());
        EXPECT_EQ(player.Ends.front(), MediaEnd::Failed) << torn;
    }
}

} // namespace
} // namespace kestrova
