// SPDX-License-Identifier: GPL-3.0-or-later
#include "speech/SpeakingCharacter.h"

#include "language/FixedLanguages.h"
#include "language/ProgramTexts.h"
#include "language/Texts.h"
#include "speech/SpeechIds.h"
#include "speech/SpeechPages.h"
#include "speech/SpeechText.h"
#include "text/Numbers.h"

#include <algorithm>
#include <array>
#include <utility>

namespace kestrova {

namespace {

constexpr std::string_view kCharacterEnding = ".acs";
constexpr int kGreekIndex = 7;

// The voices that speak the languages of the locale table.
struct LanguageVoice {
    int LanguageId;
    std::string_view Locale;
};
constexpr std::array<LanguageVoice, kSpeechLanguages> kVoices = {{
    {0x409, "en"},
    {0x40C, "fr"},
    {0x407, "de"},
    {0xC0A, "es"},
    {0x416, "pt-BR"},
    {0x410, "it"},
    {0x413, "nl"},
}};

// A piece that never ends would keep whoever talks for ever.
std::chrono::milliseconds LongestPiece(const std::string& piece) {
    using namespace std::chrono_literals;
    return 30s + 300ms * static_cast<int>(piece.size());
}

bool IsCharacterFile(std::string_view name) {
    return name.size() > kCharacterEnding.size() &&
           IsSameName(name.substr(name.size() - kCharacterEnding.size()), kCharacterEnding);
}

} // namespace

SpeakingCharacter::SpeakingCharacter(Rooms rooms) : rooms_(std::move(rooms)) {}

SpeakingCharacter::~SpeakingCharacter() {
    AgentTer();
}

// ---- which character ----

std::variant<CharacterFigure, CharacterFault>
SpeakingCharacter::ReadCharacter(const std::string& name) const {
    const auto bytes = rooms_.Files.Read(CharacterFolder() + name, kCharacterLimit);
    if (bytes) {
        return ReadFigure(bytes.Value());
    }
    const bool large = bytes.Failure().Code == ErrorCode::TooLarge;
    return CharacterFault{
        large ? CharacterFault::Reason::TooLarge : CharacterFault::Reason::Unreadable, {}};
}

// The list stands on the character that the settings name; when that has gone, on the first.
void SpeakingCharacter::CheckCharacter() {
    characters_.clear();
    leftOut_.clear();
    std::vector<std::string> names = rooms_.Files.List(CharacterFolder());
    std::erase_if(names, [](const std::string& name) { return !IsCharacterFile(name); });
    std::sort(names.begin(), names.end());
    for (std::string& name : names) {
        auto read = ReadCharacter(name);
        if (auto* const fault = std::get_if<CharacterFault>(&read)) {
            leftOut_.push_back({std::move(name), std::move(*fault)});
        } else {
            characters_.push_back(std::move(name));
        }
    }
    std::string& chosen = rooms_.Settings.CharacterName;
    if (!characters_.empty() &&
        std::find(characters_.begin(), characters_.end(), chosen) == characters_.end()) {
        chosen = characters_.front();
    }
}

std::string SpeakingCharacter::ReasonOf(const CharacterFault& fault) const {
    using Reason = CharacterFault::Reason;
    switch (fault.Why) {
    case Reason::TooLarge: return TextOf(rooms_.Texts, ProgramText::CharacterTooLarge);
    case Reason::Forbidden:
        return TextOf(rooms_.Texts, ProgramText::CharacterForbidden, fault.Detail);
    case Reason::LayerMissing:
        return TextOf(rooms_.Texts, ProgramText::CharacterLacksLayer, fault.Detail);
    case Reason::Unreadable: break;
    }
    return TextOf(rooms_.Texts, ProgramText::CharacterUnreadable);
}

std::vector<std::string> SpeakingCharacter::LeftOut() const {
    std::vector<std::string> sentences;
    for (const LeftOutFile& file : leftOut_) {
        sentences.push_back(TextOf(rooms_.Texts, ProgramText::CharacterLeftOut, file.Name) + " " +
                            ReasonOf(file.Fault));
    }
    return sentences;
}

void SpeakingCharacter::AgentIni() {
    if (!Agent1) {
        Agent1 = std::make_unique<SpeechAgent>(
            SpeechAgent::Rooms{rooms_.Voice, rooms_.Devices, rooms_.Stage},
            [this] { Agent1_Click(); });
    }
}

void SpeakingCharacter::AgentTer() {
    EndTalk();
    CurrentCharacter.reset();
    Agent1.reset();
}

bool SpeakingCharacter::LoadMerlin() {
    AppSettings& settings = rooms_.Settings;
    if (characters_.empty()) {
        settings.SpeechEnabled = 0;
        settings.SpeakPicture = 0;
        settings.SpeakWeekDay = 0;
        settings.SpeakDate = 0;
        return false;
    }
    const auto chosen = std::find(characters_.begin(), characters_.end(), settings.CharacterName);
    settings.CharacterName = chosen == characters_.end() ? characters_.front() : *chosen;
    auto read = ReadCharacter(settings.CharacterName);
    if (auto* const figure = std::get_if<CharacterFigure>(&read)) {
        AgentIni();
        EndTalk();
        Agent1->Unload();
        Agent1->Load(std::move(*figure));
        CurrentCharacter = settings.CharacterName;
        return true;
    }
    return AgentLoaded(); // the file has gone since it was looked at
}

// ---- which voice ----

// A language without a locale of its own has a voice all the same.
std::string SpeakingCharacter::VoiceLocale(int languageIndex) const {
    const auto id = LanguageIdOf(languageIndex);
    for (const LanguageVoice& voice : kVoices) {
        if (voice.LanguageId == id) {
            return std::string(voice.Locale);
        }
    }
    const bool fixed = languageIndex >= 0 && languageIndex < kFixedLanguages;
    return std::string(
        FixedLanguages()[static_cast<std::size_t>(fixed ? languageIndex : 0)].Locale);
}

// Characters are drawn and led by the program itself; only voices come from elsewhere.
bool SpeakingCharacter::CanCreate(const std::string& classId) {
    const auto language = LanguageOfEngine(classId);
    return !language || rooms_.Voice.HasVoice(VoiceLocale(*language));
}

void SpeakingCharacter::CheckSpeech(int languageIndex) {
    const int index = rooms_.Settings.LanguageIndex;
    bool complete = true;
    if (index != 0) {
        complete = CanCreate(ClassIdOf(kAgentLanguageIds, index)) &&
                   CanCreate(ClassIdOf(kSpeechEngineIds, index)) &&
                   CanCreate(std::string(kAgentControl)) && CanCreate(std::string(kSpeechSupport));
    } else {
        complete = CanCreate(std::string(kAgentControl)) && CanCreate(std::string(kEnglishEngine));
    }
    CheckCharacter();
    if (!complete && languageIndex < kGreekIndex &&
        rooms_.Boxes.Ask({rooms_.Texts.Text(texts::kProgramTitle),
                          rooms_.Texts.Text(texts::kDownloadSpeechParts), DialogIcon::Question},
                         {})) {
        GetForeignStuff(languageIndex);
    }
}

void SpeakingCharacter::GetForeignStuff(int languageIndex) {
    CheckCharacter();
    const auto pages = SpeechPages(
        languageIndex, {rooms_.WebAddress,
                        TextOf(rooms_.Texts, ProgramText::SpeechSetUpAdvice, CharacterFolder())});
    Status done = WriteSpeechPages(rooms_.Files, rooms_.Folder, pages);
    if (done) {
        done = rooms_.Desktop.OpenPage(rooms_.Folder + pages.front().Name);
    }
    if (!done) {
        rooms_.Boxes.Show(
            {rooms_.Texts.Text(texts::kMessengerTitle),
             TextOf(rooms_.Texts, ProgramText::SpeechPagesFailed) + "\n" + done.Failure().Text,
             DialogIcon::Critical});
    }
}

void SpeakingCharacter::FileCleanUp() {
    RemoveSpeechPages(rooms_.Files, rooms_.Folder);
}

// ---- speaking ----

void SpeakingCharacter::Show() {
    if (AgentLoaded()) {
        Agent1->Show();
    }
}

void SpeakingCharacter::Hide() {
    if (AgentLoaded()) {
        Agent1->Hide();
    }
}

void SpeakingCharacter::Speak(const std::string& text) {
    if (AgentLoaded()) {
        Agent1->Speak(text, VoiceLocale(rooms_.Settings.LanguageIndex));
    }
}

bool SpeakingCharacter::IsSpeaking() const {
    return talking_ || (AgentLoaded() && Agent1->Status() == AudioStatus::Speaking);
}

Result<SpokenSound> SpeakingCharacter::Record(const std::string& text) {
    return rooms_.Voice.Say(text, {VoiceLocale(rooms_.Settings.LanguageIndex),
                                   rooms_.Settings.SpeechPitch, rooms_.Settings.SpeechSpeed});
}

void SpeakingCharacter::SetStopSpeaking(bool stop) {
    stopSpeaking_ = stop;
    if (stop) {
        EndTalk();
    }
}

void SpeakingCharacter::Talk(const std::string& text, AfterSpeaking after) {
    if (!inCall_) {
        TalkAll({text, after});
    }
}

void SpeakingCharacter::TalkInCall(const std::string& text, AfterSpeaking after) {
    TalkAll({text, after});
}

void SpeakingCharacter::BeginCall() {
    EndTalk();
    inCall_ = true;
}

// Whoever is talking does so further down the stack, and finds out there.
void SpeakingCharacter::EndTalk() {
    ++endings_;
    talking_ = false;
    later_.clear();
}

void SpeakingCharacter::TalkAll(LongText text) {
    if (rooms_.Settings.SpeechEnabled == 0 || text.Text.empty() || !AgentLoaded()) {
        return;
    }
    later_.push_back(std::move(text));
    if (std::exchange(talking_, true)) {
        return;
    }
    const int begun = endings_;
    while (endings_ == begun && !later_.empty()) {
        const LongText next = std::move(later_.front());
        later_.pop_front();
        TalkOne(next);
    }
    if (endings_ == begun) {
        talking_ = false;
    }
    stopSpeaking_ = false;
}

// While it waits, anything may happen: the character may be hidden by somebody else who has spoken,
// exchanged, or even released.
void SpeakingCharacter::TalkOne(const LongText& text) {
    const int begun = endings_;
    for (const std::string& piece : CutLongPieces(CutSpeech(text.Text))) {
        if (endings_ != begun || !AgentLoaded()) {
            break;
        }
        Show();
        Speak(WithMarks(rooms_.Settings.SpeechPitch, rooms_.Settings.SpeechSpeed, piece));
        const bool spoken = rooms_.Loop.WaitUntil(
            [this] { return !AgentLoaded() || Agent1->Status() == AudioStatus::Available; },
            LongestPiece(piece));
        if (!spoken && endings_ == begun) {
            EndTalk(); // the program ends
        }
    }
    if (text.After == AfterSpeaking::Hide) {
        Hide();
    }
}

void SpeakingCharacter::TellTime(const std::string& text, AfterSpeaking after) {
    if (inCall_) {
        return;
    }
    Show();
    Speak(text);
    if (after == AfterSpeaking::Hide) {
        Hide();
    }
}

void SpeakingCharacter::Agent1_Click() {
    if (IsVisible()) {
        Agent1->Stop();
        Agent1->Hide();
        ++clicks_;
        SetStopSpeaking(true);
        return;
    }
    const WallTime now = rooms_.Time.Now();
    TellTime("The time is. " + TwoDigits(now.Hour) + ":" + TwoDigits(now.Minute) +
                 ".. Your Highness.",
             AfterSpeaking::Hide);
}

} // namespace kestrova
