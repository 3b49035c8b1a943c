// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calendar/Selection.h"
#include "diary/DiaryStore.h"
#include "diary/EventEditor.h"
#include "diary/SharedDiaries.h"
#include "diary/ui/Edit.h"
#include "diary/ui/RowLabel.h"
#include "platform/Clock.h"
#include "ui/ElidedLabel.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>

#include <array>
#include <functional>
#include <string>
#include <vector>

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
        DiaryStore& Store;
        SharedDiaries& Shared;
        EventEditor& Editor;
        const Clock& Time;
        Dialogs& Boxes;
    };

    struct Hooks {
        std::function<void()> Changed; // the diary has been changed here, or is another one now
        std::function<void(const std::string& text)> Speak; // reads a note aloud
        std::function<void()> ChangeMonthPicture;           // the user is to choose another one
        std::function<void()> ChangeDayPicture;             // for the page date
        std::function<void()> Find;                         // the user is to search the diary
        std::function<void()> Export; // the diary shown is to go into a calendar file
        std::function<void()> Import; // events of such a file are to come into it
    };

    Diary(QWidget* parent, const Rooms& rooms, Hooks hooks);
    ~Diary() override;

    // Shows the page of the page date at the top left of the screen.
    void OpenPage();

    // Stands on the row of an event, if the page date has it.
    void ShowEvent(const DiaryEvent& event, int slot);

    // Before the page shows something else. What has been typed is not thrown away: it is saved, or
    // the editor stays, and with it the page.
    [[nodiscard]] bool EndsEdit();

    // Rebuilds the page from the table; an edit under way is given up.
    void DrawMainPage();

    // The same when the diary has been loaded anew; the keyboard stays on the event it stands on,
    // wherever that has gone.
    void Reload();

    [[nodiscard]] bool IsEditing() const { return editSlot_.has_value(); }

    // Fills the list of diaries. When the one shown is no longer there, "My Diary" is shown again,
    // at once or as soon as the row that is edited no longer is.
    void DoNetUsers();

    // Saves what has been typed into the note of the event being edited. Whether it is saved.
    bool SaveNote(SaveMessages messages);

    void LoadCaptions();

    void reject() override;

protected:
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void BuildRows();
    void BuildEditor();
    void BuildButtons();
    void BuildMenus();
    void PlaceControls();
    void PlaceButtons();
    void FitTexts();
    void PlaceEditor();
    void ShowRow(int row, const QString& time, const QString& message, const QString& repeat,
                 const QString& reminder);
    void ShowHeading();
    void MarkNotes();
    void FillLists();
    void RefillLists();
    void FillDraft();
    void MarkRow(int row);
    void MarkEvent(const EventDraft& draft);
    void MoveRow(int step);
    [[nodiscard]] EventDraft Draft() const;
    [[nodiscard]] bool IsDraftChanged() const;
    [[nodiscard]] bool LeavesEdit();
    [[nodiscard]] int RowTop(int row) const;

    void LabEvent_DblClick(int index);
    [[nodiscard]] int SlotOf(const DiaryEvent& event, int row) const;
    void ComDataAcpt_Click();
    void ComInfo_Click();
    void ComMonPic_Click() { hooks_.ChangeMonthPicture(); }
    void ComDayPic_Click() { hooks_.ChangeDayPicture(); }
    void TextTime_Change(QLineEdit& box, QString& accepted, int limit);
    void MNU_File_Click();
    void MNU_Search_Click() { hooks_.Find(); }
    void MNU_Delete_Click();
    void MNU_DelAll_Click();
    void MNU_Undo_Click();
    void MNU_Export_Click();
    void MNU_Import_Click();

    [[nodiscard]] bool FillDiaries();
    void ShowDiaries();
    void SwitchTo(const std::string& name);
    void Refuse(RegisterResult result, const std::string& name);
    void CombNet_Click(int index);
    void MNU_New_Click();
    void MNU_Remove_Click();

    Rooms rooms_;
    Hooks hooks_;
    std::string NetUserName{kMyDiary}; // the diary shown, as the register calls it
    std::vector<std::string> offered_; // the diaries in the list, likewise
    bool fillsDiaries_ = false;
    bool gone_ = false;           // the diary shown, while a row of it is edited
    std::optional<int> editSlot_; // EditSlot: the row being edited, 0 for a new event
    EventDraft before_;           // what the editor was filled with
    std::array<DiaryEvent, kEventsPerDay + 1> events_; // what the rows show, 0 unused
    int row_ = 0;                                      // the row on which the keyboard stands
    QString acceptedHour_;
    QString acceptedMinute_;

    QMenuBar* menus_ = nullptr;
    QWidget* page_ = nullptr;
    QLabel* LabHead = nullptr;
    QLabel* LabMsg = nullptr;
    ElidedLabel* LabHide = nullptr;
    std::array<ElidedLabel*, kEventsPerDay + 1> LabTime{};
    std::array<RowLabel*, kEventsPerDay + 1> LabEvent{};
    std::array<ElidedLabel*, kEventsPerDay + 1> LabRpt{};
    std::array<ElidedLabel*, kEventsPerDay + 1> LabRmd{};
    std::array<QCheckBox*, kEventsPerDay + 1> ChkHide{};
    std::array<QLabel*, kEventsPerDay> LabNum{};
    QLineEdit* TextTme = nullptr;
    QLineEdit* TextTmm = nullptr;
    QLineEdit* TextMsg = nullptr;
    QComboBox* CombRpt = nullptr;
    QComboBox* CombRmd = nullptr;
    QComboBox* CombNet = nullptr;
    QPushButton* ComDataAcpt = nullptr;
    QPushButton* ComInfo = nullptr;
    QPushButton* ComMonPic = nullptr;
    QPushButton* ComDayPic = nullptr;
    Edit* edit_ = nullptr; // made on first use
    QMenu* MNU_File = nullptr;
    QAction* MNU_Insert = nullptr;
    QAction* MNU_Delete = nullptr;
    QAction* MNU_DelAll = nullptr;
    QAction* MNU_Undo = nullptr;
    QAction* MNU_New = nullptr;
    QAction* MNU_Remove = nullptr;
};

} // namespace kestrova
