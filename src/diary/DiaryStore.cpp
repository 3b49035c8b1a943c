// SPDX-License-Identifier: GPL-3.0-or-later
#include "diary/DiaryStore.h"

#include "diary/NoteName.h"
#include "diary/RollOver.h"
#include "language/ProgramTexts.h"
#include "language/Texts.h"
#include "platform/KeepAside.h"

namespace kestrova {

namespace {

// Damage, unlike the rest, means that the file has been looked at and is no diary.
bool IsDamage(ErrorCode code) {
    return code == ErrorCode::Damaged || code == ErrorCode::TooLarge;
}

} // namespace

Status DiaryStore::TryRead(const std::string& folder) {
    const auto opened = files_.Open(folder, LockKind::Shared);
    if (!opened) {
        return opened.Failure();
    }
    auto loaded = files_.Read(folder);
    if (!loaded) {
        return loaded.Failure();
    }
    table_ = std::move(loaded.Value().Table);
    stamp_ = loaded.Value().Stamp;
    rolledTo_ = opened.Value().RolledTo;
    return Done{};
}

void DiaryStore::GetData(const std::string& folder) {
    folder_ = folder;
    suspect_.reset();
    const Status read = TryRead(folder);
    if (read) {
        return;
    }
    if (read.Failure().Code == ErrorCode::Busy) {
        dialogs_.Show({texts_.Text(texts::kProgramTitle),
                       std::string(TextOf(ProgramText::DiaryBusy)), DialogIcon::Critical});
        return;
    }
    Reformat(folder, read.Failure());
}

void DiaryStore::Reformat(const std::string& folder, const Error& error) {
    dialogs_.Show({texts_.Text(texts::kMessengerTitle),
                   texts_.Text(texts::kDiaryCorrupt) + "\n" +
                       texts_.Text(texts::kFilesReformatted),
                   DialogIcon::Critical});
    (void)Persist(BusyMessage::Show, [&]() -> Status {
        const auto opened = files_.Open(folder, LockKind::Exclusive);
        if (!opened) {
            return opened.Failure();
        }
        if (error.Code != ErrorCode::NotFound && files_.Stamp(folder)) {
            const Status kept = files_.MoveAside(folder, kDamagedMark);
            if (!kept) {
                return kept;
            }
        }
        const DiaryTable empty;
        const Status written = files_.Write(folder, empty, NotePlan(), std::nullopt);
        if (written) {
            table_ = empty;
            stamp_ = files_.Stamp(folder);
        }
        return written;
    });
}

// Tells the user about a save that has failed; `again` says whether to try once more.
ChangeResult DiaryStore::Report(const Error& error, BusyMessage busy, bool& again) {
    again = false;
    if (error.Code == ErrorCode::Busy) {
        if (busy == BusyMessage::Show) {
            dialogs_.Show({texts_.Text(texts::kProgramTitle),
                           std::string(TextOf(ProgramText::DiaryBusy)), DialogIcon::Critical});
        }
        return ChangeResult::NotSaved;
    }
    again = dialogs_.Ask(
        {texts_.Text(texts::kMessengerTitle), error.Text, DialogIcon::Critical},
        {std::string(TextOf(ProgramText::Retry)), std::string(TextOf(ProgramText::CloseProgram))});
    if (!again) {
        stop_();
    }
    return ChangeResult::NotSaved;
}

// Every attempt opens the folder anew, so no lock is held while the user reads a message.
ChangeResult DiaryStore::Persist(BusyMessage busy, const std::function<Status()>& attempt) {
    bool again = true;
    while (again) {
        const Status status = attempt();
        if (status) {
            return ChangeResult::Saved;
        }
        const ChangeResult result = Report(status.Failure(), busy, again);
        if (!again) {
            return result;
        }
    }
    return ChangeResult::NotSaved;
}

Status DiaryStore::TryChange(const std::string& folder, const Edit& edit, EditVerdict& verdict) {
    const auto opened = files_.Open(folder, LockKind::Exclusive);
    if (!opened) {
        return opened.Failure();
    }
    DiaryTable latest;
    if (files_.Stamp(folder) == stamp_) {
        latest = table_;
    } else {
        auto loaded = files_.Read(folder);
        if (loaded) {
            latest = std::move(loaded.Value().Table);
        } else if (loaded.Failure().Code == ErrorCode::NotFound ||
                   IsDamage(loaded.Failure().Code)) {
            // What we hold in memory is the best there is; what cannot be read is kept.
            latest = table_;
            if (files_.Stamp(folder)) {
                const Status kept = files_.MoveAside(folder, kDamagedMark);
                if (!kept) {
                    return kept;
                }
            }
        } else {
            return loaded.Failure();
        }
    }
    NotePlan notes(files_.NoteNames(folder));
    EventList events(latest, notes);
    verdict = edit(events);
    if (verdict == EditVerdict::Leave) {
        return Done{};
    }
    const Status written = files_.Write(folder, latest, notes, opened.Value().RolledTo);
    if (written) {
        table_ = std::move(latest);
        stamp_ = files_.Stamp(folder);
    }
    return written;
}

ChangeResult DiaryStore::Change(const Edit& edit, BusyMessage busy) {
    EditVerdict verdict = EditVerdict::Leave;
    const ChangeResult result =
        Persist(busy, [&] { return TryChange(folder_, edit, verdict); });
    const bool left = result == ChangeResult::Saved && verdict == EditVerdict::Leave;
    return left ? ChangeResult::Left : result;
}

ChangeResult DiaryStore::SaveMsg(const std::string& folder) {
    return Persist(BusyMessage::Show, [&]() -> Status {
        const auto opened = files_.Open(folder, LockKind::Exclusive);
        if (!opened) {
            return opened.Failure();
        }
        const Status written = files_.Write(folder, table_, NotePlan(), opened.Value().RolledTo);
        if (written && folder == folder_) {
            stamp_ = files_.Stamp(folder);
        }
        return written;
    });
}

ChangeResult DiaryStore::DataFormat() {
    return Change([](EventList& events) {
        EachStoredSlot([&](const SlotPlace& place) { events.DeleteMsg(place); });
        return EditVerdict::Save;
    });
}

DiaryNews DiaryStore::Refresh() {
    const auto now = files_.Stamp(folder_);
    if (!now) {
        return DiaryNews::FolderGone;
    }
    if (now == stamp_) {
        return DiaryNews::Same;
    }
    const Status read = TryRead(folder_);
    if (read) {
        suspect_.reset();
        return DiaryNews::Reloaded;
    }
    // Someone may be writing the file piece by piece, and a lock is a matter of moments: only a
    // file that is damaged and stays as it is from one look to the next is taken for damaged.
    if (!IsDamage(read.Failure().Code) || suspect_ != now) {
        suspect_ = now;
        return DiaryNews::Same;
    }
    GetData(folder_);
    return DiaryNews::Reloaded;
}

Status DiaryStore::TryBringForward(const std::string& folder, int fromYear, int toYear) {
    const auto opened = files_.Open(folder, LockKind::Exclusive);
    if (!opened) {
        return opened.Failure();
    }
    auto loaded = files_.Read(folder);
    if (!loaded) {
        return loaded.Failure();
    }
    if (opened.Value().RolledTo == toYear) {
        // Done by someone else between our look and our lock.
        table_ = std::move(loaded.Value().Table);
        stamp_ = loaded.Value().Stamp;
        return Done{};
    }
    const Status kept = files_.CopyAside(folder, "before " + std::to_string(toYear));
    if (!kept) {
        return kept;
    }
    NotePlan notes(files_.NoteNames(folder));
    EventList events(loaded.Value().Table, notes);
    kestrova::BringForward(events, texts_, fromYear, toYear);
    const Status written = files_.Write(folder, loaded.Value().Table, notes, toYear);
    if (written) {
        table_ = std::move(loaded.Value().Table);
        stamp_ = files_.Stamp(folder);
        folder_ = folder;
    }
    return written;
}

ChangeResult DiaryStore::BringForward(const std::string& folder, int fromYear, int toYear) {
    return Persist(BusyMessage::Show,
                   [&] { return TryBringForward(folder, fromYear, toYear); });
}

void DiaryStore::FinishRollOver(const std::string& folder) {
    // A mark that cannot be removed now is found at the next start, which finishes it.
    (void)files_.FinishRollOver(folder);
    rolledTo_.reset();
}

std::optional<std::string> DiaryStore::Note(const SlotPlace& place) const {
    auto text = files_.ReadNote(folder_, GetFile(place));
    return text ? std::optional(std::move(text.Value())) : std::nullopt;
}

} // namespace kestrova
