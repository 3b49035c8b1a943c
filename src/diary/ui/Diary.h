// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calendar/Selection.h"
#include "diary/DiaryStore.h"
#include "diary/EventEditor.h"
#include "platform/Clock.h"
#include "ui/ClickLabel.h"
#include "ui/ElidedLabel.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>

#include <array>
#include <functional>

class QMenuBar;

namespace kestrova {

// The day page: the events of one date in the order of their time, one of which can be edited in
// its row. Enter accepts the edit, Escape leaves the row as it was.
class Diary : public QDialog {
public:
    struct Rooms {
        const Selection& Dates;
        const StringTable& Texts;
        const AppSettings& Settings;
        const DiaryStore& Store;
        EventEditor& Editor;
        const Clock& Time;
        Dialogs& Boxes;
    };

    // `changed` is called when the diary has been changed from here.
    Diary(QWidget* parent, const Rooms& rooms, std::function<void()> changed);

    // Shows the page of the page date at the top left of the screen.
    void OpenPage();

    // Rebuilds the page from the table; an edit under way is given up.
    void DrawMainPage();

    [[nodiscard]] bool IsEditing() const { return editSlot_.has_value(); }

    void LoadCaptions();

    void reject() override;

protected:
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void BuildRows();
    void BuildEditor();
    void BuildMenus();
    void PlaceControls();
    void PlaceEditor();
    void ShowRow(int row, const QString& time, const QString& message, const QString& repeat,
                 const QString& reminder);
    void FillLists();
    void FillDraft();
    void MarkRow(int row);
    void MarkEvent(const EventDraft& draft);
    void MoveRow(int step);
    [[nodiscard]] EventDraft Draft() const;
    [[nodiscard]] bool IsDraftChanged() const;
    [[nodiscard]] int RowTop(int row) const;

    void LabEvent_DblClick(int index);
    void ComDataAcpt_Click();
    void TextTime_Change(QLineEdit& box, QString& accepted, int limit);
    void MNU_File_Click();
    void MNU_Delete_Click();
    void MNU_DelAll_Click();
    void MNU_Undo_Click();

    Rooms rooms_;
    std::function<void()> changed_;
    std::optional<int> editSlot_; // EditSlot: the row being edited, 0 for a new event
    EventDraft before_;           // what the editor was filled with
    int row_ = 0;                 // the row on which the keyboard stands
    QString acceptedHour_;
    QString acceptedMinute_;

    QMenuBar* menus_ = nullptr;
    QWidget* page_ = nullptr;
    QLabel* LabHead = nullptr;
    QLabel* LabMsg = nullptr;
    QLabel* LabHide = nullptr;
    std::array<QLabel*, kEventsPerDay + 1> LabTime{};
    std::array<ClickLabel*, kEventsPerDay + 1> LabEvent{};
    std::array<ElidedLabel*, kEventsPerDay + 1> LabRpt{};
    std::array<ElidedLabel*, kEventsPerDay + 1> LabRmd{};
    std::array<QCheckBox*, kEventsPerDay + 1> ChkHide{};
    std::array<QLabel*, kEventsPerDay> LabNum{};
    QLineEdit* TextTme = nullptr;
    QLineEdit* TextTmm = nullptr;
    QLineEdit* TextMsg = nullptr;
    QComboBox* CombRpt = nullptr;
    QComboBox* CombRmd = nullptr;
    QPushButton* ComDataAcpt = nullptr;
    QMenu* MNU_File = nullptr;
    QAction* MNU_Insert = nullptr;
    QAction* MNU_Delete = nullptr;
    QAction* MNU_DelAll = nullptr;
    QAction* MNU_Undo = nullptr;
};

} // namespace kestrova
