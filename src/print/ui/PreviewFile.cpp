// SPDX-License-Identifier: GPL-3.0-or-later
// What the entries do that ask the user for something, a file, or the printer.
#include "print/ui/PreviewWait.h"

#include "language/Texts.h"

namespace kestrova {

void Preview::Tell(const std::string& text) {
    rooms_.Boxes.Show({rooms_.Texts.Text(texts::kProgramTitle), text, DialogIcon::Critical});
}

void Preview::ShowNoPrinter() {
    Tell(rooms_.Texts.Text(texts::kNoPrinter));
}

// In the user's language, as far as it is known what happened.
std::string Preview::ReasonOf(const Error& error) const {
    switch (error.Code) {
    case ErrorCode::NotFound: return TextOf(rooms_.Texts, ProgramText::ReasonMissing);
    case ErrorCode::Busy: return TextOf(rooms_.Texts, ProgramText::ReasonBusy);
    case ErrorCode::Damaged: return TextOf(rooms_.Texts, ProgramText::ReasonDamaged);
    case ErrorCode::TooLarge: return TextOf(rooms_.Texts, ProgramText::CharacterTooLarge);
    case ErrorCode::Full: return TextOf(rooms_.Texts, ProgramText::ReasonFull);
    case ErrorCode::Failed: break;
    }
    return error.Text;
}

bool Preview::LeavePage() {
    editor_.CommitText();
    if (!rooms_.Desk.IsChanged()) {
        return true;
    }
    enum Answer : std::size_t { kSave, kDoNotSave };
    const std::size_t answer = rooms_.Boxes.AskAmong(
        {rooms_.Texts.Text(texts::kProgramTitle), TextOf(rooms_.Texts, ProgramText::LayoutUnsaved),
         DialogIcon::Question},
        {rooms_.Texts.Text(texts::kSave), TextOf(rooms_.Texts, ProgramText::DoNotSave),
         rooms_.Texts.Text(texts::kCancel)});
    return answer == kDoNotSave || (answer == kSave && Save());
}

bool Preview::Save() {
    const std::string& path = rooms_.Desk.LayoutFileName();
    return path.empty() ? SaveAs() : SaveTo(path);
}

bool Preview::SaveAs() {
    const auto path =
        rooms_.Boxes.SaveFile(rooms_.DataFolder, TextOf(rooms_.Texts, ProgramText::LayoutFilter));
    return path && SaveTo(*path);
}

bool Preview::SaveTo(const std::string& path) {
    editor_.CommitText();
    const Status saved = rooms_.Desk.Save(path);
    if (!saved) {
        Tell(TextOf(rooms_.Texts, ProgramText::LayoutNotSaved, ReasonOf(saved.Failure())));
    }
    return saved.Ok();
}

void Preview::MNU_Load_Click() {
    if (!LeavePage()) {
        return;
    }
    const auto path = rooms_.Boxes.OpenFile(rooms_.DataFolder,
                                            TextOf(rooms_.Texts, ProgramText::LayoutOpenFilter));
    if (!path) {
        return;
    }
    editor_.Forget();
    Status loaded = Done{};
    {
        const Wait wait(*this);
        loaded = rooms_.Desk.Load(*path);
    }
    NewSurface();
    if (!loaded) {
        // Which line, or which picture of it, is in nobody's words but the reader's.
        const Error& error = loaded.Failure();
        Tell(TextOf(rooms_.Texts, ProgramText::LayoutNotRead, ReasonOf(error)) +
             (error.Code == ErrorCode::Failed ? std::string() : "\n" + error.Text));
    }
}

void Preview::MNU_SavePdf_Click() {
    editor_.CommitText();
    const auto path = rooms_.Boxes.SaveFile(rooms_.DataFolder, "PDF|*.pdf");
    if (!path) {
        return;
    }
    Status saved = Done{};
    {
        const Wait wait(*this);
        saved = hooks_.SavePdf(*path);
    }
    if (!saved) {
        Tell(TextOf(rooms_.Texts, ProgramText::PdfNotSaved, ReasonOf(saved.Failure())));
    }
}

void Preview::Print(Status (PrintDesk::*what)()) {
    editor_.CommitText();
    const bool prints = what == &PrintDesk::PrintDiary || !rooms_.Desk.PrintFault();
    if (!prints || !hooks_.ReadyToPrint()) {
        return;
    }
    Status printed = Done{};
    {
        const Wait wait(*this);
        printed = (rooms_.Desk.*what)();
    }
    ShowAll();
    if (!printed && rooms_.Settings.PrintNumber1 != 0) {
        Tell(TextOf(rooms_.Texts, ProgramText::PdfNotSaved, ReasonOf(printed.Failure())));
    } else if (!printed) {
        ShowNoPrinter();
    }
}

void Preview::MNU_Print_Click() {
    Print(&PrintDesk::Print);
}

void Preview::MNU_PrDiary_Click() {
    Print(&PrintDesk::PrintDiary);
}

void Preview::MNU_Preview_Click() {
    if (rooms_.Desk.PrintFault()) {
        return;
    }
    editor_.SpClear();
    const bool printed = !IsPrintView();
    layoutTitle_ = layoutTitle_ || !printed;
    EnterView(printed);
}

void Preview::MNU_Landscape_Click() {
    editor_.SetOrientation(Orientation::Landscape);
    NewSurface();
}

void Preview::MNU_Normal_Click() {
    editor_.SetOrientation(Orientation::Portrait);
    NewSurface();
}

void Preview::MNU_Size_Click(int index) {
    editor_.SetPaper(index + 1);
    NewSurface();
}

void Preview::MNU_Qul_Click(int index) {
    rooms_.Desk.SetQuality(static_cast<PrintQuality>(-(index + 1)));
}

void Preview::MNU_Color_Click() {
    rooms_.Desk.SetColours(PrintColour::Colour);
    EnterView(IsPrintView());
}

void Preview::MNU_BW_Click() {
    rooms_.Desk.SetColours(PrintColour::Monochrome);
    EnterView(IsPrintView());
}

void Preview::MNU_Text_Click() {
    if (editor_.TextSelected()) {
        editor_.EditText(*editor_.Selected());
    }
}

void Preview::MNU_Font_Click() {
    if (const auto text = editor_.TextShown()) {
        if (const auto font = rooms_.Boxes.ChooseFont(text->Font())) {
            editor_.SetFont(*font);
        }
    }
}

void Preview::MNU_TextColor_Click() {
    if (const auto text = editor_.TextShown()) {
        if (const auto colour = rooms_.Boxes.ChooseColour(text->ForeColor)) {
            editor_.SetColour(*colour);
        }
    }
}

void Preview::TextEdit_DblClick() {
    MNU_Font_Click();
    MNU_TextColor_Click();
}

void Preview::MNU_AddText_Click() {
    Picture1->ScrollToTop();
    editor_.AddText();
}

void Preview::MNU_AddImage_Click() {
    Picture1->ScrollToTop();
    LoadImage({}, [this](const std::string& path) { return editor_.AddImage(path); });
}

void Preview::MNU_BackLoad_Click() {
    LoadImage(editor_.Page().BackgroundPath, [this](const std::string& path) {
        return editor_.LoadPicture(LayoutKind::Image1, path);
    });
}

void Preview::MNU_PicLoad_Click() {
    LoadImage(editor_.Page().PicturePath, [this](const std::string& path) {
        return editor_.LoadPicture(LayoutKind::Image2, path);
    });
}

// Begins where the picture came from that is shown now.
void Preview::LoadImage(const std::string& shown,
                        const std::function<Status(const std::string&)>& load) {
    const auto path =
        rooms_.Boxes.OpenFile(shown, TextOf(rooms_.Texts, ProgramText::PictureFilter));
    if (!path) {
        return;
    }
    Status loaded = Done{};
    {
        const Wait wait(*this);
        loaded = load(*path);
    }
    if (!loaded) {
        Tell(TextOf(rooms_.Texts, ProgramText::NotAPicture,
                    path->substr(path->find_last_of('/') + 1)));
    }
}

void Preview::MNU_BorderColor_Click() {
    if (const auto colour = rooms_.Boxes.ChooseColour(editor_.Page().BorderColor)) {
        editor_.SetBorderColour(*colour);
    }
}

} // namespace kestrova
