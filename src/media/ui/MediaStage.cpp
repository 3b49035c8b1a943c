// SPDX-License-Identifier: GPL-3.0-or-later
#include "media/ui/MediaStage.h"

#include "ui/Look.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QScreen>
#include <QVBoxLayout>

namespace kestrova {

namespace {

constexpr int kControlsRest = 2500; // milliseconds until the controls of the full view go

QVBoxLayout* BareColumn(QWidget* of) {
    auto* const column = new QVBoxLayout(of);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    return column;
}

} // namespace

// Covers the screen with the picture or the film and nothing else.
class MediaStage::FullWindow : public QWidget {
public:
    FullWindow(MediaStage& stage, MediaService& media)
        : QWidget(stage.window(), Qt::Window | Qt::FramelessWindowHint), stage_(stage),
          media_(media) {
        setObjectName(QStringLiteral("FullView"));
        setWindowTitle(stage.window()->windowTitle());
        QPalette dark = palette();
        dark.setColor(QPalette::Window, Qt::black);
        dark.setColor(QPalette::WindowText, Qt::white);
        setPalette(dark);
        setFocusPolicy(Qt::StrongFocus);
        BareColumn(this);
    }

protected:
    void keyPressEvent(QKeyEvent* event) override {
        if (!stage_.HandleKey(*event)) {
            QWidget::keyPressEvent(event);
        }
    }
    // However the window is closed, the picture goes back to its place.
    void closeEvent(QCloseEvent* event) override {
        event->ignore();
        media_.LeaveView();
    }

private:
    MediaStage& stage_;
    MediaService& media_;
};

MediaStage::MediaStage(QWidget* parent, MediaService& media, const StringTable& texts, Hooks hooks)
    : QWidget(parent), media_(media), hooks_(std::move(hooks)), content_(new QWidget(this)) {
    BareColumn(this)->addWidget(content_);
    Image1 = new PictureBox(content_);
    Image1->setObjectName(QStringLiteral("Image1"));
    video_ = new VideoView(Image1, [this](const PixelRows& rows) { return media_.Render(rows); });
    video_->setObjectName(QStringLiteral("Video"));
    video_->DoubleClicked = [this] { media_.LabMusic_DblClick(); };
    video_->hide();
    bar_ = new MediaBar(content_, media, texts);
    QVBoxLayout* const column = BareColumn(content_);
    column->addWidget(Image1, 1);
    column->addWidget(bar_);
    for (QWidget* const area : {static_cast<QWidget*>(Image1), static_cast<QWidget*>(video_)}) {
        area->setMouseTracking(true);
        area->installEventFilter(this);
    }
    idle_.setSingleShot(true);
    idle_.setInterval(kControlsRest);
    connect(&idle_, &QTimer::timeout, this, [this] { HideControls(); });
    media_.SetWindow(this);
}

MediaStage::~MediaStage() {
    media_.SetWindow(nullptr);
}

void MediaStage::ShowMedia() {
    const bool film = media_.Display() == MediaDisplay::Video;
    if (film != video_->isVisibleTo(Image1)) {
        video_->setVisible(film);
        video_->setGeometry(Image1->rect());
        video_->raise();
    }
    bar_->ShowMedia();
    const MediaViewMode view = media_.View();
    if (view != view_) {
        view_ = view;
        ShowFull(view == MediaViewMode::Full);
        hooks_.ViewChanged();
    }
    if (full_ && !idle_.isActive()) {
        bar_->hide(); // which ShowMedia has shown again
    }
}

void MediaStage::ShowFrame() {
    video_->ShowFrame();
}

void MediaStage::ShowFull(bool full) {
    if (full == (full_ != nullptr)) {
        return;
    }
    if (full) {
        full_ = std::make_unique<FullWindow>(*this, media_);
        full_->layout()->addWidget(content_);
        full_->setGeometry(window()->screen()->geometry());
        // The panel lies on the picture there, so that its coming and going moves nothing.
        content_->layout()->removeWidget(bar_);
        bar_->setAutoFillBackground(true);
        full_->showFullScreen();
        full_->activateWindow();
        full_->setFocus(); // the keys are the film's, not the panel's
        ShowControls();
    } else {
        idle_.stop();
        content_->unsetCursor();
        bar_->setAutoFillBackground(false);
        content_->layout()->addWidget(bar_);
        layout()->addWidget(content_);
        content_->show();
        full_.release()->deleteLater(); // it may be handling the very key that ends it
        bar_->ShowMedia();
        window()->activateWindow();
    }
}

void MediaStage::ShowControls() {
    content_->setCursor(Qt::ArrowCursor);
    idle_.start();
    bar_->ShowMedia();
    bar_->raise();
}

void MediaStage::HideControls() {
    if (!full_) {
        return;
    }
    if (bar_->underMouse()) {
        idle_.start();
        return;
    }
    bar_->hide();
    content_->setCursor(Qt::BlankCursor);
}

bool MediaStage::eventFilter(QObject* watched, QEvent* event) {
    if (watched == Image1 && event->type() == QEvent::Resize) {
        video_->setGeometry(Image1->rect());
        const int height = bar_->sizeHint().height();
        if (full_) {
            bar_->setGeometry(0, content_->height() - height, content_->width(), height);
        }
    }
    if (event->type() == QEvent::MouseMove && full_) {
        ShowControls();
    }
    return QWidget::eventFilter(watched, event);
}

bool MediaStage::HandleKey(const QKeyEvent& event) {
    const bool away = view_ != MediaViewMode::Normal;
    const bool clip = media_.IsClipPlaying();
    switch (event.key()) {
    case Qt::Key_Escape:
        if (!away) {
            return false;
        }
        media_.LeaveView();
        return true;
    case Qt::Key_F11: media_.LabMusic_DblClick(); return true;
    case Qt::Key_Space:
        if (clip) {
            media_.Ctrl_Click(PlayerButton::Pause);
        }
        return clip;
    case Qt::Key_Left:
        if (away && clip) {
            media_.Ctrl_Click(PlayerButton::Previous);
        }
        return away && clip;
    case Qt::Key_Right:
        if (away && clip) {
            media_.Ctrl_Click(PlayerButton::Next);
        }
        return away && clip;
    default: return false;
    }
}

} // namespace kestrova
