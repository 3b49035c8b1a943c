// SPDX-License-Identifier: GPL-3.0-or-later
#include "language/ui/LanEditor.h"

#include "language/ItemLists.h"
#include "language/LanguageFile.h"
#include "language/ui/ApplyCaptions.h"
#include "platform/qt/QtText.h"
#include "text/Lines.h"
#include "text/Numbers.h"
#include "ui/ScrolledContent.h"

#include <QApplication>
#include <QScreen>
#include <QSignalBlocker>

#include <algorithm>

namespace kestrova {

namespace {

constexpr TextId kEditorTitle{TextGroup::Captions, 5};
constexpr float kLargestInBoxes = 18; // points; a language's title may be larger than its boxes

std::string Typed(const QLineEdit& box) {
    return AsOneLine(Trim(FromQt(box.text())));
}

} // namespace

QString LanEditor::Words(ProgramText text) const {
    return ToQt(TextOf(rooms_.Texts, text));
}

TextId LanEditor::Entry() const {
    return {static_cast<TextGroup>(CombTop->currentIndex()), CombSel->currentIndex()};
}

void LanEditor::Open(const std::string& name, WeekStart week) {
    week_ = week;
    openedName_ = std::string(Trim(name));
    const StringTable& texts = rooms_.Texts;
    font_ = {texts.LanguageFont, texts.Title.Size, texts.Title.Bold, texts.Title.Italic};
    TexName->setText(ToQt(openedName_));
    for (std::size_t month = 0; month < kMonths; ++month) {
        TexMon[month]->setText(ToQt(Trim(texts.MonthNames[month])));
        TexMn[month]->setText(ToQt(texts.MonthMenu[month]));
    }
    for (int column = 0; column < kDaysOfWeek; ++column) {
        const auto day = static_cast<std::size_t>(column);
        TexDay[day]->setText(ToQt(texts.DayName(column, week)));
        LabEnglishDay[day]->setText(ToQt(english_.DayName(column, week)));
    }
    opened_ = texts;
    opened_ = Edited();
    ShowFont();
    FillEntries();
    area_->FitWindow();
    move(screen()->availableGeometry().topLeft());
    show();
    raise();
    activateWindow();
    TexName->setFocus();
}

void LanEditor::LoadCaptions() {
    ApplyCaptions(*this, rooms_.Texts, TipTexts::Leave);
    setWindowTitle(ToQt(rooms_.Texts.Text(kEditorTitle)));
    LabName->setText(Words(ProgramText::LanguageName));
    LabMon->setText(Words(ProgramText::MonthsAndMenu));
    LabDay->setText(Words(ProgramText::DaysOfTheWeek));
    LabTexts->setText(Words(ProgramText::TextsOfWindows));
    CombSel->setAccessibleName(LabTexts->text());
    TexTrans->setAccessibleName(LabTexts->text());
    ShowFont();
}

// The boxes show the language as its title will look; window titles are the desktop's own affair.
void LanEditor::ShowFont() {
    QFont font = this->font();
    if (!font_.Family.empty()) {
        font.setFamily(ToQt(font_.Family));
    }
    font.setPointSizeF(std::min(font_.Size, kLargestInBoxes));
    font.setBold(font_.Bold);
    font.setItalic(font_.Italic);
    TexName->setFont(font);
    for (std::size_t month = 0; month < kMonths; ++month) {
        TexMon[month]->setFont(font);
        TexMn[month]->setFont(font);
    }
    for (QLineEdit* const day : TexDay) {
        day->setFont(font);
    }
    const bool title = CombTop->currentIndex() == static_cast<int>(TextGroup::Captions);
    TexTrans->setFont(title ? QApplication::font() : font);
}

void LanEditor::FillEntries() {
    const auto group = static_cast<std::size_t>(std::max(CombTop->currentIndex(), 0));
    const QSignalBlocker quiet(CombSel);
    CombSel->clear();
    for (const std::string& text : rooms_.Texts.Texts[group]) {
        CombSel->addItem(ToQt(text));
    }
    CombSel->setCurrentIndex(0);
    CombSel_Click();
}

void LanEditor::CombTop_Click() {
    TexTrans_LostFocus();
    FillEntries();
}

void LanEditor::CombSel_Click() {
    TexTrans_LostFocus();
    shown_ = Entry();
    const std::string& text = rooms_.Texts.Text(shown_);
    const bool used = text != kUnusedText;
    TexTrans->setEnabled(used);
    TexTrans->setMaxLength(std::max(kLongestTyped, static_cast<int>(text.size())));
    TexTrans->setText(used ? ToQt(text) : QString());
    TexTrans->setCursorPosition(0);
    LabEnglish->setText(
        used ? ToQt(TextOf(rooms_.Texts, ProgramText::EnglishText, english_.Text(shown_)))
             : QString());
    ShowFont();
}

// What has been typed is in use at once. A text that is empty is English, as it will be when it is
// read from the file; the mark of a placeholder would lock the entry.
void LanEditor::TexTrans_LostFocus() {
    if (!TexTrans->isEnabled() || !TexTrans->isModified()) {
        return;
    }
    TexTrans->setModified(false);
    std::string text = AsOneLine(FromQt(TexTrans->text()));
    if (Trim(text).empty() || text == kUnusedText) {
        text = english_.Text(shown_);
        TexTrans->setText(ToQt(text));
    }
    const StringTable before = rooms_.Texts;
    std::string& entry =
        rooms_.Texts
            .Texts[static_cast<std::size_t>(shown_.Group)][static_cast<std::size_t>(shown_.Entry)];
    entry = text;
    if (const auto shared = SharedItemText(rooms_.Texts); shared && !SharedItemText(before)) {
        entry = before.Text(shown_); // choices from that list could no longer be told apart
        TexTrans->setText(ToQt(entry));
        rooms_.Boxes.Show({rooms_.Texts.Text(kEditorTitle),
                           TextOf(rooms_.Texts, ProgramText::SameItems, *shared),
                           DialogIcon::Critical});
        return;
    }
    if (static_cast<int>(shown_.Group) == CombTop->currentIndex()) {
        CombSel->setItemText(shown_.Entry, ToQt(text));
    }
    hooks_.TextsChanged(before);
}

void LanEditor::ComFont_Click() {
    FontChoice offered = font_;
    if (offered.Family.empty()) {
        offered.Family = FromQt(QApplication::font().family());
    }
    if (const auto chosen = rooms_.Boxes.ChooseFont(offered)) {
        font_ = *chosen;
        font_.Size = std::clamp(font_.Size, kLeastTitleSize, kGreatestTitleSize);
        ShowFont();
    }
}

// The language as it stands in the boxes. An empty box is English.
StringTable LanEditor::Edited() const {
    StringTable table = rooms_.Texts;
    const auto take = [](std::string& text, const QLineEdit& box, const std::string& english) {
        const std::string typed = Typed(box);
        text = typed.empty() ? std::string(Trim(english)) : typed;
    };
    for (std::size_t month = 0; month < kMonths; ++month) {
        take(table.MonthNames[month], *TexMon[month], english_.MonthNames[month]);
        take(table.MonthMenu[month], *TexMn[month], english_.MonthMenu[month]);
    }
    for (int column = 0; column < kDaysOfWeek; ++column) {
        const auto day = static_cast<std::size_t>(WeekdayOfColumn(column, week_) - 1);
        take(table.WeekdayNames[day], *TexDay[static_cast<std::size_t>(column)],
             english_.WeekdayNames[day]);
    }
    table.LanguageFont = font_.Family;
    table.Title = {font_.Size, font_.Bold, font_.Italic};
    return table;
}

// Whether a language of this name may be written: there is none yet, or it is the one that was
// opened, or the user says so.
bool LanEditor::MayReplace(const std::string& name) {
    return name == openedName_ || !rooms_.Tongues.Has(name) ||
           rooms_.Boxes.Ask({rooms_.Texts.Text(kEditorTitle),
                             TextOf(rooms_.Texts, ProgramText::ReplaceLanguage, name),
                             DialogIcon::Question},
                            {TextOf(rooms_.Texts, ProgramText::Replace),
                             TextOf(rooms_.Texts, ProgramText::GoOnEditing)});
}

void LanEditor::ComSave_Click() {
    TexTrans_LostFocus();
    const auto refuse = [this](const std::string& why) {
        rooms_.Boxes.Show({rooms_.Texts.Text(kEditorTitle), why, DialogIcon::Critical});
    };
    const std::string name = Typed(*TexName);
    if (name.empty()) {
        refuse(TextOf(rooms_.Texts, ProgramText::NameTheLanguage));
        TexName->setFocus();
        return;
    }
    const StringTable table = Edited();
    if (const auto shared = SharedItemText(table)) {
        refuse(TextOf(rooms_.Texts, ProgramText::SameItems, *shared));
        return;
    }
    if (!MayReplace(name)) {
        return;
    }
    const Status saved = rooms_.Tongues.Save(name, table);
    if (!saved) {
        refuse(TextOf(rooms_.Texts, ProgramText::LanguageNotSaved) + "\n" + saved.Failure().Text);
        return;
    }
    hooks_.Saved();
    Leave();
}

void LanEditor::Leave() {
    // First the window that takes its place, so that the main one does not get the focus between.
    hooks_.Closed();
    hide();
}

// Escape and the window's close button come here; "Cancel" says by itself what becomes of the
// changes.
void LanEditor::reject() {
    TexTrans_LostFocus();
    if (!IsChanged()) {
        Leave();
    } else if (rooms_.Boxes.Ask({rooms_.Texts.Text(kEditorTitle),
                                 TextOf(rooms_.Texts, ProgramText::LanguageUnsaved),
                                 DialogIcon::Question},
                                {TextOf(rooms_.Texts, ProgramText::KeepEdit),
                                 TextOf(rooms_.Texts, ProgramText::GoOnEditing)})) {
        ComSave_Click();
    }
}

} // namespace kestrova
