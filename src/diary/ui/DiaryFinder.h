// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calendar/Selection.h"
#include "diary/DiaryStore.h"
#include "diary/NoteTexts.h"
#include "diary/ui/FoundList.h"

#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QTimer>

#include <functional>
#include <memory>
#include <optional>
#include <set>
#include <string>

class QStackedLayout;

namespace kestrova {

// Searches the diary shown while the user types, and goes to the day of what they choose. The notes
// are read beside, and join in as soon as they are there.
class DiaryFinder : public QDialog {
public:
    struct Rooms {
        const Selection& Dates;
        const StringTable& Texts;
        const DiaryStore& Store;
    };

    struct Hooks {
        // The day page is to show this event. The window has gone when it is called.
        std::function<void(const DiarySearch::Event& event)> Show;

        // Reads these notes of a diary. Called from another thread, also when the window has gone.
        std::function<NoteTexts(const std::string& folder, const std::set<std::string>& names,
                                const std::stop_token& stop)>
            ReadNotes;
    };

    DiaryFinder(QWidget* parent, const Rooms& rooms, Hooks hooks);

    // Opens the window over another of the program's, with what was last searched for.
    void Open(QWidget* over);

    // The diary has changed, or is another one now.
    void Reload();

    void LoadCaptions();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void Build();
    void TakeIn();
    void LookForNotes();
    void Search(std::optional<DiarySearch::Event> stayOn = std::nullopt);
    void Tell();
    void Choose();
    [[nodiscard]] std::optional<DiarySearch::Event> Current() const;
    [[nodiscard]] bool HandleLineKey(QKeyEvent& event);
    [[nodiscard]] bool HandleListKey(QKeyEvent& event);

    Rooms rooms_;
    Hooks hooks_;
    std::shared_ptr<DiarySearch> search_;    // while the window is open
    std::optional<DiarySearch::Event> last_; // the event that was chosen last
    std::unique_ptr<NoteReading> reading_;
    bool notesComplete_ = true;
    QTimer patience_; // asks whether the notes have been read

    QLineEdit* TextFind = nullptr;
    QStackedLayout* pages_ = nullptr;
    QLabel* LabAdvice = nullptr; // in the place of the list when that is empty
    QListView* ListFound = nullptr;
    QLabel* LabState = nullptr;
    FoundList* found_ = nullptr;
    FoundRows* rows_ = nullptr;
};

} // namespace kestrova
