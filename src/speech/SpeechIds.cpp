// SPDX-License-Identifier: GPL-3.0-or-later
#include "speech/SpeechIds.h"

#include <charconv>

namespace kestrova {

const std::array<std::string_view, kSpeechLanguages> kSpeechEngineIds = {
    "B8F2846E-CE36-11D0-AC83-00C04FD97575", "1D87F5B4-05F1-11d2-AD7C-0000F8799342",
    "1D87F5B5-05F1-11d2-AD7C-0000F8799342", "1D87F5B9-05F1-11d2-AD7C-0000F8799342",
    "1D87F5BA-05F1-11d2-AD7C-0000F8799342", "1D87F5B6-05F1-11d2-AD7C-0000F8799342",
    "1D87F5B3-05F1-11d2-AD7C-0000F8799342"};

const std::array<std::string_view, kSpeechLanguages> kAgentLanguageIds = {
    "",
    "C348040C-A7F8-11D1-AA75-00C04FA34D72",
    "C3480407-A7F8-11D1-AA75-00C04FA34D72",
    "C3480C0A-A7F8-11D1-AA75-00C04FA34D72",
    "C3480416-A7F8-11D1-AA75-00C04FA34D72",
    "C3480410-A7F8-11D1-AA75-00C04FA34D72",
    "C3480413-A7F8-11D1-AA75-00C04FA34D72"};

const std::array<std::string_view, kSpeechLanguages> kLanguageLocales = {
    "&H409", "&H40C", "&H407", "&HC0A", "&H416", "&H410", "&H413"};

namespace {

bool IsIndex(int languageIndex) {
    return languageIndex >= 0 && languageIndex < static_cast<int>(kSpeechLanguages);
}

} // namespace

std::string ClassIdOf(const std::array<std::string_view, kSpeechLanguages>& ids,
                      int languageIndex) {
    std::string id = "CLSID:";
    if (IsIndex(languageIndex)) {
        id += ids[static_cast<std::size_t>(languageIndex)];
    }
    return id;
}

std::optional<int> LanguageOfEngine(std::string_view classId) {
    for (int index = 0; index < static_cast<int>(kSpeechLanguages); ++index) {
        if (ClassIdOf(kSpeechEngineIds, index) == classId) {
            return index;
        }
    }
    return std::nullopt;
}

std::optional<int> LanguageIdOf(int languageIndex) {
    if (!IsIndex(languageIndex)) {
        return std::nullopt;
    }
    constexpr int kHexadecimal = 16;
    const std::string_view digits =
        kLanguageLocales[static_cast<std::size_t>(languageIndex)].substr(2); // behind "&H"
    int number = 0;
    std::from_chars(digits.data(), digits.data() + digits.size(), number, kHexadecimal);
    return number;
}

} // namespace kestrova
