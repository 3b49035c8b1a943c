// SPDX-License-Identifier: GPL-3.0-or-later
#include "diary/DiarySearch.h"

#include "diary/NoteName.h"
#include "text/Lines.h"
#include "text/Numbers.h"

#include <algorithm>

namespace kestrova {

namespace {

constexpr std::size_t kBefore = 40; // bytes of a note shown before what was found, about
constexpr std::size_t kAround = 240;

bool IsInside(std::string_view text, std::size_t at) {
    return at < text.size() && (static_cast<unsigned char>(text[at]) & 0xC0U) == 0x80U;
}

// The piece of a text that is shown for the part found first: it begins at a word of the same line
// where it can.
TextPart PieceAround(std::string_view text, const TextPart& found) {
    std::size_t begin = found.Begin - std::min(found.Begin, kBefore);
    while (IsInside(text, begin)) {
        ++begin;
    }
    if (begin > 0) {
        const std::size_t blank = text.find_first_of(" \n", begin);
        begin = blank < found.Begin ? blank + 1 : begin;
    }
    if (const std::size_t line = text.substr(0, found.Begin).rfind('\n');
        line != std::string_view::npos) {
        begin = std::max(begin, line + 1);
    }
    std::size_t end = std::min(text.size(), std::max(begin + kAround, found.End));
    while (IsInside(text, end)) {
        ++end;
    }
    return {begin, end};
}

} // namespace

DiarySearch::DiarySearch(const DiaryTable& table, int baseYear) : baseYear_(baseYear) {
    EachStoredSlot([&](const SlotPlace& place) {
        const DiaryEvent& event = table.At(place);
        const CalendarDate date{baseYear + place.Year, place.Month, place.Day};
        if (event.IsFree() || place.Slot == 0 || place.Day == 0 ||
            place.Day > NofDays(date.Year, date.Month)) {
            return;
        }
        Event& taken = events_.emplace_back();
        taken.Date = date;
        taken.Slot = place.Slot;
        taken.Holds.Hour = event.Hour;
        taken.Holds.Minute = event.Minute;
        taken.Holds.Msg = event.Msg;
        taken.Folded = Fold(event.Msg);
    });
}

std::vector<std::string> DiarySearch::WordsOf(std::string_view typed) {
    std::vector<std::string> words;
    const std::string folded = Fold(AsOneLine(typed));
    for (std::string_view rest = Trim(folded); !rest.empty(); rest = Trim(rest)) {
        const std::size_t end = std::min(rest.find_first_of(" \t"), rest.size());
        words.emplace_back(rest.substr(0, end));
        rest.remove_prefix(end);
    }
    return words;
}

std::set<std::string> DiarySearch::NoteNames() const {
    std::set<std::string> names;
    for (const Event& event : events_) {
        names.insert(GetFile({event.Slot, event.Date.Day, event.Date.Month, YearIndex(event)}));
    }
    return names;
}

void DiarySearch::TakeNotes(NoteTexts notes) {
    notes_.clear();
    for (Event& event : events_) {
        event.Note.reset();
        const auto note = notes.Texts.find(
            GetFile({event.Slot, event.Date.Day, event.Date.Month, YearIndex(event)}));
        if (note != notes.Texts.end()) {
            event.Note = notes_.size();
            notes_.push_back(std::move(note->second));
        }
    }
}

bool DiarySearch::Holds(const Event& event, const std::vector<std::string>& words) const {
    return std::all_of(words.begin(), words.end(), [&](const std::string& word) {
        return event.Folded.find(word) != std::string::npos ||
               (event.Note && notes_[*event.Note].Folded.find(word) != std::string::npos);
    });
}

std::vector<std::size_t> DiarySearch::Find(const std::vector<std::string>& words) const {
    std::vector<std::size_t> found;
    for (std::size_t i = 0; !words.empty() && i < events_.size(); ++i) {
        if (Holds(events_[i], words)) {
            found.push_back(i);
        }
    }
    return found;
}

MarkedText DiarySearch::Message(std::size_t number, const std::vector<std::string>& words) const {
    const std::string& message = events_[number].Holds.Msg;
    return {message, FindFolded(message, words)};
}

bool DiarySearch::HasSnippet(std::size_t number, const std::vector<std::string>& words) const {
    const Event& event = events_[number];
    return event.Note && std::any_of(words.begin(), words.end(), [&](const std::string& word) {
               return event.Folded.find(word) == std::string::npos;
           });
}

std::optional<MarkedText> DiarySearch::Snippet(std::size_t number,
                                               const std::vector<std::string>& words) const {
    if (!HasSnippet(number, words)) {
        return std::nullopt;
    }
    const Event& event = events_[number];
    std::vector<std::string> inNote;
    std::copy_if(
        words.begin(), words.end(), std::back_inserter(inNote),
        [&](const std::string& word) { return event.Folded.find(word) == std::string::npos; });
    const std::string& text = notes_[*event.Note].Text;
    const std::vector<TextPart> found = FindFolded(text, inNote);
    if (found.empty()) {
        return std::nullopt;
    }
    const TextPart piece = PieceAround(text, found.front());
    MarkedText snippet{piece.Begin > 0 ? "…" : "", {}};
    const std::size_t shift = snippet.Text.size();
    snippet.Text += AsOneLine(std::string_view(text).substr(piece.Begin, piece.End - piece.Begin));
    if (piece.End < text.size()) {
        snippet.Text += "…";
    }
    for (const TextPart& part : FindFolded(text, words)) {
        if (part.Begin >= piece.Begin && part.End <= piece.End) {
            snippet.Found.push_back(
                {part.Begin - piece.Begin + shift, part.End - piece.Begin + shift});
        }
    }
    return snippet;
}

} // namespace kestrova
