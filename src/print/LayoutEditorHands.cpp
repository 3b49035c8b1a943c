// SPDX-License-Identifier: GPL-3.0-or-later
// How objects are moved and resized.
#include "print/LayoutEditor.h"

#include <algorithm>

namespace kestrova {

void LayoutEditor::Ctrl_MouseDown(const LayoutRef& ref, int x, int y) {
    if (IsSelected(ref) && !edited_) {
        std::erase(selection_, ref); // all go along, but this one is the one in the hand
        selection_.push_back(ref);
        history_.EndRun();
    } else {
        Select(ref);
    }
    const LayoutItem& item = ItemOf(ref);
    drag_ = Drag{ref, x - item.Left, y - item.Top, x, y};
    Tell();
}

void LayoutEditor::DragTo(int x, int y) {
    if (drag_) {
        drag_->X = x;
        drag_->Y = y;
    }
}

LayoutEditor::Offset LayoutEditor::DragOffset() const {
    if (!drag_) {
        return {};
    }
    const LayoutItem& item = *Page().Find(drag_->Grabbed);
    return {drag_->X - drag_->GrabX - item.Left, drag_->Y - drag_->GrabY - item.Top};
}

bool LayoutEditor::OnSurface(int x, int y) const {
    return PageBox{0, 0, Page().Surface.Width, Page().Surface.Height}.Contains(x, y);
}

// The kind of what lies on top there, not counting what is being dragged; nothing for the page
// surface itself.
std::optional<LayoutKind> LayoutEditor::DropTarget(int x, int y) const {
    std::optional<LayoutKind> top;
    EachItem(Page(), [&](const LayoutRef& ref) {
        if (!IsSelected(ref) && IsShown(ref) && BoxOf(*Page().Find(ref)).Contains(x, y)) {
            top = ref.Kind;
        }
    });
    return top;
}

bool LayoutEditor::TakesDrop(int x, int y) const {
    if (!drag_ || !OnSurface(x, y)) {
        return false;
    }
    const auto target = DropTarget(x, y);
    return !target || Accepts(*target, drag_->Grabbed.Kind);
}

// Whether the background or the page's picture is among what moves.
bool LayoutEditor::MovesGround() const {
    return std::ranges::any_of(selection_, [](const LayoutRef& ref) {
        return ref.Kind == LayoutKind::Image1 || ref.Kind == LayoutKind::Image2;
    });
}

void LayoutEditor::MoveSelection(int across, int down) {
    for (const LayoutRef& ref : selection_) {
        LayoutItem& item = ItemOf(ref);
        item.Left += across;
        item.Top += down;
    }
    if (AutoPosition && MovesGround()) {
        desk_.DoControls();
    }
}

bool LayoutEditor::Drop(int x, int y) {
    const bool taken = TakesDrop(x, y);
    DragTo(x, y);
    const Offset offset = DragOffset();
    drag_.reset();
    const bool moves = taken && (offset.Across != 0 || offset.Down != 0);
    if (moves) {
        Step(StepKind::Single, [&] { MoveSelection(offset.Across, offset.Down); });
    } else {
        Tell();
    }
    return moves;
}

void LayoutEditor::GrabHandle(std::size_t handle, int x, int y) {
    if (selection_.size() == 1 && !edited_ && handle < kHandles) {
        history_.EndRun();
        resize_ = Resize{handle, x, y, Now()};
    }
}

void LayoutEditor::ResizeTo(int x, int y, Proportions proportions) {
    if (!resize_) {
        return;
    }
    const LayoutRef ref = selection_.front();
    const LayoutItem& before = *resize_->Before.Page.Find(ref);
    const PageBox box =
        Resized(BoxOf(before), resize_->Handle, x - resize_->X, y - resize_->Y, proportions);
    LayoutItem& item = ItemOf(ref);
    SetBox(item, box);
    item.Fitted = before.Fitted && box == BoxOf(before);
    Tell();
}

void LayoutEditor::EndResize() {
    if (!resize_) {
        return;
    }
    LayoutState before = std::move(resize_->Before);
    resize_.reset();
    if (!IsNow(before)) {
        if (AutoPosition && MovesGround()) {
            desk_.DoControls();
        }
        history_.Add(std::move(before), StepKind::Single);
    }
    Tell();
}

void LayoutEditor::BreakOff() {
    drag_.reset();
    if (resize_) {
        desk_.Restore(std::move(resize_->Before.Page), resize_->Before.Paper,
                      resize_->Before.Turned);
        resize_.reset();
    }
    Tell();
}

// What is held would be another object once the selection is, or lie on a page of before.
void LayoutEditor::LetGo() {
    if (drag_ || resize_) {
        BreakOff();
    }
}

void LayoutEditor::Nudge(int across, int down) {
    const PageBox surface{0, 0, Page().Surface.Width, Page().Surface.Height};
    const bool stays = std::ranges::all_of(selection_, [&](const LayoutRef& ref) {
        PageBox box = BoxOf(*Page().Find(ref));
        box.Left += across;
        box.Top += down;
        return box.Meets(surface);
    });
    if (stays && !edited_ && !selection_.empty()) {
        Step(StepKind::Nudge, [&] { MoveSelection(across, down); });
    }
}

} // namespace kestrova
