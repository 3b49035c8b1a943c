// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Result.h"

#include <optional>
#include <string>
#include <vector>

namespace kestrova {

// What the settings window asks of the rest of the program when a choice is to take effect.
class SettingsActions {
public:
    virtual ~SettingsActions() = default;

    // The colours of the month grid have changed.
    virtual void DoColor() = 0;

    // How the picture is fitted, what the video switches say, or whether there are tips.
    virtual void ShowChoices() = 0;

    // Whether day and month of the clock are to be exchanged has changed.
    virtual void DateOrderChanged() = 0;

    // Loads the language with this index.
    virtual void ChangeLanguage(int index) = 0;

    virtual void OpenLanguageEditor() = 0;

    // The names of the speaking characters that there are.
    [[nodiscard]] virtual std::vector<std::string> Characters() const = 0;

    // Looks again which there are.
    virtual void CheckCharacter() = 0;

    // Why files among the characters are not on the list, a sentence for each.
    [[nodiscard]] virtual std::vector<std::string> LeftOutCharacters() const = 0;

    // Whether what speaking takes is installed; offers help when not.
    virtual void CheckSpeech() = 0;

    // Loads the character that the settings name; false when none can be had.
    virtual bool LoadCharacter() = 0;

    // Speaks a sample with the character, pitch and speed of the settings.
    virtual void Talk(const std::string& text) = 0;

    // A port for the modem has been chosen.
    virtual void PortChosen() = 0;

    // Looks for a modem on the port that the settings name. Its description; when none answers,
    // why the port cannot be had, or no text. Takes seconds, handling events.
    [[nodiscard]] virtual Result<std::string> FindModem() = 0;

    // Whether sounds can be heard now.
    [[nodiscard]] virtual bool SoundWorks() const = 0;

    // Plays a sound file once.
    virtual void MakeSound(const std::string& path) = 0;

    // Asks for a year and shows it.
    virtual void ChangeYear() = 0;

    // Empties the user's own diary. A copy of it is kept; what is not done, the user is told.
    virtual void FormatData() = 0;

    // "O.K.": the start-up entry, the file, the month and the character are brought up to date.
    // False when the settings could not be saved.
    virtual bool SaveSettings() = 0;
};

} // namespace kestrova
