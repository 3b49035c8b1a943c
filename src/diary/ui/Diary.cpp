// SPDX-License-Identifier: GPL-3.0-or-later
#include "diary/ui/Diary.h"

#include "diary/DayPage.h"
#include "diary/Repeats.h"
#include "language/ProgramTexts.h"
#include "language/Texts.h"
#include "language/ui/ApplyCaptions.h"
#include "platform/qt/QtText.h"
#include "text/Numbers.h"
#include "ui/Look.h"
#include "ui/PlainTip.h"

#include <QAbstractItemView>
#include <QKeyEvent>
#include <QScreen>
#include <QTimer>

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

} // namespace

void Diary::OpenPage() {
    row_ = 0;
    DrawMainPage();
    const QRect area = screen()->availableGeometry();
    resize(std::min(width(), area.width()), height());
    move(area.topLeft());
    show();
    raise();
    activateWindow();
    LabEvent[0]->setFocus();
}

void Diary::LoadCaptions() {
    ApplyCaptions(*this, rooms_.Texts, TipTexts::Leave);
    setWindowTitle(ToQt(rooms_.Texts.Text(texts::kDiaryTitle)));
    MNU_File->setTitle(ToQt(TextOf(ProgramText::MenuFile)));
    TextTme->setAccessibleName(ToQt(TextOf(ProgramText::EventHour)));
    TextTmm->setAccessibleName(ToQt(TextOf(ProgramText::EventMinute)));
    TextMsg->setAccessibleName(LabMsg->text());
    CombRpt->setAccessibleName(LabRpt[0]->text());
    CombRmd->setAccessibleName(LabRmd[0]->text());
    for (QCheckBox* const box : ChkHide) {
        box->setAccessibleName(LabHide->text());
        box->setToolTip(ToQt(TextOf(ProgramText::HideFromMonth)));
    }
    MNU_Insert->setText(ToQt(TextOf(ProgramText::MenuNewEvent)));
    MNU_Delete->setText(ToQt(TextOf(ProgramText::MenuDelete)));
    MNU_DelAll->setText(ToQt(TextOf(ProgramText::MenuDeleteAll)));
    MNU_Undo->setText(ToQt(TextOf(ProgramText::MenuUndo)));
    findChild<QAction*>(QStringLiteral("MNU_Exit"))
        ->setText(ToQt(TextOf(ProgramText::MenuCloseDay)));
}

void Diary::FillLists() {
    Fill(*CombRmd, rooms_.Editor.BuildRmdList());
    Fill(*CombRpt, BuildRptList(rooms_.Texts, rooms_.Dates.Page()));
}

void Diary::ShowRow(int row, const QString& time, const QString& message, const QString& repeat,
                    const QString& reminder) {
    const auto i = static_cast<std::size_t>(row);
    LabTime[i]->setText(time);
    LabEvent[i]->setText(message);
    LabRpt[i]->setText(repeat);
    LabRmd[i]->setText(reminder);
    LabEvent[i]->setToolTip(PlainTip(message));
    LabRpt[i]->setToolTip(PlainTip(repeat));
    LabRmd[i]->setToolTip(PlainTip(reminder));
    LabEvent[i]->setAccessibleName(
        QStringLiteral("%1 %2 %3 %4").arg(time, message, repeat, reminder).simplified());
}

void Diary::DrawMainPage() {
    editSlot_.reset();
    FillLists();
    for (QWidget* const control :
         {static_cast<QWidget*>(TextTme), static_cast<QWidget*>(TextTmm),
          static_cast<QWidget*>(TextMsg), static_cast<QWidget*>(CombRpt),
          static_cast<QWidget*>(CombRmd), static_cast<QWidget*>(ChkHide[0])}) {
        control->hide();
    }
    ComDataAcpt->setEnabled(false);
    LabHead->setText(ToQt(DayHeading(rooms_.Texts, rooms_.Dates.Page())));

    const auto year = rooms_.Dates.PageYearIndex();
    const DayPlace day{rooms_.Dates.PageDay, rooms_.Dates.PageMonth, year.value_or(0)};
    const auto rows =
        year ? DayRows(rooms_.Store.Table(), day) : std::array<DayRow, kEventsPerDay>{};
    for (int i = 1; i <= kEventsPerDay; ++i) {
        const DayRow& row = rows[static_cast<std::size_t>(i - 1)];
        ShowRow(i, ToQt(row.Time), ToQt(row.Message), ToQt(row.Repeat), ToQt(row.Reminder));
        QCheckBox* const hide = ChkHide[static_cast<std::size_t>(i)];
        hide->setChecked(row.Hidden);
        hide->setEnabled(false);
        hide->setVisible(!row.IsFree());
        LabEvent[static_cast<std::size_t>(i)]->setFocusPolicy(row.IsFree() ? Qt::NoFocus
                                                                           : Qt::TabFocus);
    }
    LabEvent[0]->setText(ToQt(rooms_.Texts.Text(texts::kAddLine)));
    LabEvent[0]->setFocusPolicy(Qt::TabFocus);
    for (ClickLabel* const label : LabEvent) {
        label->show();
    }
    PlaceControls();
}

void Diary::LabEvent_DblClick(int index) {
    if (IsEditing()) {
        if (IsDraftChanged()) {
            return; // Enter and Escape say what is to become of it
        }
        DrawMainPage();
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
    if (*editSlot_ > 0 && !IsDraftChanged()) {
        // A repeat or reminder that the lists do not offer stays what it is.
        DrawMainPage();
        MarkRow(row_);
        return;
    }
    EventDraft draft = Draft();
    const AcceptResult result = rooms_.Editor.Accept(draft);
    Select(*CombRmd, draft.Rmd);
    if (result == AcceptResult::Refused) {
        TextMsg->setFocus();
        return;
    }
    DrawMainPage();
    MarkEvent(draft);
    changed_();
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

void Diary::MNU_File_Click() {
    const bool existing = IsEditing() && *editSlot_ > 0;
    MNU_Delete->setEnabled(existing);
    MNU_DelAll->setEnabled(existing);
    MNU_Insert->setEnabled(!IsEditing());
    MNU_Undo->setEnabled(!IsEditing() && rooms_.Editor.CanUndo());
}

void Diary::MNU_Delete_Click() {
    TextMsg->clear();
    ComDataAcpt_Click();
}

void Diary::MNU_DelAll_Click() {
    if (rooms_.Editor.DeleteAllAlike() == AcceptResult::Accepted) {
        DrawMainPage();
        MarkRow(0);
        changed_();
    }
}

void Diary::MNU_Undo_Click() {
    if (!IsEditing() && rooms_.Editor.Undo() == AcceptResult::Accepted) {
        DrawMainPage();
        changed_();
    }
}

// The window's close button, the menu's Exit and an Escape outside the editor come here. What has
// been typed is not thrown away: it is saved, or the editor stays.
void Diary::reject() {
    if (IsEditing() && IsDraftChanged()) {
        const bool save =
            rooms_.Boxes.Ask({rooms_.Texts.Text(texts::kDiaryTitle),
                              std::string(TextOf(ProgramText::SaveEdit)), DialogIcon::Question},
                             {std::string(TextOf(ProgramText::KeepEdit)),
                              std::string(TextOf(ProgramText::GoOnEditing))});
        if (save) {
            ComDataAcpt_Click();
        }
        if (IsEditing()) {
            return;
        }
    }
    DrawMainPage();
    QDialog::reject();
}

void Diary::keyPressEvent(QKeyEvent* event) {
    const int key = event->key();
    const bool enter = key == Qt::Key_Return || key == Qt::Key_Enter;
    if (IsEditing() && (enter || key == Qt::Key_Escape)) {
        if (enter) {
            ComDataAcpt_Click();
        } else {
            DrawMainPage();
            MarkRow(row_);
        }
        return;
    }
    if (!IsEditing() && (key == Qt::Key_Up || key == Qt::Key_Down)) {
        MoveRow(key == Qt::Key_Up ? -1 : 1);
        return;
    }
    if (!IsEditing() && key == Qt::Key_Delete && row_ > 0) {
        LabEvent_DblClick(row_);
        MNU_Delete_Click();
        return;
    }
    QDialog::keyPressEvent(event);
}

// The boxes take their two digits when they are left; a row that gets the focus is the one that the
// keyboard stands on.
bool Diary::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::FocusOut && (watched == TextTme || watched == TextTmm)) {
        auto* const box = qobject_cast<QLineEdit*>(watched);
        box->setText(ToQt(PadTime(FromQt(box->text()))));
    }
    if (event->type() == QEvent::FocusIn && (watched == TextTme || watched == TextTmm)) {
        // After the click that brought the focus, which would take the selection away.
        QTimer::singleShot(0, watched,
                           [watched] { qobject_cast<QLineEdit*>(watched)->selectAll(); });
    }
    if (event->type() == QEvent::FocusIn) {
        for (int row = 0; row <= kEventsPerDay; ++row) {
            if (watched == LabEvent[static_cast<std::size_t>(row)]) {
                row_ = row;
            }
        }
    }
    return QDialog::eventFilter(watched, event);
}

void Diary::MarkRow(int row) {
    const auto i = static_cast<std::size_t>(row);
    row_ = LabEvent[i]->focusPolicy() == Qt::NoFocus ? 0 : row;
    LabEvent[static_cast<std::size_t>(row_)]->setFocus();
}

// Rows 1 to the last event, then the add line, which stands below them.
void Diary::MoveRow(int step) {
    int events = 0;
    while (events < kEventsPerDay &&
           LabEvent[static_cast<std::size_t>(events) + 1]->focusPolicy() != Qt::NoFocus) {
        ++events;
    }
    const int places = events + 1;
    const int place = row_ == 0 ? places : row_;
    const int next = (place - 1 + step + places) % places + 1;
    MarkRow(next == places ? 0 : next);
}

} // namespace kestrova
