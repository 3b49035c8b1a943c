// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "language/FixedLanguages.h"
#include "language/ItemLists.h"
#include "language/StringTable.h"
#include "platform/FileStore.h"

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kestrova {

// What the user may choose from, as the language file has it.
struct LanguageChoices {
    std::vector<std::string>
        Names; // of the blocks, in file order, untrimmed; "English" without one
    std::array<bool, kFixedLanguages> Enabled{}; // items of the language menu
    std::optional<int> Checked;                  // the item of the language in use
};

// The choice of language: reads "Lan.dat" and fills the string table from it.
class Languages {
public:
    // `path` is that of the language file; the table is written when a language is loaded.
    Languages(FileStore& files, std::string path, StringTable& table)
        : files_(files), path_(std::move(path)), table_(table) {}

    // Reads the choices and loads the block of this index, which is set to 0 when that block is
    // damaged. A file that is missing, unreadable or holds no whole block gives the built-in
    // English; an index without a block leaves the texts as they are.
    void GetLanguage(int& languageIndex);

    // Loads the block of this index after the user has picked it, by the same rules. Returns
    // whether there was such a block.
    bool ChangeLanguage(int& languageIndex);

    // Whether the file has a language of this name, blanks around it ignored.
    [[nodiscard]] bool Has(std::string_view name) const;

    // Writes a language into the file: in the place of the block of that name, else as a new one
    // after the others. A file that cannot be read is not replaced.
    Status Save(std::string_view name, const StringTable& language);

    // Where a text stands in a list of any language that there is, the built-in English first.
    [[nodiscard]] std::optional<int> IndexInAny(const ItemList& list, std::string_view text) const;

    [[nodiscard]] const LanguageChoices& Choices() const { return choices_; }

private:
    bool LoadLanguage(std::string_view bytes, int& languageIndex);
    void Check(int languageIndex);

    FileStore& files_;
    std::string path_;
    StringTable& table_;
    LanguageChoices choices_;
};

} // namespace kestrova
