// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "print/PageLayout.h"

#include <deque>
#include <vector>

namespace kestrova {

// A page, with the paper that it was laid out for.
struct LayoutState {
    PageLayout Page;
    int Paper = kPaperA4;
    Orientation Turned = Orientation::Portrait;

    bool operator==(const LayoutState&) const = default;
};

// What a step has done, as far as steps of one kind in a row are undone together.
enum class StepKind { Single, Nudge };

// The states that a page has gone through and can be brought back to.
class LayoutHistory {
public:
    static constexpr std::size_t kMostSteps = 100; // older ones are forgotten

    // A step has led away from this state. What had been undone cannot be done again.
    void Add(LayoutState before, StepKind kind);

    // The next step will not be taken together with the last.
    void EndRun() { last_ = StepKind::Single; }

    void Clear();

    [[nodiscard]] bool CanUndo() const { return !undo_.empty(); }
    [[nodiscard]] bool CanRedo() const { return !redo_.empty(); }

    // Gives the state before the last step, or the one that was undone last, for the one that there
    // is now. Only when it can.
    [[nodiscard]] LayoutState Undo(LayoutState now);
    [[nodiscard]] LayoutState Redo(LayoutState now);

private:
    std::deque<LayoutState> undo_;
    std::vector<LayoutState> redo_;
    StepKind last_ = StepKind::Single;
};

} // namespace kestrova
