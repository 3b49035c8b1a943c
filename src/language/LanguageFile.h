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

// Far beyond what eight languages, or eighty, take.
inline constexpr std::size_t kLanguageFileLimit = std::size_t{16} << 20U;

// The names of the whole blocks, as their headings have them: with the blank before "Language". A
// block that the file's end cuts short is not among them.
[[nodiscard]] std::vector<std::string> LanguageNames(std::string_view bytes);

// The block with this number, counted from 0 over all headings. NotFound when the file has no such
// block; Damaged when it ends early or a field cannot be converted.
[[nodiscard]] Result<StringTable> ReadLanguage(std::string_view bytes, int block);

} // namespace kestrova
