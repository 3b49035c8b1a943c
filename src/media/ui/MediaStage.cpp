// SPDX-License-Identifier: GPL-3.0-or-later
#include "media/ui/MediaStage.h"

#include "ui/Look.h"

#include <QApplication>
#include <QCloseEvent>
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
    // The tab key goes to the controls, which may have to come first.
    bool focusNextPrevChild(bool next) override {
        stage_.ShowControls();
        return QWidget::focusNextPrevChild(next);
    }
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
    video_->setFocusPolicy(Qt::StrongFocus);
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
        ShowFilm(film);
    }
    bar_->ShowMedia();
    const MediaViewMode view = media_.View();
    if (view != view_) {
        const bool wasFull = IsFull();
        view_ = view;
        if (wasFull != IsFull()) {
            ShowFull(IsFull());
        }
        hooks_.ViewChanged();
    }
}

// While a film covers a puzzle, the keys are the film's.
void MediaStage::ShowFilm(bool film) {
    QWidget* const had = QApplication::focusWidget();
    video_->setVisible(film);
    video_->setGeometry(Image1->rect());
    video_->raise();
    if (film && had != nullptr && Image1->isAncestorOf(had)) {
        beforeFilm_ = had;
        video_->setFocus();
    } else if (!film && beforeFilm_) {
        beforeFilm_->setFocus();
        beforeFilm_ = nullptr;
    }
}

void MediaStage::ShowFrame() {
    video_->ShowFrame();
}

// A puzzle or film that had the keyboard keeps it when it moves to another window.
void MediaStage::GiveKeysBack(QWidget* had) {
    if (had != nullptr && had->isVisible() && Image1->isAncestorOf(had)) {
        had->setFocus();
    } else if (IsFull()) {
        full_->setFocus(); // and not the panel
    }
}

void MediaStage::ShowFull(bool full) {
    const QPointer<QWidget> had = QApplication::focusWidget();
    if (full) {
        if (!full_) {
            full_ = std::make_unique<FullWindow>(*this, media_);
        }
        full_->layout()->addWidget(content_);
        full_->setGeometry(window()->screen()->geometry());
        // The panel lies on the picture there, so that its coming and going moves nothing.
        content_->layout()->removeWidget(bar_);
        bar_->setAutoFillBackground(true);
        full_->showFullScreen();
        full_->activateWindow();
        ShowControls();
    } else {
        idle_.stop();
        content_->unsetCursor();
        bar_->setAutoFillBackground(false);
        content_->layout()->addWidget(bar_);
        layout()->addWidget(content_);
        content_->show();
        full_->hide();
        bar_->SetAway(false);
        window()->activateWindow();
    }
    GiveKeysBack(had);
}

void MediaStage::ShowControls() {
    content_->setCursor(Qt::ArrowCursor);
    idle_.start();
    bar_->SetAway(false);
    bar_->raise();
}

void MediaStage::HideControls() {
    if (!IsFull()) {
        return;
    }
    if (bar_->underMouse() || bar_->isAncestorOf(QApplication::focusWidget())) {
        idle_.start();
        return;
    }
    bar_->SetAway(true);
    content_->setCursor(Qt::BlankCursor);
}

bool MediaStage::eventFilter(QObject* watched, QEvent* event) {
    if (watched == Image1 && event->type() == QEvent::Resize) {
        video_->setGeometry(Image1->rect());
        const int height = bar_->sizeHint().height();
        if (IsFull()) {
            bar_->setGeometry(0, content_->height() - height, content_->width(), height);
        }
    }
    if (event->type() == QEvent::MouseMove && IsFull()) {
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
