// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "print/Handles.h"
#include "print/LayoutHistory.h"
#include "print/PrintDesk.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace kestrova {

// What the user's hands do to the page in the layout window: selecting, dragging, resizing, editing
// texts, and what the menus set. Everything that changes the page can be undone.
//
// Points are in twips on the page surface.
class LayoutEditor {
public:
    LayoutEditor(PrintDesk& desk, const TextMeasure& measure) : desk_(desk), measure_(measure) {}

    // Something that shows has changed: the page, the selection or the text being edited.
    std::function<void()> Changed;

    // The page is another one: nothing is selected, nothing can be undone.
    void Forget();

    [[nodiscard]] const PageLayout& Page() const { return desk_.Page(); }
    [[nodiscard]] bool IsShown(const LayoutRef& ref) const;
    [[nodiscard]] std::optional<LayoutRef> At(int x, int y) const; // what lies on top there

    // Selecting. The object selected last is `Selected`, which handles and menus are about.

    [[nodiscard]] const std::vector<LayoutRef>& Selection() const { return selection_; }
    [[nodiscard]] std::optional<LayoutRef> Selected() const;
    [[nodiscard]] bool IsSelected(const LayoutRef& ref) const;
    [[nodiscard]] bool TextSelected() const; // `Selected` is one, and the marker shows
    void Select(const LayoutRef& ref);
    void Toggle(const LayoutRef& ref); // adds it to the selection or takes it out
    void SelectAll();
    void SelectWithin(const PageBox& frame); // what lies whole in the frame is added
    enum class Walk { Forth = 1, Back = -1 };
    void SelectNext(Walk direction); // from the lowest object to the one on top, and around
    void SpClear();                  // ends an edit too

    // Dragging. The page changes when the objects are dropped; until then they show moved by
    // `DragOffset`.

    void Ctrl_MouseDown(const LayoutRef& ref, int x, int y);
    void DragTo(int x, int y);
    [[nodiscard]] bool IsDragging() const { return drag_.has_value(); }
    struct Offset {
        int Across = 0;
        int Down = 0;
    };
    [[nodiscard]] Offset DragOffset() const;
    // Whether what lies under the point takes the object that was grabbed.
    [[nodiscard]] bool TakesDrop(int x, int y) const;
    bool Drop(int x, int y); // whether the objects have moved; if not, they stay where they were

    // Resizing. The page changes as the handle is moved.

    void GrabHandle(std::size_t handle, int x, int y); // of the only object selected
    void ResizeTo(int x, int y, Proportions proportions);
    [[nodiscard]] bool IsResizing() const { return resize_.has_value(); }
    void EndResize();

    // Everything is as it was before the object or the handle was grabbed.
    void BreakOff();

    static constexpr int kNudge = 15; // a pixel
    static constexpr int kLongNudge = 150;
    void Nudge(int across, int down);

    // Editing a text. What is typed is in a draft until the edit ends.

    void EditText(const LayoutRef& ref); // nothing for a picture
    [[nodiscard]] const std::optional<LayoutRef>& Edited() const { return edited_; }
    [[nodiscard]] const LayoutItem& Draft() const { return draft_; } // while a text is edited
    void TypeText(std::string caption);                              // lines parted by CR LF
    void CommitText();
    void CancelText();

    // Font and colour: of the draft while there is one, else of the texts selected.

    [[nodiscard]] std::optional<LayoutItem> TextShown() const; // whose font and colour are offered
    void SetFont(const FontChoice& font);
    void SetColour(std::int32_t colour);

    // What the menus do.

    void AddText(); // selects it and begins to edit it
    [[nodiscard]] Status AddImage(const std::string& path);
    void Delete();
    [[nodiscard]] Status LoadPicture(LayoutKind kind, const std::string& path);
    void RemovePicture(LayoutKind kind);

    bool AutoPosition = false; // moving background or picture lays the page out again

    enum class BorderLook { Wide, Thin, Dotted };
    void SetBorder(BorderLook look);
    void SetBorderColour(std::int32_t colour);
    void SetBorderLines(int lines); // 0-4
    void ToggleGrid();
    void SetSpacing(int steps); // 0-4

    void SetOrientation(Orientation turned);
    void SetPaper(int paper); // 1-13

    [[nodiscard]] bool CanUndo() const { return history_.CanUndo(); }
    [[nodiscard]] bool CanRedo() const { return history_.CanRedo(); }
    void Undo();
    void Redo();

private:
    struct Drag {
        LayoutRef Grabbed;
        int GrabX = 0; // where inside the object
        int GrabY = 0;
        int X = 0; // where the mouse is
        int Y = 0;
    };
    struct Resize {
        std::size_t Handle = 0;
        int X = 0; // where the handle was grabbed
        int Y = 0;
        LayoutState Before;
    };

    [[nodiscard]] LayoutItem& ItemOf(const LayoutRef& ref);
    [[nodiscard]] std::optional<LayoutKind> DropTarget(int x, int y) const;
    [[nodiscard]] bool OnSurface(int x, int y) const;
    [[nodiscard]] bool MovesGround() const;
    void MoveSelection(int across, int down);
    void Fit(const LayoutRef& ref, LayoutItem& item) const;
    void EachSelectedText(const std::function<void(LayoutItem&)>& change);

    [[nodiscard]] LayoutState Now() const;
    [[nodiscard]] bool IsNow(const LayoutState& state) const;
    void Step(StepKind kind, const std::function<void()>& change);
    void BringBack(const LayoutState& state);
    void Prune();
    void LetGo();
    void Tell() const;

    PrintDesk& desk_;
    const TextMeasure& measure_;
    LayoutHistory history_;
    std::vector<LayoutRef> selection_;
    std::optional<Drag> drag_;
    std::optional<Resize> resize_;
    std::optional<LayoutRef> edited_;
    LayoutItem draft_;
};

} // namespace kestrova
