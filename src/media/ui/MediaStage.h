// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "media/MediaService.h"
#include "media/ui/MediaBar.h"
#include "media/ui/PictureBox.h"
#include "media/ui/VideoView.h"

#include <QPointer>
#include <QTimer>
#include <QWidget>

#include <functional>
#include <memory>

class QVBoxLayout;

namespace kestrova {

// What stands beside the month: its picture, or a film in its place, over the media panel. In the
// full view all of it moves to a window that covers the screen.
class MediaStage : public QWidget, public MediaWindow {
public:
    struct Hooks {
        std::function<void()> ViewChanged; // half view begins or ends
        std::function<void()> BringUp;
        std::function<void()> SettingsChanged; // by a reminder
    };

    MediaStage(QWidget* parent, MediaService& media, const StringTable& texts, Hooks hooks);
    ~MediaStage() override;

    [[nodiscard]] PictureBox& Picture() { return *Image1; }

    void LoadCaptions() { bar_->LoadCaptions(); }
    void LoadTips(bool on) { bar_->LoadTips(on); }

    // Whether the key means something to the film or to the view; if so, it has been done.
    bool HandleKey(const QKeyEvent& event);

    void ShowMedia() override;
    void ShowFrame() override;
    void BringUp() override { hooks_.BringUp(); }
    void SettingsChanged() override { hooks_.SettingsChanged(); }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    class FullWindow;

    void ShowFull(bool full);
    [[nodiscard]] bool IsFull() const { return view_ == MediaViewMode::Full; }
    void ShowFilm(bool film);
    void GiveKeysBack(QWidget* had);
    void ShowControls();
    void HideControls();

    MediaService& media_;
    Hooks hooks_;
    MediaViewMode view_ = MediaViewMode::Normal;
    QTimer idle_; // how long the mouse has rested in the full view
    // Made with the first full view and kept: a message may have been opened over it.
    std::unique_ptr<FullWindow> full_;
    QPointer<QWidget> beforeFilm_; // what had the keyboard

    QWidget* content_; // moves between this and the full view
    PictureBox* Image1;
    VideoView* video_;
    MediaBar* bar_;
};

} // namespace kestrova
