// SPDX-License-Identifier: GPL-3.0-or-later
#include "speech/ui/CharacterWidget.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QWindow>

#include <utility>

namespace kestrova {

namespace {

// Where windows place themselves, a window that no window manager touches is the one that stays in
// front, is in no list of windows and is never taken for one that wants the keyboard. Elsewhere
// such a window would have to belong to another.
Qt::WindowFlags KindOfWindow() {
    const bool placed = !QGuiApplication::platformName().startsWith(QLatin1String("wayland"));
    return (placed ? Qt::ToolTip : Qt::Tool) | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint |
           Qt::WindowDoesNotAcceptFocus | Qt::NoDropShadowWindowHint;
}

} // namespace

CharacterWidget::CharacterWidget(const CharacterFigure& figure, VectorArt& art, Hooks hooks)
    : QWidget(nullptr, KindOfWindow()), figure_(figure), art_(art), hooks_(std::move(hooks)) {
    setObjectName(QStringLiteral("Character"));
    setWindowTitle(QStringLiteral("Kestrova"));
    setAttribute(Qt::WA_TranslucentBackground);
    setAttribute(Qt::WA_ShowWithoutActivating);
    setFocusPolicy(Qt::NoFocus);
    setCursor(Qt::PointingHandCursor);
}

bool CharacterWidget::Prepare(const QSize& size) {
    if (face_.IsEmpty() || face_.Scale() != devicePixelRatioF() || this->size() != size) {
        resize(size);
        face_ = CharacterFace(figure_, art_, size, devicePixelRatioF());
    }
    if (face_.IsEmpty()) {
        return false;
    }
    setMask(face_.Region(pose_));
    return true;
}

QRect CharacterWidget::SeenRect() const {
    const QRect body = face_.Region({}).boundingRect();
    const QRect whole = rect();
    return QRect(QPoint((body.left() + whole.left()) / 2, body.top()),
                 QPoint((body.right() + whole.right()) / 2, body.bottom()))
        .translated(pos());
}

void CharacterWidget::SetPose(const CharacterPose& pose) {
    const CharacterPose before = std::exchange(pose_, pose);
    if (before == pose || face_.IsEmpty()) {
        return;
    }
    if (before.GestureFrame != pose.GestureFrame) {
        setMask(face_.Region(pose_)); // eyes and mouths stay within the face
    }
    update();
}

void CharacterWidget::paintEvent(QPaintEvent* /*event*/) {
    if (!face_.IsEmpty() && face_.Scale() != devicePixelRatioF()) {
        face_ = CharacterFace(figure_, art_, size(), devicePixelRatioF()); // on another screen now
    }
    QPainter painter(this);
    face_.Draw(painter, pose_);
}

void CharacterWidget::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) {
        press_ = Press::Pressed;
        grip_ = event->position().toPoint();
    }
}

void CharacterWidget::mouseMoveEvent(QMouseEvent* event) {
    if (press_ == Press::None) {
        return;
    }
    const QPoint way = event->position().toPoint() - grip_;
    if (press_ == Press::Pressed) {
        if (way.manhattanLength() < QApplication::startDragDistance()) {
            return;
        }
        press_ = Press::Dragging;
        // Where windows do not know where they are, the desktop moves them.
        if (windowType() == Qt::Tool && windowHandle() != nullptr &&
            windowHandle()->startSystemMove()) {
            press_ = Press::None;
            return;
        }
    }
    move(event->globalPosition().toPoint() - grip_);
    hooks_.Dragged();
}

// A double click is one click: its second half is not meant for what the first has brought about.
void CharacterWidget::mouseDoubleClickEvent(QMouseEvent* event) {
    event->accept();
}

void CharacterWidget::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton && std::exchange(press_, Press::None) == Press::Pressed) {
        hooks_.Clicked();
    }
}

} // namespace kestrova
