// SPDX-License-Identifier: GPL-3.0-or-later
// What the settings window and the language editor bring about.
#include "app/ui/Program.h"

#include "app/Navigation.h"
#include "language/Texts.h"

namespace kestrova {

Settings& Program::SettingsWindow() {
    if (!settingsWindow_) {
        settingsWindow_ = std::make_unique<Settings>(
            &formCal_, Settings::Rooms{settings_, texts_, languages_, files_, dialogs_,
                                       static_cast<SettingsActions&>(*this)});
    }
    return *settingsWindow_;
}

kestrova::Modem& Program::ModemWindow() {
    if (!modemWindow_) {
        modemWindow_ = std::make_unique<kestrova::Modem>(
            &formCal_, kestrova::Modem::Rooms{settings_, texts_, dialogs_, loop_, phone_},
            kestrova::Modem::Hooks{[this] { return SettingsWindow().SpeechSample(); },
                                   [this] { KeepNumbers(); }});
    }
    return *modemWindow_;
}

// Numbers that the user has confirmed are kept at once.
void Program::KeepNumbers() {
    kept_.StoredNumbers = settings_.StoredNumbers;
    kept_.PhoneRepeat = settings_.PhoneRepeat;
    kept_.BeepAcknowledge = settings_.BeepAcknowledge;
    (void)settingsStore_.SaveSettings(kept_); // shows its failure
}

LanEditor& Program::LanguageEditor() {
    if (!lanEditor_) {
        lanEditor_ = std::make_unique<LanEditor>(
            &formCal_, LanEditor::Rooms{texts_, languages_, dialogs_},
            LanEditor::Hooks{[this](const StringTable& before) { TextsChanged(before); },
                             [this] { LanguageSaved(); },
                             [this] { SettingsWindow().ShowSettings(); }});
    }
    return *lanEditor_;
}

void Program::OpenSettings() {
    SettingsWindow().ShowSettings();
}

void Program::OpenLanguageEditor() {
    const std::vector<std::string>& names = languages_.Choices().Names;
    const auto index = static_cast<std::size_t>(settings_.LanguageIndex);
    LanguageEditor().Open(index < names.size() ? names[index] : std::string(), settings_.Week);
    SettingsWindow().hide();
}

void Program::ShowChoices() {
    formCal_.ApplySettings();
    formCal_.LoadTips();
    if (modemWindow_) {
        modemWindow_->LoadCaptions();
    }
    if (diary_) {
        diary_->LoadCaptions();
    }
}

void Program::DateOrderChanged() {
    ReadTodayFromClock();
    formCal_.Redraw(FormCal::kSameMonth);
}

Result<std::string> Program::FindModem() {
    Timer1.stop(); // the probe waits for the modem's answers; no tick is to come in between
    const bool found = phone_.ModemPresent();
    Timer1.start();
    if (!found) {
        return Error{ErrorCode::NotFound, phone_.PortTrouble()};
    }
    return settings_.ModemDescription;
}

void Program::ChangeYear() {
    if (const auto year = AskYear(dialogs_, texts_, dates_.BaseYear)) {
        ShowYear(dates_, *year);
    }
    tick_.SetReturnCountdown(0);
    ShowTodayMonth();
}

void Program::ShowTodayMonth() {
    ShowMonth(dates_, dates_.TodayMonth);
    formCal_.GetPicture();
    formCal_.Redraw(FormCal::kSameMonth);
}

void Program::FormatData() {
    if (const Status removed = shortCut_.Remove(); !removed) {
        dialogs_.Show(
            {texts_.Text(texts::kMessengerTitle),
             TextOf(texts_, ProgramText::StartEntryFailed) + "\n" + removed.Failure().Text,
             DialogIcon::Critical});
    }
    kept_.StartOnBoot = settings_.StartOnBoot;
    (void)settingsStore_.SaveSettings(kept_); // shows its failure
    // A friend's diary may be the one on show; it is the user's own that is emptied.
    if (store_.Folder() != dataFolder_) {
        store_.GetData(dataFolder_);
    }
    if (store_.Folder() != dataFolder_) {
        return; // it cannot be had now, of which the user has been told
    }
    if (store_.DataFormat(dates_.BaseYear) == ChangeResult::Saved) {
        dialogs_.Show({texts_.Text(texts::kProgramTitle),
                       TextOf(texts_, ProgramText::CopyKeptIn, NoteFolder(files_, dataFolder_)),
                       DialogIcon::None});
    }
    DiaryReloaded();
}

bool Program::SaveSettings() {
    if (const Status made = shortCut_.SetShortCut(settings_); !made) {
        dialogs_.Show({texts_.Text(texts::kMessengerTitle),
                       TextOf(texts_, ProgramText::StartEntryFailed) + "\n" + made.Failure().Text,
                       DialogIcon::Critical});
    }
    const bool saved = settingsStore_.SaveSettings(settings_).Ok();
    if (saved) {
        kept_ = settings_;
    }
    ShowTodayMonth();
    speech_.AgentTer();
    if (settings_.SpeechEnabled != 0) {
        speech_.AgentIni();
        speech_.LoadMerlin();
    }
    return saved;
}

} // namespace kestrova
