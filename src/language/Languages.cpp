// SPDX-License-Identifier: GPL-3.0-or-later
#include "language/Languages.h"

#include "language/LanguageFile.h"
#include "text/Numbers.h"

namespace kestrova {

const std::array<FixedLanguage, kFixedLanguages>& FixedLanguages() {
    static constexpr std::array<FixedLanguage, kFixedLanguages> kList = {{
        {"English", "&English"},
        {"Français", "&Francais"},
        {"Deutsch", "&Deutsch"},
        {"Espanol", "E&spanol"},
        {"Português", "&Portugues"},
        {"Italiano", "&Italiano"},
        {"Nederlands", "&Nederlands"},
        {"Greek", "&Greek"},
    }};
    return kList;
}

void Languages::GetLanguage(int& languageIndex) {
    choices_ = {};
    const auto bytes = files_.Read(path_, kLanguageFileLimit);
    if (bytes) {
        choices_.Names = LanguageNames(bytes.Value());
    }
    if (choices_.Names.empty()) {
        choices_.Names = {"English"};
        table_ = MsgDefaults();
        return;
    }
    for (const std::string& name : choices_.Names) {
        for (std::size_t i = 0; i < kFixedLanguages; ++i) {
            if (Trim(name) == FixedLanguages()[i].Name) {
                choices_.Enabled[i] = true;
            }
        }
    }
    LoadLanguage(bytes.Value(), languageIndex);
    Check(languageIndex);
}

bool Languages::ChangeLanguage(int& languageIndex) {
    const auto bytes = files_.Read(path_, kLanguageFileLimit);
    bool loaded = false;
    if (bytes) {
        loaded = LoadLanguage(bytes.Value(), languageIndex);
    } else {
        languageIndex = 0;
        table_ = MsgDefaults();
    }
    choices_.Checked =
        languageIndex < kFixedLanguages ? std::optional(languageIndex) : std::nullopt;
    return loaded;
}

bool Languages::LoadLanguage(std::string_view bytes, int& languageIndex) {
    auto loaded = ReadLanguage(bytes, languageIndex);
    if (loaded) {
        table_ = std::move(loaded.Value());
    } else if (loaded.Failure().Code == ErrorCode::Damaged) {
        languageIndex = 0;
        table_ = MsgDefaults();
    }
    return loaded.Ok();
}

void Languages::Check(int languageIndex) {
    const auto index = static_cast<std::size_t>(languageIndex);
    if (index < choices_.Names.size() && index < kFixedLanguages &&
        Trim(choices_.Names[index]) == FixedLanguages()[index].Name) {
        choices_.Checked = languageIndex;
    }
}

} // namespace kestrova
