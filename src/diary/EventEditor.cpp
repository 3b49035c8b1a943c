// SPDX-License-Identifier: GPL-3.0-or-later
#include "diary/EventEditor.h"

#include "diary/Repeats.h"
#include "language/ProgramTexts.h"
#include "language/Texts.h"
#include "text/Lines.h"
#include "text/Numbers.h"

#include <algorithm>

namespace kestrova {

namespace {

constexpr int kLastMonthlyDay = 28;
constexpr CalendarDate kLeapDay{2000, 1, 29};
constexpr std::size_t kMediaFile = 1; // where Extra holds the path

std::int16_t TimeNumber(std::string_view text) {
    return ReadInt16(text).value_or(0);
}

DetailsAnswer AnswerOf(bool given) {
    return given ? DetailsAnswer::Given : DetailsAnswer::SwitchedOff;
}

} // namespace

bool IsTimeText(std::string_view text, int limit) {
    const auto isDigit = [](char c) { return c >= '0' && c <= '9'; };
    return text.size() <= 2 && std::all_of(text.begin(), text.end(), isDigit) &&
           TimeNumber(text) <= limit;
}

std::string PadTime(std::string_view text) {
    return TwoDigits(TimeNumber(text));
}

std::vector<std::string> EventEditor::BuildRmdList() const {
    std::vector<std::string> list;
    for (int i = 0; i < kReminderKinds; ++i) {
        const auto kind = static_cast<ReminderKind>(i);
        const bool hidden =
            (kind == ReminderKind::Phone && rooms_.Details.Modem() == ModemState::NoModem) ||
            (kind == ReminderKind::Email && !rooms_.Details.MailWorks());
        if (!hidden) {
            list.push_back(ReminderCaption(rooms_.Texts, kind));
        }
    }
    return list;
}

std::optional<DayPlace> EventEditor::Day(const CalendarDate& date) const {
    const int year = date.Year - rooms_.Dates.BaseYear;
    if (year < 0 || year >= kDiaryYears) {
        return std::nullopt;
    }
    return DayPlace{date.Day, date.Month, year};
}

AcceptResult EventEditor::BeginNew() {
    date_ = rooms_.Dates.Page();
    original_.reset();
    slot_ = kScratchSlot;
    kind_.reset();
    extra_ = {};
    const auto day = Day(date_);
    if (day && !rooms_.Store.Table().At({kEventsPerDay, *day}).IsFree()) {
        rooms_.Boxes.Show({rooms_.Texts.Text(texts::kProgramTitle),
                           TextOf(rooms_.Texts, ProgramText::DayFull), DialogIcon::Critical});
        return AcceptResult::Refused;
    }
    note_.Begin(date_, std::nullopt);
    return AcceptResult::Accepted;
}

AcceptResult EventEditor::BeginEdit(int slot) {
    date_ = rooms_.Dates.Page();
    const auto day = Day(date_);
    if (!day || rooms_.Store.Table().At({slot, *day}).IsFree()) {
        return AcceptResult::Refused;
    }
    original_ = rooms_.Store.Table().At({slot, *day});
    kind_ = ReminderKindOf(rooms_.Texts, original_->Rmd);
    extra_ = original_->Extra;
    slot_ = slot;
    note_.Begin(date_, original_, slot);
    return AcceptResult::Accepted;
}

void EventEditor::ShowRefusal(std::initializer_list<TextId> lines) {
    std::string text;
    for (const TextId id : lines) {
        text += (text.empty() ? "" : "\n") + rooms_.Texts.Text(id);
    }
    rooms_.Boxes.Show({rooms_.Texts.Text(texts::kMessengerTitle), text, DialogIcon::Critical});
}

bool EventEditor::RefusesRepeat(const EventDraft& draft) {
    const auto repeat = RepeatOf(rooms_.Texts, draft.Rpt);
    const RepeatKind kind = repeat ? repeat->Kind : RepeatKind::Never;
    std::optional<TextId> refusal;
    if (kind == RepeatKind::Monthly && date_.Day > kLastMonthlyDay) {
        refusal = texts::kNoMonthlyAbove28;
    }
    if (kind == RepeatKind::Annually && date_.Month == kLeapDay.Month &&
        date_.Day == kLeapDay.Day) {
        refusal = texts::kNoAnnualLeapDay;
    }
    if (refusal) {
        rooms_.Boxes.Show({rooms_.Texts.Text(texts::kProgramTitle), rooms_.Texts.Text(*refusal),
                           DialogIcon::Critical});
    }
    return refusal.has_value();
}

bool EventEditor::CollectMediaFile() {
    const ProgramText filter =
        rooms_.Details.VideoWorks() ? ProgramText::MediaFilter : ProgramText::WaveFilter;
    const auto path = rooms_.Boxes.OpenFile("", TextOf(rooms_.Texts, filter));
    if (path) {
        if (path->ends_with(".wav") || path->ends_with(".WAV")) {
            rooms_.Details.Preview(*path);
        }
        extra_[kMediaFile] = *path;
    }
    return !extra_[kMediaFile].empty();
}

// Whether the reminder can be given; if not, the user knows.
DetailsAnswer EventEditor::CollectDetails(ReminderKind kind) {
    if (kind_ != kind) {
        extra_ = {}; // a telephone number is no media file
    }
    switch (kind) {
    case ReminderKind::Speak:
        if (rooms_.Settings.SpeechEnabled == 0) {
            ShowRefusal({texts::kNoSpeech, texts::kDownloadSpeech, texts::kEnableSpeech});
            return DetailsAnswer::SwitchedOff;
        }
        return DetailsAnswer::Given;
    case ReminderKind::Phone:
        if (rooms_.Settings.ModemDescription.empty() || rooms_.Details.Modem() != ModemState::On) {
            ShowRefusal({texts::kNoCallModemDisabled, texts::kEnableModem});
            return DetailsAnswer::SwitchedOff;
        }
        return rooms_.Details.AskPhoneNumbers(extra_);
    case ReminderKind::Media:
        if (!rooms_.Details.SoundWorks()) {
            ShowRefusal({texts::kNoWaveSounds, texts::kAtTheMoment});
            return DetailsAnswer::SwitchedOff;
        }
        return AnswerOf(CollectMediaFile());
    case ReminderKind::Music:
        if (!rooms_.Details.CdWorks()) {
            ShowRefusal({texts::kCdInactive, texts::kAtTheMoment});
            return DetailsAnswer::SwitchedOff;
        }
        return DetailsAnswer::Given;
    case ReminderKind::Email: return rooms_.Details.AskMailAddress(extra_);
    case ReminderKind::Screen:
    case ReminderKind::None: return DetailsAnswer::Given;
    }
    return DetailsAnswer::Given;
}

// A note that cannot be handled now ends the change: nothing is saved without it.
EditVerdict EventEditor::Unless(const Status& status, EditVerdict verdict) {
    if (status) {
        return verdict;
    }
    noteTrouble_ = status.Failure();
    return EditVerdict::Leave;
}

Status EventEditor::Remove(EventList& events, const SlotPlace& place) {
    std::optional<std::string> note;
    if (events.Notes().Has(place)) {
        auto text = rooms_.Store.Note(place);
        if (!text && text.Failure().Code != ErrorCode::NotFound) {
            return text.Failure(); // it could not be brought back
        }
        if (text) {
            note = std::move(text.Value());
        }
    }
    removing_.push_back({{rooms_.Dates.BaseYear + place.Year, place.Month, place.Day},
                         events.Table().At(place),
                         std::move(note)});
    events.DeleteMsg(place);
    return Done{};
}

EditVerdict EventEditor::Insert(EventList& events, const DayPlace& day, const DiaryEvent& event) {
    events.ReSortMsg(day);
    dayFull_ = events.IsFull(day);
    if (dayFull_) {
        return EditVerdict::Leave;
    }
    const SlotPlace scratch(kScratchSlot, day);
    if (!note_.Bytes()) {
        // What another program or a crash has left there was never seen here: it is kept, but does
        // not become the note of this event.
        const Status kept = rooms_.Store.KeepNoteAside(scratch);
        if (!kept) {
            return Unless(kept, EditVerdict::Leave);
        }
    }
    events.Table().At(scratch) = event;
    events.Notes().Put(scratch, note_.Bytes().value_or(""));
    if (const auto slot = events.SortMsg(day)) {
        RepeatMsg(events, rooms_.Texts, rooms_.Dates.BaseYear, {*slot, day});
    }
    return EditVerdict::Save;
}

EditVerdict EventEditor::Overwrite(EventList& events, const DayPlace& day,
                                   const DiaryEvent& event) {
    const auto slot = events.Find(day, *original_, slot_);
    if (!slot) {
        // Someone else has deleted or moved it meanwhile. What the user typed is not thrown away.
        return event.IsFree() ? EditVerdict::Leave : Insert(events, day, event);
    }
    const SlotPlace place(*slot, day);
    if (event.IsFree()) {
        const Status removed = Remove(events, place);
        events.ReSortMsg(day);
        return Unless(removed, EditVerdict::Save);
    }
    events.Table().At(place) = event;
    if (note_.IsUnsaved()) {
        events.Notes().Put(place, note_.Bytes().value_or(""));
    }
    const int moved = events.ReSortMsg(day, *slot);
    RepeatMsg(events, rooms_.Texts, rooms_.Dates.BaseYear, {moved, day});
    return EditVerdict::Save;
}

AcceptResult EventEditor::Change(const DiaryStore::Edit& edit) {
    const std::string folder = rooms_.Store.Folder();
    const ChangeResult result = rooms_.Store.Change([&](EventList& events) {
        removing_.clear();
        noteTrouble_.reset();
        dayFull_ = false;
        return edit(events);
    });
    if (result == ChangeResult::NotSaved) {
        return AcceptResult::Refused;
    }
    if (noteTrouble_) {
        if (noteTrouble_->Code == ErrorCode::Busy) {
            rooms_.Boxes.Show({rooms_.Texts.Text(texts::kProgramTitle),
                               TextOf(rooms_.Texts, ProgramText::DiaryBusy), DialogIcon::Critical});
        } else {
            ShowRefusal({texts::kFileHandlingError});
        }
        return AcceptResult::Refused;
    }
    if (dayFull_) {
        rooms_.Boxes.Show({rooms_.Texts.Text(texts::kProgramTitle),
                           TextOf(rooms_.Texts, ProgramText::DayFull), DialogIcon::Critical});
        return AcceptResult::Refused;
    }
    if (!removing_.empty()) {
        removed_ = std::move(removing_);
        removedFrom_ = folder;
    }
    return AcceptResult::Accepted;
}

AcceptResult EventEditor::Accept(EventDraft& draft) {
    const auto day = Day(date_);
    if (!day) {
        ShowRefusal({texts::kSaveFailed});
        return AcceptResult::Refused;
    }
    std::string msg = AsOneLine(draft.Msg);
    if (Trim(msg).empty()) {
        msg.clear(); // blanks alone would be an event that nobody can see
    }
    if (msg.empty() && !original_) {
        return AcceptResult::Accepted;
    }
    if (!msg.empty()) {
        if (RefusesRepeat(draft)) {
            return AcceptResult::Refused;
        }
        const auto kind = ReminderKindOf(rooms_.Texts, draft.Rmd);
        const ReminderExtra extra = extra_;
        const auto answer = kind ? CollectDetails(*kind) : DetailsAnswer::Given;
        if (answer == DetailsAnswer::NotNow) {
            extra_ = extra;
            return AcceptResult::Refused;
        }
        if (answer == DetailsAnswer::SwitchedOff) {
            draft.Rmd = ReminderCaption(rooms_.Texts, ReminderKind::Screen);
        }
    }
    const DiaryEvent event{TimeNumber(draft.Hour),
                           TimeNumber(draft.Minute),
                           msg,
                           draft.Rpt,
                           draft.Rmd,
                           extra_,
                           static_cast<std::int16_t>(draft.Hide ? 1 : 0)};
    return Change([&](EventList& events) {
        return original_ ? Overwrite(events, *day, event) : Insert(events, *day, event);
    });
}

AcceptResult EventEditor::DeleteAllAlike() {
    if (!original_) {
        return AcceptResult::Accepted;
    }
    const std::string msg = original_->Msg;
    return Change([&](EventList& events) {
        Status removed = Done{};
        EachStoredSlot([&](const SlotPlace& place) {
            if (removed && place.Slot > 0 && events.Table().At(place).Msg == msg) {
                removed = Remove(events, place);
            }
        });
        for (const Removed& one : removing_) {
            if (const auto day = Day(one.Date)) {
                events.ReSortMsg(*day);
            }
        }
        return Unless(removed, removing_.empty() ? EditVerdict::Leave : EditVerdict::Save);
    });
}

AcceptResult EventEditor::Undo() {
    if (!CanUndo()) {
        return AcceptResult::Refused;
    }
    std::vector<Removed> left;
    const AcceptResult result = Change([&](EventList& events) {
        left.clear();
        for (const Removed& removed : removed_) {
            const auto day = Day(removed.Date);
            if (!day || events.IsFull(*day)) {
                left.push_back(removed);
                continue;
            }
            const SlotPlace scratch(kScratchSlot, *day);
            const Status kept = rooms_.Store.KeepNoteAside(scratch);
            if (!kept) {
                return Unless(kept, EditVerdict::Leave);
            }
            events.Table().At(scratch) = removed.Event;
            // A note that somebody has left there is not this event's.
            if (removed.Note) {
                events.Notes().Put(scratch, *removed.Note);
            } else {
                events.Notes().Remove(scratch);
            }
            events.SortMsg(*day);
        }
        return EditVerdict::Save;
    });
    if (result == AcceptResult::Accepted) {
        removed_ = std::move(left);
        if (!removed_.empty()) {
            rooms_.Boxes.Show({rooms_.Texts.Text(texts::kProgramTitle),
                               TextOf(rooms_.Texts, ProgramText::DayFull), DialogIcon::Critical});
        }
    }
    return result;
}

} // namespace kestrova
