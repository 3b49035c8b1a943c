// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <optional>
#include <random>
#include <string_view>
#include <vector>

namespace kestrova {

enum class PuzzleKind {
    JigSaw,     // a piece dropped on another changes places with it
    MovingPiece // piece 1 is a gap, into which the pieces beside it move
};

// The sizes on offer, by the number of the menu's item; the pieces of a side are three more.
struct PuzzleSize {
    int Item;
    std::string_view Caption;

    [[nodiscard]] constexpr int Side() const { return Item + 3; }
};
inline constexpr std::array<PuzzleSize, 10> kPuzzleSizes{{{0, "&3 x 3"},
                                                          {1, "&4 x 4"},
                                                          {2, "&5 x 5"},
                                                          {3, "&6 x 6"},
                                                          {4, "&7 x 7"},
                                                          {5, "&8 x 8"},
                                                          {6, "&9 x 9"},
                                                          {7, "1&0 x 10"},
                                                          {12, "&15 x 15"},
                                                          {17, "&20 x 20"}}};
inline constexpr int kMaxPieces = 400;

[[nodiscard]] bool IsPuzzleSide(int side);

// Where a step takes the gap; the numbers are those that are drawn.
enum class GapStep { Up = 1, Down = 2, Left = 3, Right = 4 };

using PuzzleRandom = std::mt19937;

// Which piece lies where. Positions and pieces are numbered from 1, row by row from the top left;
// piece k belongs at position k.
class Board {
public:
    static constexpr int kMixingMoves = 2000;

    // Every piece at home. The side is one of the sizes on offer.
    explicit Board(int side);

    [[nodiscard]] int Side() const { return side_; }
    [[nodiscard]] int Pieces() const { return side_ * side_; }

    // The number of the piece at a position, and the other way round.
    [[nodiscard]] int PzPos(int position) const;
    [[nodiscard]] int PositionOf(int piece) const;

    // Where the gap (piece 1) lies.
    [[nodiscard]] int PzGap() const { return PositionOf(kGapPiece); }

    // The position beside another one; none beyond the border.
    [[nodiscard]] std::optional<int> Beside(int position, GapStep step) const;

    [[nodiscard]] bool IsSolved() const;

    // What the player has done since the pieces were shuffled.
    [[nodiscard]] int Moves() const { return moves_; }

    // Every arrangement but the solved one is as likely as any other.
    void Shuffle(PuzzleRandom& random);

    // Lets the pieces at two positions change places. With itself a piece does not, and that is no
    // move.
    void Exchange(int position, int other);

    // Moves the gap about at random, so that moves can undo it. A draw toward the border is drawn
    // again; should all be at home after the last move, moving goes on.
    void MixPieces(PuzzleRandom& random, int moves = kMixingMoves);

    // Whether the piece at a position lies beside the gap.
    [[nodiscard]] bool CanMove(int position) const;

    // Moves the piece at a position into the gap. False, and nothing moves, when it may not.
    bool MovePiece(int position);

private:
    static constexpr int kGapPiece = 1;

    [[nodiscard]] int& At(int position);
    void StepGap(PuzzleRandom& random);

    int side_;
    int moves_ = 0;
    std::vector<int> positions_;
};

} // namespace kestrova
