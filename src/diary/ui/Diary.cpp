// SPDX-License-Identifier: GPL-3.0-or-later
#include "diary/ui/Diary.h"

#include "diary/DayPage.h"
#include "language/ProgramTexts.h"
#include "language/Texts.h"
#include "language/ui/ApplyCaptions.h"
#include "platform/qt/QtText.h"
#include "ui/PlainTip.h"

#include <QKeyEvent>
#include <QScreen>
#include <QTimer>

#include <algorithm>
#include <set>
#include <utility>

namespace kestrova {

void Diary::OpenPage() {
    row_ = 0;
    DrawMainPage();
    DoNetUsers();
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
    MNU_File->setTitle(ToQt(TextOf(rooms_.Texts, ProgramText::MenuFile)));
    TextTme->setAccessibleName(ToQt(TextOf(rooms_.Texts, ProgramText::EventHour)));
    TextTmm->setAccessibleName(ToQt(TextOf(rooms_.Texts, ProgramText::EventMinute)));
    TextMsg->setAccessibleName(LabMsg->text());
    CombNet->setAccessibleName(ToQt(TextOf(rooms_.Texts, ProgramText::DiaryShown)));
    CombNet->setToolTip(CombNet->accessibleName());
    CombRpt->setAccessibleName(LabRpt[0]->text());
    CombRmd->setAccessibleName(LabRmd[0]->text());
    for (QCheckBox* const box : ChkHide) {
        box->setAccessibleName(LabHide->text());
        box->setToolTip(ToQt(TextOf(rooms_.Texts, ProgramText::HideFromMonth)));
    }
    MNU_Insert->setText(ToQt(TextOf(rooms_.Texts, ProgramText::MenuNewEvent)));
    findChild<QAction*>(QStringLiteral("MNU_Search"))
        ->setText(ToQt(TextOf(rooms_.Texts, ProgramText::MenuSearch)));
    MNU_Delete->setText(ToQt(TextOf(rooms_.Texts, ProgramText::MenuDelete)));
    MNU_DelAll->setText(ToQt(TextOf(rooms_.Texts, ProgramText::MenuDeleteAll)));
    MNU_Undo->setText(ToQt(TextOf(rooms_.Texts, ProgramText::MenuUndo)));
    MNU_New->setText(ToQt(TextOf(rooms_.Texts, ProgramText::MenuAddNetUser)));
    MNU_Remove->setText(ToQt(TextOf(rooms_.Texts, ProgramText::MenuRemoveNetUser)));
    for (const auto& [name, text] : {std::pair("MNU_Export", ProgramText::MenuExport),
                                     std::pair("MNU_Import", ProgramText::MenuImport),
                                     std::pair("MNU_Exit", ProgramText::MenuCloseDay)}) {
        findChild<QAction*>(QLatin1String(name))->setText(ToQt(TextOf(rooms_.Texts, text)));
    }
    ShowDiaries();
    if (edit_ != nullptr) {
        edit_->LoadCaptions();
    }
    if (IsEditing()) {
        RefillLists();
        ShowHeading();
        FitTexts();
    } else if (isVisible()) {
        DrawMainPage();
    }
}

void Diary::ShowHeading() {
    LabHead->setText(ToQt(DayHeading(rooms_.Texts, rooms_.Dates.Page())));
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
    if (edit_ != nullptr) {
        edit_->Drop();
    }
    if (gone_ && FillDiaries()) {
        hooks_.Changed();
    }
    FillLists();
    for (QWidget* const control :
         {static_cast<QWidget*>(TextTme), static_cast<QWidget*>(TextTmm),
          static_cast<QWidget*>(TextMsg), static_cast<QWidget*>(CombRpt),
          static_cast<QWidget*>(CombRmd), static_cast<QWidget*>(ChkHide[0])}) {
        control->hide();
    }
    ComDataAcpt->setEnabled(false);
    ComInfo->setEnabled(false);
    ComMonPic->setEnabled(true);
    ComDayPic->setEnabled(true);
    ShowHeading();

    const auto year = rooms_.Dates.PageYearIndex();
    const DayPlace day{rooms_.Dates.PageDay, rooms_.Dates.PageMonth, year.value_or(0)};
    const auto rows =
        year ? DayRows(rooms_.Store.Table(), day) : std::array<DayRow, kEventsPerDay>{};
    for (int i = 1; i <= kEventsPerDay; ++i) {
        const DayRow& row = rows[static_cast<std::size_t>(i - 1)];
        events_[static_cast<std::size_t>(i)] =
            year ? rooms_.Store.Table().At({i, day}) : DiaryEvent{};
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
    MarkNotes();
    PlaceControls();
}

void Diary::MarkNotes() {
    const auto year = rooms_.Dates.PageYearIndex();
    const auto slots =
        year ? rooms_.Store.SlotsWithNotes({rooms_.Dates.PageDay, rooms_.Dates.PageMonth, *year})
             : std::set<int>();
    const QString mark = ToQt(TextOf(rooms_.Texts, ProgramText::HasNote));
    for (int row = 1; row <= kEventsPerDay; ++row) {
        RowLabel* const label = LabEvent[static_cast<std::size_t>(row)];
        const bool marked = slots.contains(row);
        label->SetMark(marked ? NoteMark::Shown : NoteMark::None);
        if (marked) {
            label->setToolTip(QStringLiteral("<span>%1<br>%2</span>")
                                  .arg(label->text().toHtmlEscaped(), mark.toHtmlEscaped()));
            label->setAccessibleName(label->accessibleName() + u' ' + mark);
        }
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
        hooks_.Changed();
    }
}

void Diary::MNU_Undo_Click() {
    if (!IsEditing() && rooms_.Editor.Undo() == AcceptResult::Accepted) {
        DrawMainPage();
        hooks_.Changed();
    }
}

void Diary::MNU_Export_Click() {
    if (EndsEdit()) {
        hooks_.Export();
    }
}

void Diary::MNU_Import_Click() {
    if (EndsEdit()) {
        hooks_.Import();
        DrawMainPage();
        hooks_.Changed();
    }
}

// The window's close button, the menu's Exit and an Escape outside the editor come here.
void Diary::reject() {
    if (EndsEdit()) {
        QDialog::reject();
    }
}

void Diary::changeEvent(QEvent* event) {
    if (event->type() == QEvent::ActivationChange && isActiveWindow() && isVisible()) {
        // Not from within the event: filling the list may show a message.
        QMetaObject::invokeMethod(
            this, [this] { DoNetUsers(); }, Qt::QueuedConnection);
    }
    QDialog::changeEvent(event);
}

void Diary::keyPressEvent(QKeyEvent* event) {
    const int key = event->key();
    const bool enter = key == Qt::Key_Return || key == Qt::Key_Enter;
    if (IsEditing() && (enter || key == Qt::Key_Escape)) {
        if (enter) {
            ComDataAcpt_Click();
        } else if (LeavesEdit()) {
            DrawMainPage();
            MarkRow(row_);
        }
        return;
    }
    if (!IsEditing() && (key == Qt::Key_Up || key == Qt::Key_Down)) {
        MoveRow(key == Qt::Key_Up ? -1 : 1);
        return;
    }
    // The key means the row only where the eye sees it: not in the list of diaries, for one.
    if (!IsEditing() && key == Qt::Key_Delete && row_ > 0 &&
        LabEvent[static_cast<std::size_t>(row_)]->hasFocus()) {
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
