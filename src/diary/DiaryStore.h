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
    NotSaved // neither table nor file has changed; the user has been told why, unless in silence
};

// Whether a save that fails is told to the user. An edit of the user's is; the clock, which saves
// while nobody may be there, first tries in silence.
enum class SaveMessages { Show, Keep };

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

    // `stop` ends the program in order; called when the diary cannot be saved and the user gives
    // up.
    DiaryStore(DiaryFiles& files, Dialogs& dialogs, const StringTable& texts,
               std::function<void()> stop)
        : files_(files), dialogs_(dialogs), texts_(texts), stop_(std::move(stop)) {}

    [[nodiscard]] const DiaryTable& Table() const { return table_; }

    // For marks that reach the file with a later change, or not at all.
    [[nodiscard]] DiaryTable& Table() { return table_; }

    [[nodiscard]] const std::string& Folder() const { return folder_; }

    // Loads the diary of a folder and shows it from now on. A diary that is busy gives a message
    // and leaves the table as it is; one that is damaged or missing gives a message, and an empty
    // one is put in its place, the damaged file kept beside it.
    void GetData(const std::string& folder);

    // Applies an edit to the diary shown and saves it.
    ChangeResult Change(const Edit& edit, SaveMessages messages = SaveMessages::Show);

    // Clears every stored slot and its note, and saves.
    ChangeResult DataFormat();

    // Looks whether someone else has changed the file, and loads it if so.
    DiaryNews Refresh();

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

    // The text of the note at a place of the diary shown; nothing when it has none.
    [[nodiscard]] std::optional<std::string> Note(const SlotPlace& place) const;

private:
    Status TryChange(const std::string& folder, const Edit& edit, EditVerdict& verdict);
    Status TryRead(const std::string& folder);
    Result<DiaryTable> Latest(const std::string& folder);
    Status Write(const std::string& folder, DiaryTable table, const NotePlan& notes,
                 std::optional<int> rolledTo);
    Status TryBringForward(const std::string& folder, int fromYear, int toYear);
    [[nodiscard]] bool AsksToTryAgain(const Error& error);
    ChangeResult Persist(SaveMessages messages, const std::function<Status()>& attempt);
    void Reformat(const std::string& folder);
    Status TryReformat(const std::string& folder);

    DiaryFiles& files_;
    Dialogs& dialogs_;
    const StringTable& texts_;
    std::function<void()> stop_;

    DiaryTable table_;
    std::string folder_;
    std::optional<FileStamp> stamp_;
    std::optional<FileStamp> suspect_; // of a changed file that could not be read at first sight
};

} // namespace kestrova
