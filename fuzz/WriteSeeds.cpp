// SPDX-License-Identifier: GPL-3.0-or-later
// Writes the inputs that the fuzzers begin with into the folder named, a folder for each target.
#include "diary/DiaryFile.h"
#include "diary/NetUsers.h"
#include "diary/NoteName.h"
#include "diary/SaveJournal.h"
#include "language/LanguageFile.h"
#include "mail/MailAccount.h"
#include "print/LayoutFile.h"
#include "puzzle/Bitmap.h"
#include "settings/SettingsFile.h"
#include "text/Lines.h"

#include <cstdio>
#include <filesystem>
#include <fstream>

namespace {

using kestrova::kLineEnd;

class SeedFolder {
public:
    SeedFolder(const std::filesystem::path& root, const char* target) : folder_(root / target) {
        std::filesystem::create_directories(folder_);
    }

    void Write(const char* name, std::string_view bytes) const {
        std::ofstream file(folder_ / name, std::ios::binary);
        file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
        file.close();
        if (!file) {
            std::fprintf(stderr, "%s: cannot be written\n", (folder_ / name).c_str());
            std::exit(1);
        }
    }

private:
    std::filesystem::path folder_;
};

std::string LanguageBlock(std::string_view name) {
    const kestrova::StringTable table = kestrova::MsgDefaults();
    std::string bytes;
    const auto line = [&](std::string_view text) { bytes.append(text).append(kLineEnd); };
    line(std::string(name) + " Language");
    line("DejaVu Sans");
    line(" 14 ");
    line("True");
    line("False");
    for (std::size_t month = 0; month < kestrova::kMonths; ++month) {
        line(table.MonthNames[month]);
        line(table.MonthMenu[month]);
    }
    for (const std::string& day : table.WeekdayNames) {
        line(day);
    }
    for (const auto& group : table.Texts) {
        for (const std::string& text : group) {
            line('"' + text + '"');
        }
    }
    return bytes;
}

void WriteLanguages(const std::filesystem::path& root) {
    const SeedFolder seeds(root, "Language");
    seeds.Write("one", LanguageBlock("English"));
    seeds.Write("two", LanguageBlock("English") + LanguageBlock("Deutsch"));
    const std::string block = LanguageBlock("English");
    seeds.Write("cut", std::string_view(block).substr(0, block.size() / 2));
    // The shortest block: empty fields, many on a line.
    seeds.Write("commas", "X Language,F,9.5,True,False" + std::string(338, ',') + "\n");
}

void WriteSettingsSeeds(const std::filesystem::path& root) {
    const SeedFolder seeds(root, "Settings");
    seeds.Write("empty", kestrova::WriteSettings(kestrova::AppSettings()));
    kestrova::AppSettings first = kestrova::FirstSettings(kestrova::MsgDefaults());
    seeds.Write("first", kestrova::WriteSettings(first));
    first.Greeting = "Caf\xE9, \x80 5";
    first.PrintStyles[0].Size = 12.75F;
    first.DataYear = -31999;
    first.VideoRepeat = 1;
    first.VideoFullScreen = 1;
    seeds.Write("old", "\xEF\xBB\xBF" + kestrova::WriteSettings(first));
}

// The diary target takes two bytes for the record and then lines.
void WriteDiarySeeds(const std::filesystem::path& root) {
    const SeedFolder seeds(root, "Diary");
    const std::string event =
        " 9 \r\n 30 \r\nDentist\r\nMonthly\r\nScreen\r\n 0 \r\n\r\n\r\n\r\n\r\n";
    seeds.Write("first", std::string(2, '\0') + event);
    seeds.Write("last", std::string("\0\1", 2) + event);
    seeds.Write("two", "\2\2" + event + event);
    seeds.Write("old", "\1\1-1\n32767\nCaf\xE9\n\nEmail\n1\na@b.c\n5\n\xC3\xA9\nx\n");
    seeds.Write("short", "\2\2 9 \r\n");
}

void WriteJournals(const std::filesystem::path& root) {
    const SeedFolder seeds(root, "Journal");
    kestrova::SaveJournal journal;
    seeds.Write("empty", kestrova::WriteJournal(journal));
    journal.DiaryDigest = 0xFFFFFFFFFFFFFFFFU;
    journal.DiarySize = 300000;
    journal.RolledTo = 2027;
    journal.Texts = {"one\r\nend\ntwo", ""};
    journal.Notes[kestrova::GetFile({1, 1, 0, 0})] = 0;
    journal.Notes[kestrova::GetFile({10, 31, 11, 1})] = std::nullopt;
    journal.Notes[kestrova::GetFile({2, 25, 5, 0})] = 1;
    seeds.Write("full", kestrova::WriteJournal(journal));
}

void WriteNetUsers(const std::filesystem::path& root) {
    const SeedFolder seeds(root, "NetUsers");
    seeds.Write("register",
                kestrova::WriteNetUsers({{"/home/me/", "My Diary"}, {"//server/bob/", "Bob"}}));
    seeds.Write("old", "C:\\Kestrova\nMy Diary\n\\\\server\\caf\xE9\\\nCaf\xE9\nodd");
    seeds.Write("path", "/net/bob/Diarydat/Data.dat");
    seeds.Write("note", "two\r\nlines\r\n\r\n");
}

void WriteMail(const std::filesystem::path& root) {
    const SeedFolder seeds(root, "Mail");
    seeds.Write("account", kestrova::WriteMailAccount({"smtp.example.org",
                                                       587,
                                                       kestrova::MailSecurity::StartTls,
                                                       "jane",
                                                       {"Jane", "jane@example.org"}}));
    seeds.Write("address", "jane.doe+x@mail.example.org");
    seeds.Write("text", "\xF0\x9F\x98\x80 one\r\n.\r\n\r\nTo: nobody@example.org\ntwo");
}

void WriteTexts(const std::filesystem::path& root) {
    const SeedFolder seeds(root, "Text");
    seeds.Write("lines", "\xEF\xBB\xBFone\r\ntwo\nthree\r\r\n\nfour");
    seeds.Write("utf8", "\xC3\xA9 \xE2\x82\xAC \xF0\x9F\x98\x80 plain text that is long enough");
    seeds.Write("malformed", "\xC0\x80 \xED\xA0\x80 \xF4\x90\x80\x80 \xE2\x82");
    seeds.Write("windows", "Caf\xE9 \x80\x81\x9F");
    seeds.Write("fields", "a, b ,\"c, d\" x,\"open\nnext,,\n");
    seeds.Write("number", " -32768 ");
    seeds.Write("fraction", "+12.5e1");
}

// The puzzle target takes a byte for the side and then a bitmap.
void WriteBitmaps(const std::filesystem::path& root) {
    const SeedFolder seeds(root, "Puzzle");
    const auto bitmap = [](int width, int height, int bits, int colours) {
        const kestrova::BitmapHeader header = kestrova::HeaderOf(width, height, bits, colours);
        return PutHeader(header) +
               std::string(header.FileSize - kestrova::kBitmapHeaderSize, '\x5A');
    };
    seeds.Write("colours", std::string(1, '\0') + bitmap(5, 4, 24, 0));
    seeds.Write("palette", "\x02" + bitmap(13, 11, 8, 256));
    seeds.Write("half", "\x01" + bitmap(9, 6, 4, 16));
    seeds.Write("large", "\x09" + bitmap(41, 20, 4, 3));
}

// Little-endian words, two bytes each.
std::string Words(std::initializer_list<int> values) {
    std::string bytes;
    for (const int value : values) {
        bytes += static_cast<char>(value & 0xFF);
        bytes += static_cast<char>(value >> 8 & 0xFF);
    }
    return bytes;
}

// An order of a metafile.
std::string Order(int function, const std::string& fields) {
    return Words({static_cast<int>(fields.size() / 2) + 3, 0, function}) + fields;
}

void WriteMetafiles(const std::filesystem::path& root) {
    const SeedFolder seeds(root, "Wmf");
    const std::string header = Words({1, 9, 0x300, 0, 0, 9, 0, 0, 0});
    const std::string frame = Words({0xCDD7, 0x9AC6, 0, 0, 0, 640, 480, 96, 0, 0, 0});
    const std::string window = Order(0x020B, Words({0, 0})) + Order(0x020C, Words({480, 640}));
    const std::string dib = Words({40, 0, 1, 0, 1, 0, 1, 24}) + std::string(24, '\0') + "abcd";
    const std::string palette = Words({40, 0, 2, 0, 1, 0, 1, 8,    1, 0, 0,    0,      0,
                                       0,  0, 0, 2, 0, 0, 0, 0xFF, 0, 0, 0xFF, 0x0102, 0x0001});
    const std::string tools = Order(0x02FA, Words({1, 3, 0, 0xFF, 0})) + Order(0x012D, Words({0})) +
                              Order(0x02FC, Words({2, 0xFF, 0, 3})) + Order(0x012D, Words({1})) +
                              Order(0x0142, Words({5, 0}) + dib) + Order(0x012D, Words({2})) +
                              Order(0x02FB, Words({-20, 0, 450, 0, 700, 1, 0, 0, 0}) + "Sans") +
                              Order(0x012D, Words({3}));
    const std::string shapes =
        Order(0x041B, Words({40, 50, 10, 20})) + Order(0x0418, Words({40, 50, 10, 20})) +
        Order(0x061C, Words({5, 5, 40, 50, 10, 20})) + Order(0x0324, Words({3, 1, 2, 3, 4, 5, 6})) +
        Order(0x0538, Words({2, 2, 2, 1, 2, 3, 4, 5, 6, 7, 8})) +
        Order(0x0325, Words({2, 1, 2, 3, 4})) + Order(0x0214, Words({1, 2})) +
        Order(0x0213, Words({3, 4})) + Order(0x0817, Words({1, 2, 3, 4, 40, 50, 10, 20})) +
        Order(0x081A, Words({1, 2, 3, 4, 40, 50, 10, 20}));
    const std::string texts =
        Order(0x012E, Words({25})) + Order(0x0521, Words({2}) + "ab" + Words({1, 2})) +
        Order(0x0A32, Words({1, 2, 2, 6, 0, 0, 50, 50}) + "ab" + Words({9, 9}));
    const std::string images = Order(0x0B41, Words({0x20, 0xCC, 1, 1, 0, 0, 9, 9, 0, 0}) + dib) +
                               Order(0x0940, Words({0xC6, 0x88, 0, 0, 1, 2, 0, 0}) + palette) +
                               Order(0x0F43, Words({0x86, 0xEE, 0, 1, 1, 0, 0, 9, 9, 0, 0}) + dib) +
                               Order(0x061D, Words({0x21, 0xF0, 10, 10, 0, 0}));
    const std::string state = Order(0x001E, "") + Order(0x0416, Words({40, 50, 10, 20})) +
                              Order(0x0415, Words({20, 20, 10, 20})) +
                              Order(0x0220, Words({1, 1})) + Order(0x0410, Words({2, 1, 2, 1})) +
                              Order(0x0104, Words({7})) + Order(0x0127, Words({-1}));
    seeds.Write("shapes", frame + header + window + tools + shapes);
    seeds.Write("texts", header + window + tools + texts);
    seeds.Write("images", header + window + images + state + shapes);
    seeds.Write("bare", header + shapes);
}

void WriteModemLists(const std::filesystem::path& root) {
    const SeedFolder seeds(root, "ModemList");
    const std::string list = "\"Box\",2\r\n\"Generic IS-101 Voice Modem\",1\r\n"
                             "\"End of List\",0\r\n";
    std::string block = "AT+FCLASS=8\r\nAT+VSM=131,8000\r\n";
    for (int number = 3; number < 22; ++number) {
        block += kLineEnd;
    }
    block += "AT+VTX\r\nEnd of Index\r\n";
    seeds.Write("list", list + block + "AT#VSR=7200\nEnd of Index\n");
    seeds.Write("cut", list + "AT\"&D0\",1");
    seeds.Write("unended", "Box , 32767\n\"Box\n,\n\"a\"\"b\",-1\n");
    seeds.Write("answer", "AT+FMM?\r\r\nBox\r\n\r\nOK\r\n");
}

// A calendar file with one event of these lines.
std::string CalendarWith(const std::string& lines) {
    return "BEGIN:VCALENDAR\r\nVERSION:2.0\r\nBEGIN:VTIMEZONE\r\nTZID:Z\r\nBEGIN:STANDARD\r\n"
           "DTSTART:19701101T020000\r\nTZOFFSETFROM:-0400\r\nTZOFFSETTO:-0500\r\n"
           "RRULE:FREQ=YEARLY;BYMONTH=11;BYDAY=1SU\r\nEND:STANDARD\r\nEND:VTIMEZONE\r\n"
           "BEGIN:VEVENT\r\nUID:1\r\nSUMMARY:Tea\\, with\r\n  Ada\r\n" +
           lines + "END:VEVENT\r\nEND:VCALENDAR\r\n";
}

void WriteCalendars(const std::filesystem::path& root) {
    const SeedFolder seeds(root, "Calendar");
    seeds.Write("rule", CalendarWith("DTSTART;TZID=Z:20260310T090000\r\n"
                                     "RRULE:FREQ=WEEKLY;INTERVAL=2;BYDAY=TU,WE;COUNT=9\r\n"
                                     "EXDATE;TZID=Z:20260311T090000,20260324T090000\r\n"));
    seeds.Write("month", CalendarWith("DTSTART:20260310T090000Z\r\nRRULE:FREQ=MONTHLY;BYDAY=2TU\r\n"
                                      "RDATE;VALUE=PERIOD:20260501T100000Z/PT1H\r\n"));
    seeds.Write("days", CalendarWith("DTSTART;VALUE=DATE:20251230\r\nDTEND;VALUE=DATE:20260105\r\n"
                                     "RRULE:FREQ=YEARLY;UNTIL=20270101\r\nSTATUS:CONFIRMED\r\n"
                                     "BEGIN:VALARM\r\nACTION:AUDIO\r\nEND:VALARM\r\n"));
    seeds.Write("own",
                CalendarWith("DTSTART:20260310T090000\r\nRRULE:FREQ=DAILY;UNTIL=20260313T090000\r\n"
                             "DESCRIPTION:one\\ntwo\r\nX-KESTROVA-SUMMARY:[Tea%0C, with Ada ]\r\n"
                             "X-KESTROVA-REPEAT:[monthly-2-2]\r\nX-KESTROVA-REMINDER:[=x]\r\n"
                             "X-KESTROVA-DETAIL-1:[5]\r\nX-KESTROVA-HIDDEN:[1]\r\n"
                             "X-KESTROVA-PLACE:[1]\r\n"));
    seeds.Write("moved", CalendarWith("RECURRENCE-ID:20260310T090000\r\nDTSTART:20260311T090000\r\n"
                                      "DURATION:PT1H\r\nEXRULE:FREQ=YEARLY\r\n"));
}

} // namespace

void WriteSpeech(const std::filesystem::path& root) {
    const SeedFolder seeds(root, "Speech");
    std::string figure = "<svg viewBox=\"0 0 99 99\"><defs><linearGradient id=\"a\"/></defs>";
    for (const char* const layer :
         {"body", "eyes-open", "eyes-closed", "mouth-closed", "mouth-open", "gesture-1"}) {
        figure +=
            "<g id=\"" + std::string(layer) + "\"><path d=\"M1 2L3 4\" fill=\"url(#a)\"/></g>";
    }
    seeds.Write("figure", "<?xml version=\"1.0\"?><!-- x -->" + figure + "</svg>");
    seeds.Write("text", "\\Pit=1\\\\Spd=2\\Meet Bob at 3.15 today.\r\nOn time!");
}

void WriteLayouts(const std::filesystem::path& root) {
    const SeedFolder seeds(root, "LayoutFile");
    kestrova::PageLayout page;
    seeds.Write("empty", kestrova::WriteLayout(page));
    page.BackgroundPath = "/a.jpg";
    page.LabCurMth.FontName = "Sans";
    page.LabCurMth.Caption = "May  2026";
    page.LabUser.resize(2);
    page.LabUser[0].Width = 300;
    page.LabUser[0].Height = 900;
    page.LabUser[0].Caption = "two\r\nlines, one of them long, \"so\" \xC3\xA9"
                              "e\xCC\x81";
    page.LabUser[1].Enabled = false;
    page.ImgUser.resize(1);
    page.ImagePaths[1] = "b.png";
    page.GridOn = true;
    page.BorderLines = 4;
    const std::string full = kestrova::WriteLayout(page);
    seeds.Write("full", full);
    seeds.Write("cut", std::string_view(full).substr(0, full.size() / 2));
    seeds.Write("old", "\"C:\\caf\xE9\"\n 0 ,1,2,3,4\n\"\"\n-1\n0\n0\n0\n0\n\"-x\"\n");
}

int main(int argc, char* argv[]) {
    if (argc != 2) {
        std::fprintf(stderr, "usage: WriteSeeds FOLDER\n");
        return 2;
    }
    const std::filesystem::path root(argv[1]);
    WriteLanguages(root);
    WriteSettingsSeeds(root);
    WriteDiarySeeds(root);
    WriteJournals(root);
    WriteNetUsers(root);
    WriteMail(root);
    WriteTexts(root);
    WriteBitmaps(root);
    WriteModemLists(root);
    WriteMetafiles(root);
    WriteSpeech(root);
    WriteLayouts(root);
    WriteCalendars(root);
    return 0;
}
