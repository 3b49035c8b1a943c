// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "diary/DiaryScene.h"
#include "diary/ReminderDetails.h"
#include "fakes/CountingBeeper.h"
#include "fakes/SteppedLoop.h"
#include "reminders/ClockTick.h"

#include <string>
#include <vector>

namespace kestrova {

// Channels that remember what they were asked to do.
struct RecordingSpeaker : Speaker {
    bool Loaded = false;
    bool Visible = false;
    bool Stop = false;
    int Clicked = 0;
    std::vector<std::string> Spoken;
    std::vector<std::string> Told;

    [[nodiscard]] std::vector<std::string> Characters() const override { return {}; }
    bool LoadCharacter() override { return Loaded; }
    bool AgentLoaded() const override { return Loaded; }
    bool IsVisible() const override { return Visible; }
    void Show() override { Visible = true; }
    void Hide() override { Visible = false; }
    void Speak(const std::string& text) override { Spoken.push_back(text); }
    bool IsSpeaking() const override { return false; }
    Result<SpokenSound> Record(const std::string& /*text*/) override {
        return Error{ErrorCode::NotFound, ""};
    }
    bool StopSpeaking() const override { return Stop; }
    void SetStopSpeaking(bool stop) override { Stop = stop; }
    void Talk(const std::string& text, AfterSpeaking /*after*/) override { Spoken.push_back(text); }
    void TellTime(const std::string& text, AfterSpeaking /*after*/) override {
        Told.push_back(text);
    }
    int Clicks() const override { return Clicked; }
    void BeginCall() override {}
    void EndCall() override {}
    void TalkInCall(const std::string& text, AfterSpeaking after) override { Talk(text, after); }
};

struct RecordingCaller : PhoneCaller {
    ModemState State = ModemState::On;
    std::vector<std::string> Calls;
    std::string Answered; // the dial string that is acknowledged
    int Delays = 0;
    std::function<void()> DuringCall;

    bool ModemPresent() override { return true; }
    ModemState Modem() const override { return State; }
    bool Stopped = false;
    bool WasStopped() const override { return Stopped; }
    bool SendMessage(const std::string& dial, const std::string& message) override {
        Calls.push_back(dial + " " + message);
        if (DuringCall) {
            DuringCall();
        }
        return dial == Answered;
    }
    void Delay(int /*seconds*/) override { ++Delays; }
};

struct RecordingMail : ReminderMail {
    MailStatus Status = MailStatus::Sent;
    std::vector<std::string> Sent;

    bool MailFailed() const override { return Status != MailStatus::Sent; }
    MailStatus SendMail(const DiaryEvent& event) override {
        Sent.push_back(event.Msg);
        return Status;
    }
};

struct RecordingMedia : MediaPanel {
    bool Video = false;
    std::vector<std::string> Played;

    bool SoundWorks() const override { return true; }
    bool VideoWorks() const override { return true; }
    bool CdWorks() const override { return true; }
    bool ShowsVideo() const override { return Video; }
    void MakeSound(const std::string& path) override { Played.push_back(path); }
    void PlayReminder(const std::string& path) override { Played.push_back(path); }
    void PlayCd() override { Played.push_back("CD"); }
    void CleanUp() override {}
};

struct RecordingWindows : ClockWindows {
    bool DayPage = false;
    int Emptied = 0;
    int MainShown = 0;
    int Reloads = 0;
    int FolderGone = 0;
    int Returns = 0;
    std::vector<bool> Moves;
    std::vector<int> Years;
    std::vector<std::vector<std::string>> Lines;
    std::function<void(int)> OnYear;

    void EmptyRunCheck() override { ++Emptied; }
    bool DayPageVisible() const override { return DayPage; }
    void ShowMainWindow() override { ++MainShown; }
    void DiaryReloaded() override { ++Reloads; }
    void DiaryFolderGone() override { ++FolderGone; }
    void ShowReminders(const std::vector<std::string>& lines) override { Lines.push_back(lines); }
    void TodayMoved(bool wasShown) override { Moves.push_back(wasShown); }
    void YearTurned(int year) override {
        Years.push_back(year);
        if (OnYear) {
            OnYear(year);
        }
    }
    void ReturnToToday() override { ++Returns; }
};

// A program that has started on 14 May 2026 at 09:00, a second after its first pass.
struct ClockScene : DiaryScene {
    Selection Dates{2026, 2026, 4, 14, 4, 14};
    AppSettings Settings = FirstSettings(Texts);
    RecordingSpeaker Speech;
    RecordingCaller Phone;
    RecordingMail Mail;
    RecordingMedia Media;
    SteppedLoop Loop;
    CountingBeeper Bell;
    RecordingWindows Windows;
    std::string Folder = kFolder;
    ReminderReview Review{{Store, Dates, Texts, Settings, Speech, Phone, Mail, Media, Loop, Bell}};
    ClockTick Tick{
        {Clock, Store, Dates, Texts, Settings, Folder, Review, Speech, Media, Bell, Windows}};

    ClockScene() {
        Settings.ChimeInterval = "Never";
        Clock.Time = {2026, 4, 14, 9, 0, 0};
        Tick.Begin();
    }

    [[nodiscard]] static DayPlace Today() { return {14, 4, 0}; }

    void Add(int hour, int minute, const std::string& msg, const std::string& rmd,
             const ReminderExtra& extra = {}) {
        DiaryEvent event = MakeEvent(hour, minute, msg, "Never", rmd);
        event.Extra = extra;
        Insert(Today(), event);
    }

    // The tick of this time of the same day.
    void TickAt(int hour, int minute, int second = 0) {
        Clock.Time.Hour = hour;
        Clock.Time.Minute = minute;
        Clock.Time.Second = second;
        Tick.Timer1_Timer();
    }

    // The pass of this minute and the tick after it.
    void PassAt(int hour, int minute) {
        TickAt(hour, minute, 0);
        TickAt(hour, minute, 1);
    }

    [[nodiscard]] std::string ReminderInMemory(int slot = 1) const {
        return Store.Table().At({slot, Today()}).Rmd;
    }
    [[nodiscard]] std::string ReminderOnFile(int slot = 1) const {
        return OnFile().At({slot, Today()}).Rmd;
    }
};

} // namespace kestrova
