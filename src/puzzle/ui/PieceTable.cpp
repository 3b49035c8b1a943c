// SPDX-License-Identifier: GPL-3.0-or-later
#include "puzzle/ui/PieceTable.h"

#include <algorithm>
#include <utility>

namespace kestrova {

namespace {

constexpr double kOverThePieces = 5;
constexpr double kSeamsGone = 0.35; // of the celebration's time

} // namespace

PieceTable::PieceTable()
    : cursor_(new FrameItem(FrameItem::Kind::Cursor)),
      target_(new FrameItem(FrameItem::Kind::Target)) {
    // Pieces are moved far more often than one asks which lies where, which the layout knows.
    setItemIndexMethod(NoIndex);
    addItem(cursor_);
    addItem(target_);
}

PieceItem& PieceTable::Piece(int piece) const {
    return *pieces_[static_cast<std::size_t>(piece)];
}

void PieceTable::Deal(QImage whole, std::vector<QImage> pieces) {
    ResetPiece();
    pieces.insert(pieces.begin(), std::move(whole));
    for (QImage& picture : pieces) {
        const int number = static_cast<int>(pieces_.size());
        pieces_.push_back(new PieceItem(number, std::move(picture)));
        addItem(pieces_.back());
    }
    Piece(0).SetLook(PieceLook::Whole);
    Piece(0).setZValue(kOverThePieces);
    Piece(0).setVisible(false);
}

void PieceTable::ResetPiece() {
    delete std::exchange(celebration_, nullptr);
    for (const PieceItem* const piece : std::exchange(pieces_, {})) {
        delete piece;
    }
    hovered_ = 0;
    cursor_->Show({});
    target_->Show({});
}

void PieceTable::Lay(const PieceLayout& layout, const Board& board) {
    layout_ = layout;
    for (int position = 1; position <= board.Pieces(); ++position) {
        Place(board, position);
    }
    Piece(0).Place(layout.Picture(), layout.Ratio());
    Piece(0).setZValue(kOverThePieces);
    if (celebration_ != nullptr) {
        celebration_->SetPicture(layout.Picture());
    }
}

void PieceTable::Place(const Board& board, int position) {
    Piece(board.PzPos(position)).Place(layout_.Cell(position), layout_.Ratio());
}

void PieceTable::Glide(const Board& board, int position, int milliseconds) {
    Piece(board.PzPos(position)).GlideTo(layout_.Cell(position), layout_.Ratio(), milliseconds);
}

void PieceTable::SetLook(int piece, PieceLook look) {
    Piece(piece).SetLook(look);
}

void PieceTable::MoveTo(int piece, const QPointF& topLeft) {
    PieceItem& item = Piece(piece);
    item.Place(QRectF(topLeft, item.Size()), layout_.Ratio());
}

void PieceTable::Hover(int piece) {
    if (piece == hovered_) {
        return;
    }
    for (const int each : {std::exchange(hovered_, piece), piece}) {
        if (each != 0) {
            Piece(each).SetHover(each == piece);
        }
    }
}

void PieceTable::Frame(FrameItem::Kind kind, int position) {
    FrameItem& frame = kind == FrameItem::Kind::Cursor ? *cursor_ : *target_;
    frame.Show(position == 0 ? QRectF() : layout_.Cell(position));
}

void PieceTable::Show(Sight sight) {
    Piece(0).setVisible(sight == Sight::WholePicture);
}

void PieceTable::SetDraft(bool draft) {
    for (PieceItem* const piece : pieces_) {
        piece->SetDraft(draft);
    }
}

void PieceTable::Celebrate() {
    for (PieceItem* const piece : pieces_) {
        if (piece->Look() == PieceLook::Gap) {
            piece->SetLook(PieceLook::Plain);
        }
    }
    Piece(0).setOpacity(0);
    Piece(0).setVisible(true);
    celebration_ = new Celebration(layout_.Picture(), [this](double done) {
        Piece(0).setOpacity(std::min(1.0, done / kSeamsGone));
    });
    addItem(celebration_);
}

} // namespace kestrova
