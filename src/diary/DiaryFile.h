// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "diary/DiaryTable.h"
#include "platform/Result.h"

#include <string>
#include <string_view>

namespace kestrova {

// "DiaryDat/Data.dat": 9,152 records of ten lines and nothing else, in the order year index, month
// 0-12, day 0-31, slot 0-10. A record's lines: hour, minute, message, repeat, reminder, hide, the
// four extras. A number stands between a blank (or a minus sign) and a blank; a text is its whole
// line.

// A full diary is some ten megabytes; what is far beyond is no diary.
inline constexpr std::size_t kDiaryFileLimit = std::size_t{256} << 20U;

enum class DiaryEnd {
    Exact,    // the file ends after its last record
    MoreLines // there are lines that no record uses
};

// Reads the bytes into the stored slots of the table; the other slots keep what they hold. Damaged
// when the file is short or a number is none, or does not fit 16 bits; the records before that are
// in the table then.
Result<DiaryEnd> ReadDiary(std::string_view bytes, DiaryTable& table);

// The bytes of the file.
[[nodiscard]] std::string WriteDiary(const DiaryTable& table);

} // namespace kestrova
