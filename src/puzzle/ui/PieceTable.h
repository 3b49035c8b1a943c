// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "puzzle/Board.h"
#include "puzzle/ui/Celebration.h"
#include "puzzle/ui/FrameItem.h"
#include "puzzle/ui/PieceItem.h"
#include "puzzle/ui/PieceLayout.h"

#include <QGraphicsScene>

#include <vector>

namespace kestrova {

// The pieces as they lie on the table, with the frames that guide the player. It shows what it is
// told; the rules are the board's.
class PieceTable : public QGraphicsScene {
public:
    PieceTable();

    // Puts the pieces of a game on the table, none of them placed yet. Piece(0) is the whole
    // picture, hidden.
    void Deal(QImage whole, std::vector<QImage> pieces);

    // Takes everything off the table.
    void ResetPiece();

    // Places every piece at once; what was moving has arrived.
    void Lay(const PieceLayout& layout, const Board& board);

    // Puts the piece at a position there at once.
    void Place(const Board& board, int position);

    // Lets the piece at a position glide to it from where it is.
    void Glide(const Board& board, int position, int milliseconds);

    void SetLook(int piece, PieceLook look);
    void MoveTo(int piece, const QPointF& topLeft);

    // Lights up this piece and no other; 0 for none.
    void Hover(int piece);

    // Frames a position; 0 for none.
    void Frame(FrameItem::Kind kind, int position);

    enum class Sight { Pieces, WholePicture };
    void Show(Sight sight);

    void SetDraft(bool draft);

    // Begins to show the whole picture, with a gleam and with paper.
    void Celebrate();

private:
    [[nodiscard]] PieceItem& Piece(int piece) const;

    PieceLayout layout_;
    std::vector<PieceItem*> pieces_; // the scene owns the items
    FrameItem* cursor_;
    FrameItem* target_;
    Celebration* celebration_ = nullptr;
    int hovered_ = 0;
};

} // namespace kestrova
