// SPDX-License-Identifier: GPL-3.0-or-later
// The readers of bytes, lines and fields, on which all the others stand.
#include "Expect.h"

#include "language/FieldReader.h"
#include "text/Encoding.h"
#include "text/Lines.h"
#include "text/Numbers.h"

#include <cstdint>

using kestrova::fuzz::Expect;

namespace {

// A second opinion on what well-formed UTF-8 is: the table of the standard, row by row, instead of
// decoding.
bool IsWellFormed(std::string_view text) {
    struct Row {
        unsigned char LeadLow, LeadHigh, SecondLow, SecondHigh;
        std::size_t Length;
    };
    constexpr Row kRows[] = {
        {0x00, 0x7F, 0x00, 0x00, 1}, {0xC2, 0xDF, 0x80, 0xBF, 2}, {0xE0, 0xE0, 0xA0, 0xBF, 3},
        {0xE1, 0xEC, 0x80, 0xBF, 3}, {0xED, 0xED, 0x80, 0x9F, 3}, {0xEE, 0xEF, 0x80, 0xBF, 3},
        {0xF0, 0xF0, 0x90, 0xBF, 4}, {0xF1, 0xF3, 0x80, 0xBF, 4}, {0xF4, 0xF4, 0x80, 0x8F, 4}};
    const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    while (!text.empty()) {
        std::size_t length = 0;
        for (const Row& row : kRows) {
            if (byte(0) >= row.LeadLow && byte(0) <= row.LeadHigh && text.size() >= row.Length &&
                (row.Length == 1 || (byte(1) >= row.SecondLow && byte(1) <= row.SecondHigh))) {
                length = row.Length;
            }
        }
        for (std::size_t i = 2; i < length; ++i) {
            length = byte(i) >= 0x80 && byte(i) <= 0xBF ? length : 0;
        }
        if (length == 0) {
            return false;
        }
        text.remove_prefix(length);
    }
    return true;
}

void CheckEncoding(std::string_view bytes) {
    Expect(kestrova::IsUtf8(bytes) == IsWellFormed(bytes), "IsUtf8 tells what is UTF-8");
    Expect(IsWellFormed(kestrova::AsUtf8(bytes)), "AsUtf8 gives UTF-8");
    Expect(IsWellFormed(kestrova::Utf8FromWindows1252(bytes)), "Utf8FromWindows1252 gives UTF-8");
}

// Every byte belongs to a line or to a line end, in order.
void CheckLines(std::string_view bytes) {
    const bool marked = bytes.starts_with("\xEF\xBB\xBF");
    std::string_view rest = marked ? bytes.substr(3) : bytes;
    kestrova::LineReader lines(bytes);
    while (const auto line = lines.Next()) {
        Expect(line->find('\n') == std::string_view::npos, "a line holds no line end");
        Expect(rest.starts_with(*line), "lines come in order, whole");
        rest.remove_prefix(line->size());
        if (rest.starts_with('\r')) {
            rest.remove_prefix(1);
        }
        if (rest.starts_with('\n')) {
            rest.remove_prefix(1);
        } else {
            Expect(rest.empty(), "between two lines there is nothing but a line end");
        }
        Expect(lines.Rest() == rest, "Rest is what has not been read");
    }
    Expect(rest.empty(), "all bytes are read");
    const std::string line = kestrova::AsOneLine(bytes);
    Expect(line.size() == bytes.size() &&
               line.find_first_of(std::string_view("\r\n\0", 3)) == std::string::npos,
           "AsOneLine leaves no line break");
}

void CheckFields(std::string_view bytes) {
    kestrova::FieldReader fields(bytes);
    std::size_t count = 0;
    while (const auto field = fields.Next()) {
        ++count;
        Expect(count <= bytes.size() + 1, "fields come to an end");
        Expect(IsWellFormed(*field), "a field is UTF-8");
        Expect(field->find('\n') == std::string::npos, "a field stays in its line");
    }
    kestrova::FieldReader again(bytes);
    Expect(again.Skip(static_cast<int>(count)), "as many fields can be passed over as read");
    Expect(!again.Next(), "nothing follows the last field");
}

void CheckNumbers(std::string_view bytes) {
    (void)kestrova::ReadFloat(bytes);
    const auto narrow = kestrova::ReadInt16(bytes);
    const auto wide = kestrova::ReadInt32(bytes);
    if (narrow) {
        Expect(wide == std::int32_t{*narrow}, "what fits 16 bits fits 32");
    }
    if (wide) {
        std::string text;
        kestrova::AppendNumber(text, *wide);
        Expect(kestrova::ReadInt32(text) == wide, "a number that is written reads back equal");
        Expect(kestrova::TwoDigits(*wide).size() >= 2, "two digits");
    }
}

} // namespace

int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
    const std::string_view bytes = kestrova::fuzz::View(data, size);
    CheckEncoding(bytes);
    CheckLines(bytes);
    CheckFields(bytes);
    CheckNumbers(bytes);
    return 0;
}
