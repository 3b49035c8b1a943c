// SPDX-License-Identifier: GPL-3.0-or-later
// What the clock costs twice a second, for years.
#include "BoundedWork.h"
#include "FullDiary.h"
#include "NoDialogs.h"
#include "ScratchFolder.h"
#include "fakes/SilentSpeaker.h"

#include "diary/DiaryStore.h"
#include "mail/ReminderMail.h"
#include "media/MediaPanel.h"
#include "phone/PhoneCaller.h"
#include "platform/posix/PosixFileStore.h"
#include "platform/posix/SystemClock.h"
#include "reminders/ClockTick.h"
#include "speech/Speaker.h"

#include <filesystem>

namespace kestrova::bench {

namespace {

// The machine's clock, read as the program reads it, with the second that a benchmark wants.
struct FixedSecond : Clock {
    SystemClock Real;
    WallTime Shown;

    [[nodiscard]] WallTime Now() const override {
        benchmark::DoNotOptimize(Real.Now());
        return Shown;
    }
};

struct NoCaller : PhoneCaller {
    bool ModemPresent() override { return false; }
    ModemState Modem() const override { return ModemState::Off; }
    bool SendMessage(const std::string& /*dialString*/, const std::string& /*message*/) override {
        return false;
    }
    bool WasStopped() const override { return false; }
    void Delay(int /*seconds*/) override {}
};

struct NoMail : ReminderMail {
    bool MailFailed() const override { return true; }
    MailStatus SendMail(const DiaryEvent& /*event*/) override { return MailStatus::TryLater; }
};

struct NoMedia : MediaPanel {
    bool SoundWorks() const override { return false; }
    bool VideoWorks() const override { return false; }
    bool CdWorks() const override { return false; }
    bool ShowsVideo() const override { return false; }
    void MakeSound(const std::string& /*path*/) override {}
    void PlayReminder(const std::string& /*path*/) override {}
    void PlayCd() override {}
    void CleanUp() override {}
};

struct NoLoop : EventLoop {
    bool WaitUntil(const std::function<bool()>& predicate,
                   std::chrono::milliseconds /*limit*/) override {
        return predicate();
    }
};

struct NoBeeper : Beeper {
    void Beep() override {}
};

struct NoWindows : ClockWindows {
    void EmptyRunCheck() override {}
    [[nodiscard]] bool DayPageVisible() const override { return false; }
    void ShowMainWindow() override {}
    void DiaryReloaded() override {}
    void DiaryFolderGone() override {}
    void ShowReminders(const std::vector<std::string>& /*lines*/) override {}
    void TodayMoved(bool /*wasShown*/) override {}
    void YearTurned(int /*year*/) override {}
    void ReturnToToday() override {}
};

// A running program with a full diary on the disc.
struct Running {
    ScratchFolder Scratch;
    std::string Folder = Scratch.Path();
    PosixFileStore Files;
    FixedSecond Time;
    NoDialogs Boxes;
    NoLoop Loop;
    NoBeeper Bell;
    NoWindows Windows;
    StringTable Texts = MsgDefaults();
    AppSettings Settings = FirstSettings(Texts);
    Selection Dates;
    DiaryFiles OnDisc{Files, Time};
    FolderProbe Probe{Folder, [](const std::string& /*other*/) { return false; }};
    DiaryStore Store{OnDisc, Boxes, Texts, Probe, [] {}};
    SilentSpeaker Speech;
    NoCaller Phone;
    NoMail Mail;
    NoMedia Media;
    ReminderReview Review{{Store, Dates, Texts, Settings, Speech, Phone, Mail, Media, Loop, Bell}};
    ClockTick Tick{
        {Time, Store, Dates, Texts, Settings, Folder, Review, Speech, Media, Bell, Windows}};

    Running() {
        std::filesystem::create_directories(NoteFolder(Files, Folder));
        (void)Files.Replace(DiaryPath(Files, Folder), WriteDiary(FullDiary(Texts)));
        Time.Shown = Time.Real.Now();
        Dates.BaseYear = Time.Shown.Year;
        Store.GetData(Folder);
        Tick.Begin();
    }
};

void TickAtSeconds(benchmark::State& state, int first, int second) {
    Running running;
    for ([[maybe_unused]] auto _ : state) {
        // Two times in turn, for the same one is looked at only once.
        running.Time.Shown.Second = running.Time.Shown.Second == first ? second : first;
        running.Tick.Timer1_Timer();
    }
}

void PlainTick(benchmark::State& state) {
    TickAtSeconds(state, 13, 14);
}

void TickWithALook(benchmark::State& state) {
    TickAtSeconds(state, 10, 20);
}

const AtMost kTick = AtMost::Seconds(5e-6, "a tick that is no pass", PlainTick);
const AtMost kLook = AtMost::Seconds(20e-6, "a tick that looks at the file", TickWithALook);

} // namespace

} // namespace kestrova::bench
