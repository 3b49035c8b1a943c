// SPDX-License-Identifier: GPL-3.0-or-later
#include "phone/VoiceDialogue.h"

#include "language/ProgramTexts.h"
#include "phone/LineSound.h"
#include "phone/ModemProbe.h"

#include <chrono>

namespace kestrova {

namespace {

constexpr int kPrompts = 4;
constexpr int kBeepings = 9;
constexpr int kListenAfterWords = 4; // seconds
constexpr int kListenAfterBeeps = 5;
constexpr std::string_view kNoReply = "ERR = ";

// Eight thousand samples a second do not pass at the port's usual speed. A modem on a real line
// follows the speed of the commands; one on USB does not care.
constexpr std::string_view kVoicePortSettings = "115200,N,8,1";

// A voice that never says that it is done would keep the line, and the caller's money, for ever.
std::chrono::milliseconds LongestSpeech(const std::string& words) {
    using namespace std::chrono_literals;
    return 60s + 100ms * static_cast<int>(words.size());
}

} // namespace

Reply VoiceDialogue::ModemCommand(const std::string& command) {
    const Reply reply = rooms_.Line.Command(command);
    if (reply == Reply::Error && !rooms_.Line.Stopped()) {
        rooms_.Screen.Print(std::string(kNoReply));
    }
    return reply;
}

Reply VoiceDialogue::EndSound() {
    const Reply reply = rooms_.Line.EndSound();
    if (reply == Reply::Error && !rooms_.Line.Stopped()) {
        rooms_.Screen.Print(std::string(kNoReply));
    }
    return reply;
}

// A modem that is made to take sound where there is none to send is at once led out of that.
Reply VoiceDialogue::RunLine(int number, Sound sound) {
    const std::string& command = rooms_.Script.Line(number);
    if (command.empty()) {
        return Reply::Ok;
    }
    const Reply reply = ModemCommand(command);
    return reply == Reply::Connect && sound == Sound::End ? EndSound() : reply;
}

Reply VoiceDialogue::RunLines(ScriptLines lines) {
    for (int number = lines.First; number <= lines.Last; ++number) {
        if (RunLine(number, Sound::End) == Reply::Error) {
            return Reply::Error;
        }
    }
    return Reply::Ok;
}

Reply VoiceDialogue::InitModem(const std::string& port) {
    const Status opened = rooms_.Line.Open(
        port, TransmitLine(rooms_.Script) != 0 ? kVoicePortSettings : kPortSettings);
    if (!opened) {
        rooms_.Screen.Print(std::string(kNoReply) + opened.Failure().Text);
        return Reply::Error;
    }
    if (ModemCommand("ATV1Q0 E1") == Reply::Error) {
        return Reply::Error;
    }
    return RunLines(ModemScript::kSetUp);
}

Reply VoiceDialogue::DialNumber(const std::string& dialString) {
    if (RunLines(ModemScript::kBeforeDialling) == Reply::Error ||
        ModemCommand(dialString) == Reply::Error) {
        return Reply::Error;
    }
    return RunLines(ModemScript::kAfterDialling);
}

Reply VoiceDialogue::SayThroughLine(const std::string& words, AfterSpeaking after, bool& keyHeard) {
    const auto recorded = rooms_.Speech.Record(words);
    const LineFormat format = FormatOf(rooms_.Script);
    const std::string bytes = recorded ? LineBytes(recorded.Value(), format) : std::string();
    if (bytes.empty()) {
        // No voice: the character may have other means than the recording.
        return EndSound() == Reply::Error ? Reply::Error : SayThroughCard(words, after);
    }
    const Heard heard = rooms_.Line.SendSound(bytes, format.Rate);
    keyHeard = heard == Heard::Key;
    return heard == Heard::Gone ? Reply::Error : EndSound();
}

Reply VoiceDialogue::SayThroughCard(const std::string& words, AfterSpeaking after) {
    rooms_.Speech.TalkInCall(words, after);
    rooms_.Line.WaitFor([this] { return !rooms_.Speech.IsSpeaking(); }, LongestSpeech(words));
    return rooms_.Line.Stopped() ? Reply::Error : Reply::Ok;
}

Reply VoiceDialogue::Say(const std::string& words, AfterSpeaking after, bool& keyHeard) {
    keyHeard = false;
    const int transmit = TransmitLine(rooms_.Script);
    Reply reply = Reply::Ok;
    for (int number = ModemScript::kBeforeWords.First;
         number <= ModemScript::kBeforeWords.Last && reply != Reply::Error; ++number) {
        reply = RunLine(number, number == transmit ? Sound::Keep : Sound::End);
        if (reply == Reply::Connect) {
            break; // the last of them
        }
    }
    if (reply == Reply::Error) {
        return reply;
    }
    reply = reply == Reply::Connect ? SayThroughLine(words, after, keyHeard)
                                    : SayThroughCard(words, after);
    return reply == Reply::Error ? reply : RunLines(ModemScript::kAfterWords);
}

// Calls out and listens, until the key is heard or so many attempts have been made.
Reply VoiceDialogue::UntilKey(int attempts, int listenSeconds,
                              const std::function<Reply(bool&)>& call) {
    for (int attempt = 1; attempt <= attempts; ++attempt) {
        bool keyHeard = false;
        if (call(keyHeard) == Reply::Error) {
            return Reply::Error;
        }
        const Heard heard = keyHeard ? Heard::Key : rooms_.Line.Listen(listenSeconds);
        if (heard == Heard::Gone) {
            return Reply::Error;
        }
        if (heard == Heard::Key) {
            return attempt < attempts ? Reply::Ok : Reply::Error;
        }
    }
    return Reply::Error;
}

Reply VoiceDialogue::AskWith(const std::string& words) {
    return UntilKey(kPrompts, kListenAfterWords,
                    [&](bool& keyHeard) { return Say(words, AfterSpeaking::Stay, keyHeard); });
}

Reply VoiceDialogue::AskToReceive() {
    return AskWith(TextOf(rooms_.Texts, ProgramText::CallAsksToReceive));
}

Reply VoiceDialogue::GiveMessage(const std::string& message) {
    return AskWith(TextOf(rooms_.Texts, ProgramText::CallMessage, message));
}

Reply VoiceDialogue::SayGoodbye() {
    bool keyHeard = false;
    return Say(TextOf(rooms_.Texts, ProgramText::CallAccepted), AfterSpeaking::Hide, keyHeard);
}

Reply VoiceDialogue::Beep() {
    const Reply reply = RunLines(ModemScript::kBeeps);
    return reply == Reply::Error ? reply : RunLines(ModemScript::kAfterBeeps);
}

Reply VoiceDialogue::SendBeeps() {
    return UntilKey(kBeepings, kListenAfterBeeps, [this](bool& /*keyHeard*/) { return Beep(); });
}

} // namespace kestrova
