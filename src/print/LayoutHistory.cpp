// SPDX-License-Identifier: GPL-3.0-or-later
#include "print/LayoutHistory.h"

#include <cassert>
#include <utility>

namespace kestrova {

void LayoutHistory::Add(LayoutState before, StepKind kind) {
    const bool goesOn = kind != StepKind::Single && kind == last_ && redo_.empty() && CanUndo();
    last_ = kind;
    redo_.clear();
    if (goesOn) {
        return; // the run's first state is kept
    }
    undo_.push_back(std::move(before));
    if (undo_.size() > kMostSteps) {
        undo_.pop_front();
    }
}

void LayoutHistory::Clear() {
    undo_.clear();
    redo_.clear();
    EndRun();
}

LayoutState LayoutHistory::Undo(LayoutState now) {
    assert(CanUndo());
    EndRun();
    redo_.push_back(std::move(now));
    LayoutState state = std::move(undo_.back());
    undo_.pop_back();
    return state;
}

LayoutState LayoutHistory::Redo(LayoutState now) {
    assert(CanRedo());
    EndRun();
    undo_.push_back(std::move(now));
    LayoutState state = std::move(redo_.back());
    redo_.pop_back();
    return state;
}

} // namespace kestrova
