// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/qt/media/LoopbackSound.h"
#include "platform/qt/media/MadeFiles.h"
#include "platform/qt/media/WatchedPlayer.h"

#include <QStandardPaths>
#include <QTcpServer>

#include <gtest/gtest.h>

#include <filesystem>
#include <sys/stat.h>

namespace kestrova {
namespace {

// Without a sound server: what is seen does not depend on one.
class MediaVideoTest : public testing::Test {
protected:
    void SetUp() override {
        if (QStandardPaths::findExecutable(QStringLiteral("ffmpeg")).isEmpty()) {
            GTEST_SKIP() << "there is no ffmpeg";
        }
    }

    [[nodiscard]] std::string PathOf(const char* name) const {
        return folder_.filePath(QString::fromLatin1(name)).toStdString();
    }

    QTemporaryDir folder_;
    const LoopbackSound silent_; // not started
};

bool IsRed(const QColor& colour) {
    return colour.red() > 200 && colour.green() < 60 && colour.blue() < 60;
}

bool IsBlue(const QColor& colour) {
    return colour.blue() > 200 && colour.green() < 60 && colour.red() < 60;
}

bool IsBlack(const QColor& colour) {
    return colour.red() < 12 && colour.green() < 12 && colour.blue() < 12;
}

TEST_F(MediaVideoTest, FilmsOfEveryKindShowTheirPictureInItsShape) {
    const QString mpeg4 = QStringLiteral("mpeg4");
    struct Row {
        const char* Name;
        int Width;
        int Height;
        QStringList Format;
        int Black; // rows above and below, of 320, as the picture is 320 wide
    };
    const QStringList pal = {QStringLiteral("-target"), QStringLiteral("pal-dvd"),
                             QStringLiteral("-aspect"), QStringLiteral("4:3")};
    const QStringList wide = {QStringLiteral("-target"), QStringLiteral("pal-dvd"),
                              QStringLiteral("-aspect"), QStringLiteral("16:9")};
    for (const Row& row : {Row{"a.mpg", 320, 240, {}, 40},
                           Row{"b.avi", 320, 160, {QStringLiteral("-c:v"), mpeg4}, 80},
                           Row{"c.mov", 320, 160, {QStringLiteral("-c:v"), mpeg4}, 80},
                           Row{"d.vob", 720, 576, pal, 40}, Row{"e.vob", 720, 576, wide, 70}}) {
        SCOPED_TRACE(row.Name);
        ASSERT_TRUE(WriteVideo(PathOf(row.Name), row.Width, row.Height, 0.6, row.Format));
        WatchedPlayer player(MediaKind::Video);
        EXPECT_FALSE(player.Draw());
        player->Play(PathOf(row.Name));
        ASSERT_TRUE(WaitFor([&] { return player.Frames > 0; })) << player.Words;
        ASSERT_TRUE(player.Draw());
        EXPECT_TRUE(IsRed(player.ColourAt(60, 160)));
        EXPECT_TRUE(IsBlue(player.ColourAt(260, 160)));
        EXPECT_TRUE(IsBlack(player.ColourAt(160, row.Black - 4)));
        EXPECT_TRUE(IsRed(player.ColourAt(60, row.Black + 4)));
        EXPECT_TRUE(IsBlue(player.ColourAt(260, 320 - row.Black - 5)));
        EXPECT_TRUE(IsBlack(player.ColourAt(160, 320 - row.Black + 4)));
        ASSERT_TRUE(player.WaitForEnd());
        EXPECT_EQ(player.Ends.front(), MediaEnd::Finished) << player.Words;
        EXPECT_FALSE(player.Draw());
    }
}

TEST_F(MediaVideoTest, SoundsOfEveryKindPlayToTheirEnd) {
    const QStringList tone = {QStringLiteral("-f"), QStringLiteral("lavfi"), QStringLiteral("-i"),
                              QStringLiteral("sine=440:d=0.4")};
    for (const char* const name : {"a.wav", "b.mp2", "c.mp3", "no-extension"}) {
        SCOPED_TRACE(name);
        const std::string path = PathOf(name);
        ASSERT_TRUE(
            Encode(tone, std::filesystem::path(path).has_extension() ? path : path + ".mp3"));
        if (!std::filesystem::exists(path)) {
            std::filesystem::rename(path + ".mp3", path);
        }
        WatchedPlayer player(MediaKind::Sound);
        player->Play(path);
        ASSERT_TRUE(player.WaitForEnd());
        EXPECT_EQ(player.Ends.front(), MediaEnd::Finished) << player.Words;
    }
}

TEST_F(MediaVideoTest, AFilmIsPausedMovedSteppedAndRepeated) {
    ASSERT_TRUE(WriteVideo(PathOf("film.avi"), 320, 240, 4));
    WatchedPlayer player(MediaKind::Video);
    player->Play(PathOf("film.avi"));
    ASSERT_TRUE(WaitFor([&] { return player.Frames > 0 && player->Duration() > 0; }));
    EXPECT_NEAR(player->Duration(), 4, 0.2);

    player->SetPaused(true);
    player->SeekTo(1);
    player->Seek(0.5);
    player->Seek(0.5);
    const auto isAt = [&](double place) { return std::abs(player->Position() - place) < 0.03; };
    const auto isShownAt = [&](double place) {
        return WaitFor([&] { return player.Frames > 0 && isAt(place); });
    };
    player.Frames = 0;
    EXPECT_TRUE(isShownAt(2));
    EXPECT_TRUE(player->IsPaused());
    player.Frames = 0;
    player->StepFrame();
    EXPECT_TRUE(isShownAt(2.04)) << player->Position();
    EXPECT_TRUE(player->IsPaused());
    EXPECT_TRUE(player.Draw());
    player->Seek(-100);
    EXPECT_TRUE(isShownAt(0));

    player->SetRepeat(true);
    player->SeekTo(3.5);
    player->SetPaused(false);
    ASSERT_TRUE(WaitFor([&] { return player->Position() >= 3.5; }));
    EXPECT_TRUE(WaitFor([&] { return player->Position() < 3.0; }));
    EXPECT_TRUE(player.Ends.empty());
    player->SetRepeat(false);
    player->Seek(100);
    ASSERT_TRUE(player.WaitForEnd());
    EXPECT_EQ(player.Ends.front(), MediaEnd::Finished);

    // At once and without an event, however early.
    player->Play(PathOf("film.avi"));
    player->SeekTo(2);
    player->Stop();
    player->Play(PathOf("film.avi"));
    player->SeekTo(2);
    EXPECT_TRUE(WaitFor([&] { return player.Draw(); }));
    EXPECT_GE(player->Position(), 2);
    player->Stop();
    EXPECT_FALSE(player->IsPlaying());
    EXPECT_FALSE(player.Draw());
    EXPECT_EQ(player.Ends.size(), 1U);
}

TEST_F(MediaVideoTest, WhoeverIsToldOfTheEndMayDoAwayWithThePlayerOrPlayOn) {
    WriteWave(PathOf("tone.wav"), {440, 0.1});
    MediaModule module(KESTROVA_MEDIA);
    std::unique_ptr<MediaPlayer> player;
    int ends = 0;
    MediaPlayer::Events events;
    events.Ended = [&](MediaEnd /*end*/, const std::string& /*words*/) {
        if (++ends < 3) {
            player->Play(PathOf("tone.wav"));
        } else {
            player.reset();
        }
    };
    player = module.MakePlayer(MediaKind::Sound, std::move(events));
    player->Play(PathOf("tone.wav"));
    EXPECT_TRUE(WaitFor([&] { return player == nullptr; }));
    EXPECT_EQ(ends, 3);
}

TEST_F(MediaVideoTest, WhatCannotBePlayedFailsInWords) {
    ASSERT_TRUE(WriteVideo(PathOf("whole.mov"), 320, 240, 1));
    const std::string whole = ContentOf(PathOf("whole.mov"));
    WriteBytes(PathOf("cut.mov"), whole.substr(0, whole.size() / 2));
    WriteBytes(PathOf("empty.avi"), "");
    WriteBytes(PathOf("text.avi"), "Dear diary, this is no film at all.\r\n");
    WriteBytes(PathOf("header.avi"), std::string("RIFF\xff\xff\0\0AVI LIST", 16));
    WriteWave(PathOf("silent.wav"), {440, 0});
    std::string noise;
    for (unsigned i = 0, state = 1; i < 200000; ++i) {
        state = state * 1664525U + 1013904223U;
        noise += static_cast<char>(state >> 24U);
    }
    WriteBytes(PathOf("noise.mpg"), noise);
    ASSERT_EQ(::mkfifo(PathOf("pipe.wav").c_str(), 0600), 0);
    for (const char* const name :
         {"cut.mov", "empty.avi", "text.avi", "header.avi", "silent.wav", "noise.mpg", "pipe.wav",
          "missing.avi", "", "../../../../dev/zero"}) {
        for (const bool repeat : {false, true}) {
            SCOPED_TRACE(name);
            WatchedPlayer player(MediaKind::Video);
            player->SetRepeat(repeat);
            player->Play(PathOf(name));
            ASSERT_TRUE(player.WaitForEnd());
            EXPECT_EQ(player.Ends.front(), MediaEnd::Failed);
            EXPECT_EQ(player.Words.back(), '.');
            EXPECT_FALSE(player->IsPlaying());
        }
    }
}

TEST_F(MediaVideoTest, AFilmThatBreaksOffPlaysAsFarAsItGoes) {
    for (const char* const name : {"film.avi", "film.mpg"}) {
        SCOPED_TRACE(name);
        ASSERT_TRUE(WriteVideo(PathOf(name), 320, 240, 1));
        std::filesystem::resize_file(PathOf(name), std::filesystem::file_size(PathOf(name)) / 2);
        WatchedPlayer player(MediaKind::Video);
        player->Play(PathOf(name));
        ASSERT_TRUE(player.WaitForEnd());
        EXPECT_GT(player.Frames, 0);
    }
}

TEST_F(MediaVideoTest, NothingMakesItOpenAnAddressOrAnotherFile) {
    QTcpServer server;
    ASSERT_TRUE(server.listen(QHostAddress::LocalHost));
    const std::string address =
        "http://127.0.0.1:" + std::to_string(server.serverPort()) + "/a.wav";
    const std::string other = PathOf("other.wav");
    WriteWave(other, {440, 30});
    const std::string segment = "#EXTM3U\n#EXT-X-TARGETDURATION:1\n#EXTINF:1,\n";
    std::vector<std::string> paths = {address,        "edl://" + other,  "memory://x",
                                      "lavfi://sine", "av://lavfi:sine", "kestrova://1/file.wav"};
    int number = 0;
    for (const std::string& target : {address, other, "file://" + other}) {
        for (const std::string& text :
             {target, "#EXTM3U\n" + target, segment + target + "\n#EXT-X-ENDLIST\n",
              "# mpv EDL v0\n" + target, "mf://" + target,
              "[playlist]\nFile1=" + target + "\nNumberOfEntries=1\n",
              "ffconcat version 1.0\nfile '" + target + "'\n",
              "FILE \"" + target + "\" WAVE\n  TRACK 01 AUDIO\n    INDEX 01 00:00:00\n",
              "<smil><body><video src=\"" + target + "\"/></body></smil>",
              "v=0\nc=IN IP4 127.0.0.1\nm=audio " + std::to_string(server.serverPort()) +
                  " RTP/AVP 0\n"}) {
            for (const char* const extension : {".avi", ".m3u8"}) {
                paths.push_back(PathOf("list") + std::to_string(++number) + extension);
                WriteBytes(paths.back(), text);
            }
        }
    }
    WatchedPlayer player(MediaKind::Video);
    for (const std::string& path : paths) {
        player.Ends.clear();
        player->Play(path);
        ASSERT_TRUE(player.WaitForEnd()) << path << ": " << ContentOf(path);
        EXPECT_EQ(player.Ends.front(), MediaEnd::Failed) << ContentOf(path);
    }
    EXPECT_FALSE(server.hasPendingConnections());
}

} // namespace
} // namespace kestrova
