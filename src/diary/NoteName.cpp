// SPDX-License-Identifier: GPL-3.0-or-later
#include "diary/NoteName.h"

namespace kestrova {

namespace {

// From this day on the day's character is a digit, and lower case marks the name as one of those.
constexpr int kFirstDigitDay = 25;
constexpr std::string_view kExtension = ".txt";

} // namespace

std::string GetFile(const SlotPlace& place) {
    const bool late = place.Day >= kFirstDigitDay;
    const int letter = late ? int{'a'} : int{'A'};
    const int day = late ? place.Day + 25 : place.Day + 'A';
    std::string name;
    for (const int code : {place.Slot + letter, day, place.Month + letter, place.Year + letter}) {
        name += static_cast<char>(code);
    }
    return name.append(kExtension);
}

bool IsNoteName(const std::string& name) {
    if (name.size() != 4 + kExtension.size() || !name.ends_with(kExtension)) {
        return false;
    }
    const bool late = name[1] >= '2' && name[1] <= '8';
    const char letter = late ? 'a' : 'A';
    const int code = static_cast<unsigned char>(name[1]);
    const int day = late ? code - 25 : code - 'A';
    const SlotPlace place(name[0] - letter, day, name[2] - letter, name[3] - letter);
    return place.Slot >= 0 && place.Slot < kTableSlots && day >= 0 && day < kStoredDays &&
           place.Month >= 0 && place.Month < kTableMonths && place.Year >= 0 &&
           place.Year < kDiaryYears && GetFile(place) == name;
}

std::optional<std::string> NoteNameOf(const std::string& fileName) {
    constexpr char kCaseBit = 0x20;
    std::string name = fileName;
    if (name.size() != 4 + kExtension.size()) {
        return std::nullopt;
    }
    const bool late = name[1] >= '2' && name[1] <= '8';
    for (std::size_t i = 0; i < name.size(); ++i) {
        const bool letter =
            (name[i] >= 'A' && name[i] <= 'Z') || (name[i] >= 'a' && name[i] <= 'z');
        const bool small = late || i >= 4;
        if (letter) {
            name[i] = static_cast<char>(small ? name[i] | kCaseBit : name[i] & ~kCaseBit);
        }
    }
    return IsNoteName(name) ? std::optional(std::move(name)) : std::nullopt;
}

} // namespace kestrova
