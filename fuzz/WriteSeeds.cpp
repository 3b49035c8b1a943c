// SPDX-License-Identifier: GPL-3.0-or-later
// Writes the inputs that the fuzzers begin with into the folder named, a folder for each target.
#include "diary/DiaryFile.h"
#include "diary/NetUsers.h"
#include "diary/NoteName.h"
#include "diary/SaveJournal.h"
#include "language/LanguageFile.h"
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

} // namespace

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
    WriteTexts(root);
    WriteBitmaps(root);
    return 0;
}
