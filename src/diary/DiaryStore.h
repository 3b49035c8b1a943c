// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "diary/DiaryFiles.h"
#include "diary/EventList.h"
#include "diary/FolderProbe.h"
#include "language/StringTable.h"
#include "platform/Dialogs.h"

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <string_view>

namespace kestrova {

// What an edit wants done with the table it was given.
enum class EditVerdict {
    Save, // it has changed the table
    Leave // it has not, or the change is not to be
};

enum class ChangeResult {
    Saved,
    Left,    // as the edit wanted
    NotSaved // neither table nor file has changed; the user has been told why, unless in silence
};

// Whether a save that fails is told to the user. An edit of the user's is; the clock, which saves
// while nobody may be there, first tries in silence.
enum class SaveMessages { Show, Keep };

// What the ten-second look at the diary's file has found.
enum class DiaryNews { Same, Reloaded, FolderGone };

// How the writing of a note has ended.
enum class NoteResult {
    Saved,
    NoEvent,    // its event is no longer in the diary
    Busy,       // someone holds the diary, or it cannot be written
    OutOfReach, // the folder of a shared diary does not answer, or the diary in it has gone
    Failed
};

// A diary and its notes as the disc has them at one moment.
struct DiarySnapshot {
    DiaryTable Table;
    std::map<std::string, std::string> Notes; // the bytes of those that hold anything, by name
};

// The diary in memory and its file: owns the event table, the folder of the diary shown
// (DiaryFolder) and the stamp by which a change from outside is noticed (DiaryStamp). One file may
// be used by several programs at once: a change is applied to the file's latest state, under a
// lock, so that nobody's edit of another event is lost.
//
// The folder shown may be that of another user. Such a shared diary is never made where there is
// none, is not touched while its folder does not answer, and no trouble with it ends the program.
class DiaryStore {
public:
    // An edit gets the latest table to work on. It may be called again when saving has failed and
    // the user wants to try again, so it must not keep anything from an earlier call.
    using Edit = std::function<EditVerdict(EventList& events)>;

    // Says where in a table the note of an event stands; nothing when the event is not there.
    using FindPlace = std::function<std::optional<SlotPlace>(const DiaryTable& table)>;

    // `probe` knows the program folder and asks the others. `stop` ends the program in order;
    // called when the user's own diary cannot be saved and the user gives up.
    DiaryStore(DiaryFiles& files, Dialogs& dialogs, const StringTable& texts, FolderProbe& probe,
               std::function<void()> stop)
        : files_(files), dialogs_(dialogs), texts_(texts), probe_(probe), stop_(std::move(stop)) {}

    [[nodiscard]] const DiaryTable& Table() const { return table_; }

    // For marks that reach the file with a later change, or not at all.
    [[nodiscard]] DiaryTable& Table() { return table_; }

    [[nodiscard]] const std::string& Folder() const { return folder_; }

    // Whether the diary shown is another user's.
    [[nodiscard]] bool IsShared() const { return !probe_.IsOwn(folder_); }

    // Loads the diary of a folder and shows it from now on. A diary that is busy gives a message
    // and leaves the table as it is; one that is damaged or missing gives a message, and an empty
    // one is put in its place, the damaged file kept beside it. A shared one that is missing or out
    // of reach gives a message, too, but the diary shown before stays; so does one that says it
    // belongs to another base year than this, if one is given: its days would be the wrong ones.
    void GetData(const std::string& folder, std::optional<int> baseYear = std::nullopt);

    // The same in silence and without waiting, if the diary can be loaded as it is. Whether it is
    // shown now. Not while a message is open.
    [[nodiscard]] bool TryShow(const std::string& folder);

    // The same with patience, and with the reason when it cannot be.
    Status Load(const std::string& folder);

    // What the file and the notes of the diary shown hold now. Fails as opening and reading do.
    Result<DiarySnapshot> Snapshot();

    // Applies an edit to the diary shown and saves it.
    ChangeResult Change(const Edit& edit, SaveMessages messages = SaveMessages::Show);

    // Clears every stored slot and its note, and saves. What was there is kept beside it; the
    // diary begins with `baseYear`.
    ChangeResult DataFormat(int baseYear);

    // Looks whether someone else has changed the file, and loads it if so. Waits for nobody: what
    // cannot be read now is looked at again the next time. One's own diary that is damaged is put
    // right with a message; another's is the other's, and counts as gone.
    DiaryNews Refresh();

    // Whether the diary shown is another's and was found damaged when it was last looked at.
    [[nodiscard]] bool IsSpoilt() const { return spoilt_; }

    // Brings the diary of a folder forward from one base year to a later one, a copy of the old
    // file kept beside it, and shows it. One that has been brought there already, by another
    // program or before a crash, is only loaded.
    ChangeResult BringForward(const std::string& folder, int fromYear, int toYear,
                              SaveMessages messages);

    // Says that a diary belongs to this base year, events and all, a copy of the file kept beside
    // it.
    ChangeResult SetYear(const std::string& folder, int year);

    // The base year to which the diary of a folder was last rolled over.
    [[nodiscard]] std::optional<int> RolledTo(const std::string& folder) const {
        return files_.RolledTo(folder);
    }

    // The text of the note at a place of the diary shown. NotFound when it has none.
    [[nodiscard]] Result<std::string> Note(const SlotPlace& place) const;

    // Keeps the note at a place of the diary shown aside, if it holds anything. For an edit that is
    // about to put another one there.
    Status KeepNoteAside(const SlotPlace& place);

    // The slots of a day of the diary shown whose events have a note with something in it.
    [[nodiscard]] std::set<int> SlotsWithNotes(const DayPlace& day) const;

    // The bytes of the note of an event as the file has it now, an empty one made when there is
    // none. NotFound when the event is not there, TooLarge when it has more than `limit` bytes,
    // else as opening and reading fail.
    Result<std::string> OpenNote(const FindPlace& find, std::size_t limit);

    // Writes the note of an event, or removes it when there are no bytes to write, and touches
    // nothing else.
    NoteResult SaveNote(const FindPlace& find, std::optional<std::string_view> bytes);

private:
    Result<std::unique_ptr<FileLock>> Open(const std::string& folder, LockKind kind,
                                           LockPatience patience = LockPatience::Moment);
    Status TryChange(const std::string& folder, const Edit& edit, EditVerdict& verdict);
    Status TryRead(const std::string& folder, LockPatience patience);
    Result<std::optional<SlotPlace>> PlaceNow(const FindPlace& find);
    Result<DiaryTable> Latest(const std::string& folder);
    Status Write(const std::string& folder, DiaryTable table, const NotePlan& notes,
                 std::optional<int> rolledTo);
    Status TryFormat(int baseYear);
    Status KeepAll(const std::string& folder, const std::string& mark, const DiaryTable& table,
                   int baseYear);
    Status TryBringForward(const std::string& folder, int fromYear, int toYear);
    [[nodiscard]] bool AsksToTryAgain(const std::string& folder, const Error& error);
    ChangeResult Persist(const std::string& folder, SaveMessages messages,
                         const std::function<Status()>& attempt);
    void Show(const Message& message);
    void ShowBusy();
    void ShowOutOfReach();
    void Reformat(const std::string& folder);
    Status TryReformat(const std::string& folder);

    DiaryFiles& files_;
    Dialogs& dialogs_;
    const StringTable& texts_;
    FolderProbe& probe_;
    std::function<void()> stop_;

    DiaryTable table_;
    std::string folder_;
    std::optional<FileStamp> stamp_;
    std::optional<FileStamp> suspect_; // of a changed file that could not be read at first sight
    std::optional<FileStamp> told_;    // of a damaged file about which the user has been told
    bool spoilt_ = false;
    bool talks_ = false; // a message is open
};

} // namespace kestrova
