// SPDX-License-Identifier: GPL-3.0-or-later
#include "print/ui/PreviewWait.h"

#include "language/Texts.h"

#include <QCloseEvent>
#include <QMenu>

#include <cmath>

namespace kestrova {

namespace {

TextBox::Lines LinesOf(LayoutKind kind, bool fitted) {
    switch (kind) {
    case LayoutKind::LabEvent: return TextBox::Lines::Broken;
    case LayoutKind::LabUser: return fitted ? TextBox::Lines::Whole : TextBox::Lines::Broken;
    case LayoutKind::LabDays:
    case LayoutKind::LabDates: return TextBox::Lines::Centred;
    default: return TextBox::Lines::Whole;
    }
}

} // namespace

void Preview::OpenMonth() {
    if (busy_ || (isVisible() && !LeavePage())) {
        return;
    }
    editor_.Forget();
    layoutTitle_ = false;
    EnterView(false);
    Status opened = Done{};
    {
        const Wait wait(*this);
        opened = rooms_.Desk.Open();
    }
    if (!opened) {
        Leave();
        ShowAll();
        ShowNoPrinter();
        return;
    }
    rooms_.Desk.Activate();
    NewSurface();
    Picture1->FitPage();
    show();
    raise();
    activateWindow();
}

void Preview::Leave() {
    hide();
    rooms_.Desk.Close();
    editor_.Forget();
    hooks_.Closed();
}

void Preview::closeEvent(QCloseEvent* event) {
    event->ignore();
    (void)TryLeave(); // it stays open when it cannot
}

bool Preview::TryLeave() {
    if (busy_ || !LeavePage()) {
        return false;
    }
    Leave();
    return true;
}

void Preview::changeEvent(QEvent* event) {
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && TextEdit != nullptr) {
        ShowTextEdit();
    }
}

// Shows page, selection and entries as they are now.
void Preview::ShowAll() {
    scene_->Update();
    ShowTextEdit();
    ShowEntries();
    ShowChecks();
    Picture1->setAccessibleDescription(NameOfSelected());
    if (shownSurface_ != editor_.Page().Surface) { // undone, perhaps
        shownSurface_ = editor_.Page().Surface;
        FitSurface();
    }
}

void Preview::FitSurface() {
    if (Picture1->IsFitted()) {
        Picture1->FitPage();
    }
    frame_->ScrolSetup();
}

// What a user hears who cannot see the page.
QString Preview::NameOfSelected() const {
    const auto ref = editor_.Selected();
    if (!ref) {
        return {};
    }
    if (IsText(ref->Kind)) {
        return ToQt(editor_.Page().Find(*ref)->Caption).simplified();
    }
    const QString name = Words(ref->Kind == LayoutKind::Image1 ? ProgramText::MenuBackground
                                                               : ProgramText::MenuPicture)
                             .remove(QLatin1Char('&'));
    return ref->Kind == LayoutKind::ImgUser ? QStringLiteral("%1 %2").arg(name).arg(ref->Index)
                                            : name;
}

// The page has another size, or is another page.
void Preview::NewSurface() {
    if (IsPrintView()) {
        EnterView(true);
    }
    ShowAll();
    FitSurface();
}

void Preview::EnterView(bool printed) {
    scene_->ShowPrinted(printed ? [this](DrawingSurface& output) { rooms_.Desk.DrawPage(output); }
                                : std::function<void(DrawingSurface&)>(),
                        rooms_.Desk.Setup().Colours);
    for (const char* const name : {"MNU_Edit", "MNU_View"}) {
        menus_.at(QLatin1String(name))->setEnabled(!printed);
    }
    ComPreview->setChecked(printed);
    ShowTitle();
}

void Preview::ShowTitle() {
    setWindowTitle(layoutTitle_ && !IsPrintView()
                       ? Words(ProgramText::LayoutTitle)
                       : ToQt(rooms_.Texts.Text(texts::kPrintPreviewTitle)));
}

void Preview::ShowEntries() {
    const auto enable = [this](const char* name, bool enabled) {
        Entry(QLatin1String(name)).setEnabled(enabled);
    };
    const bool hasText = editor_.TextSelected();
    const bool edits = editor_.Edited().has_value();
    const bool canPrint = !rooms_.Desk.PrintFault();
    enable("MNU_Text", hasText);
    enable("MNU_Font", hasText || edits);
    enable("MNU_TextColor", hasText || edits);
    enable("MNU_AddText", editor_.Page().LabUser.size() < kMaxLabels);
    enable("MNU_Delete", editor_.Selected().has_value());
    enable("MNU_Undo", editor_.CanUndo());
    enable("MNU_Redo", editor_.CanRedo());
    for (const char* const name : {"MNU_Print", "MNU_Preview", "MNU_Landscape", "MNU_Normal"}) {
        enable(name, canPrint);
    }
    menus_.at(QStringLiteral("MNU_Paper"))->setEnabled(canPrint);
    ComPrint->setEnabled(canPrint);
    ComPreview->setEnabled(canPrint);
}

void Preview::ShowChecks() {
    const PageLayout& page = editor_.Page();
    const PrinterSetup& setup = rooms_.Desk.Setup();
    const auto check = [this](const QString& name, bool checked) {
        Entry(name).setChecked(checked);
    };
    const auto choose = [&](const char* name, int index) {
        check(QStringLiteral("%1(%2)").arg(QLatin1String(name)).arg(index), true);
    };
    check(QStringLiteral("MNU_Preview"), IsPrintView());
    ComPreview->setChecked(IsPrintView());
    check(setup.Turned == Orientation::Landscape ? QStringLiteral("MNU_Landscape")
                                                 : QStringLiteral("MNU_Normal"),
          true);
    choose("MNU_Size", setup.Paper - 1);
    choose("MNU_Qul", -static_cast<int>(setup.Quality) - 1);
    check(setup.Colours == PrintColour::Colour ? QStringLiteral("MNU_Color")
                                               : QStringLiteral("MNU_BW"),
          true);
    const bool dotted = page.BorderDrawStyle == LineStyle::Dotted;
    check(QStringLiteral("MNU_Auto"), editor_.AutoPosition);
    check(QStringLiteral("MNU_Wide"), page.BorderWidth > 1);
    check(QStringLiteral("MNU_Thin"), page.BorderWidth == 1 && !dotted);
    check(QStringLiteral("MNU_Dotted"), dotted);
    choose("MNU_Line", page.BorderLines);
    check(QStringLiteral("MNU_GridOn"), page.GridOn);
    choose("MNU_Space", page.GridSpacing / kGridStep);
    check(QStringLiteral("MNU_BackNone"), page.Image1.Picture == nullptr);
    check(QStringLiteral("MNU_PicNone"), page.Image2.Picture == nullptr);
}

void Preview::ShowZoom() {
    ComZoom->setText(QStringLiteral("%1 %").arg(std::lround(Picture1->Zoom() * 100)));
    Entry(QStringLiteral("MNU_ZoomPage")).setChecked(Picture1->IsFitted());
}

// Lays the editing box over the text that is edited, or takes it away.
void Preview::ShowTextEdit() {
    const auto& edited = editor_.Edited();
    if (!edited) {
        inTextEdit_.reset();
        if (TextEdit->isVisible()) {
            TextEdit->hide();
            Picture1->setFocus();
        }
        return;
    }
    TextEdit->SetLooks(editor_.Draft(), Picture1->Scale());
    PlaceTextEdit();
    if (inTextEdit_ != edited) {
        inTextEdit_ = edited;
        TextEdit->LoadTextEdit(editor_.Draft(), LinesOf(edited->Kind, editor_.Draft().Fitted));
    }
}

void Preview::PlaceTextEdit() {
    if (!editor_.Edited()) {
        return;
    }
    const PageBox box = BoxOf(editor_.Draft());
    TextEdit->SetLooks(editor_.Draft(), Picture1->Scale());
    TextEdit->Place(
        Picture1->viewportTransform().mapRect(QRectF(box.Left, box.Top, box.Width, box.Height)));
}

} // namespace kestrova
