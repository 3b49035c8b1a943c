// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/StartUp.h"
#include "app/YearTurn.h"
#include "app/ui/FormCal.h"
#include "app/ui/PrintOffice.h"
#include "diary/ui/Diary.h"
#include "diary/ui/DiaryFinder.h"
#include "diary/ui/ScreenReminder.h"
#include "exchange/ExchangeDialogs.h"
#include "language/ProgramTexts.h"
#include "language/ui/LanEditor.h"
#include "mail/ui/MailDesk.h"
#include "media/MediaService.h"
#include "phone/VoiceCaller.h"
#include "phone/ui/Modem.h"
#include "platform/InstanceLink.h"
#include "platform/posix/PosixFileStore.h"
#include "platform/posix/SystemClock.h"
#include "platform/qt/CalendarModule.h"
#include "platform/qt/DesktopNotifier.h"
#include "platform/qt/MailModule.h"
#include "platform/qt/MediaModule.h"
#include "platform/qt/QtBeeper.h"
#include "platform/qt/QtDialogs.h"
#include "platform/qt/QtEventLoop.h"
#include "platform/qt/QtSerialPort.h"
#include "platform/qt/QtShell.h"
#include "platform/qt/SpeechModule.h"
#include "platform/qt/ToolkitTexts.h"
#include "reminders/ClockTick.h"
#include "reminders/ReminderNotice.h"
#include "settings/SettingsStore.h"
#include "settings/ShortCut.h"
#include "settings/ui/Settings.h"
#include "speech/SpeakingCharacter.h"
#include "speech/ui/DesktopStage.h"
#include "ui/Notice.h"

#include <QTimer>

#include <memory>
#include <string>

namespace kestrova {

// Whether the main window is shown when the program starts, or waits for a second start.
enum class FirstShow { Shown, Hidden };

// The one place that creates devices, services and windows and hands each what it needs. What the
// program has one of is a member here.
class Program : private ClockWindows, private ReminderDetails, private SettingsActions {
public:
    struct Orders {
        std::string DataFolder; // the program folder, ending in the separator
        std::string MediaFile;  // played once the program is up, unless it is empty
        std::string CdDevice;   // a drive or the image of a disc; empty: the machine's own drive
    };

    Program(Orders orders, InstanceLink& link);
    ~Program() override;

    // Starts up, shows the main window unless it is to wait, and handles events until the program
    // ends. Returns the exit code.
    int Run(FirstShow show);

    // Ends the program in order, whatever windows and questions are open: nothing asks, nothing is
    // saved that was not accepted.
    void End();

private:
    bool Quit();
    void FillStartUp();
    void FillFirstSteps();
    void FillDiarySteps();
    void FillLastSteps();

    void GetPaths();
    void LoadCaptions();
    void ModemCheck();
    void ReadTodayFromClock();
    void HideSettings();
    void ShowTodayMonth();
    void FirstDrawn();
    void OpenDiary(int day);
    void ShowDiaryChanges();
    void OpenFinder();
    void ShowFound(const DiarySearch::Event& event);
    void ClearReminders();
    void SnoozeReminders(int minutes);
    void Tell(const std::string& text);
    void ChPic(std::optional<int> day);
    void SavePic();
    void ShowPictureFault(ProgramText what, const Error& error, const std::string& path);
    void ReloadLanguage();
    void SettleChoices();
    void KeepMenuChoices();
    void KeepVideoChoices();
    void KeepPrintChoices();
    void ShowVideoChoices();
    void LanguageSaved();
    void TextsChanged(const StringTable& before);
    void OpenSettings();
    Settings& SettingsWindow();
    LanEditor& LanguageEditor();
    kestrova::Modem& ModemWindow();
    void KeepNumbers();
    void RunCheck_Change(std::string_view text);

    // ClockWindows
    void EmptyRunCheck() override { runCheck_.clear(); }
    [[nodiscard]] bool DayPageVisible() const override { return diary_ && diary_->isVisible(); }
    void ShowMainWindow() override { formCal_.show(); }
    void DiaryReloaded() override;
    void DiaryFolderGone() override;
    void ShowReminders(const std::vector<std::string>& lines) override;
    void TodayMoved(bool wasShown) override;
    void YearTurned(int year) override { yearTurn_.Turn(year); }
    void ReturnToToday() override;

    // ReminderDetails
    [[nodiscard]] ModemState Modem() const override { return phone_.Modem(); }
    [[nodiscard]] bool MailWorks() const override;
    [[nodiscard]] bool SoundWorks() const override { return media_.SoundWorks(); }
    [[nodiscard]] bool VideoWorks() const override { return media_.VideoWorks(); }
    [[nodiscard]] bool CdWorks() const override { return media_.CdWorks(); }
    // SettingsActions
    void DoColor() override { formCal_.Redraw(FormCal::kSameMonth); }
    void ShowChoices() override;
    void DateOrderChanged() override;
    void ChangeLanguage(int index) override;
    void OpenLanguageEditor() override;
    [[nodiscard]] std::vector<std::string> Characters() const override {
        return speech_.Characters();
    }
    bool LoadCharacter() override { return speech_.LoadCharacter(); }
    void CheckCharacter() override { speech_.CheckCharacter(); }
    void CheckSpeech() override;
    [[nodiscard]] std::vector<std::string> LeftOutCharacters() const override {
        return speech_.LeftOut();
    }
    void Talk(const std::string& text) override { speech_.Talk(text, AfterSpeaking::Hide); }
    void PortChosen() override { phone_.PortChosen(); }
    Result<std::string> FindModem() override;
    void MakeSound(const std::string& path) override { media_.MakeSound(path); }
    void ChangeYear() override;
    void FormatData() override;
    bool SaveSettings() override;

    DetailsAnswer AskPhoneNumbers(ReminderExtra& extra) override;
    DetailsAnswer AskMailAddress(ReminderExtra& extra) override;
    void Preview(const std::string& path) override { media_.MakeSound(path); }

    bool ended_ = false;
    bool firstDrawn_ = false;
    std::string dataFolder_; // DataFolder
    std::string mediaFile_;

    PosixFileStore files_;
    SystemClock clock_;
    QtDialogs dialogs_;
    Notice notice_;
    QtEventLoop loop_;
    QtBeeper beeper_;
    QtShell shell_;
    ToolkitTexts toolkitTexts_;
    InstanceLink& link_;
    QtSerialPort serial_;
    VoiceCaller phone_;
    MailModule mailModule_;
    MailDesk mail_;
    MediaModule mediaDevices_;
    SpeechModule voices_;
    CalendarModule calendarFiles_;
    DesktopNotifier notifier_;
    DesktopStage stage_;

    Selection dates_;
    StringTable texts_;
    AppSettings settings_;
    SpeakingCharacter speech_;
    MediaService media_;
    PieceFiles pieces_;
    AppSettings kept_; // as the user has last said "O.K.", with what the menus have changed since
    PictureTable pictures_;
    std::string runCheck_; // RunCheck: the single-instance item

    Languages languages_;
    SettingsStore settingsStore_;
    ShortCut shortCut_;
    DiaryFiles diaryFiles_;
    FolderProbe probe_;
    DiaryStore store_;
    SharedDiaries shared_;
    CalendarExchange exchange_;
    ExchangeDialogs exchangeDialogs_;
    YearTurn yearTurn_;
    EventEditor editor_;
    ReminderReview review_;
    ClockTick tick_;
    ReminderNotice reminderNotice_;

    PrintOffice print_;
    FormCal formCal_;
    // Made on first use, which start-up need not wait for.
    std::unique_ptr<Diary> diary_;
    std::unique_ptr<ScreenReminder> screenReminder_;
    std::unique_ptr<DiaryFinder> finder_;
    std::unique_ptr<Settings> settingsWindow_;
    std::unique_ptr<LanEditor> lanEditor_;
    std::unique_ptr<kestrova::Modem> modemWindow_;
    QTimer Timer1;
    StartUp startUp_;
};

} // namespace kestrova
