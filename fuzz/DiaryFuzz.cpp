// SPDX-License-Identifier: GPL-3.0-or-later
// The diary file: what is read and written reads back equal.
#include "Expect.h"

#include "diary/DiaryFile.h"
#include "text/Encoding.h"

#include <algorithm>
#include <vector>

using kestrova::DiaryEnd;
using kestrova::DiaryTable;
using kestrova::fuzz::Expect;

namespace {

constexpr std::size_t kLinesPerRecord = 10;

// The bytes of an empty diary, and where each of its lines begins.
struct EmptyDiary {
    std::string Bytes = kestrova::WriteDiary(DiaryTable());
    std::vector<std::size_t> LineStarts;

    EmptyDiary() {
        for (std::size_t at = 0; at < Bytes.size(); at = Bytes.find('\n', at) + 1) {
            LineStarts.push_back(at);
        }
        LineStarts.push_back(Bytes.size());
    }
};

// A whole diary is too long for a fuzzer to find, so the input is laid over some records of an
// empty one, near the front or near the end: its first two bytes say where, the rest stands in the
// place of as many lines.
std::string LaidOver(const EmptyDiary& empty, std::string_view input) {
    const std::size_t records = empty.LineStarts.size() / kLinesPerRecord;
    const std::size_t distance = static_cast<unsigned char>(input[0]);
    const std::size_t record = input[1] % 2 == 0 ? distance : records - 1 - distance;
    std::string lines(input.substr(2));
    if (!lines.empty() && lines.back() != '\n') {
        lines += '\n';
    }
    const auto count = static_cast<std::size_t>(std::count(lines.begin(), lines.end(), '\n'));
    const std::size_t first = record * kLinesPerRecord;
    const std::size_t next = std::min(first + count, empty.LineStarts.size() - 1);
    return empty.Bytes.substr(0, empty.LineStarts[first]) + lines +
           empty.Bytes.substr(empty.LineStarts[next]);
}

void CheckTexts(const DiaryTable& table) {
    kestrova::EachStoredSlot([&](const kestrova::SlotPlace& place) {
        const kestrova::DiaryEvent& event = table.At(place);
        Expect(kestrova::IsUtf8(event.Msg) && kestrova::IsUtf8(event.Extra[3]), "texts are UTF-8");
    });
}

void CheckRoundTrip(const DiaryTable& read, bool plainLines) {
    const std::string bytes = kestrova::WriteDiary(read);
    DiaryTable once;
    const auto end = kestrova::ReadDiary(bytes, once);
    Expect(end.Ok() && end.Value() == DiaryEnd::Exact, "what is written can be read");
    if (plainLines) {
        Expect(once == read, "a diary that was read is written for good");
    } else {
        Expect(kestrova::WriteDiary(once) == bytes, "a diary that was written is written for good");
    }
}

} // namespace

int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
    static const EmptyDiary empty;
    const std::string_view input = kestrova::fuzz::View(data, size);
    if (size < 2) {
        return 0;
    }
    DiaryTable table;
    (void)kestrova::ReadDiary(input, table);
    const std::string bytes = LaidOver(empty, input);
    if (kestrova::ReadDiary(bytes, table)) {
        CheckTexts(table);
        CheckRoundTrip(table, kestrova::fuzz::HasPlainLines(input));
    }
    return 0;
}
