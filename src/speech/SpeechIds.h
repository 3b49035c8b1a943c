// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

namespace kestrova {

// By which names the parts that speech takes are known, one of each for a language of the fixed
// list. Greek, the last, has none.
inline constexpr std::size_t kSpeechLanguages = 7;
extern const std::array<std::string_view, kSpeechLanguages> kSpeechEngineIds;  // SpeechEngineIds
extern const std::array<std::string_view, kSpeechLanguages> kAgentLanguageIds; // AgentLanguageIds
extern const std::array<std::string_view, kSpeechLanguages> kLanguageLocales;  // LanguageLocales

// Those that serve every language, as they are asked for.
inline constexpr std::string_view kAgentControl = "CLSID:D45FD31B-5C6E-11D1-9EC1-00C04FD7081F";
inline constexpr std::string_view kEnglishEngine = "CLSID:B8F2846E-CE36-11D0-AC83-00C04FD97575";
inline constexpr std::string_view kSpeechSupport = "CLSID:0C7F3F20-8BAB-11d2-9432-00C04F8EF48F";

// "CLSID:" and the id of a language out of one of the tables; only "CLSID:" where it has none.
[[nodiscard]] std::string ClassIdOf(const std::array<std::string_view, kSpeechLanguages>& ids,
                                    int languageIndex);

// The language whose engine has this class id, as an index of the fixed list.
[[nodiscard]] std::optional<int> LanguageOfEngine(std::string_view classId);

// The number that a locale text of the table stands for: "&H409" is 0x409.
[[nodiscard]] std::optional<int> LanguageIdOf(int languageIndex);

} // namespace kestrova
