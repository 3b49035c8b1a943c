// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calendar/Selection.h"
#include "diary/DiaryStore.h"
#include "diary/EventNote.h"
#include "diary/ReminderDetails.h"
#include "language/Kinds.h"
#include "platform/Dialogs.h"
#include "settings/AppSettings.h"

#include <string>
#include <string_view>
#include <vector>

namespace kestrova {

inline constexpr int kMaxHour = 23;
inline constexpr int kMaxMinute = 59;

// Whether the hour or minute box takes this text: at most two digits, not above the limit. An empty
// one is on its way to becoming a number.
[[nodiscard]] bool IsTimeText(std::string_view text, int limit);

// The text as it stands when the box is left: two digits.
[[nodiscard]] std::string PadTime(std::string_view text);

// What the user has put into the editor of a row.
struct EventDraft {
    std::string Hour = "00";
    std::string Minute = "00";
    std::string Msg;
    std::string Rpt;
    std::string Rmd;
    bool Hide = false;
};

enum class AcceptResult {
    Accepted, // the diary has it, or there was nothing to write
    Refused   // the user has been told why; the row goes on being edited
};

// Adds, edits and deletes the events of the page date. One row is edited at a time; it is known by
// what its event held when editing began, since another program may move it meanwhile.
class EventEditor {
public:
    struct Rooms {
        DiaryStore& Store;
        const Selection& Dates;
        const StringTable& Texts;
        const AppSettings& Settings;
        Dialogs& Boxes;
        ReminderDetails& Details;
    };

    explicit EventEditor(const Rooms& rooms)
        : rooms_(rooms), note_({rooms.Store, rooms.Dates, rooms.Texts, rooms.Boxes}) {}

    // The note of the event being edited. What it holds when a new event is accepted becomes that
    // event's.
    [[nodiscard]] EventNote& Note() { return note_; }

    // The reminder list: the kinds that can be given, in the order of the kinds.
    [[nodiscard]] std::vector<std::string> BuildRmdList() const;

    // Begins a new event; a full day is refused with a message.
    AcceptResult BeginNew();

    // Begins to edit the event in a slot 1-10; a free slot is refused.
    AcceptResult BeginEdit(int slot);

    // Checks the draft, collects what its reminder needs, writes it and saves the diary. A reminder
    // that cannot be given is changed to the first of the list, in the draft too. An empty message
    // deletes the event being edited.
    AcceptResult Accept(EventDraft& draft);

    // Deletes every event of the diary whose message is that of the event being edited.
    AcceptResult DeleteAllAlike();

    // Brings back what the last deletion has taken, as long as the diary is shown from which it
    // has taken it.
    AcceptResult Undo();
    [[nodiscard]] bool CanUndo() const {
        return !removed_.empty() && removedFrom_ == rooms_.Store.Folder();
    }

private:
    struct Removed {
        CalendarDate Date;
        DiaryEvent Event;
        std::optional<std::string> Note;
    };

    [[nodiscard]] std::optional<DayPlace> Day(const CalendarDate& date) const;
    [[nodiscard]] bool RefusesRepeat(const EventDraft& draft);
    [[nodiscard]] DetailsAnswer CollectDetails(ReminderKind kind);
    [[nodiscard]] bool CollectMediaFile();
    void ShowRefusal(std::initializer_list<TextId> lines);

    EditVerdict Unless(const Status& status, EditVerdict verdict);
    [[nodiscard]] AcceptResult Change(const DiaryStore::Edit& edit);
    EditVerdict Insert(EventList& events, const DayPlace& day, const DiaryEvent& event);
    EditVerdict Overwrite(EventList& events, const DayPlace& day, const DiaryEvent& event);
    Status Remove(EventList& events, const SlotPlace& place);

    Rooms rooms_;
    CalendarDate date_;
    std::optional<DiaryEvent> original_; // nothing for a new event
    int slot_ = kScratchSlot;            // where it stood; of two equal events it is this one
    std::optional<ReminderKind> kind_;   // how it reminds; its caption may change its language
    EventNote note_;
    ReminderExtra extra_;              // RmdExtra
    std::vector<Removed> removed_;     // by the last deletion
    std::string removedFrom_;          // the folder of their diary
    std::vector<Removed> removing_;    // by the deletion under way
    std::optional<Error> noteTrouble_; // why the change under way has been given up
    bool dayFull_ = false;
};

} // namespace kestrova
