// SPDX-License-Identifier: GPL-3.0-or-later
// The notes of the diary shown, one by one. Saving one is no change of the diary: its file, and
// with it the stamp, stay what they are.
#include "diary/DiaryStore.h"
#include "diary/NoteName.h"

namespace kestrova {

Result<std::string> DiaryStore::Note(const SlotPlace& place) const {
    return files_.ReadNote(folder_, GetFile(place));
}

Status DiaryStore::KeepNoteAside(const SlotPlace& place) {
    return files_.KeepNoteAside(folder_, GetFile(place));
}

std::set<int> DiaryStore::SlotsWithNotes(const DayPlace& day) const {
    if (!probe_.Answers(folder_)) {
        return {};
    }
    std::set<std::string> names;
    for (int slot = 1; slot <= kEventsPerDay; ++slot) {
        if (!table_.At({slot, day}).IsFree()) {
            names.insert(GetFile({slot, day}));
        }
    }
    const std::set<std::string> withText = files_.NotesWithText(folder_, names);
    std::set<int> slots;
    for (int slot = 1; slot <= kEventsPerDay; ++slot) {
        if (withText.contains(GetFile({slot, day}))) {
            slots.insert(slot);
        }
    }
    return slots;
}

Result<DiarySnapshot> DiaryStore::Snapshot() {
    const auto opened = Open(folder_, LockKind::Shared);
    if (!opened) {
        return opened.Failure();
    }
    auto loaded = files_.Read(folder_);
    if (!loaded) {
        return loaded.Failure();
    }
    DiarySnapshot snapshot{std::move(loaded.Value().Table), {}};
    for (const std::string& name : files_.NotesWithText(folder_, files_.NoteNames(folder_))) {
        auto note = files_.ReadNote(folder_, name);
        if (!note) {
            return note.Failure();
        }
        snapshot.Notes.emplace(name, std::move(note.Value()));
    }
    return snapshot;
}

// Where the note stands on the disc now: notes go with the table in the file, which another program
// may have changed since it was loaded.
Result<std::optional<SlotPlace>> DiaryStore::PlaceNow(const FindPlace& find) {
    const auto now = files_.Stamp(folder_);
    if (now == stamp_ || (!now && !IsShared())) {
        return find(table_);
    }
    const auto loaded = files_.Read(folder_);
    if (!loaded) {
        return loaded.Failure();
    }
    return find(loaded.Value().Table);
}

Result<std::string> DiaryStore::OpenNote(const FindPlace& find, std::size_t limit) {
    // Most notes are there, and are read as a reader reads.
    for (const LockKind kind : {LockKind::Shared, LockKind::Exclusive}) {
        const auto opened = Open(folder_, kind);
        if (!opened) {
            return opened.Failure();
        }
        const auto place = PlaceNow(find);
        if (!place) {
            return place.Failure();
        }
        if (!place.Value()) {
            break;
        }
        const std::string name = GetFile(*place.Value());
        auto bytes = files_.ReadNote(folder_, name, limit);
        if (bytes || bytes.Failure().Code != ErrorCode::NotFound) {
            return bytes;
        }
        if (kind == LockKind::Exclusive) {
            const Status made = files_.WriteNote(folder_, name, "");
            return made ? Result<std::string>(std::string()) : made.Failure();
        }
    }
    return Error{ErrorCode::NotFound, folder_};
}

NoteResult DiaryStore::SaveNote(const FindPlace& find, std::optional<std::string_view> bytes) {
    const auto resultOf = [this](const Error& error) {
        if (error.Code == ErrorCode::Busy) {
            return NoteResult::Busy;
        }
        const bool gone = error.Code == ErrorCode::NotFound && IsShared();
        return gone ? NoteResult::OutOfReach : NoteResult::Failed;
    };
    const auto opened = Open(folder_, LockKind::Exclusive);
    if (!opened) {
        return resultOf(opened.Failure());
    }
    const auto place = PlaceNow(find);
    if (!place) {
        return resultOf(place.Failure());
    }
    if (!place.Value()) {
        return NoteResult::NoEvent;
    }
    const std::string name = GetFile(*place.Value());
    const Status done =
        bytes ? files_.WriteNote(folder_, name, *bytes) : files_.RemoveNote(folder_, name);
    return done ? NoteResult::Saved : resultOf(done.Failure());
}

} // namespace kestrova
