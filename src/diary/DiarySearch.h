// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calendar/CalendarDate.h"
#include "diary/DiaryTable.h"
#include "diary/NoteTexts.h"
#include "text/Folding.h"

#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace kestrova {

// A text with the parts of it that were searched for.
struct MarkedText {
    std::string Text;
    std::vector<TextPart> Found;
};

// Searches the messages of a diary, and its notes once they have been read. It holds what the diary
// held when it was made.
class DiarySearch {
public:
    struct Event {
        CalendarDate Date;
        int Slot = 1;
        DiaryEvent Holds; // time and message; the rest is left out
        std::string Folded;
        std::optional<std::size_t> Note; // among the notes
    };

    // Takes in every event that a day page can show, hidden ones too, of a diary that begins with
    // this year.
    DiarySearch(const DiaryTable& table, int baseYear);

    // What the user has typed, in folded words.
    [[nodiscard]] static std::vector<std::string> WordsOf(std::string_view typed);

    [[nodiscard]] bool IsEmpty() const { return events_.empty(); }

    // The names of the notes that its events may have.
    [[nodiscard]] std::set<std::string> NoteNames() const;

    // Takes in the notes, by these names.
    void TakeNotes(NoteTexts notes);

    // The numbers of the events, in the order of their time, that have each of the words in their
    // message or in their note. Nothing is found by no words.
    [[nodiscard]] std::vector<std::size_t> Find(const std::vector<std::string>& words) const;

    [[nodiscard]] const Event& At(std::size_t number) const { return events_[number]; }

    // The message of an event with what was found in it.
    [[nodiscard]] MarkedText Message(std::size_t number,
                                     const std::vector<std::string>& words) const;

    // What stands in its note around the first place found there, on one line; nothing when the
    // message holds all of the words.
    [[nodiscard]] std::optional<MarkedText> Snippet(std::size_t number,
                                                    const std::vector<std::string>& words) const;

    // Whether that is so, without making it.
    [[nodiscard]] bool HasSnippet(std::size_t number, const std::vector<std::string>& words) const;

private:
    [[nodiscard]] int YearIndex(const Event& event) const { return event.Date.Year - baseYear_; }
    [[nodiscard]] bool Holds(const Event& event, const std::vector<std::string>& words) const;

    int baseYear_;
    std::vector<Event> events_;
    std::vector<SearchedNote> notes_;
};

} // namespace kestrova
