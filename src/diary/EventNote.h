// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calendar/Selection.h"
#include "diary/DiaryStore.h"
#include "language/ProgramTexts.h"
#include "platform/Dialogs.h"

#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace kestrova {

// A note that is larger is no note that anyone has typed.
inline constexpr std::size_t kEditedNoteLimit = std::size_t{16} << 20U; // bytes

// The text in the bytes of a note file, lines parted by '\n'. In the file each line has a line end,
// the last one too; no text is no bytes. Nothing when the bytes are no text.
[[nodiscard]] std::optional<std::string> NoteTextOf(std::string_view bytes);
[[nodiscard]] std::string NoteBytes(std::string_view text);

// The note of the event that is being edited. The event is known by what it held when editing
// began, since another program may move it meanwhile. The note of a new event waits in the file of
// the day's scratch slot until the event is accepted, so that a crash leaves it to be found; it is
// also kept here, for another program may use the same file.
class EventNote {
public:
    struct Rooms {
        DiaryStore& Store;
        const Selection& Dates;
        const StringTable& Texts;
        Dialogs& Boxes;
    };

    // Whether the editor can hold a text without changing it.
    using Keeps = std::function<bool(const std::string& text)>;

    explicit EventNote(const Rooms& rooms) : rooms_(rooms) {}

    // Editing of an event of this date has begun, which stands in this slot; of a new one when no
    // event is given.
    void Begin(const CalendarDate& date, std::optional<DiaryEvent> event, int slot = kScratchSlot);

    [[nodiscard]] bool IsOfNewEvent() const { return !event_; }

    // Opens the note, an empty one made when there is none. False when it cannot be opened: the
    // user has been told when it is no text or too large, and nothing is touched then.
    [[nodiscard]] bool Open(const Keeps& keeps);

    // Saves the text. When that fails, the user is told, once for the same text, unless in silence.
    bool Save(const std::string& text, SaveMessages messages);

    // The same before the text is left. A text that cannot be saved is not left at first; when the
    // user comes back to it and it still cannot be saved, they may let it go.
    bool Leave(const std::string& text);

    // Takes the text without saving it: it is saved with the event, when that is accepted.
    void Remember(const std::string& text);

    // Gives up the note of a new event. One that has never been opened stays where it is.
    void GiveUp();

    // What the note's file is to hold: nothing when it has not been opened.
    [[nodiscard]] const std::optional<std::string>& Bytes() const { return bytes_; }
    [[nodiscard]] bool HasText() const { return bytes_ && !bytes_->empty(); }

    // Whether the file does not hold it yet.
    [[nodiscard]] bool IsUnsaved() const { return unsaved_; }

private:
    struct Trouble {
        TextId Title;
        std::string Text;
    };

    [[nodiscard]] std::optional<SlotPlace> PlaceIn(const DiaryTable& table) const;
    std::optional<Trouble> Try(const std::string& text);
    [[nodiscard]] Trouble TroubleOf(ProgramText text) const;
    void Tell(const Trouble& trouble);

    Rooms rooms_;
    CalendarDate date_;
    std::optional<DiaryEvent> event_;
    int slot_ = kScratchSlot; // where it stood; of two equal events it is this one
    std::optional<std::string> bytes_;
    std::optional<std::string> refused_; // of this text the user knows that it cannot be saved
    bool unsaved_ = false;
};

} // namespace kestrova
