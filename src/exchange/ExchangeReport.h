// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "exchange/DiaryImport.h"

#include <string>

namespace kestrova {

struct ExportTally {
    int Written = 0;      // events of the diary, each copy of a repeating one
    int LeftOut = 0;      // at no date and time that exist
    int NotesLeftOut = 0; // because they are no text
};

// What has been done, for the user, a line for each count that is not zero.
[[nodiscard]] std::string ReportOf(const StringTable& texts, const ExportTally& tally);
[[nodiscard]] std::string ReportOf(const StringTable& texts, const ImportTally& tally);

// What would be done, as a question.
[[nodiscard]] std::string QuestionOf(const StringTable& texts, const ImportTally& tally);

} // namespace kestrova
