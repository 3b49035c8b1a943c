// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "puzzle/PieceFiles.h"
#include "puzzle/ui/PieceTable.h"

#include <QElapsedTimer>
#include <QGraphicsView>
#include <QTimer>

#include <functional>
#include <optional>

class QLabel;

namespace kestrova {

// What the puzzle says; "%1" is the place of a value.
struct PuzzleTexts {
    QString Name;       // for those who cannot see it
    QString Moves;      // "Moves: %1"
    QString Time;       // "Time: %1"
    QString Solved;     // "Solved!"
    QString JigSawKeys; // what the hands can do, in a line
    QString MovingKeys;
};

// The puzzle in the place of the picture: visible while a game is on, and hidden between games.
//
// In the jigsaw game a piece is dragged onto another; or the arrow keys choose it, Space picks it
// up, the arrows choose where to, Space puts it down and Escape puts it back. In the moving-piece
// game a click on a piece beside the gap moves it, and an arrow key moves a piece in the arrow's
// direction. The picture shows as long as H is held.
class PuzzleView : public QGraphicsView {
public:
    PuzzleView(PieceFiles& files, const PuzzleRandom& random, QWidget* parent);
    ~PuzzleView() override;

    void SetTexts(const PuzzleTexts& texts);
    void SetShape(PuzzleShape shape);

    // Cuts the picture, shuffles the pieces and shows itself. A game that was on is over without
    // further notice. On failure no game is on.
    Status Start(const QImage& picture, int side, PuzzleKind kind);

    // Ends a running game, at whatever moment, and calls `Finished`.
    void Quit();

    [[nodiscard]] bool IsRunning() const { return board_.has_value(); }

    // The game is over, solved or given up: the view has hidden itself. It may be deleted in here.
    std::function<void()> Finished;

    // Lays the pieces anew into the room there is.
    void GameResize();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void drawBackground(QPainter* painter, const QRectF& area) override;

private:
    enum class Holder { Mouse, Keys };

    // The piece that the player has picked up.
    struct Hand {
        Holder By = Holder::Mouse;
        int Piece = 0;
        int From = 0;   // its position
        int Target = 0; // where it would be put down; 0 for nowhere
        QPointF Grip;   // from the piece's top left
    };

    // What is needed to begin, all of it gathered before anything is changed.
    struct Pieces {
        CutPlan Plan;
        QImage Whole;
        std::vector<QImage> Pictures;
    };

    void BuildStatusLine();
    Result<Pieces> GameIni(const QImage& picture, int side);
    void ResetPiece();
    void GameFinish();
    void ShowStatus();
    void ShowTime();
    void PlaceStatusLine();

    [[nodiscard]] bool IsPlaying() const { return IsRunning() && !finish_.isActive(); }
    void Lift(Holder by, int position, const QPointF& grip);
    void Aim(int target);
    void PutBack();
    void PutDown();
    void Piece_DragDrop(int from, int target);
    void MovePiece(int position);
    void AfterMove();
    void ShowPointer(int position);
    void UseKeys();
    void UseMouse(int position);
    void HandleArrow(GapStep step);
    void PickUpOrPutDown();
    [[nodiscard]] bool HandleKey(int key);

    PieceFiles& files_;
    PuzzleRandom random_;
    PuzzleTexts texts_;
    PuzzleShape shape_ = PuzzleShape::Fill;
    PieceTable table_;
    QWidget* statusLine_ = nullptr;
    QLabel* LabMoves = nullptr;
    QLabel* LabKeys = nullptr;

    PuzzleKind kind_ = PuzzleKind::JigSaw;
    CutPlan plan_;
    PieceLayout layout_;
    std::optional<Board> board_; // while a game is on
    std::optional<Hand> hand_;
    int cursor_ = 1;          // where the keyboard stands
    bool showCursor_ = false; // the keyboard was used last
    QElapsedTimer time_;
    QTimer second_;  // shows the time
    QTimer sharpen_; // after a resize
    QTimer finish_;  // runs while a solved puzzle is celebrated
};

} // namespace kestrova
