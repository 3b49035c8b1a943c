// SPDX-License-Identifier: GPL-3.0-or-later
#include "diary/DiaryFile.h"

#include "text/Encoding.h"
#include "text/Lines.h"
#include "text/Numbers.h"

#include <algorithm>
#include <charconv>

namespace kestrova {

namespace {

// Whether the whole file has been found to be UTF-8: looking once is quicker than line by line.
enum class FileText { Utf8, Mixed };

bool ReadText(LineReader& lines, FileText kind, std::string& text) {
    const auto line = lines.Next();
    if (!line) {
        return false;
    }
    if (kind == FileText::Utf8 || IsUtf8(*line)) {
        text.assign(*line);
    } else {
        text = Utf8FromWindows1252(*line);
    }
    return true;
}

bool ReadNumber(LineReader& lines, std::int16_t& number) {
    const auto line = lines.Next();
    const auto value = line ? ReadInt16(*line) : std::nullopt;
    number = value.value_or(number);
    return value.has_value();
}

bool ReadEvent(LineReader& lines, FileText kind, DiaryEvent& event) {
    bool good = ReadNumber(lines, event.Hour) && ReadNumber(lines, event.Minute) &&
                ReadText(lines, kind, event.Msg) && ReadText(lines, kind, event.Rpt) &&
                ReadText(lines, kind, event.Rmd) && ReadNumber(lines, event.Hide);
    for (std::string& extra : event.Extra) {
        good = good && ReadText(lines, kind, extra);
    }
    return good;
}

// Whether a text holds what a line of a file cannot carry. Looks at every character, without
// leaving early, which is what makes it quick.
bool BreaksLine(const std::string& text) {
    bool breaks = false;
    for (const char c : text) {
        breaks |= c == '\r' || c == '\n' || c == '\0';
    }
    return breaks;
}

// Writes records one after the other into room that has been made for all of them: a diary has
// ninety thousand lines, and growing a text line by line takes most of a save's time.
class RecordWriter {
public:
    explicit RecordWriter(std::size_t room) : bytes_(room, '\0'), at_(bytes_.data()) {}

    // What a record takes at most.
    static std::size_t RoomFor(const DiaryEvent& event) {
        std::size_t room = kNumberRoom * 3 + kLineEnd.size() * 10 + event.Msg.size() +
                           event.Rpt.size() + event.Rmd.size();
        for (const std::string& extra : event.Extra) {
            room += extra.size();
        }
        return room;
    }

    void Write(const DiaryEvent& event) {
        Number(event.Hour);
        Number(event.Minute);
        Text(event.Msg);
        Text(event.Rpt);
        Text(event.Rmd);
        Number(event.Hide);
        for (const std::string& extra : event.Extra) {
            Text(extra);
        }
    }

    std::string Take() {
        bytes_.resize(static_cast<std::size_t>(at_ - bytes_.data()));
        return std::move(bytes_);
    }

private:
    static constexpr std::size_t kNumberRoom = 8; // "-32768" and a blank

    void Put(std::string_view bytes) { at_ = std::copy(bytes.begin(), bytes.end(), at_); }

    // A blank in place of the plus sign, the digits, a blank.
    void Number(std::int16_t number) {
        if (number >= 0) {
            *at_++ = ' ';
        }
        at_ = std::to_chars(at_, at_ + kNumberRoom, number).ptr;
        *at_++ = ' ';
        Put(kLineEnd);
    }

    // A text that holds a line break would shift every record after it.
    void Text(const std::string& text) {
        if (BreaksLine(text)) {
            Put(AsOneLine(text));
        } else {
            Put(text);
        }
        Put(kLineEnd);
    }

    std::string bytes_;
    char* at_;
};

} // namespace

Result<DiaryEnd> ReadDiary(std::string_view bytes, DiaryTable& table) {
    LineReader lines(bytes);
    const FileText kind = IsUtf8(bytes) ? FileText::Utf8 : FileText::Mixed;
    bool good = true;
    EachStoredSlot(
        [&](const SlotPlace& place) { good = good && ReadEvent(lines, kind, table.At(place)); });
    if (!good) {
        return Error{ErrorCode::Damaged, "diary file"};
    }
    return lines.Rest().empty() ? DiaryEnd::Exact : DiaryEnd::MoreLines;
}

std::string WriteDiary(const DiaryTable& table) {
    std::size_t room = 0;
    EachStoredSlot([&](const SlotPlace& place) { room += RecordWriter::RoomFor(table.At(place)); });
    RecordWriter writer(room);
    EachStoredSlot([&](const SlotPlace& place) { writer.Write(table.At(place)); });
    return writer.Take();
}

} // namespace kestrova
