// SPDX-License-Identifier: GPL-3.0-or-later
// What the mouse and the keys do on the page.
#include "print/ui/PageView.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScrollBar>

#include <array>
#include <cmath>

namespace kestrova {

namespace {

constexpr int kScrollStep = 12; // pixels for each move of the mouse beyond the edge

bool Adds(const QMouseEvent& event) {
    return (event.modifiers() & (Qt::ControlModifier | Qt::ShiftModifier)) != 0;
}

Qt::CursorShape CursorOf(std::size_t handle) {
    constexpr std::array<Qt::CursorShape, kHandles> kShapes = {
        Qt::SizeFDiagCursor, Qt::SizeVerCursor,   Qt::SizeBDiagCursor, Qt::SizeHorCursor,
        Qt::SizeHorCursor,   Qt::SizeBDiagCursor, Qt::SizeVerCursor,   Qt::SizeFDiagCursor};
    return kShapes[handle];
}

// A picture keeps its shape where the hand says so.
Proportions ProportionsOf(const QMouseEvent& event, const std::optional<LayoutRef>& ref) {
    const bool keeps = event.modifiers().testFlag(Qt::ShiftModifier) && ref && !IsText(ref->Kind);
    return keeps ? Proportions::Kept : Proportions::Free;
}

} // namespace

PageView::Point PageView::PageAt(const QPoint& pixels) const {
    const QPointF at = viewportTransform().inverted().map(QPointF(pixels));
    return {static_cast<int>(std::lround(at.x())), static_cast<int>(std::lround(at.y()))};
}

std::optional<std::size_t> PageView::HandleAt(const QPoint& pixels) const {
    return page_.Marker().HandleAt(viewportTransform().inverted().map(QPointF(pixels)), Scale());
}

void PageView::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton || page_.IsPrinted()) {
        return;
    }
    pressed_ = event->pos();
    const Point at = PageAt(pressed_);
    if (const auto handle = HandleAt(pressed_)) {
        editor_.GrabHandle(*handle, at.X, at.Y);
        hand_ = editor_.IsResizing() ? Hand::Resizing : Hand::Idle;
    } else {
        PressOn(editor_.At(at.X, at.Y), *event);
    }
}

void PageView::PressOn(const std::optional<LayoutRef>& ref, QMouseEvent& event) {
    const Point at = PageAt(event.pos());
    const bool onGround = !ref || ref->Kind == LayoutKind::Image1;
    if (Adds(event) || !ref) {
        if (!Adds(event)) {
            editor_.SpClear();
        } else if (!onGround) {
            editor_.Toggle(*ref);
        }
        hand_ = onGround ? Hand::Framing : Hand::Idle;
        return;
    }
    wasSelected_ = editor_.IsSelected(*ref);
    editor_.Ctrl_MouseDown(*ref, at.X, at.Y);
    hand_ = Hand::Pressed;
}

void PageView::mouseMoveEvent(QMouseEvent* event) {
    const Point at = PageAt(event->pos());
    const bool far =
        (event->pos() - pressed_).manhattanLength() >= QApplication::startDragDistance() / 2;
    switch (hand_) {
    case Hand::Idle: ShowPointer(event->pos()); break;
    case Hand::Pressed:
        if (far) {
            hand_ = Hand::Dragging;
            DragTo(event->pos());
        }
        break;
    case Hand::Dragging: DragTo(event->pos()); break;
    case Hand::Resizing:
        ScrollAlong(event->pos());
        editor_.ResizeTo(at.X, at.Y, ProportionsOf(*event, editor_.Selected()));
        break;
    case Hand::Framing:
        page_.SetFrame(QRectF(viewportTransform().inverted().map(QPointF(pressed_)),
                              viewportTransform().inverted().map(QPointF(event->pos())))
                           .normalized());
        break;
    }
}

void PageView::DragTo(const QPoint& pixels) {
    ScrollAlong(pixels);
    const Point at = PageAt(pixels);
    editor_.DragTo(at.X, at.Y);
    page_.MoveDragged();
    viewport()->setCursor(editor_.TakesDrop(at.X, at.Y) ? Qt::ClosedHandCursor
                                                        : Qt::ForbiddenCursor);
}

void PageView::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) {
        return;
    }
    const Point at = PageAt(event->pos());
    const Point from = PageAt(pressed_);
    switch (std::exchange(hand_, Hand::Idle)) {
    case Hand::Idle: break;
    case Hand::Pressed: {
        editor_.BreakOff();
        const auto selected = editor_.Selected();
        if (wasSelected_ && selected && editor_.Selection().size() > 1) {
            editor_.Select(*selected); // one of several was clicked
        }
        break;
    }
    case Hand::Dragging: editor_.Drop(at.X, at.Y); break;
    case Hand::Resizing: editor_.EndResize(); break;
    case Hand::Framing:
        page_.SetFrame({});
        editor_.SelectWithin({std::min(at.X, from.X), std::min(at.Y, from.Y),
                              std::abs(at.X - from.X), std::abs(at.Y - from.Y)});
        break;
    }
    ShowPointer(event->pos());
}

void PageView::mouseDoubleClickEvent(QMouseEvent* event) {
    mousePressEvent(event);
    const auto selected = editor_.Selected();
    if (hand_ == Hand::Pressed && selected && IsText(selected->Kind)) {
        LetGo();
        EditChosen();
    }
}

// What the mouse has begun is not done.
void PageView::LetGo() {
    hand_ = Hand::Idle;
    page_.SetFrame({});
    editor_.BreakOff();
    viewport()->unsetCursor();
}

void PageView::ShowPointer(const QPoint& pixels) {
    const Point at = PageAt(pixels);
    const auto handle = page_.IsPrinted() ? std::nullopt : HandleAt(pixels);
    const auto ref = page_.IsPrinted() || handle ? std::nullopt : editor_.At(at.X, at.Y);
    page_.Hover(ref && ref->Kind != LayoutKind::Image1 ? ref : std::nullopt);
    if (handle) {
        viewport()->setCursor(CursorOf(*handle));
    } else if (ref && editor_.IsSelected(*ref)) {
        viewport()->setCursor(Qt::SizeAllCursor);
    } else {
        viewport()->unsetCursor();
    }
}

void PageView::leaveEvent(QEvent* event) {
    page_.Hover(std::nullopt);
    QGraphicsView::leaveEvent(event);
}

// While something is dragged beyond the edge of the view, the page scrolls.
void PageView::ScrollAlong(const QPoint& pixels) {
    const QRect seen = viewport()->rect();
    const auto step = [](int at, int low, int high) {
        return at < low ? -kScrollStep : (at > high ? kScrollStep : 0);
    };
    if (const int across = step(pixels.x(), seen.left(), seen.right()); across != 0) {
        horizontalScrollBar()->setValue(horizontalScrollBar()->value() + across);
    }
    if (const int down = step(pixels.y(), seen.top(), seen.bottom()); down != 0) {
        verticalScrollBar()->setValue(verticalScrollBar()->value() + down);
    }
}

void PageView::contextMenuEvent(QContextMenuEvent* event) {
    if (page_.IsPrinted() || hand_ != Hand::Idle) {
        return;
    }
    if (event->reason() == QContextMenuEvent::Mouse) {
        const Point at = PageAt(event->pos());
        const auto ref = editor_.At(at.X, at.Y);
        if (ref && !editor_.IsSelected(*ref)) {
            editor_.Select(*ref);
        } else if (!ref) {
            editor_.SpClear();
        }
    }
    MenuWanted(event->globalPos());
}

bool PageView::HandleMove(const QKeyEvent& event) {
    const bool far = event.modifiers().testFlag(Qt::ShiftModifier);
    const int step = far ? LayoutEditor::kLongNudge : LayoutEditor::kNudge;
    if (editor_.Selection().empty() || event.modifiers().testFlag(Qt::ControlModifier)) {
        return false;
    }
    switch (event.key()) {
    case Qt::Key_Left: editor_.Nudge(-step, 0); return true;
    case Qt::Key_Right: editor_.Nudge(step, 0); return true;
    case Qt::Key_Up: editor_.Nudge(0, -step); return true;
    case Qt::Key_Down: editor_.Nudge(0, step); return true;
    default: return false;
    }
}

void PageView::keyPressEvent(QKeyEvent* event) {
    if (page_.IsPrinted()) {
        QGraphicsView::keyPressEvent(event);
        return;
    }
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (event->key() == Qt::Key_Escape) {
        if (hand_ == Hand::Idle) {
            editor_.SpClear();
        } else {
            LetGo();
        }
    } else if (enter && editor_.TextSelected()) {
        EditChosen();
    } else if (hand_ != Hand::Idle || !HandleMove(*event)) {
        QGraphicsView::keyPressEvent(event);
    }
}

// Tab goes from object to object.
bool PageView::focusNextPrevChild(bool next) {
    if (page_.IsPrinted() || hand_ != Hand::Idle) {
        return QGraphicsView::focusNextPrevChild(next);
    }
    editor_.SelectNext(next ? LayoutEditor::Walk::Forth : LayoutEditor::Walk::Back);
    ShowSelected();
    return true;
}

} // namespace kestrova
