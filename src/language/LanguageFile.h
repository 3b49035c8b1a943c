// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "language/StringTable.h"
#include "platform/Result.h"

#include <string>
#include <string_view>
#include <vector>

namespace kestrova {

// "Lan.dat": language blocks and nothing else, each of 342 fields, one a line. The first is the
// heading, the language's name and " Language". Then: font name; size, bold and italic ("True" or
// "False") of the month title; for each month its name and its menu caption; the seven day names
// from Monday; the 306 texts, group by group.
inline constexpr std::string_view kHeadingEnd = "Language";
inline constexpr int kFieldsAfterHeading = 341;

// A longer text, in bytes, is none: its block cannot be read.
inline constexpr std::size_t kLongestText = 2000;

// The size of the month title in points: what no screen shows is as wrong as what is no number.
inline constexpr float kLeastTitleSize = 1;
inline constexpr float kGreatestTitleSize = 200;

// A longer heading, in bytes, is none.
inline constexpr std::size_t kLongestHeading = 200;

// Far beyond what eight languages, or eighty, take.
inline constexpr std::size_t kLanguageFileLimit = std::size_t{16} << 20U;

// A text as one field: within quotes when it holds a comma or begins with a quote, which a field
// cannot otherwise (a quote in it becomes a typographic one); as it is in all other cases.
[[nodiscard]] std::string AsField(std::string_view text);

// The names of the whole blocks, as their headings have them: with the blank before "Language". A
// block that the file's end cuts short is not among them.
[[nodiscard]] std::vector<std::string> LanguageNames(std::string_view bytes);

// The block with this number, counted from 0 over all headings. What a block leaves empty is
// English, so that a translation under way can be used. NotFound when the file has no such block;
// Damaged when it ends early or a field cannot be converted.
[[nodiscard]] Result<StringTable> ReadLanguage(std::string_view bytes, int block);

// The file with this language in it: in the place of the whole block of that name, else after the
// whole blocks. No other byte is changed; a last block that is cut short goes on being the last.
[[nodiscard]] std::string PutLanguage(std::string_view bytes, std::string_view name,
                                      const StringTable& language);

} // namespace kestrova
