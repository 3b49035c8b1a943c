// SPDX-License-Identifier: GPL-3.0-or-later
#include "puzzle/Board.h"

#include <algorithm>
#include <cassert>
#include <numeric>
#include <utility>

namespace kestrova {

namespace {

constexpr std::array<GapStep, 4> kSteps{GapStep::Up, GapStep::Down, GapStep::Left, GapStep::Right};

} // namespace

bool IsPuzzleSide(int side) {
    return std::any_of(kPuzzleSizes.begin(), kPuzzleSizes.end(),
                       [side](const PuzzleSize& size) { return size.Side() == side; });
}

Board::Board(int side) : side_(side) {
    assert(IsPuzzleSide(side));
    positions_.resize(static_cast<std::size_t>(Pieces()));
    std::iota(positions_.begin(), positions_.end(), 1);
}

int& Board::At(int position) {
    assert(position >= 1 && position <= Pieces());
    return positions_[static_cast<std::size_t>(position - 1)];
}

int Board::PzPos(int position) const {
    assert(position >= 1 && position <= Pieces());
    return positions_[static_cast<std::size_t>(position - 1)];
}

int Board::PositionOf(int piece) const {
    const auto found = std::find(positions_.begin(), positions_.end(), piece);
    assert(found != positions_.end());
    return static_cast<int>(found - positions_.begin()) + 1;
}

std::optional<int> Board::Beside(int position, GapStep step) const {
    const int row = (position - 1) / side_;
    const int column = (position - 1) % side_;
    const auto within = [position](bool inside, int by) {
        return inside ? std::optional<int>(position + by) : std::nullopt;
    };
    switch (step) {
    case GapStep::Up: return within(row > 0, -side_);
    case GapStep::Down: return within(row < side_ - 1, side_);
    case GapStep::Left: return within(column > 0, -1);
    case GapStep::Right: return within(column < side_ - 1, 1);
    }
    return std::nullopt;
}

bool Board::IsSolved() const {
    return std::is_sorted(positions_.begin(), positions_.end());
}

void Board::Shuffle(PuzzleRandom& random) {
    do {
        std::shuffle(positions_.begin(), positions_.end(), random);
    } while (IsSolved());
    moves_ = 0;
}

void Board::Exchange(int position, int other) {
    if (position != other) {
        std::swap(At(position), At(other));
        ++moves_;
    }
}

void Board::StepGap(PuzzleRandom& random) {
    std::uniform_int_distribution<int> draw(static_cast<int>(GapStep::Up),
                                            static_cast<int>(GapStep::Right));
    std::optional<int> target;
    while (!target) {
        target = Beside(PzGap(), static_cast<GapStep>(draw(random)));
    }
    MovePiece(*target);
}

void Board::MixPieces(PuzzleRandom& random, int moves) {
    for (int i = 0; i < moves || IsSolved(); ++i) {
        StepGap(random);
    }
    moves_ = 0;
}

bool Board::CanMove(int position) const {
    const int gap = PzGap();
    return std::any_of(kSteps.begin(), kSteps.end(),
                       [&](GapStep step) { return Beside(gap, step) == position; });
}

bool Board::MovePiece(int position) {
    if (!CanMove(position)) {
        return false;
    }
    Exchange(position, PzGap());
    return true;
}

} // namespace kestrova
