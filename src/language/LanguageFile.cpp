// SPDX-License-Identifier: GPL-3.0-or-later
#include "language/LanguageFile.h"

#include "language/FieldReader.h"
#include "language/FixedLanguages.h"
#include "text/Lines.h"
#include "text/Numbers.h"

#include <algorithm>
#include <charconv>

namespace kestrova {

namespace {

constexpr std::string_view kTypographicQuote = "\xE2\x80\x9D";

// Where a block lies in the file.
struct BlockPlace {
    std::string Name; // untrimmed
    std::size_t Begin = 0;
    std::size_t End = 0;
    bool Whole = false;
};

std::vector<BlockPlace> BlockPlaces(std::string_view bytes) {
    std::vector<BlockPlace> places;
    FieldReader fields(bytes);
    for (;;) {
        BlockPlace place;
        place.Begin = fields.Position();
        auto heading = fields.Next();
        if (!heading) {
            return places;
        }
        if (heading->size() <= kLongestHeading && heading->ends_with(kHeadingEnd)) {
            heading->resize(heading->size() - kHeadingEnd.size());
            place.Name = std::move(*heading);
            place.Whole = fields.Skip(kFieldsAfterHeading);
            place.End = fields.Position();
            places.push_back(std::move(place));
        }
    }
}

std::optional<bool> ReadTruth(std::string_view text) {
    text = Trim(text);
    if (text == "True") {
        return true;
    }
    return text == "False" ? std::optional(false) : std::nullopt;
}

Error Cut() {
    return {ErrorCode::Damaged, "language block cut short"};
}

// Reads one text; false at the end of the file, or when it is none that a window could show.
bool ReadText(FieldReader& fields, std::string& into) {
    auto field = fields.Next();
    if (!field || field->size() > kLongestText) {
        return false;
    }
    into = std::move(*field);
    return true;
}

// The same; what is empty in the file leaves the text as it was.
bool ReadFilled(FieldReader& fields, std::string& text) {
    std::string field;
    if (!ReadText(fields, field)) {
        return false;
    }
    if (!Trim(field).empty()) {
        text = std::move(field);
    }
    return true;
}

bool ReadNames(FieldReader& fields, StringTable& table) {
    for (std::size_t month = 0; month < kMonths; ++month) {
        if (!ReadFilled(fields, table.MonthNames[month]) ||
            !ReadFilled(fields, table.MonthMenu[month])) {
            return false;
        }
    }
    return std::all_of(table.WeekdayNames.begin(), table.WeekdayNames.end(),
                       [&](std::string& name) { return ReadFilled(fields, name); });
}

bool ReadTexts(FieldReader& fields, StringTable& table) {
    for (auto& group : table.Texts) {
        for (std::string& text : group) {
            if (!ReadFilled(fields, text)) {
                return false;
            }
        }
    }
    return true;
}

Result<StringTable> ReadBlock(FieldReader& fields) {
    StringTable table = MsgDefaults();
    std::string size;
    std::string bold;
    std::string italic;
    if (!ReadText(fields, table.LanguageFont) || !ReadText(fields, size) ||
        !ReadText(fields, bold) || !ReadText(fields, italic)) {
        return Cut();
    }
    const auto points = ReadFloat(size);
    const auto isBold = ReadTruth(bold);
    const auto isItalic = ReadTruth(italic);
    if (!points || !(*points >= kLeastTitleSize && *points <= kGreatestTitleSize) || !isBold ||
        !isItalic) {
        return Error{ErrorCode::Damaged, "font of the month title"};
    }
    table.Title = {*points, *isBold, *isItalic};
    if (!ReadNames(fields, table) || !ReadTexts(fields, table)) {
        return Cut();
    }
    return table;
}

std::string Decimal(float value) {
    char digits[32];
    const auto [end, error] = std::to_chars(digits, digits + sizeof digits, value);
    return {digits, end};
}

std::string WriteBlock(std::string_view name, const StringTable& table) {
    std::string out;
    const auto write = [&out](std::string_view text) {
        out.append(AsField(text)).append(kLineEnd);
    };
    const auto truth = [](bool value) { return value ? "True" : "False"; };
    write(std::string(name).append(" ").append(kHeadingEnd));
    write(table.LanguageFont);
    write(Decimal(table.Title.Size));
    write(truth(table.Title.Bold));
    write(truth(table.Title.Italic));
    for (std::size_t month = 0; month < kMonths; ++month) {
        write(table.MonthNames[month]);
        write(table.MonthMenu[month]);
    }
    for (const std::string& day : table.WeekdayNames) {
        write(day);
    }
    for (const auto& group : table.Texts) {
        for (const std::string& text : group) {
            write(text);
        }
    }
    return out;
}

} // namespace

std::string AsField(std::string_view text) {
    std::string field = AsOneLine(text);
    const std::string_view begin =
        std::string_view(field).substr(std::min(field.find_first_not_of(' '), field.size()));
    if (field.find(',') == std::string::npos && !begin.starts_with('"')) {
        return field;
    }
    std::string quoted = "\"";
    for (const char c : field) {
        if (c == '"') {
            quoted += kTypographicQuote;
        } else {
            quoted += c;
        }
    }
    return quoted += '"';
}

std::vector<std::string> LanguageNames(std::string_view bytes) {
    std::vector<std::string> names;
    for (BlockPlace& place : BlockPlaces(bytes)) {
        if (place.Whole) {
            names.push_back(std::move(place.Name));
        }
    }
    return names;
}

Result<StringTable> ReadLanguage(std::string_view bytes, int block) {
    const auto places = BlockPlaces(bytes);
    if (block < 0 || static_cast<std::size_t>(block) >= places.size()) {
        return Error{ErrorCode::NotFound, "no such language block"};
    }
    const BlockPlace& place = places[static_cast<std::size_t>(block)];
    FieldReader fields(bytes.substr(place.Begin, place.End - place.Begin));
    fields.Skip(1); // the heading
    auto table = ReadBlock(fields);
    if (table) {
        table.Value().ProgramLanguage = FixedLanguageOf(place.Name).value_or(0);
    }
    return table;
}

std::string PutLanguage(std::string_view bytes, std::string_view name,
                        const StringTable& language) {
    const auto places = BlockPlaces(bytes);
    const auto same = std::find_if(places.begin(), places.end(), [&](const BlockPlace& place) {
        return place.Whole && Trim(place.Name) == Trim(name);
    });
    std::size_t begin = bytes.size();
    std::size_t end = bytes.size();
    if (same != places.end()) {
        begin = same->Begin;
        end = same->End;
    } else if (!places.empty() && !places.back().Whole) {
        begin = places.back().Begin;
        end = begin;
    }
    std::string out(bytes.substr(0, begin));
    if (!out.empty() && out != kByteOrderMark && !out.ends_with('\n')) {
        out.append(kLineEnd);
    }
    return out.append(WriteBlock(Trim(name), language)).append(bytes.substr(end));
}

} // namespace kestrova
