// SPDX-License-Identifier: GPL-3.0-or-later
#include "phone/VoiceCaller.h"

#include "phone/VoiceCall.h"
#include "settings/ListChoices.h"

namespace kestrova {

VoiceCaller::VoiceCaller(const Rooms& rooms)
    : rooms_(rooms), line_(rooms.Port, rooms.Loop),
      probe_({line_, rooms.Files, rooms.Boxes, rooms.Texts, rooms.Settings, rooms.Folder}) {}

VoiceCaller::~VoiceCaller() {
    line_.End();
    line_.HangUp();
}

ModemState VoiceCaller::Modem() const {
    return HasModemPort(rooms_.Settings) && !off_ ? ModemState::On : ModemState::Off;
}

bool VoiceCaller::ModemPresent() {
    if (busy_) {
        return Modem() == ModemState::On;
    }
    busy_ = true;
    line_.Begin();
    const bool present = probe_.ModemPresent();
    if (present) {
        off_ = false;
        line_.HangUp();
    } else {
        line_.Close(); // what does not answer is not waited for once more
    }
    busy_ = false;
    return present;
}

bool VoiceCaller::SendMessage(const std::string& dialString, const std::string& message) {
    if (busy_ || line_.Ended()) {
        return false;
    }
    busy_ = true;
    line_.Begin();
    const KeptForCall kept(rooms_.Speech);
    const CallMode mode = rooms_.Settings.BeepAcknowledge != 0 ? CallMode::Beep : CallMode::Speak;
    VoiceCall call({line_, rooms_.Speech, rooms_.Texts, probe_.Script(), rooms_.Screen()},
                   {rooms_.Settings.ModemPort, dialString, message, mode},
                   [this] { return Modem(); });
    const bool done = call.SendMessage();
    busy_ = false;
    return done;
}

void VoiceCaller::Delay(int seconds) {
    if (!busy_) {
        line_.Begin();
    }
    line_.Rest(DelayTime(seconds));
}

// The character's words end with the piece that is being spoken. A click that acknowledges a spoken
// reminder must not be taken from anyone, so only words of the call are stopped.
void VoiceCaller::StopWords() {
    if (busy_ && rooms_.Speech.IsSpeaking()) {
        rooms_.Speech.SetStopSpeaking(true);
    }
}

void VoiceCaller::Stop() {
    if (busy_) {
        line_.Stop();
        StopWords();
    }
}

void VoiceCaller::End() {
    line_.End();
    StopWords();
}

} // namespace kestrova
