// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "diary/DiaryFiles.h"
#include "diary/EventList.h"
#include "language/StringTable.h"
#include "platform/Dialogs.h"

#include <functional>
#include <optional>
#include <string>

namespace kestrova {

// What an edit wants done with the table it was given.
enum class EditVerdict {
    Save, // it has changed the table
    Leave // it has not, or the change is not to be
};

enum class ChangeResult {
    Saved,
    Left,    // as the edit wanted
    NotSaved // the user has been told why; neither table nor file has changed
};

// Whether a diary that is busy is worth a message: an edit of the user's is, the clock's is not
// when the user has been told a minute ago.
enum class BusyMessage { Show, Keep };

// What the ten-second look at the diary's file has found.
enum class DiaryNews { Same, Reloaded, FolderGone };

// The diary in memory and its file: owns the event table, the folder of the diary shown
// (DiaryFolder) and the stamp by which a change from outside is noticed (DiaryStamp). One file may
// be used by several programs at once: a change is applied to the file's latest state, under a
// lock, so that nobody's edit of another event is lost.
class DiaryStore {
public:
    // An edit gets the latest table to work on. It may be called again when saving has failed and
    // the user wants to try again, so it must not keep anything from an earlier call.
    using Edit = std::function<EditVerdict(EventList& events)>;

    // `stop` ends the program in order; called when the diary cannot be saved and the user gives up.
    DiaryStore(DiaryFiles& files, Dialogs& dialogs, const StringTable& texts,
               std::function<void()> stop)
        : files_(files), dialogs_(dialogs), texts_(texts), stop_(std::move(stop)) {}

    [[nodiscard]] const DiaryTable& Table() const { return table_; }

    // For marks that are not to reach the file.
    [[nodiscard]] DiaryTable& Table() { return table_; }

    [[nodiscard]] const std::string& Folder() const { return folder_; }

    // Loads the diary of a folder and shows it from now on. A diary that is busy gives a message
    // and leaves the table as it is; one that is damaged or missing gives a message, and an empty
    // one is put in its place, the damaged file kept beside it.
    void GetData(const std::string& folder);

    // Writes the table as it is to a folder, whatever its file holds.
    ChangeResult SaveMsg(const std::string& folder);

    // Applies an edit to the diary shown and saves it.
    ChangeResult Change(const Edit& edit, BusyMessage busy = BusyMessage::Show);

    // Clears every stored slot and its note, and saves.
    ChangeResult DataFormat();

    // Looks whether someone else has changed the file, and loads it if so.
    DiaryNews Refresh();

    // Brings the diary of a folder forward from one base year to a later one, a copy of the old
    // file kept beside it, and shows it. The roll-over counts as open until FinishRollOver: a crash
    // before that leaves it to be found by RolledTo after the next GetData.
    ChangeResult BringForward(const std::string& folder, int fromYear, int toYear);
    void FinishRollOver(const std::string& folder);

    // The year of a roll-over that GetData has found open.
    [[nodiscard]] std::optional<int> RolledTo() const { return rolledTo_; }

    // The text of the note at a place of the diary shown; nothing when it has none.
    [[nodiscard]] std::optional<std::string> Note(const SlotPlace& place) const;

private:
    Status TryChange(const std::string& folder, const Edit& edit, EditVerdict& verdict);
    Status TryRead(const std::string& folder);
    Status TryBringForward(const std::string& folder, int fromYear, int toYear);
    ChangeResult Report(const Error& error, BusyMessage busy, bool& again);
    ChangeResult Persist(BusyMessage busy, const std::function<Status()>& attempt);
    void Reformat(const std::string& folder, const Error& error);

    DiaryFiles& files_;
    Dialogs& dialogs_;
    const StringTable& texts_;
    std::function<void()> stop_;

    DiaryTable table_;
    std::string folder_;
    std::optional<FileStamp> stamp_;
    std::optional<int> rolledTo_;
    std::optional<FileStamp> suspect_; // of a changed file that could not be read at first sight
};

} // namespace kestrova
