// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "language/ProgramTexts.h"
#include "media/MediaPanel.h"
#include "platform/Beeper.h"
#include "platform/FileStore.h"
#include "platform/MediaDevices.h"
#include "settings/AppSettings.h"

#include <functional>
#include <memory>
#include <string>
#include <utility>

namespace kestrova {

// What has the picture area: the media display state.
enum class MediaDisplay { Picture = 0, Opening = 1, Video = 2 };

// How the window is shared out.
enum class MediaViewMode {
    Normal, // the month beside its picture
    Half,   // the picture or video has the window to itself
    Full    // it has the screen
};

// The buttons of the panel, in their order.
enum class PlayerButton { Previous = 0, Next = 1, Play = 2, Pause = 3, Stop = 4, Eject = 5 };
inline constexpr int kPlayerButtons = 6;

// What the media ask of the window that shows them.
class MediaWindow {
public:
    virtual ~MediaWindow() = default;

    virtual void ShowMedia() = 0;       // states, texts or the view have changed
    virtual void ShowFrame() = 0;       // the video has a new picture
    virtual void BringUp() = 0;         // becomes visible, in its normal state
    virtual void SettingsChanged() = 0; // a reminder has set the switches for films
};

// The media of the main window: a wave device for chimes and short sounds, a player for films and
// music files, and the CD. Devices are made at their first use, for they are large.
class MediaService : public MediaPanel {
public:
    struct Rooms {
        MediaDevices& Devices;
        const FileStore& Files;
        Beeper& Bell;
        const StringTable& Texts;
        AppSettings& Settings;
    };

    // `tell` shows the user a sentence without waiting for an answer: whoever called may have more
    // to do.
    MediaService(const Rooms& rooms, std::function<void(const std::string& text)> tell);
    ~MediaService() override;

    void SetWindow(MediaWindow* window) { window_ = window; }

    // Find out at start-up what there is, without loading anything.
    void SoundIni();
    void MusicIni();

    [[nodiscard]] bool SoundWorks() const override;
    [[nodiscard]] bool VideoWorks() const override { return videoAvailable_; }
    [[nodiscard]] bool CdWorks() const override { return !cdUnavailable_; }
    [[nodiscard]] bool ShowsVideo() const override { return display_ != MediaDisplay::Picture; }
    void MakeSound(const std::string& path) override;
    void PlayReminder(const std::string& path) override;
    void PlayCd() override;
    void CleanUp() override;

    // Plays a file in place of the one before: a film in the picture area, anything else as sound,
    // which the buttons act on, too.
    void PlayFile(const std::string& path);

    // Ends a film or a music file and gives the picture area back to the month's picture.
    void VideoCleanUp();

    void ChkCD_Click(bool on);
    void Ctrl_Click(PlayerButton button);
    void SeekTo(double seconds);

    void LabMusic_Click();    // half view and back
    void LabMusic_DblClick(); // full view and back
    void LeaveView();         // "Esc": one view back; a film goes on

    // The switches of the settings have changed.
    void SettingsChanged();

    [[nodiscard]] MediaDisplay Display() const { return display_; }
    [[nodiscard]] MediaViewMode View() const;
    [[nodiscard]] bool IsCdOn() const { return cdOn_; }
    [[nodiscard]] bool IsClipPlaying() const { return clipPlaying_; }
    [[nodiscard]] bool IsPaused() const;

    // What the panel's label says: the track and time of the CD, or the time of the film.
    [[nodiscard]] std::string StatusText() const;

    // Seconds of the film or music file; 0 where nothing plays or it is not known.
    [[nodiscard]] double Position() const;
    [[nodiscard]] double Duration() const;

    // The film's present picture; false when there is none.
    bool Render(const PixelRows& target) { return clip_ && clip_->Render(target); }

private:
    void ShowChange();
    [[nodiscard]] bool LoadClip();
    [[nodiscard]] bool LoadCd();
    void ClipEnded(MediaEnd end, const std::string& words);
    void ClipFrame();
    void CdFailed(const Error& error);
    void SwitchCd(bool on);
    void ControlClip(PlayerButton button);
    void ControlCd(PlayerButton button);

    Rooms rooms_;
    std::function<void(const std::string&)> tell_;
    MediaWindow* window_ = nullptr;

    bool videoAvailable_ = false; // VideoAvailable
    bool cdUnavailable_ = true;   // CdUnavailable
    bool soundPlaying_ = false;   // SoundPlaying
    bool clipPlaying_ = false;
    bool clipMoved_ = false; // the file that plays has begun to
    bool cdOn_ = false;
    bool cdAsked_ = false;     // it was not only opened beside a film
    bool half_ = false;        // the media panel state is -1
    bool halfForClip_ = false; // and ends with the film
    bool full_ = false;
    MediaDisplay display_ = MediaDisplay::Picture;
    std::string clipPath_;

    std::unique_ptr<MediaPlayer> sound_; // Sound
    std::unique_ptr<MediaPlayer> clip_;
    std::unique_ptr<AudioCd> music_; // Music
};

} // namespace kestrova
