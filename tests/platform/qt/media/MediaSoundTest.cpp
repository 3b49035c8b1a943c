// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/qt/media/LoopbackSound.h"
#include "platform/qt/media/MadeFiles.h"
#include "platform/qt/media/WatchedPlayer.h"

#include <QElapsedTimer>

#include <gtest/gtest.h>

#include <ctime>

namespace kestrova {
namespace {

double ProcessorSeconds() {
    return static_cast<double>(std::clock()) / CLOCKS_PER_SEC;
}

// Sound with a server to hear it by.
class MediaSoundTest : public testing::Test {
protected:
    void SetUp() override {
        if (!LoopbackSound::IsThere()) {
            GTEST_SKIP() << "there is no pulseaudio";
        }
        ASSERT_TRUE(sound_.Start());
    }

    [[nodiscard]] std::string PathOf(const char* name) const {
        return folder_.filePath(QString::fromLatin1(name)).toStdString();
    }

    QTemporaryDir folder_;
    LoopbackSound sound_;
};

TEST_F(MediaSoundTest, AWaveIsHeardAtItsLevelForItsLength) {
    WriteWave(PathOf("tone.wav"), {440, 1});
    WatchedPlayer player(MediaKind::Sound);
    ASSERT_TRUE(sound_.Record());
    player->Play(PathOf("tone.wav"));
    EXPECT_TRUE(player->IsPlaying());
    ASSERT_TRUE(player.WaitForEnd());
    EXPECT_EQ(player.Ends.front(), MediaEnd::Finished) << player.Words;
    EXPECT_FALSE(player->IsPlaying());
    const Heard heard = sound_.StopRecording();
    EXPECT_NEAR(heard.Seconds(), 1.0, 0.15);
    EXPECT_NEAR(heard.Level(), 0.354, 0.03);
    EXPECT_NEAR(heard.Pitch(0.4), 440, 10);
}

TEST_F(MediaSoundTest, TheSoundOfAVideoIsHeardWithItsPicturesOrWithout) {
    ASSERT_TRUE(WriteVideo(PathOf("film.mpg"), 320, 240, 1));
    for (const auto kind : {MediaKind::Video, MediaKind::Sound}) {
        WatchedPlayer player(kind);
        ASSERT_TRUE(sound_.Record());
        player->Play(PathOf("film.mpg"));
        ASSERT_TRUE(player.WaitForEnd());
        EXPECT_EQ(player.Ends.front(), MediaEnd::Finished) << player.Words;
        EXPECT_EQ(player.Frames > 0, kind == MediaKind::Video);
        const Heard heard = sound_.StopRecording();
        EXPECT_NEAR(heard.Seconds(), 1.0, 0.2);
        EXPECT_GT(heard.Level(), 0.05);
        EXPECT_NEAR(heard.Pitch(0.4), 440, 10);
    }
}

TEST_F(MediaSoundTest, AFileThatIsStoppedOrReplacedIsSilentAtOnceAndEndsWithoutAnEvent) {
    WriteWave(PathOf("long.wav"), {440, 60});
    WriteWave(PathOf("short.wav"), {880, 0.5});
    WatchedPlayer player(MediaKind::Sound);
    ASSERT_TRUE(sound_.Record());
    player->Play(PathOf("long.wav"));
    ASSERT_TRUE(WaitFor([&] { return sound_.HasSounded(); }));
    player->Stop();
    ASSERT_TRUE(WaitFor([&] { return sound_.IsSilentAgain(); }));
    EXPECT_LT(sound_.StopRecording().Seconds(), 20);

    ASSERT_TRUE(sound_.Record());
    player->Play(PathOf("long.wav"));
    player->Play(PathOf("long.wav"));
    player->Play(PathOf("short.wav"));
    ASSERT_TRUE(player.WaitForEnd());
    EXPECT_EQ(player.Ends, std::vector{MediaEnd::Finished});
    const Heard heard = sound_.StopRecording();
    EXPECT_NEAR(heard.Seconds(), 0.5, 0.15);
    EXPECT_NEAR(heard.Pitch(0.1), 880, 10);
}

TEST_F(MediaSoundTest, APausedFileIsSilentStaysWhereItIsAndCostsNothing) {
    WriteWave(PathOf("long.wav"), {440, 60});
    WatchedPlayer player(MediaKind::Sound);
    ASSERT_TRUE(sound_.Record());
    player->Play(PathOf("long.wav"));
    ASSERT_TRUE(WaitFor([&] { return player->Position() > 0.3; }));
    player->SetPaused(true);
    EXPECT_TRUE(player->IsPaused());
    ASSERT_TRUE(WaitFor([&] { return sound_.IsSilentAgain(); }));
    (void)sound_.StopRecording(); // a recorder takes time of ours
    const double place = player->Position();
    const int moves = player.Moves;
    const double before = ProcessorSeconds();
    QTest::qWait(1000);
    EXPECT_LT(ProcessorSeconds() - before, 0.05);
    EXPECT_EQ(player->Position(), place);
    EXPECT_EQ(player.Moves, moves);
    player->SetPaused(false);
    EXPECT_TRUE(WaitFor([&] { return player->Position() > place; }));
    EXPECT_NEAR(player->Duration(), 60, 0.1);
}

TEST_F(MediaSoundTest, PlayingGoesOnWhenTheServerIsKilledAndIsHeardAgainWithTheNext) {
    WriteWave(PathOf("tone.wav"), {440, 2});
    MediaModule module(KESTROVA_MEDIA);
    EXPECT_TRUE(module.HasSound());
    WatchedPlayer player(MediaKind::Sound);
    player->Play(PathOf("tone.wav"));
    ASSERT_TRUE(WaitFor([&] { return player->Position() > 0.3; }));
    sound_.Kill();
    EXPECT_FALSE(module.HasSound());
    ASSERT_TRUE(player.WaitForEnd());
    EXPECT_EQ(player.Ends.front(), MediaEnd::Finished) << player.Words;

    ASSERT_TRUE(sound_.Start());
    ASSERT_TRUE(sound_.Record());
    player->Play(PathOf("tone.wav"));
    ASSERT_TRUE(WaitFor([&] { return player.Ends.size() == 2; }));
    EXPECT_NEAR(sound_.StopRecording().Seconds(), 2.0, 0.2);
}

TEST_F(MediaSoundTest, AServerThatHangsHoldsUpNobody) {
    WriteWave(PathOf("long.wav"), {440, 60});
    MediaModule module(KESTROVA_MEDIA);
    WatchedPlayer player(MediaKind::Sound);
    player->Play(PathOf("long.wav"));
    ASSERT_TRUE(WaitFor([&] { return player->Position() > 0.3; }));
    sound_.Hang();
    QElapsedTimer timer;
    timer.start();
    EXPECT_FALSE(module.HasSound());
    EXPECT_LT(timer.elapsed(), 1500);
    player->SetPaused(true);
    player->Stop();
    player->Play(PathOf("long.wav"));
    player->Stop();
    player.Player.reset();
    EXPECT_LT(timer.elapsed(), 12000);
    sound_.Kill();
}

TEST(MediaWithoutSoundTest, AFilePlaysInSilenceForItsLength) {
    const QTemporaryDir folder;
    const std::string path = folder.filePath(QStringLiteral("tone.wav")).toStdString();
    WriteWave(path, {440, 1});
    const LoopbackSound silent; // not started
    MediaModule module(KESTROVA_MEDIA);
    EXPECT_FALSE(module.HasSound());
    WatchedPlayer player(MediaKind::Sound);
    QElapsedTimer timer;
    timer.start();
    player->Play(path);
    ASSERT_TRUE(player.WaitForEnd());
    EXPECT_EQ(player.Ends.front(), MediaEnd::Finished) << player.Words;
    EXPECT_GE(timer.elapsed(), 900);
    EXPECT_LT(timer.elapsed(), 4000);
}

} // namespace
} // namespace kestrova
