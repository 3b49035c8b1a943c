// SPDX-License-Identifier: GPL-3.0-or-later
#include "media/MediaService.h"

#include "fakes/CountingBeeper.h"
#include "fakes/FakeMedia.h"
#include "fakes/MemoryFileStore.h"
#include "language/Texts.h"
#include "settings/SettingsRules.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace kestrova {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

struct RecordingWindow : MediaWindow {
    int Frames = 0;
    int BroughtUp = 0;
    int Switched = 0;

    void ShowMedia() override {}
    void ShowFrame() override { ++Frames; }
    void BringUp() override { ++BroughtUp; }
    void SettingsChanged() override { ++Switched; }
};

// A machine with the libraries, a sound server and a drive.
struct MediaScene {
    FakeMediaDevices Devices;
    MemoryFileStore Files;
    CountingBeeper Bell;
    StringTable Texts = MsgDefaults();
    AppSettings Settings;
    RecordingWindow Window;
    std::vector<std::string> Told;
    MediaService Media{{Devices, Files, Bell, Texts, Settings},
                       [this](const std::string& text) { Told.push_back(text); }};

    MediaScene() {
        Devices.Installed = true;
        Devices.Sound = true;
        Devices.Drive = "/dev/cdrom";
        Begin();
    }

    void Begin() {
        Media.SetWindow(&Window);
        Media.SoundIni();
        Media.MusicIni();
    }
};

TEST(MediaServiceTest, ASecondWaveIsIgnoredWhileOnePlaysAndAnUnreadableOneBeeps) {
    MediaScene scene;
    EXPECT_EQ(scene.Devices.Waves, nullptr) << "nothing is loaded before it is needed";
    scene.Media.MakeSound("/one.wav");
    scene.Media.MakeSound("/two.WAV");
    EXPECT_THAT(scene.Devices.Waves->Played, ElementsAre("/one.wav"));
    scene.Devices.Waves->End(MediaEnd::Finished);
    EXPECT_EQ(scene.Bell.Beeps, 0);
    scene.Media.MakeSound("/broken.wav");
    scene.Devices.Waves->End(MediaEnd::Failed);
    EXPECT_EQ(scene.Bell.Beeps, 1);
    scene.Media.MakeSound("/three.wav");
    EXPECT_THAT(scene.Devices.Waves->Played, ElementsAre("/one.wav", "/broken.wav", "/three.wav"));
    EXPECT_EQ(scene.Devices.Films, nullptr);
}

TEST(MediaServiceTest, AFilmTakesThePictureAreaFromItsFirstPictureToItsEnd) {
    MediaScene scene;
    scene.Media.MakeSound("/film.avi");
    EXPECT_EQ(scene.Media.Display(), MediaDisplay::Opening);
    EXPECT_EQ(scene.Media.StatusText(), scene.Texts.Text(texts::kFullScreenTip));
    scene.Devices.Films->On.FrameReady();
    EXPECT_EQ(scene.Media.Display(), MediaDisplay::Video);
    EXPECT_EQ(scene.Window.Frames, 1);
    scene.Devices.Films->Now = 65;
    scene.Devices.Films->Length = 3725;
    scene.Devices.Films->On.Moved();
    EXPECT_EQ(scene.Media.StatusText(), "1:05 / 1:02:05");
    scene.Devices.Films->End(MediaEnd::Finished);
    EXPECT_EQ(scene.Media.Display(), MediaDisplay::Picture);
    scene.Devices.Films->On.FrameReady();
    EXPECT_EQ(scene.Media.Display(), MediaDisplay::Picture) << "a picture that comes too late";
    EXPECT_THAT(scene.Told, IsEmpty());

    scene.Media.PlayFile("/broken.mpg");
    scene.Devices.Films->End(MediaEnd::Failed);
    EXPECT_FALSE(scene.Media.ShowsVideo());
    EXPECT_THAT(scene.Told, ElementsAre(HasSubstr("/broken.mpg")));

    scene.Media.PlayFile("/song.mp3");
    EXPECT_FALSE(scene.Media.ShowsVideo()) << "music leaves the picture";
    EXPECT_TRUE(scene.Media.IsClipPlaying());
}

TEST(MediaServiceTest, RepeatAndFullScreenFollowTheSettings) {
    MediaScene scene;
    scene.Settings.VideoRepeat = 1;
    scene.Settings.VideoFullScreen = 1;
    scene.Media.PlayFile("/film.mov");
    EXPECT_TRUE(scene.Devices.Films->Repeat);
    EXPECT_EQ(scene.Media.View(), MediaViewMode::Normal);
    scene.Devices.Films->On.FrameReady();
    EXPECT_EQ(scene.Media.View(), MediaViewMode::Full);
    scene.Settings.VideoRepeat = 0;
    scene.Media.SettingsChanged();
    EXPECT_FALSE(scene.Devices.Films->Repeat);
    scene.Media.LeaveView();
    EXPECT_EQ(scene.Media.View(), MediaViewMode::Normal);
    EXPECT_TRUE(scene.Media.ShowsVideo()) << "the film goes on";
    scene.Media.LabMusic_DblClick();
    scene.Devices.Films->End(MediaEnd::Finished);
    EXPECT_EQ(scene.Media.View(), MediaViewMode::Normal) << "a film's end gives the screen back";
}

TEST(MediaServiceTest, TheButtonsActOnTheFilmWhileThereIsOneAndOnTheCdOtherwise) {
    MediaScene scene;
    scene.Media.ChkCD_Click(true);
    for (int i = 0; i < kPlayerButtons; ++i) {
        scene.Media.Ctrl_Click(PlayerButton(i));
    }
    EXPECT_EQ(scene.Devices.Cd->Told, "o<>p=se");
    EXPECT_FALSE(scene.Media.IsCdOn()) << "an open tray";

    scene.Media.ChkCD_Click(true);
    scene.Media.Ctrl_Click(PlayerButton::Play);
    scene.Media.PlayFile("/film.avi");
    EXPECT_EQ(scene.Devices.Cd->Now, CdState::Paused) << "one thing at a time";
    FakePlayer& film = *scene.Devices.Films;
    film.On.FrameReady();
    scene.Media.Ctrl_Click(PlayerButton::Next);
    EXPECT_EQ(film.Now, 10);
    scene.Media.Ctrl_Click(PlayerButton::Pause);
    scene.Media.Ctrl_Click(PlayerButton::Next);
    EXPECT_EQ(film.Steps, 1);
    EXPECT_TRUE(scene.Media.IsPaused());
    scene.Media.Ctrl_Click(PlayerButton::Play);
    EXPECT_FALSE(film.Paused);
    scene.Media.Ctrl_Click(PlayerButton::Stop);
    EXPECT_FALSE(film.Playing);
    EXPECT_EQ(scene.Media.Display(), MediaDisplay::Picture);
    EXPECT_EQ(scene.Devices.Cd->Told, "o<>p=seop=") << "the CD was left alone meanwhile";
}

TEST(MediaServiceTest, TheLabelTellsTrackAndTimeAndAMissingDiscIsTold) {
    MediaScene scene;
    scene.Media.ChkCD_Click(true);
    scene.Devices.Cd->Place = {3, 2, 5};
    EXPECT_EQ(scene.Media.StatusText(), "(3) 02:05");
    scene.Devices.Cd->Fail({ErrorCode::NotFound, "no medium"});
    EXPECT_FALSE(scene.Media.IsCdOn());
    EXPECT_THAT(scene.Told, ElementsAre(TextOf(scene.Texts, ProgramText::CdMissing)));
    scene.Media.ChkCD_Click(true);
    scene.Media.CleanUp();
    EXPECT_EQ(scene.Devices.Cd->Now, CdState::Closed);
}

TEST(MediaServiceTest, AMediaReminderBringsUpTheWindowAndPlaysOverAndOver) {
    MediaScene scene;
    scene.Settings.VideoFullScreen = 1;
    scene.Files.Put("/film.avi", "x");
    scene.Media.PlayReminder("/film.avi");
    EXPECT_EQ(scene.Window.BroughtUp, 1);
    EXPECT_TRUE(scene.Media.IsCdOn());
    scene.Devices.Cd->Fail({ErrorCode::NotFound, "no medium"});
    EXPECT_FALSE(scene.Media.IsCdOn());
    EXPECT_THAT(scene.Told, IsEmpty()) << "nobody has asked for a disc";
    EXPECT_EQ(scene.Window.Switched, 1);
    EXPECT_EQ(scene.Settings.VideoFullScreen, 0);
    EXPECT_EQ(scene.Settings.VideoRepeat, 1);
    EXPECT_TRUE(scene.Devices.Films->Repeat);
    EXPECT_EQ(scene.Media.View(), MediaViewMode::Half) << "the film has the window";
    scene.Media.Ctrl_Click(PlayerButton::Stop);
    EXPECT_EQ(scene.Media.View(), MediaViewMode::Normal);
}

TEST(MediaServiceTest, AReminderThatCannotPlayIsToldOnceAndAWaveDoesNotYieldToTheChime) {
    MediaScene scene;
    scene.Media.PlayReminder("/gone.avi");
    EXPECT_THAT(scene.Told, ElementsAre(HasSubstr("/gone.avi")));

    scene.Files.Put("/horn.wav", "x");
    scene.Media.MakeSound("/chime.wav");
    scene.Media.PlayReminder("/horn.wav");
    EXPECT_THAT(scene.Devices.Films->Played, ElementsAre("/horn.wav"));
    EXPECT_FALSE(scene.Devices.Films->Repeat);
    EXPECT_EQ(scene.Media.View(), MediaViewMode::Normal);
    scene.Media.Ctrl_Click(PlayerButton::Stop);
    EXPECT_FALSE(scene.Devices.Films->Playing) << "a long one can be stopped";

    scene.Media.PlayCd();
    EXPECT_EQ(scene.Devices.Cd->Now, CdState::Playing);
}

TEST(MediaServiceTest, AMachineWithoutLibrariesOrDriveSaysSo) {
    MediaScene scene;
    scene.Devices.Installed = false;
    scene.Begin();
    EXPECT_FALSE(scene.Media.VideoWorks());
    EXPECT_FALSE(scene.Media.CdWorks());
    scene.Media.MakeSound("/film.avi");
    EXPECT_EQ(scene.Bell.Beeps, 1) << "the wave device has been asked, and there is none";
    scene.Media.PlayCd();
    scene.Media.PlayFile("/film.avi");
    EXPECT_THAT(scene.Told,
                ElementsAre("The CD Player is Inactive\n At The Moment", HasSubstr("/film.avi")));
}

TEST(MediaServiceTest, SwitchingTheCdEndsTheHalfView) {
    MediaScene scene;
    scene.Media.LabMusic_Click();
    EXPECT_EQ(scene.Media.View(), MediaViewMode::Half);
    scene.Media.ChkCD_Click(true);
    EXPECT_EQ(scene.Media.View(), MediaViewMode::Normal);
}

} // namespace
} // namespace kestrova
