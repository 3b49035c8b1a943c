// SPDX-License-Identifier: GPL-3.0-or-later
#include "diary/DiaryFiles.h"

#include "diary/Digest.h"
#include "diary/NoteArchive.h"
#include "diary/NoteName.h"
#include "platform/KeepAside.h"
#include "text/Lines.h"
#include "text/Numbers.h"

namespace kestrova {

namespace {

constexpr std::chrono::milliseconds kLockWait{350};
constexpr std::size_t kJournalLimit = std::size_t{1} << 30U;
constexpr std::string_view kMoreLinesMark = "with more lines";

std::string EntryPath(const FileStore& files, const std::string& folder, const std::string& name) {
    return folder + files.FindEntry(folder, name).value_or(name);
}

// Nobody but this program writes these two, so their names are exact.
std::string JournalPath(const std::string& noteFolder) {
    return noteFolder + "Saving.tmp";
}

std::string YearPath(const std::string& noteFolder) {
    return noteFolder + "Year.dat";
}

// The files of a folder that are notes, by the name of the note. Looked up one by one, many notes
// would mean as many looks through the whole folder.
std::map<std::string, std::string> NoteFiles(const FileStore& files,
                                             const std::string& noteFolder) {
    std::map<std::string, std::string> notes;
    for (std::string& file : files.List(noteFolder)) {
        auto name = NoteNameOf(file);
        if (name && (file == *name || !notes.contains(*name))) {
            notes[std::move(*name)] = std::move(file);
        }
    }
    return notes;
}

} // namespace

std::string NoteFolder(const FileStore& files, const std::string& diaryFolder) {
    return EntryPath(files, diaryFolder, "DiaryDat") + "/";
}

std::string DiaryPath(const FileStore& files, const std::string& diaryFolder) {
    return EntryPath(files, NoteFolder(files, diaryFolder), "Data.dat");
}

std::string DiaryFiles::NotePath(const std::string& folder, const std::string& name) const {
    return EntryPath(files_, NoteFolder(files_, folder), name);
}

Result<std::unique_ptr<FileLock>> DiaryFiles::Open(const std::string& folder, LockKind kind,
                                                   LockPatience patience) {
    const std::string notes = NoteFolder(files_, folder);
    const std::string path = DiaryPath(files_, folder);
    std::chrono::milliseconds wait = patience == LockPatience::Moment ? kLockWait : kLockWait * 0;
    // Completing a save means writing, so a reader who finds one to complete asks for more.
    if (kind == LockKind::Shared && files_.Stamp(JournalPath(notes))) {
        wait /= 2; // there may be two waits now
        auto exclusive = files_.Lock(path, LockKind::Exclusive, wait);
        if (exclusive && CompleteSave(folder)) {
            return exclusive;
        }
    }
    auto lock = files_.Lock(path, kind, wait);
    if (lock && kind == LockKind::Exclusive) {
        files_.RemoveLeftovers(notes);
        const Status completed = CompleteSave(folder);
        if (!completed) {
            return completed.Failure();
        }
    }
    return lock;
}

Result<LoadedDiary> DiaryFiles::Read(const std::string& folder) {
    LoadedDiary loaded;
    loaded.Stamp = Stamp(folder);
    const auto bytes = files_.Read(DiaryPath(files_, folder), kDiaryFileLimit);
    if (!bytes) {
        return bytes.Failure();
    }
    const auto end = ReadDiary(bytes.Value(), loaded.Table);
    if (!end) {
        return end.Failure();
    }
    if (end.Value() == DiaryEnd::MoreLines) {
        // A folder that cannot be written takes no save either, so nothing can be lost there.
        (void)CopyAside(folder, kMoreLinesMark);
    }
    return loaded;
}

// Turns the plan for the notes into the contents that their files are to have.
Result<SaveJournal> DiaryFiles::Plan(const std::string& folder, const NotePlan& notes) const {
    SaveJournal journal;
    for (const auto& [name, fate] : notes.Changes()) {
        if (const auto* given = std::get_if<NoteText>(&fate)) {
            journal.Notes[name] = given->Text;
        } else if (const auto* from = std::get_if<NoteFrom>(&fate)) {
            auto text = ReadNote(folder, from->Name);
            if (!text) {
                return text.Failure();
            }
            const bool worthAFile = !from->Copied || !text.Value().empty();
            journal.Notes[name] =
                worthAFile ? std::optional(std::move(text.Value())) : std::nullopt;
        } else {
            journal.Notes[name] = std::nullopt;
        }
    }
    return journal;
}

Status DiaryFiles::CarryOut(const std::string& folder, const SaveJournal& journal) {
    const std::string noteFolder = NoteFolder(files_, folder);
    const auto there = journal.Notes.empty() ? std::map<std::string, std::string>()
                                             : NoteFiles(files_, noteFolder);
    for (const auto& [name, text] : journal.Notes) {
        const auto file = there.find(name);
        const std::string path = noteFolder + (file == there.end() ? name : file->second);
        const Status status = text ? files_.Replace(path, *text) : files_.Remove(path);
        if (!status) {
            return status;
        }
    }
    if (journal.RolledTo) {
        std::string year;
        AppendNumber(year, *journal.RolledTo);
        return files_.Replace(YearPath(noteFolder), year.append(kLineEnd));
    }
    return Done{};
}

Status DiaryFiles::Write(const std::string& folder, const DiaryTable& table, const NotePlan& notes,
                         std::optional<int> rolledTo) {
    const std::string bytes = WriteDiary(table);
    const std::string journalPath = JournalPath(NoteFolder(files_, folder));
    auto journal = Plan(folder, notes);
    if (!journal) {
        return journal.Failure();
    }
    const bool needsJournal = rolledTo || !journal.Value().Notes.empty();
    if (needsJournal) {
        journal.Value().DiaryDigest = Digest(bytes);
        journal.Value().DiarySize = bytes.size();
        journal.Value().RolledTo = rolledTo;
        const Status written = files_.Replace(journalPath, WriteJournal(journal.Value()));
        if (!written) {
            return written;
        }
    }
    const Status saved = files_.Replace(DiaryPath(files_, folder), bytes);
    if (!saved || !needsJournal) {
        // A journal that stays behind a failed save no longer matches the diary file and is thrown
        // away when the folder is next opened.
        return saved;
    }
    // What cannot be carried out now is carried out when the folder is next opened: the journal
    // stays for that.
    if (CarryOut(folder, journal.Value())) {
        (void)files_.Remove(journalPath);
    }
    return Done{};
}

Status DiaryFiles::CompleteSave(const std::string& folder) {
    const std::string journalPath = JournalPath(NoteFolder(files_, folder));
    const auto bytes = files_.Read(journalPath, kJournalLimit);
    if (!bytes) {
        const bool none = bytes.Failure().Code == ErrorCode::NotFound;
        return none ? Status(Done{}) : Status(bytes.Failure());
    }
    if (const auto journal = ReadJournal(bytes.Value())) {
        const auto diary = files_.Read(DiaryPath(files_, folder), kDiaryFileLimit);
        if (!diary && diary.Failure().Code != ErrorCode::NotFound) {
            return diary.Failure();
        }
        if (diary && journal->BelongsTo(diary.Value())) {
            const Status done = CarryOut(folder, *journal);
            if (!done) {
                return done;
            }
        }
    }
    return files_.Remove(journalPath);
}

std::optional<int> DiaryFiles::RolledTo(const std::string& folder) const {
    constexpr std::size_t kYearLimit = 100; // bytes
    const auto bytes = files_.Read(YearPath(NoteFolder(files_, folder)), kYearLimit);
    const auto line = bytes ? LineReader(bytes.Value()).Next() : std::nullopt;
    const auto year = line ? ReadInt16(*line) : std::nullopt;
    return year ? std::optional<int>(*year) : std::nullopt;
}

std::set<std::string> DiaryFiles::NoteNames(const std::string& folder) const {
    std::set<std::string> names;
    for (const auto& [name, file] : NoteFiles(files_, NoteFolder(files_, folder))) {
        names.insert(name);
    }
    return names;
}

std::set<std::string> DiaryFiles::NotesWithText(const std::string& folder,
                                                const std::set<std::string>& names) const {
    std::set<std::string> withText;
    const std::string noteFolder = NoteFolder(files_, folder);
    for (const auto& [name, file] : NoteFiles(files_, noteFolder)) {
        const auto stamp = names.contains(name) ? files_.Stamp(noteFolder + file) : std::nullopt;
        if (stamp && stamp->Size > 0) {
            withText.insert(name);
        }
    }
    return withText;
}

Result<std::string> DiaryFiles::ReadNote(const std::string& folder, const std::string& name,
                                         std::size_t limit) const {
    return files_.Read(NotePath(folder, name), limit);
}

Status DiaryFiles::WriteNote(const std::string& folder, const std::string& name,
                             std::string_view bytes) {
    return files_.Replace(NotePath(folder, name), bytes);
}

Status DiaryFiles::RemoveNote(const std::string& folder, const std::string& name) {
    return files_.Remove(NotePath(folder, name));
}

Status DiaryFiles::WriteAside(const std::string& folder, std::string_view mark,
                              const DiaryTable& table) {
    return WriteNewAside(files_, clock_.Now(), DiaryPath(files_, folder), mark, WriteDiary(table));
}

Status DiaryFiles::MoveAside(const std::string& folder, std::string_view mark) {
    return kestrova::MoveAside(files_, clock_.Now(), DiaryPath(files_, folder), mark);
}

Status DiaryFiles::CopyAside(const std::string& folder, std::string_view mark) {
    return kestrova::CopyAside(files_, clock_.Now(), DiaryPath(files_, folder), mark);
}

Status DiaryFiles::CopyNotesAside(const std::string& folder, std::string_view mark,
                                  const DiaryTable& table, int baseYear) {
    const std::set<std::string> names = NotesWithText(folder, NoteNames(folder));
    Status readAll = Done{};
    const std::string archive =
        NoteArchive(table, baseYear, [&](const std::string& name) -> std::optional<std::string> {
            if (!names.contains(name)) {
                return std::nullopt;
            }
            auto note = ReadNote(folder, name);
            if (!note) {
                readAll = note.Failure();
                return std::nullopt;
            }
            return std::move(note.Value());
        });
    if (!readAll || archive.empty()) {
        return readAll;
    }
    return WriteNewAside(files_, clock_.Now(), NoteFolder(files_, folder) + "Notes.txt", mark,
                         archive);
}

} // namespace kestrova
