// SPDX-License-Identifier: GPL-3.0-or-later
// The row that is edited: what stands in its editor, its note, and how the edit ends.
#include "diary/ui/Diary.h"

#include "diary/Repeats.h"
#include "language/ProgramTexts.h"
#include "language/Texts.h"
#include "platform/qt/QtText.h"
#include "text/Numbers.h"
#include "ui/Look.h"

#include <QAbstractItemView>

#include <algorithm>

namespace kestrova {

namespace {

// Selects an item by its text, searching from the last; the first when none has it.
void Select(QComboBox& list, const std::string& text) {
    int index = list.count() - 1;
    while (index > 0 && list.itemText(index) != ToQt(text)) {
        --index;
    }
    list.setCurrentIndex(index);
}

void Fill(QComboBox& list, const std::vector<std::string>& items) {
    list.clear();
    for (const std::string& item : items) {
        list.addItem(ToQt(item));
    }
    list.setCurrentIndex(0);
    // The list may be wider than the box: a repeat must be read to be chosen.
    list.view()->setMinimumWidth(list.view()->sizeHintForColumn(0) + 2 * look::kSpacing);
}

std::string TextAt(const QComboBox& list, int index) {
    return FromQt(list.itemText(std::max(index, 0)));
}

} // namespace

// Beside its caption, which may change its language, each reminder has its kind.
void Diary::FillLists() {
    Fill(*CombRmd, rooms_.Editor.BuildRmdList());
    for (int i = 0; i < CombRmd->count(); ++i) {
        const auto kind = ReminderKindOf(rooms_.Texts, TextAt(*CombRmd, i));
        CombRmd->setItemData(i, static_cast<int>(kind.value_or(ReminderKind::None)));
    }
    Fill(*CombRpt, BuildRptList(rooms_.Texts, rooms_.Dates.Page()));
}

// The language has changed: the lists stand on what was chosen, and what was not changed still is
// not.
void Diary::RefillLists() {
    const int repeat = CombRpt->currentIndex();
    const int repeatBefore = CombRpt->findText(ToQt(before_.Rpt));
    const QVariant reminder = CombRmd->currentData();
    const QVariant reminderBefore = CombRmd->itemData(CombRmd->findText(ToQt(before_.Rmd)));
    FillLists();
    CombRpt->setCurrentIndex(std::max(repeat, 0));
    CombRmd->setCurrentIndex(std::max(CombRmd->findData(reminder), 0));
    before_.Rpt = TextAt(*CombRpt, repeatBefore);
    before_.Rmd = TextAt(*CombRmd, CombRmd->findData(reminderBefore));
}

// The slot in which the diary now has the event that a row has shown; 0 when it has it no more.
int Diary::SlotOf(const DiaryEvent& event, int row) const {
    const auto year = rooms_.Dates.PageYearIndex();
    const DayPlace day{rooms_.Dates.PageDay, rooms_.Dates.PageMonth, year.value_or(0)};
    const auto slot =
        year && !event.IsFree() ? FindEvent(rooms_.Store.Table(), day, event, row) : std::nullopt;
    return slot.value_or(0);
}

void Diary::ShowEvent(const DiaryEvent& event, int slot) {
    MarkRow(SlotOf(event, slot));
}

void Diary::Reload() {
    const auto row = static_cast<std::size_t>(row_);
    const DiaryEvent marked = events_[row];
    const bool focus = LabEvent[row]->hasFocus();
    DrawMainPage();
    if (focus) {
        MarkRow(SlotOf(marked, row_));
    }
}

void Diary::LabEvent_DblClick(int index) {
    if (IsEditing()) {
        if (IsDraftChanged() || !LeavesEdit()) {
            return; // Enter and Escape say what is to become of it
        }
        const DiaryEvent wanted = events_[static_cast<std::size_t>(index)];
        DrawMainPage();
        if (index > 0) {
            // The diary may have been loaded anew since the rows were drawn.
            index = SlotOf(wanted, index);
            if (index == 0) {
                return;
            }
        }
    }
    const AcceptResult begun =
        index == 0 ? rooms_.Editor.BeginNew() : rooms_.Editor.BeginEdit(index);
    if (begun == AcceptResult::Refused) {
        return;
    }
    editSlot_ = index;
    row_ = index;
    FillDraft();
    PlaceEditor();
    LabEvent[static_cast<std::size_t>(index)]->hide();
    for (ClickLabel* const label : LabEvent) {
        label->setFocusPolicy(Qt::NoFocus); // the tab key stays in the editor
    }
    ComDataAcpt->setEnabled(true);
    ComInfo->setEnabled(true);
    ComMonPic->setEnabled(false);
    ComDayPic->setEnabled(false);
    TextMsg->setFocus();
    TextMsg->end(false);
}

// Puts the event, or what a new one begins with, into the editor.
void Diary::FillDraft() {
    FillLists();
    EventDraft draft;
    if (*editSlot_ == 0) {
        const Selection& dates = rooms_.Dates;
        if (dates.ShowsToday() && dates.PageDay == dates.TodayDay) {
            const WallTime now = rooms_.Time.Now();
            draft.Hour = TwoDigits(now.Hour);
            draft.Minute = TwoDigits(now.Minute);
        }
    } else {
        const DayPlace day{rooms_.Dates.PageDay, rooms_.Dates.PageMonth,
                           rooms_.Dates.PageYearIndex().value_or(0)};
        const DiaryEvent& event = rooms_.Store.Table().At({*editSlot_, day});
        draft = {TwoDigits(event.Hour), TwoDigits(event.Minute), event.Msg, event.Rpt, event.Rmd,
                 event.Hide == 1};
    }
    TextTme->setText(ToQt(draft.Hour));
    TextTmm->setText(ToQt(draft.Minute));
    TextMsg->setText(ToQt(draft.Msg));
    ChkHide[0]->setChecked(draft.Hide);
    ChkHide[0]->setEnabled(true);
    Select(*CombRpt, draft.Rpt);
    Select(*CombRmd, draft.Rmd);
    before_ = Draft();
}

EventDraft Diary::Draft() const {
    return {PadTime(FromQt(TextTme->text())), PadTime(FromQt(TextTmm->text())),
            FromQt(TextMsg->text()),          FromQt(CombRpt->currentText()),
            FromQt(CombRmd->currentText()),   ChkHide[0]->isChecked()};
}

bool Diary::IsDraftChanged() const {
    const EventDraft now = Draft();
    return now.Hour != before_.Hour || now.Minute != before_.Minute || now.Msg != before_.Msg ||
           now.Rpt != before_.Rpt || now.Rmd != before_.Rmd || now.Hide != before_.Hide;
}

void Diary::ComDataAcpt_Click() {
    if (!IsEditing()) {
        return;
    }
    EventDraft draft = Draft();
    const bool existing = *editSlot_ > 0;
    // A repeat or reminder that the lists do not offer stays what it is.
    const bool asItWas = existing && !IsDraftChanged();
    const bool nothing = !existing && Trim(draft.Msg).empty();
    if (asItWas || nothing) {
        if (LeavesEdit()) {
            DrawMainPage();
            MarkRow(row_);
        }
        return;
    }
    if (edit_ != nullptr) {
        edit_->RememberNote();
    }
    const AcceptResult result = rooms_.Editor.Accept(draft);
    Select(*CombRmd, draft.Rmd);
    if (result == AcceptResult::Refused) {
        TextMsg->setFocus();
        return;
    }
    DrawMainPage();
    MarkEvent(draft);
    hooks_.Changed();
}

// Stands on the row to which the event has gone.
void Diary::MarkEvent(const EventDraft& draft) {
    int row = 0;
    for (int i = kEventsPerDay; i >= 1; --i) {
        const auto index = static_cast<std::size_t>(i);
        if (LabTime[index]->text() == ToQt(draft.Hour + ":" + draft.Minute) &&
            LabEvent[index]->text() == ToQt(draft.Msg)) {
            row = i;
        }
    }
    MarkRow(row);
}

void Diary::TextTime_Change(QLineEdit& box, QString& accepted, int limit) {
    if (IsTimeText(FromQt(box.text()), limit)) {
        accepted = box.text();
    } else {
        box.setText(accepted);
    }
}

void Diary::ComInfo_Click() {
    if (!IsEditing()) {
        return;
    }
    if (edit_ == nullptr) {
        edit_ = new Edit(this, {rooms_.Texts, rooms_.Settings, rooms_.Editor.Note(), hooks_.Speak});
        edit_->StandBeside(*this);
    }
    edit_->OpenNote();
}

bool Diary::SaveNote(SaveMessages messages) {
    return edit_ == nullptr || edit_->SaveNote(messages);
}

// Whether the row may be left without being accepted: its note is safe, or the user lets it go.
bool Diary::LeavesEdit() {
    EventNote& note = rooms_.Editor.Note();
    if (!note.IsOfNewEvent()) {
        return edit_ == nullptr || edit_->Leave();
    }
    if (edit_ != nullptr) {
        edit_->RememberNote();
    }
    if (note.HasText() &&
        !rooms_.Boxes.Ask({rooms_.Texts.Text(texts::kDiaryTitle),
                           TextOf(rooms_.Texts, ProgramText::DiscardNote), DialogIcon::Question},
                          {TextOf(rooms_.Texts, ProgramText::Discard),
                           TextOf(rooms_.Texts, ProgramText::GoOnEditing)})) {
        return false;
    }
    if (edit_ != nullptr) {
        edit_->Drop();
    }
    note.GiveUp();
    return true;
}

bool Diary::EndsEdit() {
    if (IsEditing() && IsDraftChanged()) {
        const bool save =
            rooms_.Boxes.Ask({rooms_.Texts.Text(texts::kDiaryTitle),
                              TextOf(rooms_.Texts, ProgramText::SaveEdit), DialogIcon::Question},
                             {TextOf(rooms_.Texts, ProgramText::KeepEdit),
                              TextOf(rooms_.Texts, ProgramText::GoOnEditing)});
        if (save) {
            ComDataAcpt_Click();
        }
        return !IsEditing();
    }
    if (IsEditing() && !LeavesEdit()) {
        return false;
    }
    DrawMainPage();
    return true;
}

} // namespace kestrova
