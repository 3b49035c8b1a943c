// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "diary/DiaryFile.h"
#include "diary/NotePlan.h"
#include "diary/SaveJournal.h"
#include "platform/Clock.h"
#include "platform/FileStore.h"

#include <memory>
#include <optional>
#include <set>
#include <string>

namespace kestrova {

// The folder under a diary folder that holds the diary file and the notes, and the diary file.
[[nodiscard]] std::string NoteFolder(const std::string& diaryFolder);
[[nodiscard]] std::string DiaryPath(const std::string& diaryFolder);

// A diary folder that is locked, with every save in it complete.
struct OpenDiary {
    std::unique_ptr<FileLock> Lock;
    std::optional<int> RolledTo; // a roll-over to this year that FinishRollOver has not closed yet
};

struct LoadedDiary {
    DiaryTable Table;
    std::optional<FileStamp> Stamp;
};

// A diary and its notes on the disc. Folders end in the separator. Open before reading or writing,
// and hold what it returns until done.
class DiaryFiles {
public:
    DiaryFiles(FileStore& files, const Clock& clock) : files_(files), clock_(clock) {}

    // Locks the folder and completes a save that a crash has cut short. Busy when someone else
    // holds it for longer than a moment, or it cannot be written (Exclusive).
    Result<OpenDiary> Open(const std::string& folder, LockKind kind);

    // NotFound, Busy, TooLarge, Damaged or Failed. Lines that no record uses are no damage, but the
    // file is kept aside before the next save could drop them.
    Result<LoadedDiary> Read(const std::string& folder);

    // Writes the diary and carries out what has become of its notes; a crash at any moment leaves
    // either none of it or all of it, once the folder is next opened. `rolledTo` marks a roll-over.
    Status Write(const std::string& folder, const DiaryTable& table, const NotePlan& notes,
                 std::optional<int> rolledTo);

    // Closes a roll-over, once the settings have its year too.
    Status FinishRollOver(const std::string& folder);

    [[nodiscard]] std::optional<FileStamp> Stamp(const std::string& folder) const {
        return files_.Stamp(DiaryPath(folder));
    }

    // The names of the notes in the folder.
    [[nodiscard]] std::set<std::string> NoteNames(const std::string& folder) const;

    // The text of a note; NotFound when it has none.
    Result<std::string> ReadNote(const std::string& folder, const std::string& name) const;

    // Keeps the diary file beside itself, by moving it or by copying it.
    Status MoveAside(const std::string& folder, std::string_view mark);
    Status CopyAside(const std::string& folder, std::string_view mark);

private:
    Result<SaveJournal> Plan(const std::string& folder, const NotePlan& notes) const;
    bool CarryOut(const std::string& folder, const SaveJournal& journal);
    std::optional<int> CompleteSave(const std::string& folder);

    FileStore& files_;
    const Clock& clock_;
};

} // namespace kestrova
