// SPDX-License-Identifier: GPL-3.0-or-later
// Calendar files: whatever they hold, the diary stays in order, and what has come into it goes into
// a file and back for good.
#include "Expect.h"

#include "diary/Repeats.h"
#include "exchange/DiaryExport.h"
#include "exchange/DiaryImport.h"
#include "platform/qt/ical/IcalFormat.h"
#include "text/Encoding.h"

#include <cstdlib>
#include <ctime>

using kestrova::fuzz::Expect;

namespace {

constexpr int kYear = 2026;
constexpr kestrova::WallTime kNow{2026, 5, 1, 12, 0, 0};

struct Diary {
    kestrova::DiarySnapshot Content;
    kestrova::ImportTally Tally;
};

Diary Import(const kestrova::ReadCalendar& calendar, const kestrova::StringTable& texts) {
    const kestrova::ImportPlan plan = kestrova::PlanImport(calendar, texts, kYear, kNow);
    Diary diary;
    kestrova::NotePlan notes;
    kestrova::EventList events(diary.Content.Table, notes);
    const auto keep = [](const kestrova::SlotPlace&) { return kestrova::Status(kestrova::Done{}); };
    diary.Tally = CarryOut(plan, events, keep).Tally;
    const kestrova::DiaryTable once = diary.Content.Table;
    Expect(CarryOut(plan, events, keep).Tally.Added == 0, "nothing comes twice");
    Expect(once == diary.Content.Table, "nothing moves");
    for (const auto& [name, fate] : notes.Changes()) {
        diary.Content.Notes.emplace(name, *std::get<kestrova::NoteText>(fate).Text);
    }
    return diary;
}

} // namespace

int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
    static const int zone = ::setenv("TZ", "Europe/Berlin", 1);
    static const kestrova::StringTable texts = kestrova::MsgDefaults();
    kestrova::IcalFormat format;
    const auto read = format.Read(kestrova::fuzz::View(data, size), {kYear, kYear + 1});
    if (!read || zone != 0) {
        return 0;
    }
    for (const kestrova::ExchangeEvent& event : read.Value().Events) {
        Expect(!event.Times.empty(), "an event has a time");
        Expect(kestrova::IsUtf8(event.Summary) && kestrova::IsUtf8(event.Note), "texts are UTF-8");
        for (const kestrova::WallTime& time : event.Times) {
            Expect(time.Month >= 0 && time.Month < kestrova::kMonths && time.Day >= 1 &&
                       time.Day <= kestrova::NofDays(time.Year, time.Month) && time.Hour >= 0 &&
                       time.Hour < 24 && time.Minute >= 0 && time.Minute < 60,
                   "a time is one that there is");
        }
    }
    const Diary diary = Import(read.Value(), texts);
    const auto exported = kestrova::ExportDiary(diary.Content, texts, kYear);
    Expect(exported.Copies == diary.Tally.Added, "all of it is written");
    Expect(exported.LeftOut == 0 && exported.NotesLeftOut == 0, "nothing is left out");
    const auto bytes = format.Write(exported.Events, kNow);
    Expect(bytes.Ok(), "it can be written");
    const auto again = format.Read(bytes.Value(), {kYear, kYear + 1});
    Expect(again.Ok(), "it can be read again");
    const Diary back = Import(again.Value(), texts);
    Expect(back.Content.Table == diary.Content.Table, "the diary is the same");
    Expect(back.Content.Notes == diary.Content.Notes, "so are the notes");
    return 0;
}
