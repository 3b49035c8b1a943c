// SPDX-License-Identifier: GPL-3.0-or-later
#include "diary/DiaryFiles.h"

#include "diary/Digest.h"
#include "diary/NoteName.h"
#include "platform/KeepAside.h"
#include "text/Lines.h"
#include "text/Numbers.h"

namespace kestrova {

namespace {

constexpr std::chrono::milliseconds kLockWait{700};
constexpr std::size_t kNoteLimit = std::size_t{64} << 20U;
constexpr std::size_t kJournalLimit = std::size_t{1} << 30U;
constexpr std::string_view kMoreLinesMark = "with more lines";

std::string JournalPath(const std::string& folder) {
    return NoteFolder(folder) + "Saving.tmp";
}

std::string YearPath(const std::string& folder) {
    return NoteFolder(folder) + "Year.dat";
}

} // namespace

std::string NoteFolder(const std::string& diaryFolder) {
    return diaryFolder + "DiaryDat/";
}

std::string DiaryPath(const std::string& diaryFolder) {
    return NoteFolder(diaryFolder) + "Data.dat";
}

Result<std::unique_ptr<FileLock>> DiaryFiles::Open(const std::string& folder, LockKind kind) {
    // Completing a save means writing, so a reader who finds one to complete asks for more.
    const bool unfinished = files_.Stamp(JournalPath(folder)).has_value();
    if (unfinished && kind == LockKind::Shared) {
        auto exclusive = files_.Lock(DiaryPath(folder), LockKind::Exclusive, kLockWait);
        if (exclusive && CompleteSave(folder)) {
            return exclusive;
        }
    }
    auto lock = files_.Lock(DiaryPath(folder), kind, kLockWait);
    if (lock && kind == LockKind::Exclusive) {
        files_.RemoveLeftovers(NoteFolder(folder));
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
    const auto bytes = files_.Read(DiaryPath(folder), kDiaryFileLimit);
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
    for (const auto& [name, text] : journal.Notes) {
        const std::string path = NoteFolder(folder) + name;
        const Status status = text ? files_.Replace(path, *text) : files_.Remove(path);
        if (!status) {
            return status;
        }
    }
    if (journal.RolledTo) {
        std::string year;
        AppendNumber(year, *journal.RolledTo);
        return files_.Replace(YearPath(folder), year.append(kLineEnd));
    }
    return Done{};
}

Status DiaryFiles::Write(const std::string& folder, const DiaryTable& table, const NotePlan& notes,
                         std::optional<int> rolledTo) {
    const std::string bytes = WriteDiary(table);
    auto journal = Plan(folder, notes);
    if (!journal) {
        return journal.Failure();
    }
    const bool needsJournal = rolledTo || !journal.Value().Notes.empty();
    if (needsJournal) {
        journal.Value().DiaryDigest = Digest(bytes);
        journal.Value().DiarySize = bytes.size();
        journal.Value().RolledTo = rolledTo;
        const Status written = files_.Replace(JournalPath(folder), WriteJournal(journal.Value()));
        if (!written) {
            return written;
        }
    }
    const Status saved = files_.Replace(DiaryPath(folder), bytes);
    if (!saved || !needsJournal) {
        // A journal that stays behind a failed save no longer matches the diary file and is thrown
        // away when the folder is next opened.
        return saved;
    }
    // What cannot be carried out now is carried out when the folder is next opened: the journal
    // stays for that.
    if (CarryOut(folder, journal.Value())) {
        (void)files_.Remove(JournalPath(folder));
    }
    return Done{};
}

Status DiaryFiles::CompleteSave(const std::string& folder) {
    const auto bytes = files_.Read(JournalPath(folder), kJournalLimit);
    if (!bytes) {
        const bool none = bytes.Failure().Code == ErrorCode::NotFound;
        return none ? Status(Done{}) : Status(bytes.Failure());
    }
    if (const auto journal = ReadJournal(bytes.Value())) {
        const auto diary = files_.Read(DiaryPath(folder), kDiaryFileLimit);
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
    return files_.Remove(JournalPath(folder));
}

std::optional<int> DiaryFiles::RolledTo(const std::string& folder) const {
    constexpr std::size_t kYearLimit = 100; // bytes
    const auto bytes = files_.Read(YearPath(folder), kYearLimit);
    const auto line = bytes ? LineReader(bytes.Value()).Next() : std::nullopt;
    const auto year = line ? ReadInt16(*line) : std::nullopt;
    return year ? std::optional<int>(*year) : std::nullopt;
}

std::set<std::string> DiaryFiles::NoteNames(const std::string& folder) const {
    std::set<std::string> names;
    for (std::string& name : files_.List(NoteFolder(folder))) {
        if (IsNoteName(name)) {
            names.insert(std::move(name));
        }
    }
    return names;
}

Result<std::string> DiaryFiles::ReadNote(const std::string& folder, const std::string& name) const {
    return files_.Read(NoteFolder(folder) + name, kNoteLimit);
}

Status DiaryFiles::WriteAside(const std::string& folder, std::string_view mark,
                              const DiaryTable& table) {
    return WriteNewAside(files_, clock_.Now(), DiaryPath(folder), mark, WriteDiary(table));
}

Status DiaryFiles::MoveAside(const std::string& folder, std::string_view mark) {
    return kestrova::MoveAside(files_, clock_.Now(), DiaryPath(folder), mark);
}

Status DiaryFiles::CopyAside(const std::string& folder, std::string_view mark) {
    return kestrova::CopyAside(files_, clock_.Now(), DiaryPath(folder), mark);
}

} // namespace kestrova
