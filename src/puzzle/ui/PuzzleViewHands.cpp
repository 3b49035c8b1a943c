// SPDX-License-Identifier: GPL-3.0-or-later
// What the player's hands do: the mouse, the keyboard, and the moves that come of it.
#include "puzzle/ui/PuzzleView.h"

#include <QKeyEvent>
#include <QMouseEvent>

#include <utility>

namespace kestrova {

namespace {

constexpr int kGlide = 140; // milliseconds that an exchange takes
constexpr int kLargestAnimated = 5;
constexpr double kBeside = 0.15; // of a cell: so far a piece is held from where it would be put

// How long a piece takes into the gap: the more pieces, the faster, and no time on large boards.
int MoveTime(int side) {
    return side <= kLargestAnimated ? 1000 / (side * side) : 0;
}

std::optional<GapStep> StepOf(int key) {
    switch (key) {
    case Qt::Key_Up: return GapStep::Up;
    case Qt::Key_Down: return GapStep::Down;
    case Qt::Key_Left: return GapStep::Left;
    case Qt::Key_Right: return GapStep::Right;
    default: return std::nullopt;
    }
}

GapStep Opposite(GapStep step) {
    switch (step) {
    case GapStep::Up: return GapStep::Down;
    case GapStep::Down: return GapStep::Up;
    case GapStep::Left: return GapStep::Right;
    case GapStep::Right: break;
    }
    return GapStep::Left;
}

} // namespace

void PuzzleView::Lift(Holder by, int position, const QPointF& grip) {
    hand_ = Hand{by, board_->PzPos(position), position, position, grip};
    table_.Hover(0);
    // A piece that is still on its way is taken where it is going.
    table_.Place(*board_, position);
    table_.SetLook(hand_->Piece, PieceLook::Lifted);
}

void PuzzleView::Aim(int target) {
    hand_->Target = target;
    table_.Frame(FrameItem::Kind::Target, target);
}

void PuzzleView::PutBack() {
    if (const auto hand = std::exchange(hand_, std::nullopt)) {
        table_.Frame(FrameItem::Kind::Target, 0);
        table_.SetLook(hand->Piece, PieceLook::Plain);
        table_.Glide(*board_, hand->From, kGlide);
        viewport()->unsetCursor();
    }
}

void PuzzleView::PutDown() {
    const int from = hand_->From;
    const int target = hand_->Target;
    if (target == 0 || target == from) {
        PutBack();
        return;
    }
    table_.Frame(FrameItem::Kind::Target, 0);
    table_.SetLook(hand_->Piece, PieceLook::Plain);
    hand_.reset();
    Piece_DragDrop(from, target);
}

void PuzzleView::Piece_DragDrop(int from, int target) {
    board_->Exchange(from, target);
    table_.Glide(*board_, from, kGlide);
    table_.Glide(*board_, target, kGlide);
    AfterMove();
}

void PuzzleView::MovePiece(int position) {
    const int gap = board_->PzGap();
    if (board_->MovePiece(position)) {
        table_.Hover(0);
        table_.Glide(*board_, gap, MoveTime(board_->Side()));
        table_.Place(*board_, position);
        AfterMove();
    }
}

void PuzzleView::AfterMove() {
    if (board_->IsSolved()) {
        second_.stop();
        table_.Hover(0);
        table_.Frame(FrameItem::Kind::Cursor, 0);
        viewport()->unsetCursor();
        table_.Celebrate();
        finish_.start(Celebration::kMilliseconds);
    }
    ShowStatus();
}

void PuzzleView::ShowPointer(int position) {
    const bool movable = position != 0 && kind_ == PuzzleKind::MovingPiece
                             ? board_->CanMove(position)
                             : position != 0;
    table_.Hover(movable ? board_->PzPos(position) : 0);
    if (!movable) {
        viewport()->unsetCursor();
    } else {
        viewport()->setCursor(kind_ == PuzzleKind::MovingPiece ? Qt::PointingHandCursor
                                                               : Qt::OpenHandCursor);
    }
}

void PuzzleView::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) {
        event->ignore();
        return;
    }
    // A click beside the pieces does nothing, here or in whatever lies below.
    const int position = IsPlaying() ? layout_.PositionAt(event->position()) : 0;
    if (position == 0) {
        return;
    }
    PutBack();
    UseMouse(position);
    if (kind_ == PuzzleKind::MovingPiece) {
        MovePiece(position);
        if (IsPlaying()) {
            ShowPointer(position);
        }
        return;
    }
    Lift(Holder::Mouse, position, event->position() - layout_.Cell(position).topLeft());
    viewport()->setCursor(Qt::ClosedHandCursor);
}

// The second of two quick clicks is a click as any other.
void PuzzleView::mouseDoubleClickEvent(QMouseEvent* event) {
    mousePressEvent(event);
}

void PuzzleView::mouseMoveEvent(QMouseEvent* event) {
    if (!IsPlaying()) {
        return;
    }
    const int position = layout_.PositionAt(event->position());
    if (hand_ && hand_->By == Holder::Mouse) {
        table_.MoveTo(hand_->Piece, event->position() - hand_->Grip);
        Aim(position);
    } else if (!hand_) {
        ShowPointer(position);
    }
}

void PuzzleView::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton || !hand_ || hand_->By != Holder::Mouse) {
        return;
    }
    Aim(layout_.PositionAt(event->position()));
    PutDown();
    if (IsPlaying()) {
        ShowPointer(layout_.PositionAt(event->position()));
    }
}

// There is nothing to scroll here; perhaps there is around us.
void PuzzleView::wheelEvent(QWheelEvent* event) {
    event->ignore();
}

void PuzzleView::leaveEvent(QEvent* event) {
    QGraphicsView::leaveEvent(event);
    table_.Hover(0);
}

void PuzzleView::focusOutEvent(QFocusEvent* event) {
    QGraphicsView::focusOutEvent(event);
    // The key's release goes to another window then.
    if (IsPlaying()) {
        table_.Show(PieceTable::Sight::Pieces);
    }
}

void PuzzleView::hideEvent(QHideEvent* event) {
    QGraphicsView::hideEvent(event);
    if (IsPlaying()) {
        PutBack();
        table_.Show(PieceTable::Sight::Pieces);
    }
}

void PuzzleView::UseKeys() {
    showCursor_ = true;
    if (!hand_) {
        table_.Frame(FrameItem::Kind::Cursor, cursor_);
        return;
    }
    // Not quite over the target, so that one sees what lies there.
    const QRectF cell = layout_.Cell(cursor_);
    table_.Frame(FrameItem::Kind::Cursor, 0);
    table_.MoveTo(hand_->Piece, cell.topLeft() - QPointF(cell.width(), cell.height()) * kBeside);
    Aim(cursor_);
}

void PuzzleView::UseMouse(int position) {
    showCursor_ = false;
    cursor_ = position;
    table_.Frame(FrameItem::Kind::Cursor, 0);
}

void PuzzleView::HandleArrow(GapStep step) {
    if (kind_ == PuzzleKind::MovingPiece) {
        // A piece that moves up comes from below the gap.
        if (const auto from = board_->Beside(board_->PzGap(), Opposite(step))) {
            MovePiece(*from);
        }
        return;
    }
    // The first arrow only shows where the keyboard stands.
    cursor_ = showCursor_ ? board_->Beside(cursor_, step).value_or(cursor_) : cursor_;
    UseKeys();
}

void PuzzleView::PickUpOrPutDown() {
    if (hand_) {
        PutDown();
    } else {
        Lift(Holder::Keys, cursor_, {});
    }
    if (IsPlaying()) {
        UseKeys();
    }
}

bool PuzzleView::HandleKey(int key) {
    const bool mouseHolds = hand_ && hand_->By == Holder::Mouse;
    const auto step = StepOf(key);
    if (step || key == Qt::Key_Space) {
        // One hand at a time; and the moving-piece game has nothing to pick up.
        if (step && !mouseHolds) {
            HandleArrow(*step);
        } else if (kind_ == PuzzleKind::JigSaw && !mouseHolds) {
            PickUpOrPutDown();
        }
        return true;
    }
    if (key == Qt::Key_H) {
        table_.Show(PieceTable::Sight::WholePicture);
        return true;
    }
    if (key != Qt::Key_Escape || !hand_) {
        return false;
    }
    cursor_ = hand_->From;
    PutBack();
    if (!mouseHolds) {
        UseKeys();
    }
    return true;
}

void PuzzleView::keyPressEvent(QKeyEvent* event) {
    constexpr auto kCommands = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
    if (!IsRunning() || (event->modifiers() & kCommands) != 0) {
        event->ignore();
        return;
    }
    // A key that is held down goes on stepping, but does not pick up and put down in turns.
    const bool again = event->isAutoRepeat() && !StepOf(event->key());
    event->setAccepted(!IsPlaying() || again || HandleKey(event->key()));
}

void PuzzleView::keyReleaseEvent(QKeyEvent* event) {
    if (IsPlaying() && event->key() == Qt::Key_H && !event->isAutoRepeat()) {
        table_.Show(PieceTable::Sight::Pieces);
    }
}

} // namespace kestrova
