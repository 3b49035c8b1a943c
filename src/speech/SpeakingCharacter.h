// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "language/StringTable.h"
#include "platform/Clock.h"
#include "platform/Dialogs.h"
#include "platform/EventLoop.h"
#include "platform/FileStore.h"
#include "platform/Shell.h"
#include "settings/AppSettings.h"
#include "speech/Speaker.h"
#include "speech/SpeechAgent.h"

#include <deque>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace kestrova {

// The speaking character of the program: which there are, which one is loaded, and what it says.
class SpeakingCharacter : public Speaker {
public:
    struct Rooms {
        VoiceEngine& Voice;
        MediaDevices& Devices;
        CharacterStage& Stage;
        EventLoop& Loop;
        const Clock& Time;
        FileStore& Files;
        Dialogs& Boxes;
        Shell& Desktop;
        const StringTable& Texts;
        AppSettings& Settings;
        const std::string& Folder; // the program folder
        std::string WebAddress;    // of the program
    };

    explicit SpeakingCharacter(Rooms rooms);
    ~SpeakingCharacter() override;

    // Looks which characters there are in the folder `Characters`, and has the settings name one
    // of them. Files that are no characters are left out.
    void CheckCharacter();

    // Why files that end like characters are not among them, a sentence for each.
    [[nodiscard]] std::vector<std::string> LeftOut() const;

    void AgentIni();

    // Silences, hides and unloads the character, which ends what is talked.
    void AgentTer();

    // Loads the character that the settings name, or the first one there is, which ends what is
    // talked. Without any, speech is switched off. False when none is loaded then.
    bool LoadMerlin();

    // Whether what speaking a language takes is installed; when not, offers the pages that help.
    void CheckSpeech(int languageIndex);

    // Writes the set-up pages for a language and opens the first; deletes what is left of them.
    void GetForeignStuff(int languageIndex);
    void FileCleanUp();

    // The character was clicked, which silences it and has it go; one that is hidden tells the
    // time.
    void Agent1_Click();

    // Speaker
    [[nodiscard]] std::vector<std::string> Characters() const override { return characters_; }
    bool LoadCharacter() override { return LoadMerlin(); }
    [[nodiscard]] bool AgentLoaded() const override { return CurrentCharacter.has_value(); }
    [[nodiscard]] bool IsVisible() const override { return AgentLoaded() && Agent1->IsVisible(); }
    void Show() override;
    void Hide() override;
    void Speak(const std::string& text) override;
    [[nodiscard]] bool IsSpeaking() const override;
    [[nodiscard]] Result<SpokenSound> Record(const std::string& text) override;
    [[nodiscard]] bool StopSpeaking() const override { return stopSpeaking_; }
    void SetStopSpeaking(bool stop) override;
    [[nodiscard]] int Clicks() const override { return clicks_; }

    // A text that comes while another is being talked, out of an event, is talked after it: the
    // call returns at once then.
    void Talk(const std::string& text, AfterSpeaking after) override;
    void TellTime(const std::string& text, AfterSpeaking after) override;
    void BeginCall() override;
    void EndCall() override { inCall_ = false; }
    void TalkInCall(const std::string& text, AfterSpeaking after) override;

private:
    struct LeftOutFile {
        std::string Name;
        CharacterFault Fault;
    };
    struct LongText {
        std::string Text;
        AfterSpeaking After = AfterSpeaking::Stay;
    };

    [[nodiscard]] std::string CharacterFolder() const { return rooms_.Folder + "Characters/"; }
    [[nodiscard]] std::variant<CharacterFigure, CharacterFault>
    ReadCharacter(const std::string& name) const;
    [[nodiscard]] std::string ReasonOf(const CharacterFault& fault) const;
    [[nodiscard]] std::string VoiceLocale(int languageIndex) const;
    [[nodiscard]] bool CanCreate(const std::string& classId);
    void TalkAll(LongText text);
    void TalkOne(const LongText& text);
    void EndTalk();

    Rooms rooms_;
    std::vector<std::string> characters_; // what the list CombChr shows
    std::vector<LeftOutFile> leftOut_;
    std::unique_ptr<SpeechAgent> Agent1;
    std::optional<std::string> CurrentCharacter; // the name of its file
    bool stopSpeaking_ = false;                  // StopSpeaking
    int clicks_ = 0;
    bool inCall_ = false;
    bool talking_ = false;
    int endings_ = 0; // how often talking has been ended: who began before has nothing more to say
    std::deque<LongText> later_;
};

} // namespace kestrova
