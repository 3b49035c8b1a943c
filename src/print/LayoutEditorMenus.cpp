// SPDX-License-Identifier: GPL-3.0-or-later
// How texts are edited, and what the menus do to the page.
#include "print/LayoutEditor.h"

#include "print/LineBreaks.h"

#include <algorithm>
#include <utility>

namespace kestrova {

void LayoutEditor::EditText(const LayoutRef& ref) {
    if (!IsText(ref.Kind) || !IsShown(ref)) {
        return;
    }
    Select(ref);
    edited_ = ref;
    draft_ = ItemOf(ref);
    Tell();
}

void LayoutEditor::TypeText(std::string caption) {
    draft_.Caption = std::move(caption);
}

void LayoutEditor::CommitText() {
    const auto edited = std::exchange(edited_, std::nullopt);
    if (!edited || Page().Find(*edited) == nullptr || ItemOf(*edited) == draft_) {
        return;
    }
    Step(StepKind::Single, [&] {
        Fit(*edited, draft_);
        ItemOf(*edited) = draft_;
    });
}

void LayoutEditor::CancelText() {
    edited_.reset();
    Tell();
}

std::optional<LayoutItem> LayoutEditor::TextShown() const {
    if (edited_) {
        return draft_;
    }
    return TextSelected() ? std::optional(*Page().Find(*Selected())) : std::nullopt;
}

// The header's box and that of a text whose size the user has left alone are as large as the text.
// The header stays in the middle of where it was; the blanks that it begins with count on both
// sides.
void LayoutEditor::Fit(const LayoutRef& ref, LayoutItem& item) const {
    const bool header = ref.Kind == LayoutKind::LabCurMth;
    if (!header && (ref.Kind != LayoutKind::LabUser || !item.Fitted)) {
        return;
    }
    const FontChoice font = item.Font();
    int width = 0;
    int height = 0;
    for (std::string line : CaptionLines(item.Caption)) {
        if (header) {
            line.append(std::min(line.find_first_not_of(' '), line.size()), ' ');
        }
        width = std::max(width, measure_.TextWidth(font, line));
        height += measure_.LineHeight(font);
    }
    item.Left += header ? (item.Width - width) / 2 : 0;
    item.Width = std::max(width, kSmallestSide);
    item.Height = height;
}

void LayoutEditor::EachSelectedText(const std::function<void(LayoutItem&)>& change) {
    if (edited_) {
        change(draft_);
        Tell();
        return;
    }
    Step(StepKind::Single, [&] {
        for (const LayoutRef& ref : selection_) {
            if (IsText(ref.Kind)) {
                change(ItemOf(ref));
                Fit(ref, ItemOf(ref));
            }
        }
    });
}

void LayoutEditor::SetFont(const FontChoice& font) {
    EachSelectedText([&font](LayoutItem& item) {
        item.FontName = font.Family;
        item.FontSize = font.Size;
        item.FontBold = font.Bold;
        item.FontItalic = font.Italic;
    });
}

void LayoutEditor::SetColour(std::int32_t colour) {
    EachSelectedText([colour](LayoutItem& item) { item.ForeColor = colour; });
}

void LayoutEditor::AddText() {
    SpClear();
    LayoutRef added;
    Step(StepKind::Single, [&] {
        added = desk_.AddText();
        if (LayoutItem* const item = desk_.Page().Find(added)) {
            item->Fitted = true; // it grows with what is typed
        }
    });
    if (desk_.Page().Find(added) != nullptr) { // there may be as many as there can be
        EditText(added);
    }
}

Status LayoutEditor::AddImage(const std::string& path) {
    SpClear();
    PrintDesk::Added added{{}, Done{}};
    Step(StepKind::Single, [&] { added = desk_.AddImage(path); });
    if (IsShown(added.Ref)) {
        Select(added.Ref);
    }
    return added.Trouble;
}

void LayoutEditor::Delete() {
    CommitText();
    Step(StepKind::Single, [this] {
        for (const LayoutRef& ref : selection_) {
            LayoutItem& item = ItemOf(ref);
            item.Picture.reset();
            item.Visible = false;
            item.Enabled = false;
        }
    });
    SpClear();
}

Status LayoutEditor::LoadPicture(LayoutKind kind, const std::string& path) {
    CommitText();
    Status loaded = Done{};
    Step(StepKind::Single, [&] { loaded = desk_.LoadPicture(kind, path); });
    return loaded;
}

void LayoutEditor::RemovePicture(LayoutKind kind) {
    CommitText();
    Step(StepKind::Single, [&] { ItemOf({kind, 0}).Picture.reset(); });
}

void LayoutEditor::SetBorder(BorderLook look) {
    Step(StepKind::Single, [&] {
        PageLayout& page = desk_.Page();
        constexpr int kWide = 4;
        page.BorderWidth = look == BorderLook::Wide ? kWide : 1;
        if (look != BorderLook::Wide) {
            page.BorderDrawStyle =
                look == BorderLook::Dotted ? LineStyle::Dotted : LineStyle::Solid;
        }
    });
}

void LayoutEditor::SetBorderColour(std::int32_t colour) {
    Step(StepKind::Single, [&] { desk_.Page().BorderColor = colour; });
}

void LayoutEditor::SetBorderLines(int lines) {
    Step(StepKind::Single, [&] { desk_.Page().BorderLines = lines; });
}

void LayoutEditor::ToggleGrid() {
    Step(StepKind::Single, [this] { desk_.Page().GridOn = !desk_.Page().GridOn; });
}

void LayoutEditor::SetSpacing(int steps) {
    CommitText();
    Step(StepKind::Single, [&] {
        desk_.Page().GridSpacing = kGridStep * steps;
        desk_.DoControls();
    });
}

void LayoutEditor::SetOrientation(Orientation turned) {
    SpClear();
    Step(StepKind::Single, [&] { desk_.SetOrientation(turned); });
}

void LayoutEditor::SetPaper(int paper) {
    SpClear();
    Step(StepKind::Single, [&] { desk_.SetPaper(paper); });
}

} // namespace kestrova
