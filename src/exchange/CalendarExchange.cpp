// SPDX-License-Identifier: GPL-3.0-or-later
#include "exchange/CalendarExchange.h"

#include "exchange/DiaryExport.h"

namespace kestrova {

Error CalendarExchange::Sentence(ProgramText text, const Error& error,
                                 const std::string& value) const {
    return {error.Code, TextOf(rooms_.Texts, text, value)};
}

Result<ExportTally> CalendarExchange::Export(const std::string& path, int baseYear) {
    const auto diary = rooms_.Store.Snapshot();
    if (!diary) {
        const Error& error = diary.Failure();
        return error.Code == ErrorCode::Busy
                   ? Sentence(ProgramText::DiaryBusy, error, {})
                   : Sentence(ProgramText::CalendarNotRead, error, error.Text);
    }
    const ExportedDiary exported = ExportDiary(diary.Value(), rooms_.Texts, baseYear);
    const auto bytes = rooms_.Format.Write(exported.Events, rooms_.Time.Now());
    if (!bytes) {
        const Error& error = bytes.Failure();
        return Sentence(error.Code == ErrorCode::NotFound ? ProgramText::CalendarNoModule
                                                          : ProgramText::CalendarNotWritten,
                        error, error.Text);
    }
    // A device or a pipe must not be taken away, nor a folder tried.
    const auto there = rooms_.Files.Read(path, 0);
    const bool noFile = !there && there.Failure().Code == ErrorCode::Damaged;
    const Status written =
        noFile ? Status(there.Failure()) : rooms_.Files.Replace(path, bytes.Value());
    if (!written) {
        return Sentence(ProgramText::CalendarNotWritten, written.Failure(), written.Failure().Text);
    }
    return ExportTally{exported.Copies, exported.LeftOut, exported.NotesLeftOut};
}

Result<ImportPlan> CalendarExchange::Read(const std::string& path, int baseYear) {
    const auto bytes = rooms_.Files.Read(path, kCalendarFileLimit);
    if (!bytes) {
        const Error& error = bytes.Failure();
        return error.Code == ErrorCode::TooLarge
                   ? Sentence(ProgramText::CalendarTooLarge, error, path)
                   : Sentence(ProgramText::CalendarNotRead, error, error.Text);
    }
    const auto calendar = rooms_.Format.Read(bytes.Value(), {baseYear, baseYear + kDiaryYears - 1});
    if (!calendar) {
        const Error& error = calendar.Failure();
        switch (error.Code) {
        case ErrorCode::TooLarge: return Sentence(ProgramText::CalendarTooLarge, error, path);
        case ErrorCode::Damaged: return Sentence(ProgramText::CalendarDamaged, error, path);
        case ErrorCode::NotFound: return Sentence(ProgramText::CalendarNoModule, error, error.Text);
        default: return Sentence(ProgramText::CalendarNotRead, error, error.Text);
        }
    }
    return PlanImport(calendar.Value(), rooms_.Texts, baseYear, rooms_.Time.Now());
}

ImportTally CalendarExchange::Preview(const ImportPlan& plan) const {
    DiaryTable table = rooms_.Store.Table();
    NotePlan notes;
    EventList events(table, notes);
    return CarryOut(plan, events, [](const SlotPlace&) { return Status(Done{}); }).Tally;
}

Result<std::optional<ImportTally>> CalendarExchange::Import(const ImportPlan& plan, int baseYear) {
    ImportResult result;
    const ChangeResult changed = rooms_.Store.Change([&](EventList& events) {
        if (rooms_.Store.RolledTo(rooms_.Store.Folder()).value_or(baseYear) > baseYear) {
            // Another program has just brought the diary to the next year.
            result = {{}, Error{ErrorCode::Busy, TextOf(rooms_.Texts, ProgramText::DiaryBusy)}};
            return EditVerdict::Leave;
        }
        result = CarryOut(plan, events, [this](const SlotPlace& place) {
            return rooms_.Store.KeepNoteAside(place);
        });
        return result.Kept && result.Tally.Added > 0 ? EditVerdict::Save : EditVerdict::Leave;
    });
    if (changed == ChangeResult::NotSaved) {
        return std::optional<ImportTally>();
    }
    if (!result.Kept) {
        return result.Kept.Failure();
    }
    return std::optional(result.Tally);
}

} // namespace kestrova
