// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/ui/DateLabel.h"
#include "app/ui/GameMenu.h"
#include "app/ui/MonthVoice.h"
#include "calendar/Selection.h"
#include "diary/DiaryStore.h"
#include "language/Languages.h"
#include "media/MediaService.h"
#include "media/PictureTable.h"
#include "media/ui/MediaStage.h"
#include "platform/Clock.h"
#include "platform/Dialogs.h"
#include "platform/Shell.h"
#include "platform/qt/QtText.h"
#include "settings/AppSettings.h"
#include "speech/Speaker.h"
#include "ui/ClickLabel.h"

#include <QMainWindow>
#include <QToolButton>

#include <array>
#include <functional>

class QBoxLayout;
class QGridLayout;

namespace kestrova {

// The main window: the month on show beside its picture.
class FormCal : public QMainWindow {
public:
    // Redraw's month for "the one on show".
    static constexpr int kSameMonth = 13;

    struct Rooms {
        Selection& Dates;
        const StringTable& Texts;
        AppSettings& Settings;
        const DiaryStore& Store;
        const Languages& Tongues;
        const PictureTable& Pictures;
        const std::string& DataFolder;
        Speaker& Speech;
        MediaService& Media;
        Dialogs& Boxes;
        Shell& Desktop;
        const Clock& Time;
        PieceFiles& Pieces;
        const FileStore& Files;
    };

    // What the window asks of the program around it.
    struct Hooks {
        std::function<void(int day)> OpenDiary;
        std::function<void()> OpenFinder;
        std::function<void()> OpenSettings;
        std::function<void()> SettingsChanged; // to be kept
        std::function<void()> VideoChosen;     // to be kept: how films are shown
        std::function<void()> VideoSwitched;   // not to be kept: by a reminder
        std::function<void(int index)> ChangeLanguage;
        std::function<void()> ReloadLanguage; // day names have other places
        std::function<void()> FirstDrawn;
        std::function<void(int minutes)> SetReturnCountdown;
        std::function<void()> GotFocus;
        std::function<void()> ChPic;   // the user is to choose another picture for the month
        std::function<void()> SavePic; // and where the one on show is kept as a bitmap
        std::function<void()> TellAFriend;
        std::function<void()> OpenMailAccount;
        std::function<void()> Preview; // the print layout of the month on show
        std::function<void()> PrintDiary;
        std::function<void(bool on)> PrintToPdf; // a file takes the printer's place
        std::function<bool()> Quit; // false when the user has something to finish first
    };

    FormCal(const Rooms& rooms, Hooks hooks);

    // Draws a month 0-11, or the one on show. Nothing is drawn before the window has been shown, or
    // while it is minimised.
    void Redraw(int month);

    // Loads the picture of the month on show.
    void GetPicture();

    // The file of the picture on show; empty when there is none.
    [[nodiscard]] std::string PicturePath() const { return FromQt(Image1->Path()); }

    // Brings the media panel up to date.
    void ShowMedia() { stage_->ShowMedia(); }

    // Puts the texts of the string table into the window and its menus.
    void LoadCaptions();

    // Puts the tips on or takes them off, as the settings say.
    void LoadTips();

    // Fits the picture and ticks the menu entries by the settings.
    void ApplySettings();

    // Shows the window as it was before it was minimised, maximised or hidden.
    void ShowNormal();

    // Ends or hides the window, as the settings say.
    void MNU_Exit_Click();

protected:
    void showEvent(QShowEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void BuildCard();
    void BuildGrid();
    void BuildMenus();
    void BuildFileMenu();
    void BuildMonthMenu();
    void BuildChoiceMenus();
    void GiveAccessKeys();
    QAction* AddAction(QMenu* menu, const QString& name, std::function<void()> handler);

    void Form_Activate();
    void PlaceDates();
    void MarkDates();
    void SetTitle();
    void FitToWindow();
    void DoMNUDays(int month);
    void AfterMove(bool otherMonth);
    void LabDates_Click(int day);
    void LabDates_DblClick(int day);
    void ViewChanged();
    [[nodiscard]] bool IsHalf() const;

    void LabYrAdv_Click();
    void LabYrRtd_Click();
    void LabCurMth_DblClick();
    void LabCurMth_Click();
    void LabHelp_Click();
    void MNU_Mon_Click(int month);
    void MNU_WeekSt_Click(int index);
    void MNU_Lan_Click(int index);
    void MNU_Settings_Click();
    void MNU_File_Click();
    void MNU_Full_Click();
    void MNU_Half_Click();
    void MNU_Media_Click();
    void MNU_Picture_Click();
    void MNU_Repeat_Click();
    void MNU_About_Click();

    [[nodiscard]] bool HandleMoveKey(const QKeyEvent& event);

    Rooms rooms_;
    Hooks hooks_;
    MonthVoice voice_;
    bool windowReady_ = false; // WindowReady
    bool firstDraw_ = true;

    QBoxLayout* layout_ = nullptr;
    MediaStage* stage_ = nullptr;
    PictureBox* Image1 = nullptr;
    QWidget* card_ = nullptr;
    QGridLayout* grid_ = nullptr;
    ClickLabel* LabCurMth = nullptr;
    QToolButton* LabYrAdv = nullptr;
    QToolButton* LabYrRtd = nullptr;
    ClickLabel* LabHelp = nullptr;
    std::array<ClickLabel*, kDaysOfWeek> LabDays{};
    std::array<DateLabel*, kMaxDays> LabDates{};

    QMenu* MNU_File = nullptr;
    QMenu* MNU_Month = nullptr;
    QMenu* MNU_Date = nullptr;
    QMenu* MNU_Week = nullptr;
    QMenu* MNU_Language = nullptr;
    QMenu* MNU_Game = nullptr;
    GameMenu* game_ = nullptr;
    QMenu* MNU_Help = nullptr;
    QAction* MNU_Full = nullptr;
    QAction* MNU_Half = nullptr;
    QAction* MNU_Repeat = nullptr;
    QAction* MNU_Save = nullptr;
    QAction* MNU_Pdf = nullptr;
    std::array<QAction*, kMonths> MNU_Mon{};
    std::array<QAction*, kMaxDays> MNU_Day{};
    std::array<QAction*, 3> MNU_WeekSt{};
    std::array<QAction*, kFixedLanguages> MNU_Lan{};
};

} // namespace kestrova
