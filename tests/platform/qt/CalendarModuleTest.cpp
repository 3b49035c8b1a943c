// SPDX-License-Identifier: GPL-3.0-or-later
// The real library, with files as other programs write them, and worse.
#include "platform/qt/CalendarModule.h"

#include "diary/NoteName.h"
#include "diary/Repeats.h"
#include "exchange/DiaryExport.h"
#include "exchange/DiaryImport.h"
#include "text/Encoding.h"
#include "text/Lines.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <ctime>
#include <random>

namespace kestrova {
namespace {

constexpr CalendarSpan kYears{2026, 2027};
constexpr WallTime kNow{2026, 5, 1, 12, 0, 0};

// The clock on the wall is one of Berlin.
class CalendarModuleTest : public testing::Test {
protected:
    void SetUp() override { SetZone("Europe/Berlin"); }
    void TearDown() override { SetZone(nullptr); }

    static void SetZone(const char* zone) {
        zone != nullptr ? ::setenv("TZ", zone, 1) : ::unsetenv("TZ");
        ::tzset();
    }

    Result<ReadCalendar> Read(const std::string& bytes) { return Module.Read(bytes, kYears); }

    // The events of a file with these lines in its calendar.
    ReadCalendar Calendar(const std::string& lines) {
        auto read = Read("BEGIN:VCALENDAR\r\nVERSION:2.0\r\n" + lines + "END:VCALENDAR\r\n");
        EXPECT_TRUE(read) << read.Failure().Text;
        return read ? read.Value() : ReadCalendar();
    }

    // The one event with these lines, and one without times when there is none.
    ExchangeEvent Event(const std::string& lines) {
        const ReadCalendar calendar =
            Calendar(zones_ + "BEGIN:VEVENT\r\nUID:1\r\n" + lines + "END:VEVENT\r\n");
        EXPECT_EQ(calendar.Events.size(), 1U) << lines;
        return calendar.Events.empty() ? ExchangeEvent() : calendar.Events.front();
    }

    // Its times, as "0310T0900": the first few, and how many more there are.
    static std::string Times(const ExchangeEvent& event) {
        constexpr std::size_t kShown = 4;
        std::string all;
        for (std::size_t i = 0; i < std::min(kShown, event.Times.size()); ++i) {
            const WallTime& time = event.Times[i];
            char text[32];
            std::snprintf(text, sizeof text, "%s%02d%02d%02dT%02d%02d", i == 0 ? "" : " ",
                          time.Year % 100, time.Month + 1, time.Day, time.Hour, time.Minute);
            all += text;
        }
        return event.Times.size() > kShown
                   ? all + " +" + std::to_string(event.Times.size() - kShown)
                   : all;
    }

    CalendarModule Module{KESTROVA_CALENDAR};
    std::string zones_ =
        "BEGIN:VTIMEZONE\r\nTZID:Somewhere\r\n"
        "BEGIN:STANDARD\r\nDTSTART:19701101T020000\r\nTZOFFSETFROM:-0400\r\nTZOFFSETTO:-0500\r\n"
        "RRULE:FREQ=YEARLY;BYMONTH=11;BYDAY=1SU\r\nEND:STANDARD\r\n"
        "BEGIN:DAYLIGHT\r\nDTSTART:19700308T020000\r\nTZOFFSETFROM:-0500\r\nTZOFFSETTO:-0400\r\n"
        "RRULE:FREQ=YEARLY;BYMONTH=3;BYDAY=2SU\r\nEND:DAYLIGHT\r\nEND:VTIMEZONE\r\n";
};

TEST_F(CalendarModuleTest, TimesOfOtherProgramsAreLocalOnes) {
    const struct {
        const char* Lines;
        const char* Expected;
    } rows[] = {
        {"DTSTART:20260310T090000\r\n", "260310T0900"},
        {"DTSTART:20260310T090000Z\r\n", "260310T1000"},
        {"DTSTART:20260710T230000Z\r\n", "260711T0100"},
        {"DTSTART;TZID=America/New_York:20260710T090000\r\n", "260710T1500"},
        {"DTSTART;TZID=Somewhere:20260710T090000\r\n", "260710T1500"},
        {"DTSTART;TZID=Somewhere:20261210T090000\r\n", "261210T1500"},
        {"DTSTART;TZID=Nowhere/At All:20260310T090000\r\n", "260310T0900"},
        {"DTSTART;TZID=../../etc/passwd:20260310T090000\r\n", "260310T0900"},
        {"DTSTART;VALUE=DATE:20260310\r\n", "260310T0000"},
        {"DTSTART;VALUE=DATE:20260310\r\nDTEND;VALUE=DATE:20260312\r\n", "260310T0000 260311T0000"},
        {"DTSTART;VALUE=DATE:20251230\r\nDURATION:P4D\r\n", "260101T0000 260102T0000"},
        {"DTSTART:20260310T220000\r\nDTEND:20260312T020000\r\n", "260310T2200"},
        {"DTSTART;TZID=Somewhere\r\n :20260710\r\n T090000\r\n", "260710T1500"},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(Times(Event(row.Lines)), row.Expected) << row.Lines;
    }
}

TEST_F(CalendarModuleTest, RulesGiveTheirTimesWithinTheYears) {
    const struct {
        const char* Lines;
        const char* Expected;
        ExchangeRule Rule;
    } rows[] = {
        {"DTSTART:20190101T090000\r\nRRULE:FREQ=DAILY\r\n",
         "260101T0900 260102T0900 260103T0900 260104T0900 +726",
         {ExchangeRepeat::Daily}},
        {"DTSTART:20260306T090000\r\nRRULE:FREQ=WEEKLY;BYDAY=FR\r\nEXDATE:20260320T090000\r\n",
         "260306T0900 260313T0900 260327T0900 260403T0900 +91",
         {ExchangeRepeat::Weekly}},
        {"DTSTART:20200306T090000\r\nRRULE:FREQ=WEEKLY;INTERVAL=2;COUNT=160\r\n",
         "260102T0900 260116T0900 260130T0900 260213T0900 +4",
         {}},
        {"DTSTART:20261207T090000\r\nRRULE:FREQ=WEEKLY;UNTIL=20261214\r\n",
         "261207T0900 261214T0900",
         {}},
        {"DTSTART:20271101T090000\r\nRRULE:FREQ=MONTHLY\r\n",
         "271101T0900 271201T0900",
         {ExchangeRepeat::Monthly}},
        {"DTSTART:20270831T090000\r\nRRULE:FREQ=MONTHLY\r\n",
         "270831T0900 271031T0900 271231T0900",
         {}},
        {"DTSTART:20271012T090000\r\nRRULE:FREQ=MONTHLY;BYDAY=2TU\r\n",
         "271012T0900 271109T0900 271214T0900",
         {ExchangeRepeat::MonthlyByWeekday, 2, 2}},
        {"DTSTART:20271031T090000\r\nRRULE:FREQ=MONTHLY;BYDAY=SU;BYSETPOS=-1\r\n",
         "271031T0900 271128T0900 271226T0900",
         {ExchangeRepeat::MonthlyByWeekday, 4, 7}},
        {"DTSTART:20271026T090000\r\nRRULE:FREQ=MONTHLY;BYDAY=4TU\r\n",
         "271026T0900 271123T0900 271228T0900",
         {}},
        {"DTSTART;VALUE=DATE:19700501\r\nRRULE:FREQ=YEARLY\r\n",
         "260501T0000 270501T0000",
         {ExchangeRepeat::Annually}},
        {"DTSTART;VALUE=DATE:20270501\r\nRRULE:FREQ=YEARLY;INTERVAL=2\r\n", "270501T0000", {}},
        {"DTSTART:20260101T090000\r\nRDATE:20260105T100000,20260107T110000\r\n",
         "260101T0900 260105T1000 260107T1100",
         {}},
        // Summer time begins earlier there, so for three weeks the hour is another.
        {"DTSTART;TZID=Somewhere:20260306T090000\r\nRRULE:FREQ=WEEKLY\r\n",
         "260306T1500 260313T1400 260320T1400 260327T1400 +92",
         {}},
    };
    for (const auto& row : rows) {
        const ExchangeEvent event = Event(row.Lines);
        EXPECT_EQ(Times(event), row.Expected) << row.Lines;
        EXPECT_EQ(event.Rule, row.Rule) << row.Lines;
    }
}

TEST_F(CalendarModuleTest, OneTimeOfARuleMayBeToldOfElsewhere) {
    const ReadCalendar calendar = Calendar(
        "BEGIN:VEVENT\r\nUID:a\r\nDTSTART:20271201T090000\r\nRRULE:FREQ=DAILY;COUNT=3\r\n"
        "SUMMARY:Walk\r\nEND:VEVENT\r\n"
        "BEGIN:VEVENT\r\nUID:a\r\nRECURRENCE-ID:20271202T090000\r\nDTSTART:20271202T150000\r\n"
        "SUMMARY:Late walk\r\nEND:VEVENT\r\n"
        "BEGIN:VEVENT\r\nUID:a\r\nRECURRENCE-ID:20271203T090000\r\nDTSTART:20271203T090000\r\n"
        "STATUS:CANCELLED\r\nEND:VEVENT\r\n"
        "BEGIN:VEVENT\r\nUID:b\r\nDTSTART:20200101T090000\r\nEND:VEVENT\r\n");
    ASSERT_EQ(calendar.Events.size(), 2U);
    EXPECT_EQ(Times(calendar.Events[0]), "271201T0900");
    EXPECT_EQ(Times(calendar.Events[1]), "271202T1500");
    EXPECT_EQ(calendar.Cancelled, 1);
    EXPECT_EQ(calendar.Outside, 1);
}

TEST_F(CalendarModuleTest, TextsAndAlarmsAreReadAsTheyWereMeant) {
    const ExchangeEvent event =
        Event("DTSTART:20260310T090000\r\nSUMMARY;LANGUAGE=de:Caf\xC3\r\n \xA9\\, two\\;\r\n"
              "\t three\\\\\r\nDESCRIPTION:one\\ntwo\\Nthree\r\nATTACH:x\r\n"
              "BEGIN:VALARM\r\nACTION:DISPLAY\r\nTRIGGER:-PT15M\r\nSUMMARY:no\r\nEND:VALARM\r\n");
    EXPECT_EQ(event.Summary, "Caf\xC3\xA9, two; three\\");
    EXPECT_EQ(event.Note, "one\ntwo\nthree");
    EXPECT_TRUE(event.Alarm);
    // As Windows wrote it, and an alarm that is none.
    const ExchangeEvent old =
        Event("DTSTART:20260310T090000\r\nSUMMARY:Caf\xE9\r\n"
              "BEGIN:VALARM\r\nACTION:NONE\r\nTRIGGER:-PT15M\r\nEND:VALARM\r\n");
    EXPECT_EQ(old.Summary, "Caf\xC3\xA9");
    EXPECT_FALSE(old.Alarm);
}

TEST_F(CalendarModuleTest, AnEventThatNobodyCouldFollowIsCounted) {
    const char* const rows[] = {
        "SUMMARY:no start\r\n",
        "DTSTART:20261340T990000\r\n",
        "DTSTART:yesterday\r\n",
        "DTSTART\r\n",
        "DTSTART:20260101T000000\r\nRRULE:FREQ=SOMETIMES\r\n",
        "DTSTART:20260101T000000\r\nRRULE:FREQ=DAILY;INTERVAL=0\r\n",
        "DTSTART:20260101T000000\r\nRRULE:FREQ=SECONDLY\r\n",
        "DTSTART:20260101T000000\r\nRRULE:FREQ=SECONDLY;BYMONTH=2;BYMONTHDAY=30\r\n",
        "DTSTART:00010101T000000\r\nRRULE:FREQ=MINUTELY;COUNT=2000000000\r\n",
        "DTSTART:20260101T000000\r\nRRULE:FREQ=DAILY;BYHOUR=0,1,2,3,4,5;BYMINUTE=0,1,2,3,4,5,6,7,"
        "8,9,10;BYSECOND=0,1,2,3,4,5,6,7,8,9,10;BYMONTH=2;BYMONTHDAY=30\r\n",
        "DTSTART:20260101T000000\r\nRRULE:RSCALE=CHINESE;FREQ=YEARLY\r\n",
        "DTSTART:20260101T000000\r\nEXDATE:never\r\n",
    };
    std::string all;
    for (const char* const row : rows) {
        all += std::string("BEGIN:VEVENT\r\n") + row + "END:VEVENT\r\n";
    }
    const auto began = std::chrono::steady_clock::now();
    const ReadCalendar calendar = Calendar(all);
    EXPECT_EQ(calendar.Events.size(), 0U);
    EXPECT_EQ(calendar.Unreadable, static_cast<int>(std::size(rows)));
    EXPECT_LT(std::chrono::steady_clock::now() - began, std::chrono::seconds(20));
}

TEST_F(CalendarModuleTest, WhatIsNoWholeCalendarIsRefused) {
    const std::string whole = "BEGIN:VCALENDAR\r\nBEGIN:VEVENT\r\nDTSTART:20260310T090000\r\n"
                              "SUMMARY:x\r\nEND:VEVENT\r\nEND:VCALENDAR\r\n";
    ASSERT_TRUE(Read(whole));
    ASSERT_TRUE(Read("\xEF\xBB\xBF" + whole + "\r\n"));
    for (const std::string& bytes :
         {std::string(), std::string("Dear reader"), std::string(5000, '\0'),
          std::string("BEGIN:VCARD\r\nEND:VCARD\r\n"), std::string("END:VCALENDAR\r\n"),
          std::string("BEGIN:VCALENDAR\r\nEND:VEVENT\r\n"), "\xFF\xFE" + whole}) {
        const auto read = Read(bytes);
        ASSERT_FALSE(read) << bytes.substr(0, 40);
        EXPECT_EQ(read.Failure().Code, ErrorCode::Damaged) << bytes.substr(0, 40);
    }
    for (std::size_t length = 0; length < whole.size() - 2; ++length) {
        EXPECT_FALSE(Read(whole.substr(0, length))) << length;
    }
    CalendarModule missing("/nowhere/kestrova_ical.so");
    EXPECT_EQ(missing.Read(whole, kYears).Failure().Code, ErrorCode::NotFound);
    EXPECT_EQ(missing.Write({}, kNow).Failure().Code, ErrorCode::NotFound);
}

// Files made to take time, memory or the stack: each is answered within seconds.
TEST_F(CalendarModuleTest, WorkIsBoundedWhateverTheFileHolds) {
    const auto repeated = [](const std::string& text, std::size_t bytes) {
        std::string all;
        while (all.size() < bytes) {
            all += text;
        }
        return all;
    };
    constexpr std::size_t kMuch = kCalendarFileLimit - 4096;
    const std::string start = "BEGIN:VEVENT\r\nDTSTART:20260101T000000\r\n";
    const std::string zone = "BEGIN:VTIMEZONE\r\nTZID:Trap\r\nBEGIN:STANDARD\r\n"
                             "DTSTART:19700101T000000\r\nTZOFFSETFROM:+0100\r\nTZOFFSETTO:+0200\r\n"
                             "RRULE:FREQ=SECONDLY\r\nEND:STANDARD\r\nEND:VTIMEZONE\r\n";
    const struct {
        const char* Name;
        std::string Lines;
    } rows[] = {
        {"deep", start + repeated("BEGIN:VALARM\r\n", kMuch)},
        {"deep and closed", repeated("BEGIN:X\r\n", kMuch / 2) + repeated("END:X\r\n", kMuch / 3)},
        {"events", repeated("BEGIN:VEVENT\r\nEND:VEVENT\r\n", kMuch)},
        {"rules", repeated(start + "RRULE:FREQ=DAILY\r\nEND:VEVENT\r\n", 3'000'000)},
        {"filters", repeated(start + "RRULE:FREQ=MINUTELY;INTERVAL=6;BYMONTH=2;BYMONTHDAY=30\r\n"
                                     "END:VEVENT\r\n",
                             3'000'000)},
        {"weeks", repeated("BEGIN:VEVENT\r\nDTSTART;VALUE=DATE:20260101\r\nDURATION:P999W\r\n"
                           "RRULE:FREQ=DAILY\r\nEND:VEVENT\r\n",
                           3'000'000)},
        {"exceptions",
         start + "RRULE:FREQ=DAILY\r\n" +
             repeated("EXDATE:" + repeated("20260102T000000,", 60'000) + "20260103T000000\r\n",
                      kMuch) +
             "END:VEVENT\r\n"},
        {"parameters", start + "SUMMARY" + repeated(";X=1", kMuch) + ":x\r\nEND:VEVENT\r\n"},
        {"one line", start + "DESCRIPTION:" + repeated("\\n\\,x", kMuch) + "\r\nEND:VEVENT\r\n"},
        {"folds", start + "SUMMARY:x" + repeated("\r\n x", kMuch) + "\r\nEND:VEVENT\r\n"},
        {"zone", zone + "BEGIN:VEVENT\r\nDTSTART;TZID=Trap:20260101T000000\r\nEND:VEVENT\r\n"},
    };
    for (const auto& row : rows) {
        const auto began = std::chrono::steady_clock::now();
        const auto read = Read("BEGIN:VCALENDAR\r\n" + row.Lines + "END:VCALENDAR\r\n");
        const std::chrono::duration<double> took = std::chrono::steady_clock::now() - began;
        EXPECT_LT(took.count(), 20) << row.Name;
        std::printf("%-16s %6.2f s, %s\n", row.Name, took.count(),
                    read                                         ? "read"
                    : read.Failure().Code == ErrorCode::TooLarge ? "too large"
                                                                 : "damaged");
    }
}

// A diary with a bit of everything that one can hold.
class RandomDiary {
public:
    RandomDiary(unsigned seed, const StringTable& texts) : random_(seed), texts_(texts) {}

    DiarySnapshot Make() {
        NotePlan notes;
        EventList events(snapshot_.Table, notes);
        for (int i = 0; i < 500; ++i) {
            Add(events);
        }
        EachStoredSlot([&](const SlotPlace& place) {
            if (!snapshot_.Table.At(place).IsFree() && Number(20) == 0) {
                events.DeleteMsg(place);
            }
        });
        EachStoredSlot([&](const SlotPlace& place) {
            if (place.Slot == 0 && place.Day > 0) {
                events.ReSortMsg(place.InDay());
            }
        });
        for (const auto& [name, fate] : notes.Changes()) {
            snapshot_.Notes.emplace(name, *std::get<NoteText>(fate).Text);
        }
        return std::move(snapshot_);
    }

private:
    int Number(int below) { return std::uniform_int_distribution<int>(0, below - 1)(random_); }

    std::string Text(int longest, const char* more) {
        const std::string letters[] = {
            "a", " ", ",",  ";", "\\", "\"", ":", "n", "\xC3\xA9", "\xF0\x9F\x98\x80",
            "[", "]", "\t", "=", "%",  "\f", more};
        std::string text = "x";
        for (int i = Number(longest); i > 0; --i) {
            text += letters[static_cast<std::size_t>(Number(std::size(letters)))];
        }
        return Number(4) == 0 ? " " + text : text;
    }

    void Add(EventList& events) {
        const int year = Number(kDiaryYears);
        const int month = Number(kMonths);
        const DayPlace day{Number(NofDays(2027 + year, month)) + 1, month, year};
        if (events.IsFull(day)) {
            return;
        }
        DiaryEvent event;
        event.Hour = static_cast<std::int16_t>(Number(3) == 0 ? 9 : Number(24));
        event.Minute = static_cast<std::int16_t>(Number(3) == 0 ? 0 : Number(60));
        event.Msg = Number(4) == 0 ? "the same" : Text(Number(10) == 0 ? 900 : 40, "b");
        const auto list = BuildRptList(texts_, {2027 + year, month, day.Day});
        const int kind = Number(9);
        event.Rpt = kind == 6   ? "Manchmal"
                    : kind == 7 ? ""
                                : list[kind > 5 ? 0U : std::size_t(kind)];
        event.Rmd =
            Number(8) == 0
                ? "Auf Zuruf"
                : ReminderCaption(texts_, static_cast<ReminderKind>(Number(kReminderKinds)));
        event.Hide = static_cast<std::int16_t>(Number(2));
        if (Number(5) == 0) {
            event.Extra = {"5551234", Text(9, "c"), "", "bob@example.org"};
        }
        const SlotPlace scratch(kScratchSlot, day);
        events.Table().At(scratch) = event;
        if (Number(3) == 0) {
            events.Notes().Put(scratch, Text(200, "\r\n") + "\r\n");
        }
        const int slot = *events.SortMsg(day);
        if (kind != 1 || Number(10) == 0) { // few that come every day, or they fill all days
            RepeatMsg(events, texts_, 2027, {slot, day});
        }
    }

    std::mt19937 random_;
    const StringTable& texts_;
    DiarySnapshot snapshot_;
};

TEST_F(CalendarModuleTest, ADiaryComesBackAsItWas) {
    const StringTable texts = MsgDefaults();
    const unsigned seed = std::random_device()();
    for (unsigned i = 0; i < 5; ++i) {
        SCOPED_TRACE("seed " + std::to_string(seed + i));
        const DiarySnapshot diary = RandomDiary(seed + i, texts).Make();
        const ExportedDiary exported = ExportDiary(diary, texts, 2027);
        EXPECT_EQ(exported.LeftOut + exported.NotesLeftOut, 0);
        EXPECT_LT(exported.Events.size() * 2, static_cast<std::size_t>(exported.Copies));
        const auto bytes = Module.Write(exported.Events, kNow);
        ASSERT_TRUE(bytes);
        const auto read = Module.Read(bytes.Value(), {2027, 2028});
        ASSERT_TRUE(read);
        const ImportPlan plan = PlanImport(read.Value(), texts, 2027, kNow);

        DiarySnapshot back;
        NotePlan notes;
        EventList events(back.Table, notes);
        const auto keep = [](const SlotPlace&) { return Status(Done{}); };
        ImportTally tally = CarryOut(plan, events, keep).Tally;
        EXPECT_EQ(tally.Added, exported.Copies);
        EXPECT_EQ(tally.AlreadyThere + tally.NoRoom + tally.Outside + tally.Unreadable, 0);
        EXPECT_TRUE(back.Table == diary.Table);
        for (const auto& [name, fate] : notes.Changes()) {
            back.Notes.emplace(name, *std::get<NoteText>(fate).Text);
        }
        EXPECT_EQ(back.Notes, diary.Notes);

        tally = CarryOut(plan, events, keep).Tally; // once more
        EXPECT_EQ(tally.Added, 0);
        EXPECT_EQ(tally.AlreadyThere, exported.Copies);
        EXPECT_TRUE(back.Table == diary.Table);
    }
}

TEST_F(CalendarModuleTest, TheFileIsOneThatOtherProgramsRead) {
    ExchangeEvent event;
    event.Uid = "7@kestrova";
    event.Summary = "Tea, caf\xC3\xA9";
    event.Note = "one\ntwo";
    event.Times = {{2026, 2, 10, 9, 5, 0}, {2026, 2, 17, 9, 5, 0}, {2026, 2, 31, 9, 5, 0}};
    event.Gaps = {{2026, 2, 24, 9, 5, 0}};
    event.Rule = {ExchangeRepeat::Weekly};
    event.Alarm = true;
    event.Own["REPEAT"] = "weekly";
    const auto bytes = Module.Write({event}, kNow);
    ASSERT_TRUE(bytes);
    EXPECT_EQ(bytes.Value(),
              "BEGIN:VCALENDAR\r\nVERSION:2.0\r\nPRODID:-//Kestrova//Kestrova//EN\r\n"
              "BEGIN:VEVENT\r\nUID:7@kestrova\r\nDTSTAMP:20260601T100000Z\r\n"
              "DTSTART:20260310T090500\r\nRRULE:FREQ=WEEKLY;UNTIL=20260331T090500\r\n"
              "EXDATE:20260324T090500\r\nSUMMARY:Tea\\, caf\xC3\xA9\r\nDESCRIPTION:one\\ntwo\r\n"
              "X-KESTROVA-REPEAT:[weekly]\r\nBEGIN:VALARM\r\nACTION:DISPLAY\r\n"
              "DESCRIPTION:Tea\\, "
              "caf\xC3\xA9\r\nTRIGGER:PT0S\r\nEND:VALARM\r\nEND:VEVENT\r\nEND:VCALENDAR\r\n");

    event.Note = std::string(300, 'x') + "\xC3\xA9";
    const auto folded = Module.Write({event}, kNow);
    ASSERT_TRUE(folded);
    LineReader lines(folded.Value());
    while (const auto line = lines.Next()) {
        EXPECT_LE(line->size(), 75U) << *line;
        EXPECT_TRUE(IsUtf8(*line)) << *line;
    }
}

} // namespace
} // namespace kestrova
