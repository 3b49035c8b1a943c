// SPDX-License-Identifier: GPL-3.0-or-later
#include "diary/EventNote.h"

#include "diary/EventList.h"
#include "language/Texts.h"
#include "text/Encoding.h"
#include "text/Lines.h"

namespace kestrova {

std::optional<std::string> NoteTextOf(std::string_view bytes) {
    std::string text;
    LineReader lines(bytes);
    bool first = true;
    while (const auto line = lines.Next()) {
        if (line->find_first_of(std::string_view("\0\r", 2)) != std::string_view::npos) {
            return std::nullopt;
        }
        text.append(first ? "" : "\n");
        text += AsUtf8(*line);
        first = false;
    }
    return text;
}

std::string NoteBytes(std::string_view text) {
    std::string bytes;
    bytes.reserve(text.size() + text.size() / 16 + kLineEnd.size());
    for (const char c : text) {
        if (c == '\n') {
            bytes.append(kLineEnd);
        } else {
            bytes += c;
        }
    }
    return text.empty() ? bytes : bytes.append(kLineEnd);
}

void EventNote::Begin(const CalendarDate& date, std::optional<DiaryEvent> event, int slot) {
    date_ = date;
    slot_ = slot;
    event_ = std::move(event);
    bytes_.reset();
    refused_.reset();
    unsaved_ = false;
}

std::optional<SlotPlace> EventNote::PlaceIn(const DiaryTable& table) const {
    const int year = date_.Year - rooms_.Dates.BaseYear;
    if (year < 0 || year >= kDiaryYears) {
        return std::nullopt;
    }
    const DayPlace day{date_.Day, date_.Month, year};
    const auto slot = event_ ? FindEvent(table, day, *event_, slot_) : kScratchSlot;
    return slot ? std::optional(SlotPlace(*slot, day)) : std::nullopt;
}

bool EventNote::Open(const Keeps& keeps) {
    auto bytes = rooms_.Store.OpenNote([this](const DiaryTable& table) { return PlaceIn(table); },
                                       kEditedNoteLimit);
    if (!bytes) {
        if (bytes.Failure().Code == ErrorCode::TooLarge) {
            Tell(TroubleOf(ProgramText::NoteTooLarge));
        }
        return false; // of any other failure nothing is said
    }
    const auto text = NoteTextOf(bytes.Value());
    if (!text || !keeps(*text)) {
        Tell(TroubleOf(ProgramText::NoteIsNoText));
        return false;
    }
    bytes_ = std::move(bytes.Value());
    unsaved_ = false;
    return true;
}

EventNote::Trouble EventNote::TroubleOf(ProgramText text) const {
    return {texts::kMessengerTitle, TextOf(rooms_.Texts, text)};
}

void EventNote::Tell(const Trouble& trouble) {
    rooms_.Boxes.Show({rooms_.Texts.Text(trouble.Title), trouble.Text, DialogIcon::Critical});
}

void EventNote::Remember(const std::string& text) {
    bytes_ = NoteBytes(text);
    unsaved_ = true;
}

// Nothing when the text has been saved.
std::optional<EventNote::Trouble> EventNote::Try(const std::string& text) {
    Remember(text);
    if (bytes_->size() > kEditedNoteLimit) {
        return TroubleOf(ProgramText::NoteTooLarge);
    }
    const NoteResult result = rooms_.Store.SaveNote(
        [this](const DiaryTable& table) { return PlaceIn(table); }, std::string_view(*bytes_));
    switch (result) {
    case NoteResult::Saved: unsaved_ = false; return std::nullopt;
    case NoteResult::NoEvent: return TroubleOf(ProgramText::NoteWithoutEvent);
    case NoteResult::OutOfReach: return TroubleOf(ProgramText::DiaryOutOfReach);
    case NoteResult::Busy:
        return Trouble{texts::kProgramTitle, TextOf(rooms_.Texts, ProgramText::DiaryBusy)};
    case NoteResult::Failed: break;
    }
    return Trouble{texts::kMessengerTitle, rooms_.Texts.Text(texts::kFileHandlingError)};
}

bool EventNote::Save(const std::string& text, SaveMessages messages) {
    const auto trouble = Try(text);
    if (trouble && messages == SaveMessages::Show && refused_ != text) {
        refused_ = text;
        Tell(*trouble);
    }
    return !trouble;
}

bool EventNote::Leave(const std::string& text) {
    const auto trouble = Try(text);
    if (!trouble) {
        return true;
    }
    if (refused_ != text) {
        refused_ = text;
        Tell(*trouble);
        return false;
    }
    const bool discard =
        rooms_.Boxes.Ask({rooms_.Texts.Text(trouble->Title), trouble->Text, DialogIcon::Critical},
                         {TextOf(rooms_.Texts, ProgramText::Discard),
                          TextOf(rooms_.Texts, ProgramText::GoOnEditing)});
    if (discard) {
        bytes_.reset();
        unsaved_ = false;
    }
    return discard;
}

void EventNote::GiveUp() {
    if (event_ || !bytes_) {
        return;
    }
    // A file that cannot be removed now is offered with the next new event of that day, no more.
    (void)rooms_.Store.SaveNote([this](const DiaryTable& table) { return PlaceIn(table); },
                                std::nullopt);
    bytes_.reset();
    unsaved_ = false;
}

} // namespace kestrova
