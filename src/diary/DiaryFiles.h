// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "diary/DiaryFile.h"
#include "diary/NotePlan.h"
#include "diary/SaveJournal.h"
#include "platform/Clock.h"
#include "platform/FileStore.h"

#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace kestrova {

// The folder under a diary folder that holds the diary file and the notes, and the diary file:
// "DiaryDat/Data.dat", in whatever case it stands there. Notes belong to their diary, so that
// looking at a friend's can never rename or delete one's own.
[[nodiscard]] std::string NoteFolder(const FileStore& files, const std::string& diaryFolder);
[[nodiscard]] std::string DiaryPath(const FileStore& files, const std::string& diaryFolder);

// The files of such a folder that are notes, by the name of the note. Looked up one by one, many
// notes would mean as many looks through the whole folder. Where several files differ in case
// alone, the first is the one that counts.
[[nodiscard]] std::map<std::string, std::vector<std::string>>
NoteFiles(const FileStore& files, const std::string& noteFolder);

// How long opening a diary waits for whoever holds it: a moment, which the user does not notice, or
// not at all.
enum class LockPatience { Moment, None };

struct LoadedDiary {
    DiaryTable Table;
    std::optional<FileStamp> Stamp;
};

// A diary and its notes on the disc. Folders end in the separator. Open before reading or writing,
// and hold what it returns until done.
class DiaryFiles {
public:
    // Larger than anything that people write, small enough to be held in memory.
    static constexpr std::size_t kJournalLimit = std::size_t{1} << 30U; // bytes

    DiaryFiles(FileStore& files, const Clock& clock, std::size_t journalLimit = kJournalLimit)
        : files_(files), clock_(clock), journalLimit_(journalLimit) {}

    // Locks the folder and completes a save that a crash has cut short. Busy when someone else
    // holds it for longer than is waited, or it cannot be written (Exclusive). Failed (Exclusive)
    // when such a save cannot be completed now: writing on would lose its notes.
    Result<std::unique_ptr<FileLock>> Open(const std::string& folder, LockKind kind,
                                           LockPatience patience = LockPatience::Moment);

    // NotFound, Busy, TooLarge, Damaged or Failed. Lines that no record uses are no damage.
    [[nodiscard]] Result<LoadedDiary> Read(const std::string& folder) const;

    // Writes the diary and carries out what has become of its notes; a crash at any moment leaves
    // either none of it or all of it, once the folder is next opened. A file with lines that no
    // record uses is kept aside, since this drops them. TooLarge, and nothing is written, when more
    // notes change than a later start could take up again. `rolledTo` is the base year after a
    // roll-over.
    Status Write(const std::string& folder, const DiaryTable& table, const NotePlan& notes,
                 std::optional<int> rolledTo = std::nullopt);

    // The base year to which the diary was last rolled over; nothing when it never was. It stands
    // in "Year.dat" beside the diary, so that of several programs that use one diary over New Year
    // only one rolls it over.
    [[nodiscard]] std::optional<int> RolledTo(const std::string& folder) const;

    [[nodiscard]] std::optional<FileStamp> Stamp(const std::string& folder) const {
        return files_.Stamp(DiaryPath(files_, folder));
    }

    // The names of the notes in the folder.
    [[nodiscard]] std::set<std::string> NoteNames(const std::string& folder) const;

    // The names of those notes in the folder that are not empty, out of these.
    [[nodiscard]] std::set<std::string> NotesWithText(const std::string& folder,
                                                      const std::set<std::string>& names) const;

    // The bytes of a note: NotFound when there is none, TooLarge when it has more than `limit`.
    Result<std::string> ReadNote(const std::string& folder, const std::string& name,
                                 std::size_t limit = kNoteLimit) const;

    // Writes or removes one note and nothing else.
    Status WriteNote(const std::string& folder, const std::string& name, std::string_view bytes);
    Status RemoveNote(const std::string& folder, const std::string& name);

    // Keeps a note that is about to be lost, if it holds anything, as a file of its own beside the
    // notes ("Notes left ....txt").
    Status KeepNoteAside(const std::string& folder, const std::string& name);

    // Writes a table beside the diary file, as it would be kept aside.
    Status WriteAside(const std::string& folder, std::string_view mark, const DiaryTable& table);

    // Keeps the diary file beside itself, by moving it or by copying it.
    Status MoveAside(const std::string& folder, std::string_view mark);
    Status CopyAside(const std::string& folder, std::string_view mark);

    // Keeps every note that holds anything in one text beside the diary file ("Notes before 2027
    // ....txt"), to be read by people. The table says whose they are, `baseYear` which year it
    // begins with.
    Status CopyNotesAside(const std::string& folder, std::string_view mark, const DiaryTable& table,
                          int baseYear);

private:
    // What is moved with an event unseen may be larger than what can be edited.
    static constexpr std::size_t kNoteLimit = std::size_t{64} << 20U; // bytes

    [[nodiscard]] std::string NotePath(const std::string& folder, const std::string& name) const;
    Result<SaveJournal> Plan(const std::string& folder, const NotePlan& notes) const;
    Status KeepMoreLines(const std::string& folder);
    Status CarryOut(const std::string& folder, const SaveJournal& journal);
    Status CompleteSave(const std::string& folder);

    FileStore& files_;
    const Clock& clock_;
    std::size_t journalLimit_;
};

} // namespace kestrova
