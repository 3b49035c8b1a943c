// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/qt/speech/EspeakVoice.h"

#include <espeak-ng/speak_lib.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstring>
#include <future>
#include <memory>
#include <string_view>
#include <system_error>
#include <thread>

namespace kestrova {

namespace {

using namespace std::chrono_literals;

// A sentence takes milliseconds, a page a moment.
constexpr auto kLongestWork = 10s;
constexpr std::size_t kLongestText = 100'000;    // bytes
constexpr std::size_t kMostSamples = 40'000'000; // half an hour

// The settings reach over three octaves, from a deep voice up, and the engine, whose middle is 50,
// over less than two: the deepest ones of it sound like nobody.
constexpr double kLowestPitch = 50;
constexpr double kPitchOctaves = 3;
constexpr double kDeepest = 32;
constexpr double kHighest = 99;

// Words a minute. At the speed that the settings begin with the engine should not drawl.
constexpr double kSlowest = 50;
constexpr double kSlowestRate = 90;
constexpr double kRateAStep = 1.4;

int EnginePitch(int pitch) {
    const double octaves = std::log2(std::max(pitch, 1) / kLowestPitch) / kPitchOctaves;
    return static_cast<int>(
        std::lround(kDeepest + std::clamp(octaves, 0.0, 1.0) * (kHighest - kDeepest)));
}

int EngineRate(int speed) {
    return std::clamp(static_cast<int>(std::lround(kSlowestRate + (speed - kSlowest) * kRateAStep)),
                      espeakRATE_MINIMUM, espeakRATE_MAXIMUM);
}

// "pt_BR" is "pt-br" there.
std::string VoiceName(const std::string& locale) {
    std::string name = locale;
    std::transform(name.begin(), name.end(), name.begin(), [](char c) {
        return c == '_' ? '-' : static_cast<char>(c >= 'A' && c <= 'Z' ? c | 0x20 : c);
    });
    return name;
}

void TakeEvent(const espeak_EVENT& event, SpokenSound& sound) {
    if (event.type != espeakEVENT_PHONEME || event.sample < 0) {
        return;
    }
    const char* const name = event.id.string;
    std::string_view phoneme(name, ::strnlen(name, sizeof event.id.string));
    if (phoneme.starts_with('_')) {
        phoneme = {}; // a pause
    }
    sound.Mouth.push_back({static_cast<std::size_t>(event.sample), std::string(phoneme)});
}

// What is called back while it speaks; a value other than 0 makes it stop.
int Take(short* samples, int count, espeak_EVENT* events) noexcept {
    auto* const sound = static_cast<SpokenSound*>(events->user_data);
    if (sound == nullptr) {
        return 0;
    }
    if (samples != nullptr) {
        sound->Samples.insert(sound->Samples.end(), samples, samples + count);
    }
    for (; events->type != espeakEVENT_LIST_TERMINATED; ++events) {
        TakeEvent(*events, *sound);
    }
    return sound->Samples.size() > kMostSamples ? 1 : 0;
}

// The rate of its samples, the engine being made for that at the first call; 0 when it cannot be.
int Rate() {
    static const int kRate =
        espeak_Initialize(AUDIO_OUTPUT_SYNCHRONOUS, 0, nullptr,
                          espeakINITIALIZE_PHONEME_EVENTS | espeakINITIALIZE_DONT_EXIT);
    return std::max(kRate, 0);
}

bool Choose(const std::string& locale) {
    return Rate() > 0 && espeak_SetVoiceByName(VoiceName(locale).c_str()) == EE_OK;
}

Result<SpokenSound> Speak(const std::string& text, const VoiceChoice& choice) {
    if (!Choose(choice.Locale)) {
        return Error{ErrorCode::NotFound, choice.Locale};
    }
    espeak_SetParameter(espeakPITCH, EnginePitch(choice.Pitch), 0);
    espeak_SetParameter(espeakRATE, EngineRate(choice.Speed), 0);
    espeak_SetSynthCallback(Take);
    SpokenSound sound;
    sound.Rate = Rate();
    const auto spoken = espeak_Synth(text.c_str(), text.size() + 1, 0, POS_CHARACTER, 0,
                                     espeakCHARS_UTF8, nullptr, &sound);
    if (spoken != EE_OK) {
        return Error{ErrorCode::Failed, choice.Locale};
    }
    return sound;
}

} // namespace

// False when it has not come to an end in time.
bool EspeakVoice::Do(std::function<void()> work) {
    if (stuck_) {
        return false;
    }
    std::packaged_task<void()> task(std::move(work));
    const auto done = task.get_future();
    try {
        std::thread(std::move(task)).detach();
    } catch (const std::system_error&) {
        return false; // the machine has no room for another thread
    }
    stuck_ = done.wait_for(kLongestWork) != std::future_status::ready;
    return !stuck_;
}

bool EspeakVoice::HasVoice(const std::string& locale) {
    const auto found = std::make_shared<bool>(false);
    return Do([found, locale] { *found = Choose(locale); }) && *found;
}

Result<SpokenSound> EspeakVoice::Say(const std::string& text, const VoiceChoice& choice) {
    if (text.size() > kLongestText) {
        return Error{ErrorCode::TooLarge, choice.Locale};
    }
    const auto said = std::make_shared<Result<SpokenSound>>(Error{ErrorCode::Busy, choice.Locale});
    const bool done = Do([said, choice, text] { *said = Speak(text, choice); });
    return done ? std::move(*said) : Error{ErrorCode::Busy, choice.Locale};
}

} // namespace kestrova
