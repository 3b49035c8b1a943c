// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kestrova {

// What is to follow the replacing of a diary file. Events and their notes lie in different files,
// and a roll-over concerns the settings too, so a crash could part what belongs together. Before
// the diary file is replaced, the rest of the work is written down beside it, with the digest of
// the bytes that the diary file is about to have. Whoever finds that paper compares: when the diary
// file has that digest, the rest is done (again, if need be: doing it twice is harmless); else the
// save never took place, and the paper is thrown away.
//
// The file "Saving.tmp": the line "Kestrova save 2"; the lines "digest N", "size N" and, for a
// roll-over, "year N"; the texts that notes are to have, each once, "text LENGTH" followed by that
// many bytes and a line end; for each note file that changes, "gone NAME" or "note NAME N", where N
// counts the texts from 0; the line "end". Numbers are decimal. Lines end in LF.
struct SaveJournal {
    std::uint64_t DiaryDigest = 0;
    std::uint64_t DiarySize = 0;    // bytes
    std::optional<int> RolledTo;    // the base year after this save, when it is a roll-over
    std::vector<std::string> Texts; // many notes of a repeated event share one
    std::map<std::string, std::optional<std::size_t>> Notes; // its text; nothing: it is to go

    bool operator==(const SaveJournal&) const = default;

    // Whether these are the bytes of the diary file that the journal belongs to.
    [[nodiscard]] bool BelongsTo(std::string_view diaryBytes) const;
};

[[nodiscard]] std::string WriteJournal(const SaveJournal& journal);

// Nothing when the bytes are not a whole journal, or name a file that is no note.
[[nodiscard]] std::optional<SaveJournal> ReadJournal(std::string_view bytes);

} // namespace kestrova
