// SPDX-License-Identifier: GPL-3.0-or-later
#include "diary/DiaryFile.h"

#include "text/Encoding.h"
#include "text/Lines.h"
#include "text/Numbers.h"

namespace kestrova {

namespace {

// A diary of free slots alone; a guess that spares most of the growing.
constexpr std::size_t kEmptyDiarySize = 300'000;

bool ReadText(LineReader& lines, std::string& text) {
    const auto line = lines.Next();
    if (!line) {
        return false;
    }
    if (IsUtf8(*line)) {
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

bool ReadEvent(LineReader& lines, DiaryEvent& event) {
    bool good = ReadNumber(lines, event.Hour) && ReadNumber(lines, event.Minute) &&
                ReadText(lines, event.Msg) && ReadText(lines, event.Rpt) &&
                ReadText(lines, event.Rmd) && ReadNumber(lines, event.Hide);
    for (std::string& extra : event.Extra) {
        good = good && ReadText(lines, extra);
    }
    return good;
}

void AppendNumberLine(std::string& bytes, std::int16_t number) {
    AppendNumber(bytes, number);
    bytes += kLineEnd;
}

// A text that holds a line break would shift every record after it.
void AppendTextLine(std::string& bytes, const std::string& text) {
    constexpr std::string_view kBreaks{"\r\n\0", 3};
    if (text.find_first_of(kBreaks) == std::string::npos) {
        bytes += text;
    } else {
        bytes += AsOneLine(text);
    }
    bytes += kLineEnd;
}

void AppendEvent(std::string& bytes, const DiaryEvent& event) {
    AppendNumberLine(bytes, event.Hour);
    AppendNumberLine(bytes, event.Minute);
    AppendTextLine(bytes, event.Msg);
    AppendTextLine(bytes, event.Rpt);
    AppendTextLine(bytes, event.Rmd);
    AppendNumberLine(bytes, event.Hide);
    for (const std::string& extra : event.Extra) {
        AppendTextLine(bytes, extra);
    }
}

} // namespace

Result<DiaryEnd> ReadDiary(std::string_view bytes, DiaryTable& table) {
    LineReader lines(bytes);
    bool good = true;
    EachStoredSlot(
        [&](const SlotPlace& place) { good = good && ReadEvent(lines, table.At(place)); });
    if (!good) {
        return Error{ErrorCode::Damaged, "diary file"};
    }
    return lines.Rest().empty() ? DiaryEnd::Exact : DiaryEnd::MoreLines;
}

std::string WriteDiary(const DiaryTable& table) {
    std::string bytes;
    bytes.reserve(kEmptyDiarySize);
    EachStoredSlot([&](const SlotPlace& place) { AppendEvent(bytes, table.At(place)); });
    return bytes;
}

} // namespace kestrova
