// SPDX-License-Identifier: GPL-3.0-or-later
#include "diary/NoteArchive.h"

#include "diary/NoteName.h"
#include "text/Lines.h"
#include "text/Numbers.h"

namespace kestrova {

namespace {

std::string Heading(const DiaryTable& table, int baseYear, const SlotPlace& place) {
    const DiaryEvent& event = table.At(place);
    return std::to_string(place.Slot) + " " + std::to_string(baseYear + place.Year) + "-" +
           TwoDigits(place.Month + 1) + "-" + TwoDigits(place.Day) + " " + TwoDigits(event.Hour) +
           ":" + TwoDigits(event.Minute) + " " + event.Msg;
}

} // namespace

std::string
NoteArchive(const DiaryTable& table, int baseYear,
            const std::function<std::optional<std::string>(const std::string& name)>& read) {
    std::string archive;
    EachStoredSlot([&](const SlotPlace& place) {
        const auto note = read(GetFile(place));
        if (note && !note->empty()) {
            archive.append(Heading(table, baseYear, place)).append(kLineEnd);
            archive.append(*note).append(kLineEnd);
        }
    });
    return archive;
}

} // namespace kestrova
