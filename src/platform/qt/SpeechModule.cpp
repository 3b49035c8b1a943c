// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/qt/SpeechModule.h"

#include "platform/qt/QtText.h"
#include "platform/qt/speech/SpeechFactory.h"

#include <QCoreApplication>
#include <QLibrary>

namespace kestrova {

std::string SpeechModule::ShippedPath() {
    return FromQt(QCoreApplication::applicationDirPath() + QStringLiteral("/kestrova_speech.so"));
}

SpeechFactory* SpeechModule::Load() {
    if (factory_ != nullptr || !trouble_.empty()) {
        return factory_;
    }
    QLibrary library(ToQt(path_));
    // A thread of the voice may outlive this object.
    library.setLoadHints(QLibrary::PreventUnloadHint);
    const auto entry = reinterpret_cast<SpeechEntry>(library.resolve(kSpeechEntryName));
    if (entry == nullptr) {
        trouble_ = FromQt(library.errorString());
        return nullptr;
    }
    factory_ = entry();
    return factory_;
}

bool SpeechModule::HasVoice(const std::string& locale) {
    SpeechFactory* const factory = Load();
    return factory != nullptr && factory->Voice().HasVoice(locale);
}

Result<SpokenSound> SpeechModule::Say(const std::string& text, const VoiceChoice& choice) {
    SpeechFactory* const factory = Load();
    if (factory == nullptr) {
        return Error{ErrorCode::NotFound, trouble_};
    }
    return factory->Voice().Say(text, choice);
}

bool SpeechModule::Draw(const std::string& svg, const PixelRows& target) {
    SpeechFactory* const factory = Load();
    return factory != nullptr && factory->Art().Draw(svg, target);
}

} // namespace kestrova
