// SPDX-License-Identifier: GPL-3.0-or-later
#include "diary/DiaryStore.h"

#include "diary/RollOver.h"
#include "language/ProgramTexts.h"
#include "language/Texts.h"
#include "platform/KeepAside.h"

#include <algorithm>

namespace kestrova {

namespace {

constexpr std::string_view kMemoryMark = "before damage";

// Damage, unlike the rest, means that the file has been looked at and is no diary.
bool IsDamage(ErrorCode code) {
    return code == ErrorCode::Damaged || code == ErrorCode::TooLarge;
}

// Sets a flag for as long as a message is open. One may come over another.
class Talk {
public:
    explicit Talk(bool& flag) : flag_(flag), before_(flag) { flag_ = true; }
    ~Talk() { flag_ = before_; }
    Talk(const Talk&) = delete;
    Talk& operator=(const Talk&) = delete;

private:
    bool& flag_;
    bool before_;
};

} // namespace

Result<std::unique_ptr<FileLock>> DiaryStore::Open(const std::string& folder, LockKind kind,
                                                   LockPatience patience) {
    // Locking leaves a companion file behind, and another user's folder without a diary is to get
    // nothing of ours.
    if (!probe_.IsOwn(folder) && (!probe_.Answers(folder) || !files_.Stamp(folder))) {
        return Error{ErrorCode::NotFound, folder};
    }
    return files_.Open(folder, kind, patience);
}

Status DiaryStore::TryRead(const std::string& folder, LockPatience patience) {
    const auto opened = Open(folder, LockKind::Shared, patience);
    if (!opened) {
        return opened.Failure();
    }
    auto loaded = files_.Read(folder);
    if (!loaded) {
        return loaded.Failure();
    }
    table_ = std::move(loaded.Value().Table);
    stamp_ = loaded.Value().Stamp;
    suspect_.reset();
    told_.reset();
    spoilt_ = false;
    return Done{};
}

// The clock ticks on while the user reads.
void DiaryStore::Show(const Message& message) {
    const Talk talk(talks_);
    dialogs_.Show(message);
}

void DiaryStore::ShowBusy() {
    Show({texts_.Text(texts::kProgramTitle), TextOf(texts_, ProgramText::DiaryBusy),
          DialogIcon::Critical});
}

void DiaryStore::ShowOutOfReach() {
    Show({texts_.Text(texts::kMessengerTitle), TextOf(texts_, ProgramText::DiaryOutOfReach),
          DialogIcon::Critical});
}

bool DiaryStore::TryShow(const std::string& folder) {
    if (talks_ || !TryRead(folder, LockPatience::None)) {
        return false;
    }
    folder_ = folder;
    return true;
}

Status DiaryStore::Load(const std::string& folder) {
    const Status read = TryRead(folder, LockPatience::Moment);
    if (read) {
        folder_ = folder;
    }
    return read;
}

void DiaryStore::GetData(const std::string& folder, std::optional<int> baseYear) {
    suspect_.reset();
    if (baseYear && !probe_.IsOwn(folder) && probe_.Answers(folder)) {
        const auto rolledTo = files_.RolledTo(folder);
        if (rolledTo && rolledTo != baseYear) {
            Show({texts_.Text(texts::kMessengerTitle),
                  TextOf(texts_, ProgramText::OtherYear, std::to_string(*rolledTo)),
                  DialogIcon::Critical});
            return;
        }
    }
    const Status read = TryRead(folder, LockPatience::Moment);
    if (read) {
        folder_ = folder;
        return;
    }
    const ErrorCode code = read.Failure().Code;
    if (code == ErrorCode::Busy) {
        // The diary that was shown stays; at start-up there was none.
        if (folder_.empty()) {
            folder_ = folder;
        }
        ShowBusy();
        return;
    }
    if (probe_.IsOwn(folder)) {
        if (folder_ != folder) {
            table_ = DiaryTable(); // another user's events must not get into this one
            stamp_.reset();
        }
        folder_ = folder;
    } else if (!IsDamage(code)) {
        ShowOutOfReach();
        return;
    }
    told_ = files_.Stamp(folder);
    Reformat(folder);
}

void DiaryStore::Reformat(const std::string& folder) {
    Show({texts_.Text(texts::kMessengerTitle),
          texts_.Text(texts::kDiaryCorrupt) + "\n" + texts_.Text(texts::kFilesReformatted),
          DialogIcon::Critical});
    (void)Persist(folder, SaveMessages::Show, [&] { return TryReformat(folder); });
}

Status DiaryStore::TryReformat(const std::string& folder) {
    const auto opened = Open(folder, LockKind::Exclusive);
    if (!opened) {
        return opened.Failure();
    }
    // While the user read the message, someone may have put a whole diary there.
    auto loaded = files_.Read(folder);
    if (loaded) {
        table_ = std::move(loaded.Value().Table);
        stamp_ = loaded.Value().Stamp;
        folder_ = folder;
        spoilt_ = false;
        return Done{};
    }
    const ErrorCode code = loaded.Failure().Code;
    if (code == ErrorCode::Busy || (!probe_.IsOwn(folder) && !IsDamage(code))) {
        return loaded.Failure();
    }
    if (files_.Stamp(folder)) {
        const Status kept = files_.MoveAside(folder, kDamagedMark);
        if (!kept) {
            return kept;
        }
    }
    // The notes stay: they belong to the file that was kept aside, should it be mended.
    return Write(folder, DiaryTable(), NotePlan(), std::nullopt);
}

// Tells the user about a save that has failed; whether they want to try once more.
bool DiaryStore::AsksToTryAgain(const std::string& folder, const Error& error) {
    if (error.Code == ErrorCode::Busy) {
        ShowBusy();
        return false;
    }
    const bool shared = !probe_.IsOwn(folder);
    // Too large are notes that this change would move or copy: trying again would not help.
    if (error.Code == ErrorCode::TooLarge || (shared && error.Code == ErrorCode::Full)) {
        Show({texts_.Text(texts::kMessengerTitle), error.Text, DialogIcon::Critical});
        return false;
    }
    if (shared) {
        ShowOutOfReach();
        return false;
    }
    const Talk talk(talks_);
    const bool again = dialogs_.Ask(
        {texts_.Text(texts::kMessengerTitle), error.Text, DialogIcon::Critical},
        {TextOf(texts_, ProgramText::Retry), TextOf(texts_, ProgramText::CloseProgram)});
    if (!again) {
        stop_();
    }
    return again;
}

// Every attempt opens the folder anew, so no lock is held while the user reads a message.
ChangeResult DiaryStore::Persist(const std::string& folder, SaveMessages messages,
                                 const std::function<Status()>& attempt) {
    for (;;) {
        const Status status = attempt();
        if (status) {
            return ChangeResult::Saved;
        }
        if (messages == SaveMessages::Keep || !AsksToTryAgain(folder, status.Failure())) {
            return ChangeResult::NotSaved;
        }
    }
}

// The table to work on: memory where it is what the file holds, else the file. A file that has
// gone, or is damaged and stays so, gives way to memory, the best there is then. Not so for the
// diary of another: memory holds marks of the clock's that are not to reach it.
Result<DiaryTable> DiaryStore::Latest(const std::string& folder) {
    const auto now = files_.Stamp(folder);
    const bool remembered = folder == folder_ && probe_.IsOwn(folder);
    if (remembered && now == stamp_) {
        return table_;
    }
    auto loaded = files_.Read(folder);
    if (loaded) {
        return std::move(loaded.Value().Table);
    }
    const Error& error = loaded.Failure();
    const bool damaged = IsDamage(error.Code);
    if (!damaged && !(remembered && error.Code == ErrorCode::NotFound)) {
        return error;
    }
    if (!remembered) {
        return Error{ErrorCode::Damaged, error.Text};
    }
    if (damaged && suspect_ != now) {
        suspect_ = now; // someone may be writing it piece by piece
        return Error{ErrorCode::Busy, error.Text};
    }
    return table_;
}

Status DiaryStore::Write(const std::string& folder, DiaryTable table, const NotePlan& notes,
                         std::optional<int> rolledTo) {
    if (files_.Stamp(folder) && suspect_ == files_.Stamp(folder)) {
        const Status kept = files_.MoveAside(folder, kDamagedMark);
        if (!kept) {
            return kept;
        }
    }
    const Status written = files_.Write(folder, table, notes, rolledTo);
    if (written) {
        table_ = std::move(table);
        stamp_ = files_.Stamp(folder);
        folder_ = folder;
        suspect_.reset();
        told_.reset();
        spoilt_ = false;
    }
    return written;
}

Status DiaryStore::TryChange(const std::string& folder, const Edit& edit, EditVerdict& verdict) {
    const auto opened = Open(folder, LockKind::Exclusive);
    if (!opened) {
        return opened.Failure();
    }
    auto latest = Latest(folder);
    if (!latest) {
        return latest.Failure();
    }
    NotePlan notes(files_.NoteNames(folder));
    EventList events(latest.Value(), notes);
    verdict = edit(events);
    if (verdict == EditVerdict::Leave) {
        return Done{};
    }
    return Write(folder, std::move(latest.Value()), notes, std::nullopt);
}

ChangeResult DiaryStore::Change(const Edit& edit, SaveMessages messages) {
    EditVerdict verdict = EditVerdict::Leave;
    const ChangeResult result =
        Persist(folder_, messages, [&] { return TryChange(folder_, edit, verdict); });
    const bool left = result == ChangeResult::Saved && verdict == EditVerdict::Leave;
    return left ? ChangeResult::Left : result;
}

// Keeps the file and the notes of a diary before they are lost. A file that is not there has
// nothing to keep.
Status DiaryStore::KeepAll(const std::string& folder, const std::string& mark,
                           const DiaryTable& table, int baseYear) {
    const Status kept = files_.CopyAside(folder, mark);
    if (!kept && kept.Failure().Code != ErrorCode::NotFound) {
        return kept;
    }
    return files_.CopyNotesAside(folder, mark, table, baseYear);
}

Status DiaryStore::TryFormat(int baseYear) {
    const auto opened = Open(folder_, LockKind::Exclusive);
    if (!opened) {
        return opened.Failure();
    }
    auto latest = Latest(folder_);
    if (!latest) {
        return latest.Failure();
    }
    const Status kept = KeepAll(folder_, "before formatting", latest.Value(), baseYear);
    if (!kept) {
        return kept;
    }
    NotePlan notes(files_.NoteNames(folder_));
    EventList events(latest.Value(), notes);
    EachStoredSlot([&](const SlotPlace& place) { events.DeleteMsg(place); });
    return Write(folder_, std::move(latest.Value()), notes, std::nullopt);
}

ChangeResult DiaryStore::DataFormat(int baseYear) {
    return Persist(folder_, SaveMessages::Show, [&] { return TryFormat(baseYear); });
}

DiaryNews DiaryStore::Refresh() {
    if (talks_) {
        return DiaryNews::Same; // what there is to say is being said
    }
    const auto now = probe_.Answers(folder_) ? files_.Stamp(folder_) : std::nullopt;
    if (!now) {
        return DiaryNews::FolderGone;
    }
    spoilt_ = false;
    if (now == stamp_ || now == told_) {
        return DiaryNews::Same;
    }
    const Status read = TryRead(folder_, LockPatience::None);
    if (read) {
        return DiaryNews::Reloaded;
    }
    // Someone may be writing the file piece by piece, and a lock is a matter of moments: only a
    // file that is damaged and stays as it is from one look to the next is taken for damaged.
    if (!IsDamage(read.Failure().Code) || suspect_ != now) {
        suspect_ = now;
        return DiaryNews::Same;
    }
    if (IsShared()) {
        spoilt_ = true;
        return DiaryNews::FolderGone;
    }
    // What memory holds is about to give way to an empty diary, so it is kept, too.
    (void)files_.WriteAside(folder_, kMemoryMark, table_);
    GetData(folder_);
    return DiaryNews::Reloaded;
}

Status DiaryStore::TryBringForward(const std::string& folder, int fromYear, int toYear) {
    const auto opened = Open(folder, LockKind::Exclusive);
    if (!opened) {
        return opened.Failure();
    }
    auto latest = Latest(folder);
    if (!latest) {
        return latest.Failure();
    }
    const int from = std::max(fromYear, files_.RolledTo(folder).value_or(fromYear));
    if (from >= toYear) {
        table_ = std::move(latest.Value());
        stamp_ = files_.Stamp(folder);
        folder_ = folder;
        return Done{};
    }
    const Status kept = KeepAll(folder, "before " + std::to_string(toYear), latest.Value(), from);
    if (!kept) {
        return kept;
    }
    NotePlan notes(files_.NoteNames(folder));
    EventList events(latest.Value(), notes);
    kestrova::BringForward(events, texts_, from, toYear);
    return Write(folder, std::move(latest.Value()), notes, toYear);
}

ChangeResult DiaryStore::SetYear(const std::string& folder, int year) {
    return Persist(folder, SaveMessages::Show, [&]() -> Status {
        const auto opened = Open(folder, LockKind::Exclusive);
        if (!opened) {
            return opened.Failure();
        }
        auto latest = Latest(folder);
        if (!latest) {
            return latest.Failure();
        }
        const Status kept = files_.CopyAside(folder, "before " + std::to_string(year));
        return kept ? Write(folder, std::move(latest.Value()), NotePlan(), year) : kept;
    });
}

ChangeResult DiaryStore::BringForward(const std::string& folder, int fromYear, int toYear,
                                      SaveMessages messages) {
    return Persist(folder, messages, [&] { return TryBringForward(folder, fromYear, toYear); });
}

} // namespace kestrova
