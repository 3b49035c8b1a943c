// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/qt/media/LoopbackSound.h"
#include "platform/qt/media/MadeFiles.h"
#include "platform/qt/media/WatchedPlayer.h"

#include <QElapsedTimer>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <optional>

namespace kestrova {
namespace {

// A player of an image, and what it has told.
class WatchedCd {
public:
    explicit WatchedCd(const std::string& device) {
        AudioCd::Events events;
        events.Status = [this] { Told.push_back(Cd->Position()); };
        events.Failed = [this](const Error& error) { Failure = error; };
        Cd = module_.MakeCd(device, std::move(events));
    }

    AudioCd* operator->() const { return Cd.get(); }
    [[nodiscard]] bool WaitForState(CdState state) const {
        return WaitFor([this, state] { return Cd->State() == state; });
    }
    [[nodiscard]] bool WaitForPosition(const CdPosition& position) const {
        return WaitFor([&] { return Cd->Position() == position; });
    }
    [[nodiscard]] bool WaitForFailure() const {
        return WaitFor([this] { return Failure.has_value(); });
    }

    std::unique_ptr<AudioCd> Cd;
    std::vector<CdPosition> Told;
    std::optional<Error> Failure;

private:
    MediaModule module_{KESTROVA_MEDIA};
};

class AudioCdTest : public testing::Test {
protected:
    QTemporaryDir folder_;
    std::string path_ = folder_.path().toStdString();
    LoopbackSound sound_;
};

TEST_F(AudioCdTest, TheTracksOfADiscAreHeardOneAfterTheOtherWithoutAGapOrData) {
    if (!LoopbackSound::IsThere()) {
        GTEST_SKIP() << "there is no pulseaudio";
    }
    ASSERT_TRUE(sound_.Start());
    const std::string image = WriteDiscImage(path_, {{440, 2}, {880, 2}});
    double pause = 1;
    // A machine that is busy may stumble, but not each time.
    for (int attempt = 0; attempt < 3 && pause > 0.01; ++attempt) {
        WatchedCd cd(image);
        ASSERT_TRUE(sound_.Record());
        cd->Open();
        cd->Play();
        EXPECT_EQ(cd->State(), CdState::Opening);
        ASSERT_TRUE(cd.WaitForState(CdState::Playing));
        EXPECT_EQ(cd->Tracks(), 2);
        ASSERT_TRUE(cd.WaitForState(CdState::Stopped));
        EXPECT_THAT(cd.Told, testing::IsSupersetOf({CdPosition{1, 0, 0}, CdPosition{1, 0, 1},
                                                    CdPosition{2, 0, 0}, CdPosition{2, 0, 1}}));
        const Heard heard = sound_.StopRecording();
        EXPECT_NEAR(heard.Seconds(), 4.0, 0.3);
        EXPECT_NEAR(heard.Level(), 0.354, 0.03);
        EXPECT_NEAR(heard.Pitch(1), 440, 10);
        EXPECT_NEAR(heard.Pitch(3), 880, 10);
        pause = heard.LongestPause();
    }
    EXPECT_LE(pause, 0.01);
}

TEST_F(AudioCdTest, ItGoesFromTrackToTrackPausesStopsAndEjects) {
    WatchedCd cd(WriteDiscImage(path_, {{440, 10}, {880, 10}, {660, 5}}));
    cd->Play(); // nothing is open yet
    EXPECT_EQ(cd->State(), CdState::Closed);
    EXPECT_EQ(cd->Tracks(), 0);
    cd->Open();
    cd->Next(); // carried out as soon as it is open
    cd->Next();
    cd->Play();
    ASSERT_TRUE(cd.WaitForState(CdState::Playing));
    EXPECT_EQ(cd->Position().Track, 3);
    cd->Next(); // there is none
    EXPECT_EQ(cd->Position().Track, 3);
    cd->Prev();
    EXPECT_EQ(cd->Position(), (CdPosition{2, 0, 0}));
    ASSERT_TRUE(cd.WaitForPosition({2, 0, 3}));
    cd->Prev(); // to its beginning
    EXPECT_EQ(cd->Position(), (CdPosition{2, 0, 0}));
    ASSERT_TRUE(cd.WaitForPosition({2, 0, 1}));

    cd->Pause();
    EXPECT_EQ(cd->State(), CdState::Paused);
    cd->Prev();
    EXPECT_EQ(cd->Position(), (CdPosition{1, 0, 0}));
    EXPECT_EQ(cd->State(), CdState::Paused);
    cd->Play();
    EXPECT_EQ(cd->State(), CdState::Playing);
    ASSERT_TRUE(cd.WaitForPosition({1, 0, 1}));
    cd->Pause();
    cd->Pause();
    EXPECT_EQ(cd->State(), CdState::Playing);

    cd->Stop();
    EXPECT_EQ(cd->State(), CdState::Stopped);
    EXPECT_EQ(cd->Position(), (CdPosition{1, 0, 0}));
    cd->Pause(); // there is nothing to pause
    EXPECT_EQ(cd->State(), CdState::Stopped);
    cd.Told.clear();
    cd->Eject();
    EXPECT_EQ(cd->State(), CdState::Closed);
    EXPECT_TRUE(WaitFor([&] { return !cd.Told.empty(); }));
    EXPECT_FALSE(cd.Failure.has_value());
    cd->Open();
    cd->Close(); // before it is open
    cd->Open();
    ASSERT_TRUE(cd.WaitForState(CdState::Stopped));
}

TEST_F(AudioCdTest, WhatIsNoAudioDiscFailsInWords) {
    WriteBytes(path_ + "/broken.cue", "FILE \"disc.bin\" BINARY\n TRACK 9x NOISE\n");
    WriteBytes(path_ + "/lost.cue",
               "FILE \"lost.bin\" BINARY\n  TRACK 01 AUDIO\n    INDEX 01 00:00:00\n");
    WriteBytes(path_ + "/noise.cue", std::string(5000, '\x9c'));
    const std::string dataDisc = WriteDiscImage(path_, {});
    struct Row {
        std::string Device;
        ErrorCode Code;
        std::string Words;
    };
    const std::string image = "The disc image cannot be read.";
    for (const Row& row :
         {Row{path_ + "/sr9", ErrorCode::NotFound, "There is no CD drive."},
          Row{path_ + "/broken.cue", ErrorCode::Damaged, image},
          Row{path_ + "/lost.cue", ErrorCode::Damaged, image},
          Row{path_ + "/noise.cue", ErrorCode::Damaged, image},
          Row{dataDisc, ErrorCode::NotFound, "There is no audio disc in the drive."}}) {
        SCOPED_TRACE(row.Device);
        WatchedCd cd(row.Device);
        cd->Open();
        cd->Play();
        ASSERT_TRUE(cd.WaitForFailure());
        EXPECT_EQ(cd.Failure->Code, row.Code);
        EXPECT_EQ(cd.Failure->Text, row.Words);
        EXPECT_EQ(cd->State(), CdState::Closed);
    }
    WatchedCd cd(path_ + "/sr9");
    cd->Eject();
    ASSERT_TRUE(cd.WaitForFailure());
    EXPECT_EQ(cd.Failure->Code, ErrorCode::NotFound);
}

TEST_F(AudioCdTest, ADiscThatGoesWhileItPlaysFailsAndIsClosed) {
    for (const bool taken : {false, true}) {
        const std::string image = WriteDiscImage(path_, {{440, 30}});
        WatchedCd cd(image);
        cd->Open();
        cd->Play();
        ASSERT_TRUE(cd.WaitForState(CdState::Playing));
        ASSERT_TRUE(cd.WaitForPosition({1, 0, 1}));
        std::filesystem::resize_file(path_ + "/disc.bin", 8L * 75 * 2352);
        if (taken) {
            std::filesystem::remove(path_ + "/disc.cue");
        }
        ASSERT_TRUE(cd.WaitForFailure());
        EXPECT_EQ(cd.Failure->Code, taken ? ErrorCode::NotFound : ErrorCode::Damaged);
        EXPECT_EQ(cd->State(), CdState::Closed);
        EXPECT_EQ(cd->Tracks(), 0);
    }
}

} // namespace
} // namespace kestrova
