// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "diary/DiaryTable.h"

#include <functional>
#include <optional>
#include <string>

namespace kestrova {

// Every note of a diary as one text for people to read: before each note a line that says whose it
// is, "1 2026-05-14 09:00 Dentist". `read` gives the bytes of the note file of a name, and nothing
// where there is none. Empty when no note holds anything.
[[nodiscard]] std::string
NoteArchive(const DiaryTable& table, int baseYear,
            const std::function<std::optional<std::string>(const std::string& name)>& read);

} // namespace kestrova
