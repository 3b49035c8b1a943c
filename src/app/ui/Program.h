// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/StartUp.h"
#include "app/YearTurn.h"
#include "app/ui/FormCal.h"
#include "diary/ui/Diary.h"
#include "diary/ui/ScreenReminder.h"
#include "mail/UnavailableMail.h"
#include "media/UnavailableMedia.h"
#include "phone/UnavailableCaller.h"
#include "platform/InstanceLink.h"
#include "platform/posix/PosixFileStore.h"
#include "platform/posix/SystemClock.h"
#include "platform/qt/QtBeeper.h"
#include "platform/qt/QtDialogs.h"
#include "platform/qt/QtEventLoop.h"
#include "platform/qt/QtShell.h"
#include "reminders/ClockTick.h"
#include "settings/SettingsStore.h"
#include "speech/UnavailableSpeaker.h"

#include <QTimer>

#include <memory>
#include <string>

namespace kestrova {

// The one place that creates devices, services and windows and hands each what it needs. What the
// program has one of is a member here.
class Program : private ClockWindows, private ReminderDetails {
public:
    // `dataFolder` is the program folder, ending in the separator; `mediaFile` is played when the
    // window is first shown, unless it is empty.
    Program(std::string dataFolder, std::string mediaFile, InstanceLink& link);
    ~Program() override;

    // Starts up, shows the main window and handles events until the program ends. Returns the exit
    // code.
    int Run();

    // Ends the program in order, whatever windows and questions are open: nothing asks, nothing is
    // saved that was not accepted.
    void End();

private:
    void FillStartUp();
    void FillFirstSteps();
    void FillDiarySteps();
    void FillLastSteps();

    void GetPaths();
    void LoadCaptions();
    void ModemCheck();
    void ReadTodayFromClock();
    void FirstDrawn();
    void OpenDiary(int day);
    void ChangeLanguage(int index);
    void ReloadLanguage();
    void RunCheck_Change(std::string_view text);

    // ClockWindows
    void EmptyRunCheck() override { runCheck_.clear(); }
    [[nodiscard]] bool DayPageVisible() const override { return diary_ && diary_->isVisible(); }
    void ShowMainWindow() override { formCal_.show(); }
    void DiaryReloaded() override;
    void DiaryFolderGone() override {}
    void ShowReminders(const std::vector<std::string>& lines) override;
    void TodayMoved(bool wasShown) override;
    void YearTurned(int year) override { yearTurn_.Turn(year); }
    void ReturnToToday() override;

    // ReminderDetails
    [[nodiscard]] ModemState Modem() const override { return phone_.Modem(); }
    [[nodiscard]] bool MailWorks() const override { return !mail_.MailFailed(); }
    [[nodiscard]] bool SoundWorks() const override { return media_.SoundWorks(); }
    [[nodiscard]] bool VideoWorks() const override { return media_.VideoWorks(); }
    [[nodiscard]] bool CdWorks() const override { return media_.CdWorks(); }
    bool AskPhoneNumbers(ReminderExtra& extra) override;
    bool AskMailAddress(ReminderExtra& extra) override;
    void Preview(const std::string& path) override { media_.MakeSound(path); }

    bool ended_ = false;
    std::string dataFolder_; // DataFolder
    std::string mediaFile_;

    PosixFileStore files_;
    SystemClock clock_;
    QtDialogs dialogs_;
    QtEventLoop loop_;
    QtBeeper beeper_;
    QtShell shell_;
    InstanceLink& link_;
    UnavailableSpeaker speech_;
    UnavailableCaller phone_;
    UnavailableMail mail_;
    UnavailableMedia media_;

    Selection dates_;
    StringTable texts_;
    AppSettings settings_;
    PictureTable pictures_;
    std::string runCheck_; // RunCheck: the single-instance item

    Languages languages_;
    SettingsStore settingsStore_;
    DiaryFiles diaryFiles_;
    DiaryStore store_;
    YearTurn yearTurn_;
    EventEditor editor_;
    ReminderReview review_;
    ClockTick tick_;

    FormCal formCal_;
    // Made on first use, which start-up need not wait for.
    std::unique_ptr<Diary> diary_;
    std::unique_ptr<ScreenReminder> screenReminder_;
    QTimer Timer1;
    StartUp startUp_;
};

} // namespace kestrova
