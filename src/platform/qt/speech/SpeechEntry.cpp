// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/qt/speech/EspeakVoice.h"
#include "platform/qt/speech/SpeechFactory.h"
#include "platform/qt/speech/SvgArt.h"

namespace kestrova {

namespace {

class LinuxSpeech : public SpeechFactory {
public:
    VoiceEngine& Voice() override { return voice_; }
    VectorArt& Art() override { return art_; }

private:
    EspeakVoice voice_;
    SvgArt art_;
};

} // namespace

extern "C" [[gnu::visibility("default")]] SpeechFactory* KestrovaSpeech1() {
    static LinuxSpeech speech;
    return &speech;
}

} // namespace kestrova
