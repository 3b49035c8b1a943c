// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "diary/DiaryTable.h"

#include <optional>
#include <string>

namespace kestrova {

// The name of the file that holds an event's note, made of the event's place: "BBAA.txt" for slot 1
// of 1 January of the base year. No two places share a name, also where case does not count.
[[nodiscard]] std::string GetFile(const SlotPlace& place);

// Whether a file's name is one that GetFile gives for some place.
[[nodiscard]] bool IsNoteName(const std::string& name);

// The name that GetFile gives for the note in a file whose name may have lost its case on the way
// from another system; nothing when the file is no note.
[[nodiscard]] std::optional<std::string> NoteNameOf(const std::string& fileName);

} // namespace kestrova
