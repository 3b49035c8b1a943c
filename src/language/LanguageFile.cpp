// SPDX-License-Identifier: GPL-3.0-or-later
#include "language/LanguageFile.h"

#include "language/FieldReader.h"
#include "text/Numbers.h"

namespace kestrova {

namespace {

std::optional<bool> ReadTruth(std::string_view text) {
    text = Trim(text);
    if (text == "True") {
        return true;
    }
    return text == "False" ? std::optional(false) : std::nullopt;
}

bool IsHeading(std::string_view field) {
    return field.ends_with(kHeadingEnd);
}

Error Cut() {
    return {ErrorCode::Damaged, "language block cut short"};
}

// No caption, tip or message is anywhere near as long.
constexpr std::size_t kLongestText = 2000; // bytes

// Reads one text; false at the end of the file, or when it is none that a window could show.
bool ReadText(FieldReader& fields, std::string& into) {
    auto field = fields.Next();
    if (!field || field->size() > kLongestText) {
        return false;
    }
    into = std::move(*field);
    return true;
}

bool ReadNames(FieldReader& fields, StringTable& table) {
    for (std::size_t month = 0; month < kMonths; ++month) {
        if (!ReadText(fields, table.MonthNames[month]) ||
            !ReadText(fields, table.MonthMenu[month])) {
            return false;
        }
    }
    for (std::string& name : table.WeekdayNames) {
        if (!ReadText(fields, name)) {
            return false;
        }
    }
    return true;
}

bool ReadTexts(FieldReader& fields, StringTable& table) {
    for (auto& group : table.Texts) {
        for (std::string& text : group) {
            if (!ReadText(fields, text)) {
                return false;
            }
        }
    }
    return true;
}

Result<StringTable> ReadBlock(FieldReader& fields) {
    StringTable table;
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
    // A size that no screen shows is as wrong as one that is no number.
    if (!points || !(*points >= 1 && *points <= 200) || !isBold || !isItalic) {
        return Error{ErrorCode::Damaged, "font of the month title"};
    }
    table.Title = {*points, *isBold, *isItalic};
    if (!ReadNames(fields, table) || !ReadTexts(fields, table)) {
        return Cut();
    }
    return table;
}

} // namespace

std::vector<std::string> LanguageNames(std::string_view bytes) {
    std::vector<std::string> names;
    FieldReader fields(bytes);
    while (auto field = fields.Next()) {
        if (!IsHeading(*field)) {
            continue;
        }
        if (!fields.Skip(kFieldsAfterHeading)) {
            break;
        }
        field->resize(field->size() - kHeadingEnd.size());
        names.push_back(std::move(*field));
    }
    return names;
}

Result<StringTable> ReadLanguage(std::string_view bytes, int block) {
    FieldReader fields(bytes);
    int number = 0;
    while (const auto field = fields.Next()) {
        if (!IsHeading(*field)) {
            continue;
        }
        if (number == block) {
            return ReadBlock(fields);
        }
        ++number;
        if (!fields.Skip(kFieldsAfterHeading)) {
            break;
        }
    }
    return Error{ErrorCode::NotFound, "no such language block"};
}

} // namespace kestrova
