// SPDX-License-Identifier: GPL-3.0-or-later
#include "language/Languages.h"

#include "language/LanguageFile.h"
#include "text/Numbers.h"

#include <algorithm>

namespace kestrova {

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
        if (const auto fixed = FixedLanguageOf(name)) {
            choices_.Enabled[static_cast<std::size_t>(*fixed)] = true;
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
    if (index < choices_.Names.size() && FixedLanguageOf(choices_.Names[index]) == languageIndex) {
        choices_.Checked = languageIndex;
    }
}

bool Languages::Has(std::string_view name) const {
    const auto bytes = files_.Read(path_, kLanguageFileLimit);
    const auto names = bytes ? LanguageNames(bytes.Value()) : std::vector<std::string>();
    return std::any_of(names.begin(), names.end(),
                       [&](const std::string& other) { return Trim(other) == Trim(name); });
}

Status Languages::Save(std::string_view name, const StringTable& language) {
    const auto bytes = files_.Read(path_, kLanguageFileLimit);
    if (!bytes && bytes.Failure().Code != ErrorCode::NotFound) {
        return bytes.Failure();
    }
    return files_.Replace(path_, PutLanguage(bytes ? bytes.Value() : "", name, language));
}

std::optional<int> Languages::IndexInAny(const ItemList& list, std::string_view text) const {
    if (const auto index = IndexOf(MsgDefaults(), list, text)) {
        return index;
    }
    const auto bytes = files_.Read(path_, kLanguageFileLimit);
    if (!bytes) {
        return std::nullopt;
    }
    const int blocks = static_cast<int>(LanguageNames(bytes.Value()).size());
    for (int block = 0; block < blocks; ++block) {
        const auto table = ReadLanguage(bytes.Value(), block);
        const auto index = table ? IndexOf(table.Value(), list, text) : std::nullopt;
        if (index) {
            return index;
        }
    }
    return std::nullopt;
}

} // namespace kestrova
