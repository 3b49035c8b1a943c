// SPDX-License-Identifier: GPL-3.0-or-later
#include "diary/DiaryFiles.h"

#include "diary/Digest.h"
#include "diary/NoteArchive.h"
#include "diary/NoteName.h"
#include "platform/KeepAside.h"
#include "text/Lines.h"
#include "text/Numbers.h"

#include <algorithm>
#include <cerrno>
#include <system_error>

namespace kestrova {

namespace {

constexpr std::chrono::milliseconds kLockWait{350};
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

Error TooLarge(const std::string& path) {
    return {ErrorCode::TooLarge, std::generic_category().message(EFBIG) + "\n" + path};
}

// The texts of a journal in the making. Each is there once, however many notes are to have it.
class JournalTexts {
public:
    explicit JournalTexts(std::vector<std::string>& texts) : texts_(texts) {}

    std::size_t NumberOf(const std::shared_ptr<const std::string>& text) {
        const auto [known, isNew] = given_.emplace(text.get(), texts_.size());
        if (isNew) {
            texts_.push_back(*text);
        }
        return known->second;
    }

    // Of what the note of this name holds now.
    Result<std::size_t> NumberOf(const DiaryFiles& files, const std::string& folder,
                                 const std::string& name) {
        if (const auto known = read_.find(name); known != read_.end()) {
            return known->second;
        }
        auto text = files.ReadNote(folder, name);
        if (!text) {
            return text.Failure().Code == ErrorCode::TooLarge ? TooLarge(text.Failure().Text)
                                                              : text.Failure();
        }
        texts_.push_back(std::move(text.Value()));
        return read_[name] = texts_.size() - 1;
    }

private:
    std::vector<std::string>& texts_;
    std::map<const std::string*, std::size_t> given_;
    std::map<std::string, std::size_t> read_;
};

} // namespace

std::string NoteFolder(const FileStore& files, const std::string& diaryFolder) {
    return EntryPath(files, diaryFolder, "DiaryDat") + "/";
}

std::string DiaryPath(const FileStore& files, const std::string& diaryFolder) {
    return EntryPath(files, NoteFolder(files, diaryFolder), "Data.dat");
}

std::map<std::string, std::vector<std::string>> NoteFiles(const FileStore& files,
                                                          const std::string& noteFolder) {
    std::map<std::string, std::vector<std::string>> notes;
    std::vector<std::string> all = files.List(noteFolder);
    std::sort(all.begin(), all.end());
    for (std::string& file : all) {
        if (auto name = NoteNameOf(file)) {
            std::vector<std::string>& variants = notes[*name];
            variants.insert(file == *name ? variants.begin() : variants.end(), std::move(file));
        }
    }
    return notes;
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

Result<LoadedDiary> DiaryFiles::Read(const std::string& folder) const {
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
    return loaded;
}

// The lines may have come since the diary was read, hence the look at the file as it is now. A file
// that cannot be read, or is no diary, is the caller's to keep.
Status DiaryFiles::KeepMoreLines(const std::string& folder) {
    const auto bytes = files_.Read(DiaryPath(files_, folder), kDiaryFileLimit);
    DiaryTable table;
    const auto end = bytes ? ReadDiary(bytes.Value(), table) : bytes.Failure();
    const bool more = end && end.Value() == DiaryEnd::MoreLines;
    return more ? CopyAside(folder, kMoreLinesMark) : Status(Done{});
}

// Turns the plan for the notes into the contents that their files are to have.
Result<SaveJournal> DiaryFiles::Plan(const std::string& folder, const NotePlan& notes) const {
    constexpr std::size_t kLineRoom = 64; // bytes that a line of a journal has at most
    SaveJournal journal;
    JournalTexts texts(journal.Texts);
    std::size_t size = 0;
    for (const auto& [name, fate] : notes.Changes()) {
        const std::size_t textsBefore = journal.Texts.size();
        std::optional<std::size_t>& number = journal.Notes[name];
        if (const auto* given = std::get_if<NoteText>(&fate)) {
            number = texts.NumberOf(given->Text);
        } else if (const auto* from = std::get_if<NoteFrom>(&fate)) {
            const auto read = texts.NumberOf(*this, folder, from->Name);
            if (!read) {
                return read.Failure();
            }
            const bool worthAFile = !from->Copied || !journal.Texts[read.Value()].empty();
            number = worthAFile ? std::optional(read.Value()) : std::nullopt;
        }
        size += 2 * kLineRoom;
        size += journal.Texts.size() > textsBefore ? journal.Texts.back().size() : 0;
        if (size > journalLimit_) {
            return TooLarge(JournalPath(NoteFolder(files_, folder)));
        }
    }
    return journal;
}

Status DiaryFiles::CarryOut(const std::string& folder, const SaveJournal& journal) {
    const std::string noteFolder = NoteFolder(files_, folder);
    const auto there = journal.Notes.empty() ? std::map<std::string, std::vector<std::string>>()
                                             : NoteFiles(files_, noteFolder);
    std::vector<FileChange> changes;
    for (const auto& [name, text] : journal.Notes) {
        const auto variants = there.find(name);
        if (text) {
            const std::string& file = variants == there.end() ? name : variants->second.front();
            changes.push_back({noteFolder + file, journal.Texts[*text]});
        } else if (variants != there.end()) {
            for (const std::string& file : variants->second) {
                changes.push_back({noteFolder + file, std::nullopt});
            }
        }
    }
    const Status done = files_.ReplaceMany(changes);
    if (!done) {
        return done;
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
    const Status kept = KeepMoreLines(folder);
    if (!kept) {
        return kept;
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
    const auto bytes = files_.Read(journalPath, journalLimit_);
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
    for (const auto& [name, variants] : NoteFiles(files_, NoteFolder(files_, folder))) {
        names.insert(name);
    }
    return names;
}

std::set<std::string> DiaryFiles::NotesWithText(const std::string& folder,
                                                const std::set<std::string>& names) const {
    std::set<std::string> withText;
    const std::string noteFolder = NoteFolder(files_, folder);
    for (const auto& [name, variants] : NoteFiles(files_, noteFolder)) {
        const auto stamp =
            names.contains(name) ? files_.Stamp(noteFolder + variants.front()) : std::nullopt;
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
    const std::string noteFolder = NoteFolder(files_, folder);
    const auto there = NoteFiles(files_, noteFolder);
    std::vector<FileChange> changes;
    if (const auto variants = there.find(name); variants != there.end()) {
        for (const std::string& file : variants->second) {
            changes.push_back({noteFolder + file, std::nullopt});
        }
    }
    return files_.ReplaceMany(changes);
}

Status DiaryFiles::KeepNoteAside(const std::string& folder, const std::string& name) {
    const auto note = ReadNote(folder, name);
    if (!note) {
        const bool none = note.Failure().Code == ErrorCode::NotFound;
        return none ? Status(Done{}) : Status(note.Failure());
    }
    if (note.Value().empty()) {
        return Done{};
    }
    return WriteNewAside(files_, clock_.Now(), NoteFolder(files_, folder) + "Notes.txt", "left",
                         note.Value());
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
