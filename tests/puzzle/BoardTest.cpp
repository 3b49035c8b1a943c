// SPDX-License-Identifier: GPL-3.0-or-later
#include "puzzle/Board.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>

namespace kestrova {
namespace {

std::vector<int> Arrangement(const Board& board) {
    std::vector<int> pieces;
    for (int position = 1; position <= board.Pieces(); ++position) {
        pieces.push_back(board.PzPos(position));
    }
    return pieces;
}

bool HasEveryPiece(const Board& board) {
    std::vector<int> pieces = Arrangement(board);
    std::sort(pieces.begin(), pieces.end());
    for (int k = 1; k <= board.Pieces(); ++k) {
        if (pieces[static_cast<std::size_t>(k - 1)] != k) {
            return false;
        }
    }
    return true;
}

// Whether the arrangement can be reached by moves of the gap: each is an exchange and a step, so
// the two must be even or odd together.
bool CanBeSolved(const Board& board) {
    std::vector<int> pieces = Arrangement(board);
    int exchanges = 0;
    for (std::size_t i = 0; i < pieces.size(); ++i) {
        while (pieces[i] != static_cast<int>(i) + 1) {
            std::swap(pieces[i], pieces[static_cast<std::size_t>(pieces[i] - 1)]);
            ++exchanges;
        }
    }
    const int gap = board.PzGap() - 1;
    return (exchanges + gap / board.Side() + gap % board.Side()) % 2 == 0;
}

TEST(BoardTest, TheCaptionsOfTheSizesSayTheirSides) {
    for (const PuzzleSize& size : kPuzzleSizes) {
        std::string caption(size.Caption);
        caption.erase(caption.find('&'), 1);
        const std::string side = std::to_string(size.Side());
        EXPECT_EQ(caption, side + " x " + side);
        EXPECT_TRUE(IsPuzzleSide(size.Side()));
    }
    EXPECT_EQ(kPuzzleSizes.back().Side() * kPuzzleSizes.back().Side(), kMaxPieces);
    for (const int side : {0, 2, 11, 14, 16, 21, -3}) {
        EXPECT_FALSE(IsPuzzleSide(side)) << side;
    }
}

TEST(BoardTest, ShufflingAndMixingKeepEveryPieceAndLeaveWorkToDo) {
    PuzzleRandom random{5};
    for (const PuzzleSize& size : kPuzzleSizes) {
        SCOPED_TRACE(size.Side());
        Board board(size.Side());
        EXPECT_TRUE(board.IsSolved());
        board.Shuffle(random);
        EXPECT_TRUE(HasEveryPiece(board));
        EXPECT_FALSE(board.IsSolved());

        Board mixed(size.Side());
        mixed.MixPieces(random);
        EXPECT_TRUE(HasEveryPiece(mixed));
        EXPECT_FALSE(mixed.IsSolved());
        EXPECT_TRUE(CanBeSolved(mixed));
        EXPECT_EQ(mixed.Moves(), 0);
    }
}

TEST(BoardTest, EveryPieceComesToEveryPositionEquallyOften) {
    PuzzleRandom random{11};
    Board board(3);
    std::map<std::pair<int, int>, int> seen;
    constexpr int kGames = 9000;
    for (int i = 0; i < kGames; ++i) {
        board.Shuffle(random);
        for (int position = 1; position <= board.Pieces(); ++position) {
            ++seen[{position, board.PzPos(position)}];
        }
    }
    ASSERT_EQ(seen.size(), 81U);
    for (const auto& [place, times] : seen) {
        EXPECT_NEAR(times, kGames / 9, 180) << place.second << " at " << place.first;
    }
}

// Two moves from home, so that every second mixing of two moves comes back: then there must be
// more.
TEST(BoardTest, MixingNeverEndsAtHome) {
    PuzzleRandom random{3};
    for (int i = 0; i < 50; ++i) {
        Board board(3);
        board.MixPieces(random, 2);
        EXPECT_FALSE(board.IsSolved());
    }
}

TEST(BoardTest, OnlyTheNeighboursOfTheGapMove) {
    Board board(4);
    const auto movable = [&board] {
        std::vector<int> positions;
        for (int position = 1; position <= board.Pieces(); ++position) {
            if (board.CanMove(position)) {
                positions.push_back(position);
            }
        }
        return positions;
    };
    EXPECT_EQ(movable(), (std::vector<int>{2, 5}));
    EXPECT_FALSE(board.MovePiece(6));
    EXPECT_FALSE(board.MovePiece(1));
    EXPECT_TRUE(board.IsSolved());
    EXPECT_EQ(board.Moves(), 0);

    EXPECT_TRUE(board.MovePiece(5));
    EXPECT_TRUE(board.MovePiece(6));
    EXPECT_EQ(board.PzGap(), 6);
    EXPECT_EQ(board.PzPos(1), 5);
    EXPECT_EQ(board.PzPos(5), 6);
    EXPECT_EQ(board.Moves(), 2);
    EXPECT_EQ(movable(), (std::vector<int>{2, 5, 7, 10}));

    // At the right border the next number lies in another row.
    EXPECT_TRUE(board.MovePiece(7));
    EXPECT_TRUE(board.MovePiece(8));
    EXPECT_EQ(movable(), (std::vector<int>{4, 7, 12}));
}

TEST(BoardTest, StepsAreNumberedAndEndAtTheBorder) {
    const Board board(3);
    EXPECT_EQ(board.Beside(5, static_cast<GapStep>(1)), 2);
    EXPECT_EQ(board.Beside(5, static_cast<GapStep>(2)), 8);
    EXPECT_EQ(board.Beside(5, static_cast<GapStep>(3)), 4);
    EXPECT_EQ(board.Beside(5, static_cast<GapStep>(4)), 6);
    EXPECT_EQ(board.Beside(3, GapStep::Up), std::nullopt);
    EXPECT_EQ(board.Beside(7, GapStep::Down), std::nullopt);
    EXPECT_EQ(board.Beside(4, GapStep::Left), std::nullopt);
    EXPECT_EQ(board.Beside(6, GapStep::Right), std::nullopt);
}

} // namespace
} // namespace kestrova
