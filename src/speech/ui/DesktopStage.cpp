// SPDX-License-Identifier: GPL-3.0-or-later
#include "speech/ui/DesktopStage.h"

#include "platform/qt/QtText.h"

#include <QGuiApplication>
#include <QRandomGenerator>
#include <QScreen>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <utility>

namespace kestrova {

namespace {

using namespace std::chrono_literals;

constexpr int kHeight = 210;    // of a character, in pixels
constexpr int kScreenShare = 3; // it takes no more of the screen's height than one in so many
constexpr auto kGestureFrame = 110ms;
constexpr int kGestureTurns = 2;  // there and back
constexpr int kBlinkEvery = 2500; // milliseconds at least, twice of that at most
constexpr auto kEyesClosed = 130ms;
constexpr auto kLinger = 700ms;
constexpr auto kBalloonStays = 4s;     // after the words, where the character stays
constexpr auto kProgressEvery = 250ms; // for a balloon that moves on
constexpr double kOutOfStep = 0.04;    // seconds that one sees

std::chrono::milliseconds Milliseconds(double seconds) {
    return std::chrono::milliseconds(static_cast<int>(std::lround(std::max(seconds, 0.0) * 1000)));
}

} // namespace

DesktopStage::DesktopStage(VectorArt& art) : art_(art) {
    gesture_.setInterval(kGestureFrame);
    for (QTimer* const once : {&blink_, &mouth_, &timeUp_, &quiet_, &leave_}) {
        once->setSingleShot(true);
    }
    QObject::connect(&gesture_, &QTimer::timeout, &gesture_, [this] { NextGestureFrame(); });
    QObject::connect(&blink_, &QTimer::timeout, &blink_, [this] { Blink(); });
    QObject::connect(&mouth_, &QTimer::timeout, &mouth_, [this] { FollowWords(); });
    QObject::connect(&leave_, &QTimer::timeout, &leave_, [this] { Leave(); });
    QObject::connect(&quiet_, &QTimer::timeout, &quiet_, [this] { balloon_->hide(); });
    QObject::connect(&timeUp_, &QTimer::timeout, &timeUp_, [this] {
        if (const auto timeUp = events_.TimeUp) {
            timeUp();
        }
    });
}

void DesktopStage::Load(CharacterFigure figure) {
    Unload();
    figure_ = std::move(figure);
}

void DesktopStage::Unload() {
    Hide();
    Leave();
    balloon_.reset();
    window_.reset();
    figure_ = CharacterFigure();
}

// ---- coming and going ----

void DesktopStage::Show() {
    leave_.stop();
    if (visible_ || figure_.Layers.empty()) {
        return;
    }
    if (!window_) {
        window_ = std::make_unique<CharacterWidget>(
            figure_, art_, CharacterWidget::Hooks{[this] { Clicked(); }, [this] { Dragged(); }});
        balloon_ = std::make_unique<SpeechBalloon>(window_.get());
    }
    const bool there = window_->isVisible(); // it was about to leave
    if (!there) {
        Place();
    }
    if (window_->width() == 0 || !window_->Prepare(window_->size())) {
        return;
    }
    visible_ = true;
    window_->show();
    window_->raise();
    if (!there) {
        BeginGesture();
    }
    WaitToBlink();
}

void DesktopStage::Hide() {
    EndSaying();
    blink_.stop();
    if (std::exchange(visible_, false)) {
        leave_.start(kLinger);
    }
}

void DesktopStage::Leave() {
    leave_.stop();
    quiet_.stop();
    gesture_.stop();
    if (window_) {
        balloon_->hide();
        window_->hide();
        window_->SetPose({});
        window_->Forget();
    }
}

void DesktopStage::Place() {
    const QScreen* screen = QGuiApplication::primaryScreen();
    if (neighbour_ != nullptr && neighbour_->screen() != nullptr) {
        screen = neighbour_->screen();
    }
    if (screen == nullptr) {
        return;
    }
    const QRect area = screen->availableGeometry();
    const int height = std::min(kHeight, area.height() / kScreenShare);
    const QSize size(static_cast<int>(std::lround(height * figure_.Width / figure_.Height)),
                     height);
    const QRect near = neighbour_ != nullptr ? neighbour_->frameGeometry() : QRect();
    const QRect place = dragged_ ? OnScreen(ScreenOf({*dragged_, size}), {*dragged_, size})
                                 : FigurePlace(area, near, size);
    window_->setGeometry(place);
}

// The screen where the middle of the figure is, or where the program has its windows.
QRect DesktopStage::ScreenOf(const QRect& figure) const {
    const QScreen* screen = QGuiApplication::screenAt(figure.center());
    if (screen == nullptr) {
        screen = QGuiApplication::primaryScreen();
    }
    return screen != nullptr ? screen->availableGeometry() : figure;
}

void DesktopStage::PlaceBalloonWindow() {
    balloon_->ShowBeside(ScreenOf(window_->geometry()), window_->SeenRect());
}

void DesktopStage::Clicked() {
    if (const auto clicked = events_.Clicked) {
        clicked();
    }
}

void DesktopStage::Dragged() {
    dragged_ = window_->pos();
    if (balloon_->isVisible()) {
        PlaceBalloonWindow();
    }
}

// ---- being alive ----

void DesktopStage::BeginGesture() {
    if (figure_.GestureFrames > 0) {
        gestureStep_ = 0;
        gesture_.start();
        NextGestureFrame();
    }
}

// From the first frame to the last and back, and to rest at the end.
void DesktopStage::NextGestureFrame() {
    const int frames = figure_.GestureFrames;
    const int turn = std::max(2 * (frames - 1), 1);
    CharacterPose pose = window_->Pose();
    if (gestureStep_ > kGestureTurns * turn) {
        gesture_.stop();
        pose.GestureFrame = 0;
    } else {
        const int step = gestureStep_++ % turn;
        pose.GestureFrame = 1 + std::min(step, turn - step);
    }
    window_->SetPose(pose);
}

void DesktopStage::WaitToBlink() {
    blink_.start(kBlinkEvery + QRandomGenerator::global()->bounded(kBlinkEvery));
}

void DesktopStage::Blink() {
    CharacterPose pose = window_->Pose();
    pose.EyesOpen = !pose.EyesOpen;
    window_->SetPose(pose);
    if (pose.EyesOpen) {
        WaitToBlink();
    } else {
        blink_.start(kEyesClosed);
    }
}

// ---- speaking ----

void DesktopStage::Say(const Saying& saying, double limit) {
    saying_ = saying;
    nextMouth_ = 0;
    clockBegin_ = 0;
    clock_.start();
    quiet_.stop();
    timeUp_.start(Milliseconds(limit));
    if (visible_) {
        balloon_->SetWords(ToQt(saying.Words));
        PlaceBalloonWindow();
    }
    FollowWords();
}

double DesktopStage::Position() const {
    return clockBegin_ + static_cast<double>(clock_.elapsed()) / 1000;
}

void DesktopStage::SetPosition(double seconds) {
    if (!timeUp_.isActive() || std::abs(seconds - Position()) < kOutOfStep) {
        return;
    }
    clockBegin_ = seconds;
    clock_.start();
    nextMouth_ = 0;
    FollowWords();
}

void DesktopStage::SetMouth(MouthShape shape) {
    if (visible_) {
        CharacterPose pose = window_->Pose();
        pose.Mouth = shape;
        window_->SetPose(pose);
    }
}

// Takes the mouth to where the words are and sleeps until they are further.
void DesktopStage::FollowWords() {
    const double now = Position();
    const auto before = nextMouth_;
    while (nextMouth_ < saying_.Mouth.size() && saying_.Mouth[nextMouth_].Seconds <= now) {
        ++nextMouth_;
    }
    if (nextMouth_ != before) {
        SetMouth(saying_.Mouth[nextMouth_ - 1].Shape);
    }
    const bool moves = visible_ && balloon_->Lines() > SpeechBalloon::kMostLines;
    if (moves && saying_.Seconds > 0) {
        balloon_->SetProgress(now / saying_.Seconds);
    }
    if (nextMouth_ < saying_.Mouth.size()) {
        mouth_.start(Milliseconds(saying_.Mouth[nextMouth_].Seconds - now));
    } else if (moves && now < saying_.Seconds) {
        mouth_.start(kProgressEvery);
    }
}

void DesktopStage::EndSaying() {
    timeUp_.stop();
    mouth_.stop();
    SetMouth(MouthShape::Closed);
    if (visible_ && balloon_->isVisible()) {
        quiet_.start(kBalloonStays);
    }
}

} // namespace kestrova
