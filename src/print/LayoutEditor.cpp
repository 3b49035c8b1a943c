// SPDX-License-Identifier: GPL-3.0-or-later
#include "print/LayoutEditor.h"

#include <algorithm>
#include <cassert>

namespace kestrova {

void LayoutEditor::Forget() {
    edited_.reset();
    drag_.reset();
    resize_.reset();
    selection_.clear();
    history_.Clear();
    Tell();
}

void LayoutEditor::Tell() const {
    if (Changed) {
        Changed();
    }
}

LayoutItem& LayoutEditor::ItemOf(const LayoutRef& ref) {
    LayoutItem* const item = desk_.Page().Find(ref);
    assert(item != nullptr);
    return *item;
}

bool LayoutEditor::IsShown(const LayoutRef& ref) const {
    const LayoutItem* const item = Page().Find(ref);
    if (item == nullptr || !item->Enabled) {
        return false;
    }
    const bool inMonth = ref.Kind != LayoutKind::LabDates || ref.Index < desk_.DaysShown();
    return !IsText(ref.Kind) || (item->Visible && inMonth);
}

std::optional<LayoutRef> LayoutEditor::At(int x, int y) const {
    std::optional<LayoutRef> top;
    EachItem(Page(), [&](const LayoutRef& ref) {
        if (IsShown(ref) && BoxOf(*Page().Find(ref)).Contains(x, y)) {
            top = ref;
        }
    });
    return top;
}

std::optional<LayoutRef> LayoutEditor::Selected() const {
    return selection_.empty() ? std::nullopt : std::optional(selection_.back());
}

bool LayoutEditor::IsSelected(const LayoutRef& ref) const {
    return std::ranges::find(selection_, ref) != selection_.end();
}

bool LayoutEditor::TextSelected() const {
    return !edited_ && !selection_.empty() && IsText(selection_.back().Kind);
}

void LayoutEditor::SpClear() {
    LetGo();
    CommitText();
    selection_.clear();
    history_.EndRun();
    Tell();
}

void LayoutEditor::Select(const LayoutRef& ref) {
    SpClear();
    selection_ = {ref};
    Tell();
}

void LayoutEditor::Toggle(const LayoutRef& ref) {
    LetGo();
    CommitText();
    history_.EndRun();
    if (std::erase(selection_, ref) == 0) {
        selection_.push_back(ref);
    }
    Tell();
}

void LayoutEditor::SelectAll() {
    SpClear();
    EachItem(Page(), [this](const LayoutRef& ref) {
        if (IsShown(ref)) {
            selection_.push_back(ref);
        }
    });
    Tell();
}

void LayoutEditor::SelectWithin(const PageBox& frame) {
    LetGo();
    CommitText();
    history_.EndRun();
    EachItem(Page(), [&](const LayoutRef& ref) {
        const PageBox box = BoxOf(*Page().Find(ref));
        const bool within = box.Left >= frame.Left && box.Right() <= frame.Right() &&
                            box.Top >= frame.Top && box.Bottom() <= frame.Bottom();
        if (within && IsShown(ref) && !IsSelected(ref)) {
            selection_.push_back(ref);
        }
    });
    Tell();
}

void LayoutEditor::SelectNext(Walk direction) {
    std::vector<LayoutRef> shown;
    EachItem(Page(), [&](const LayoutRef& ref) {
        if (IsShown(ref)) {
            shown.push_back(ref);
        }
    });
    if (shown.empty()) {
        return;
    }
    if (direction == Walk::Back) {
        std::ranges::reverse(shown);
    }
    const auto from = selection_.empty() ? shown.end() : std::ranges::find(shown, *Selected());
    const bool around = from == shown.end() || from + 1 == shown.end();
    Select(around ? shown.front() : *(from + 1));
}

LayoutState LayoutEditor::Now() const {
    return {desk_.Page(), desk_.Setup().Paper, desk_.Setup().Turned};
}

bool LayoutEditor::IsNow(const LayoutState& state) const {
    return state.Paper == desk_.Setup().Paper && state.Turned == desk_.Setup().Turned &&
           state.Page == desk_.Page();
}

void LayoutEditor::Step(StepKind kind, const std::function<void()>& change) {
    LetGo();
    LayoutState before = Now();
    change();
    if (!IsNow(before)) {
        history_.Add(std::move(before), kind);
    }
    Prune();
    Tell();
}

// What is no longer there or no longer shown cannot stay selected.
void LayoutEditor::Prune() {
    std::erase_if(selection_, [this](const LayoutRef& ref) { return !IsShown(ref); });
}

void LayoutEditor::BringBack(const LayoutState& state) {
    desk_.Restore(state.Page, state.Paper, state.Turned);
    Prune();
    Tell();
}

void LayoutEditor::Undo() {
    BreakOff();
    CommitText();
    if (history_.CanUndo()) {
        BringBack(history_.Undo(Now()));
    }
}

void LayoutEditor::Redo() {
    BreakOff();
    CommitText();
    if (history_.CanRedo()) {
        BringBack(history_.Redo(Now()));
    }
}

} // namespace kestrova
