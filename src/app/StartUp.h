// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <functional>

namespace kestrova {

// The steps of starting up, in the order in which they run. Later steps lean on earlier ones, so
// the order is part of what the program does.
enum class StartUpStep {
    Going,             // the single-instance item says "Going", the timer runs
    GetPaths,          // the program folder and its sub-folders
    FirstLanguage,     // the language list stands on its first entry
    MsgDefaults,       // the built-in English texts
    ReadSettings,      // GetSettings, mode 1
    GetLanguage,       // the chosen language over the English
    FileCleanUp,       // pages left behind by the speech set-up
    CurrentMonthName,  // for daily pictures
    CheckCharacter,    // the installed characters
    SpeechIdentifiers, // the tables by language
    LoadCaptions,      // texts into the windows
    AgentIni,          // the speech agent
    ApplySettings,     // GetSettings, mode 2
    GetShortCut,       // the start-up shortcut
    ModemCheck,        // put off until the window has been drawn: the answers take their time
    BaseYear,          // today's year
    OrdinalNames,      // for monthly repeats
    PictureTables,     // pictures and texts of the months
    SettingsBars,      // the scroll bars of the settings window
    GetData,           // the diary
    YearUpdate,        // brought forward to a new year when needed
    PastRemindersOff,  // of days before today
    SaveDiary,         // when that has changed anything
    Today,             // today's date, and the month on show
    PictureSoundsCd,   // GetPicture, SoundIni, MusicIni
    Character,         // the speaking character, when speech is switched on
    TitleToTop,        // month title and year arrows
    SharedDiaries,     // DoNetUsers
    Count
};
inline constexpr std::size_t kStartUpSteps = static_cast<std::size_t>(StartUpStep::Count);

// Runs the steps. A step that no subsystem has filled yet is passed over.
class StartUp {
public:
    void Fill(StartUpStep step, std::function<void()> work) {
        work_[static_cast<std::size_t>(step)] = std::move(work);
    }

    // Runs the steps for as long as `goesOn` says so: the session may end during a message that one
    // of them shows.
    void Run(const std::function<bool()>& goesOn) const {
        for (const auto& work : work_) {
            if (work && goesOn()) {
                work();
            }
        }
    }

private:
    std::array<std::function<void()>, kStartUpSteps> work_;
};

} // namespace kestrova
