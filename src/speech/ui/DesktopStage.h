// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/VectorArt.h"
#include "speech/CharacterStage.h"
#include "speech/ui/CharacterWidget.h"
#include "speech/ui/SpeechBalloon.h"

#include <QElapsedTimer>
#include <QPointer>
#include <QTimer>

#include <memory>
#include <optional>

namespace kestrova {

// The character on the desktop: it greets when it comes, blinks, moves its mouth with the words,
// which stand in a balloon beside it, and stays a moment when it has nothing more to say. Windows
// are made when it is first shown, and no timer runs while it is hidden.
class DesktopStage : public CharacterStage {
public:
    explicit DesktopStage(VectorArt& art);

    // The window in whose corner of the screen it first appears; may be none.
    void SetNeighbour(QWidget* window) { neighbour_ = window; }

    void SetEvents(Events events) override { events_ = std::move(events); }
    void Load(CharacterFigure figure) override;
    void Unload() override;
    void Show() override;
    void Hide() override;
    [[nodiscard]] bool IsVisible() const override { return visible_; }
    void Say(const Saying& saying, double limit) override;
    void SetPosition(double seconds) override;
    void EndSaying() override;

private:
    void Place();
    void PlaceBalloonWindow();
    [[nodiscard]] QRect ScreenOf(const QRect& figure) const;
    void Clicked();
    void Dragged();
    void Leave();

    void BeginGesture();
    void NextGestureFrame();
    void WaitToBlink();
    void Blink();
    void SetMouth(MouthShape shape);
    void FollowWords();
    [[nodiscard]] double Position() const;

    VectorArt& art_;
    Events events_;
    QPointer<QWidget> neighbour_;
    CharacterFigure figure_;
    std::unique_ptr<CharacterWidget> window_;
    std::unique_ptr<SpeechBalloon> balloon_; // a child of the window
    std::optional<QPoint> dragged_;          // where the user has put it
    bool visible_ = false;

    Saying saying_;
    std::size_t nextMouth_ = 0;
    QElapsedTimer clock_;
    double clockBegin_ = 0; // what the sound's position was when the clock began, in seconds

    QTimer gesture_;
    int gestureStep_ = 0;
    QTimer blink_;
    QTimer mouth_;
    QTimer timeUp_;
    QTimer quiet_;
    QTimer leave_;
};

} // namespace kestrova
