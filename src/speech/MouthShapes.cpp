// SPDX-License-Identifier: GPL-3.0-or-later
#include "speech/MouthShapes.h"

#include <algorithm>
#include <array>

namespace kestrova {

namespace {

// A phoneme's name begins with the letter that is nearest to its sound, in languages of all kinds;
// what follows tells long from short and one accent from another. "@", "3", "&" and "0" are vowels,
// too: those of "about", "nurse", "cat" and "hot".
struct ShapeOfLetters {
    std::string_view Letters;
    MouthShape Shape;
};
constexpr std::array<ShapeOfLetters, 5> kShapes = {{
    {"mMbBpP", MouthShape::Closed},
    {"fFvV", MouthShape::Teeth},
    {"aA&", MouthShape::Open},
    {"eEiIjJ", MouthShape::Wide},
    {"oO0uUwWyYQ", MouthShape::Round},
}};
constexpr double kShortest = 0.035; // seconds that an eye takes to see a shape

} // namespace

MouthShape MouthOf(std::string_view phoneme) {
    // Marks of stress stand in front of some.
    const std::size_t begin = phoneme.find_first_not_of("',%=");
    if (phoneme.empty() || phoneme.front() == '_' || begin == std::string_view::npos) {
        return MouthShape::Closed;
    }
    if (phoneme.substr(begin) == "V") {
        return MouthShape::Open; // as in "cup"; alone among the vowels it has a consonant's letter
    }
    for (const ShapeOfLetters& shape : kShapes) {
        if (shape.Letters.find(phoneme[begin]) != std::string_view::npos) {
            return shape.Shape;
        }
    }
    return MouthShape::Small;
}

std::vector<MouthChange> MouthChanges(const SpokenSound& sound) {
    std::vector<MouthChange> changes;
    if (sound.Rate <= 0) {
        return changes;
    }
    const auto secondsOf = [&](std::size_t sample) {
        return static_cast<double>(sample) / sound.Rate;
    };
    for (const MouthMove& move : sound.Mouth) {
        const MouthChange change{secondsOf(std::min(move.Sample, sound.Samples.size())),
                                 MouthOf(move.Phoneme)};
        if (!changes.empty() && change.Seconds - changes.back().Seconds < kShortest) {
            // Lips that touch are what one looks for; all else gives way to what comes after it.
            if (changes.back().Shape == MouthShape::Closed) {
                continue;
            }
            changes.pop_back();
        }
        if (changes.empty() || changes.back().Shape != change.Shape) {
            changes.push_back(change);
        }
    }
    if (!changes.empty() && changes.back().Shape != MouthShape::Closed) {
        changes.push_back({secondsOf(sound.Samples.size()), MouthShape::Closed});
    }
    return changes;
}

} // namespace kestrova
