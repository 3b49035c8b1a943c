// SPDX-License-Identifier: GPL-3.0-or-later
// What stands in the menus of the print layout window.
#include "print/ui/PreviewRows.h"

#include "ui/Names.h"

namespace kestrova {

using enum ProgramText;

QString Preview::MenuRow::FullName() const {
    return Index == kNoIndex ? QString::fromLatin1(Name) : ArrayName(Name, Index);
}

std::span<const Preview::MenuRow> Preview::FileRows() {
    using enum MenuRow::Sort;
    constexpr MenuRow::Click kSize = [](Preview& p, int index) { p.MNU_Size_Click(index); };
    constexpr MenuRow::Click kQuality = [](Preview& p, int index) { p.MNU_Qul_Click(index); };
    static constexpr MenuRow kRows[] = {
        {"MNU_File", Plain, "MNU_Load", MenuLoadLayout,
         [](Preview& p, int) { p.MNU_Load_Click(); }},
        {"MNU_File", Plain, "MNU_Save", MenuSaveLayout,
         [](Preview& p, int) { static_cast<void>(p.Save()); }},
        {"MNU_File", Plain, "MNU_SaveAs", MenuSaveLayoutAs,
         [](Preview& p, int) { static_cast<void>(p.SaveAs()); }},
        {"MNU_File"},
        {"MNU_File", Plain, "MNU_Print", MenuPrint, [](Preview& p, int) { p.MNU_Print_Click(); }},
        {"MNU_File", Check, "MNU_Preview", MenuPrintPreview,
         [](Preview& p, int) { p.MNU_Preview_Click(); }},
        {"MNU_File", Plain, "MNU_PrDiary", MenuPrintDiary,
         [](Preview& p, int) { p.MNU_PrDiary_Click(); }},
        {"MNU_File", Plain, "MNU_SavePdf", MenuSavePdf,
         [](Preview& p, int) { p.MNU_SavePdf_Click(); }},
        {"MNU_File"},
        {"MNU_File", Menu, "MNU_Orient", MenuOrientation},
        {"MNU_Orient", Choice, "MNU_Normal", MenuNormal,
         [](Preview& p, int) { p.MNU_Normal_Click(); }},
        {"MNU_Orient", Choice, "MNU_Landscape", MenuLandscape,
         [](Preview& p, int) { p.MNU_Landscape_Click(); }},
        {"MNU_File", Menu, "MNU_Paper", MenuPaperSize},
        {"MNU_Paper", Choice, "MNU_Size", PaperLetter, kSize, 0},
        {"MNU_Paper", Choice, "MNU_Size", PaperLetterSmall, kSize, 1},
        {"MNU_Paper", Choice, "MNU_Size", PaperTabloid, kSize, 2},
        {"MNU_Paper", Choice, "MNU_Size", PaperLedger, kSize, 3},
        {"MNU_Paper", Choice, "MNU_Size", PaperLegal, kSize, 4},
        {"MNU_Paper", Choice, "MNU_Size", PaperStatement, kSize, 5},
        {"MNU_Paper", Choice, "MNU_Size", PaperExecutive, kSize, 6},
        {"MNU_Paper", Choice, "MNU_Size", Count, kSize, 7, "A&3"},
        {"MNU_Paper", Choice, "MNU_Size", Count, kSize, 8, "A&4"},
        {"MNU_Paper", Choice, "MNU_Size", PaperA4Small, kSize, 9},
        {"MNU_Paper", Choice, "MNU_Size", Count, kSize, 10, "&A5"},
        {"MNU_Paper", Choice, "MNU_Size", Count, kSize, 11, "&B4"},
        {"MNU_Paper", Choice, "MNU_Size", Count, kSize, 12, "B&5"},
        {"MNU_File", Menu, "MNU_Quality", MenuQuality},
        {"MNU_Quality", Choice, "MNU_Qul", QualityDraft, kQuality, 0},
        {"MNU_Quality", Choice, "MNU_Qul", QualityLow, kQuality, 1},
        {"MNU_Quality", Choice, "MNU_Qul", QualityMedium, kQuality, 2},
        {"MNU_Quality", Choice, "MNU_Qul", QualityHigh, kQuality, 3},
        {"MNU_File", Menu, "MNU_ColorMode", MenuColorMode},
        {"MNU_ColorMode", Choice, "MNU_Color", MenuInColor,
         [](Preview& p, int) { p.MNU_Color_Click(); }},
        {"MNU_ColorMode", Choice, "MNU_BW", MenuBlackWhite,
         [](Preview& p, int) { p.MNU_BW_Click(); }},
        {"MNU_File"},
        {"MNU_File", Plain, "MNU_Exit", MenuCloseDay, [](Preview& p, int) { p.close(); }},
    };
    return kRows;
}

std::span<const Preview::MenuRow> Preview::EditRows() {
    using enum MenuRow::Sort;
    static constexpr MenuRow kRows[] = {
        {"MNU_Edit", Plain, "MNU_Undo", MenuUndoStep, [](Preview& p, int) { p.editor_.Undo(); }},
        {"MNU_Edit", Plain, "MNU_Redo", MenuRedoStep, [](Preview& p, int) { p.editor_.Redo(); }},
        {"MNU_Edit"},
        {"MNU_Edit", Plain, "MNU_Text", MenuEditText, [](Preview& p, int) { p.MNU_Text_Click(); }},
        {"MNU_Edit", Plain, "MNU_Font", MenuFont, [](Preview& p, int) { p.MNU_Font_Click(); }},
        {"MNU_Edit", Plain, "MNU_TextColor", MenuColor,
         [](Preview& p, int) { p.MNU_TextColor_Click(); }},
        {"MNU_Edit"},
        {"MNU_Edit", Plain, "MNU_AddText", MenuAddText,
         [](Preview& p, int) { p.MNU_AddText_Click(); }},
        {"MNU_Edit", Plain, "MNU_AddImage", MenuAddImage,
         [](Preview& p, int) { p.MNU_AddImage_Click(); }},
        {"MNU_Edit"},
        {"MNU_Edit", Plain, "MNU_SelectAll", MenuSelectAll,
         [](Preview& p, int) { p.editor_.SelectAll(); }},
        {"MNU_Edit", Plain, "MNU_Delete", MenuDeleteObject,
         [](Preview& p, int) { p.editor_.Delete(); }},
    };
    return kRows;
}

std::span<const Preview::MenuRow> Preview::ViewRows() {
    using enum MenuRow::Sort;
    using Look = LayoutEditor::BorderLook;
    constexpr MenuRow::Click kLine = [](Preview& p, int k) { p.editor_.SetBorderLines(k); };
    constexpr MenuRow::Click kSpace = [](Preview& p, int k) { p.editor_.SetSpacing(k); };
    static constexpr MenuRow kRows[] = {
        {"MNU_View", Check, "MNU_Auto", MenuAutoPosition,
         [](Preview& p, int) { p.editor_.AutoPosition = !p.editor_.AutoPosition; }},
        {"MNU_View", Menu, "MNU_Border", MenuBorder},
        {"MNU_Border", Plain, "MNU_BorderColor", MenuColor,
         [](Preview& p, int) { p.MNU_BorderColor_Click(); }},
        {"MNU_Border", Check, "MNU_Wide", MenuWide,
         [](Preview& p, int) { p.editor_.SetBorder(Look::Wide); }},
        {"MNU_Border", Check, "MNU_Thin", MenuThin,
         [](Preview& p, int) { p.editor_.SetBorder(Look::Thin); }},
        {"MNU_Border", Check, "MNU_Dotted", MenuDotted,
         [](Preview& p, int) { p.editor_.SetBorder(Look::Dotted); }},
        {"MNU_Border", Menu, "MNU_Lines", MenuLines},
        {"MNU_Lines", Choice, "MNU_Line", MenuNoLines, kLine, 0},
        {"MNU_Lines", Choice, "MNU_Line", MenuOne, kLine, 1},
        {"MNU_Lines", Choice, "MNU_Line", MenuTwo, kLine, 2},
        {"MNU_Lines", Choice, "MNU_Line", MenuThree, kLine, 3},
        {"MNU_Lines", Choice, "MNU_Line", MenuFour, kLine, 4},
        {"MNU_View", Menu, "MNU_Grid", MenuGrid},
        {"MNU_Grid", Check, "MNU_GridOn", MenuGridOn,
         [](Preview& p, int) { p.editor_.ToggleGrid(); }},
        {"MNU_Grid", Menu, "MNU_Spacing", MenuSpacing},
        {"MNU_Spacing", Choice, "MNU_Space", MenuZero, kSpace, 0},
        {"MNU_Spacing", Choice, "MNU_Space", MenuOne, kSpace, 1},
        {"MNU_Spacing", Choice, "MNU_Space", MenuTwo, kSpace, 2},
        {"MNU_Spacing", Choice, "MNU_Space", MenuThree, kSpace, 3},
        {"MNU_Spacing", Choice, "MNU_Space", MenuFour, kSpace, 4},
        {"MNU_View", Menu, "MNU_Background", MenuBackground},
        {"MNU_Background", Plain, "MNU_BackLoad", MenuLoadImage,
         [](Preview& p, int) { p.MNU_BackLoad_Click(); }},
        {"MNU_Background", Check, "MNU_BackNone", MenuNoImage,
         [](Preview& p, int) { p.editor_.RemovePicture(LayoutKind::Image1); }},
        {"MNU_View", Menu, "MNU_Picture", MenuPicture},
        {"MNU_Picture", Plain, "MNU_PicLoad", MenuLoadImage,
         [](Preview& p, int) { p.MNU_PicLoad_Click(); }},
        {"MNU_Picture", Check, "MNU_PicNone", MenuNoImage,
         [](Preview& p, int) { p.editor_.RemovePicture(LayoutKind::Image2); }},
        {"MNU_View"},
        {"MNU_View", Plain, "MNU_ZoomIn", MenuZoomIn,
         [](Preview& p, int) { p.Picture1->ZoomStep(1); }},
        {"MNU_View", Plain, "MNU_ZoomOut", MenuZoomOut,
         [](Preview& p, int) { p.Picture1->ZoomStep(-1); }},
        {"MNU_View", Plain, "MNU_ZoomActual", MenuActualSize,
         [](Preview& p, int) { p.Picture1->SetZoom(1); }},
        {"MNU_View", Check, "MNU_ZoomPage", MenuWholePage,
         [](Preview& p, int) { p.Picture1->FitPage(); }},
    };
    return kRows;
}

} // namespace kestrova
