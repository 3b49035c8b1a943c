// SPDX-License-Identifier: GPL-3.0-or-later
#include "speech/SpeechText.h"

#include "text/Numbers.h"

namespace kestrova {

namespace {

constexpr std::size_t kLongPiece = 60;    // characters, from which on a piece may end at a blank
constexpr std::size_t kShortWord = 5;     // places from the blank before it to the one behind it
constexpr std::size_t kTail = 2;          // characters that are not worth a piece
constexpr std::size_t kMostAtATime = 600; // characters, which take a voice a moment
constexpr std::string_view kPitchMark = "\\Pit=";
constexpr std::string_view kSpeedMark = "\\Spd=";

// The characters of a text, counted from 1. A character is never cut, however many bytes it takes.
class Characters {
public:
    explicit Characters(std::string_view text) {
        for (std::size_t at = 0; at < text.size();) {
            std::size_t end = at + 1;
            while (end < text.size() && (static_cast<unsigned char>(text[end]) & 0xC0U) == 0x80U) {
                ++end;
            }
            all_.push_back(text.substr(at, end - at));
            at = end;
        }
    }

    [[nodiscard]] std::size_t Count() const { return all_.size(); }
    [[nodiscard]] std::string_view At(std::size_t place) const { return all_[place - 1]; }
    [[nodiscard]] bool IsOneOf(std::size_t place, std::string_view signs) const {
        return At(place).size() == 1 && signs.find(At(place).front()) != std::string_view::npos;
    }

    // The place of the next blank, or the one behind the last character.
    [[nodiscard]] std::size_t BlankAfter(std::size_t place) const {
        do {
            ++place;
        } while (place <= Count() && !IsOneOf(place, " "));
        return place;
    }

private:
    std::vector<std::string_view> all_;
};

std::string NextPiece(const Characters& text, std::size_t& place) {
    std::string piece;
    bool endsHere = false;
    for (std::size_t count = 1;; ++count) {
        ++place;
        piece += text.At(place);
        endsHere = count > kLongPiece && text.IsOneOf(place, " ") &&
                   text.BlankAfter(place) - place < kShortWord;
        if (endsHere || text.IsOneOf(place, "?:!.\r") || place + kTail >= text.Count()) {
            break;
        }
    }
    if (endsHere) {
        return piece;
    }
    if (text.IsOneOf(place, "\r")) {
        --place;
    }
    while (place < text.Count()) {
        ++place;
        piece += text.At(place);
        if (text.IsOneOf(place, ":!?,. \r")) {
            break;
        }
    }
    return piece;
}

// How many characters from a place on to give to a voice.
std::size_t VoiceFull(const Characters& text, std::size_t place) {
    const std::size_t left = text.Count() + 1 - place;
    if (left <= kMostAtATime) {
        return left;
    }
    std::size_t count = kMostAtATime;
    while (count > 0 && !text.IsOneOf(place + count - 1, " \t\n")) {
        --count;
    }
    return count > 0 ? count : kMostAtATime;
}

// The number of a mark at the front of the text, which is taken away with it.
std::optional<int> TakeMark(std::string_view& text, std::string_view mark) {
    if (!text.starts_with(mark)) {
        return std::nullopt;
    }
    const std::size_t end = text.find('\\', mark.size());
    if (end == std::string_view::npos) {
        return std::nullopt;
    }
    const auto number = ReadInt16(text.substr(mark.size(), end - mark.size()));
    if (number) {
        text.remove_prefix(end + 1);
    }
    return number;
}

} // namespace

std::vector<std::string> CutSpeech(std::string_view text) {
    const Characters characters(text);
    std::vector<std::string> pieces;
    for (std::size_t place = 0; place < characters.Count();) {
        pieces.push_back(NextPiece(characters, place));
    }
    return pieces;
}

std::vector<std::string> CutLongPieces(const std::vector<std::string>& pieces) {
    std::vector<std::string> all;
    for (const std::string& piece : pieces) {
        const Characters characters(piece);
        for (std::size_t place = 1; place <= characters.Count();) {
            const std::size_t end = place + VoiceFull(characters, place);
            std::string& part = all.emplace_back();
            for (; place < end; ++place) {
                part += characters.At(place);
            }
        }
    }
    return all;
}

std::string WithMarks(int pitch, int speed, std::string_view words) {
    return std::string(kPitchMark) + std::to_string(pitch) + "\\" + std::string(kSpeedMark) +
           std::to_string(speed) + "\\" + std::string(words);
}

MarkedWords ReadMarks(std::string_view text) {
    MarkedWords marked;
    for (bool found = true; found;) {
        const auto pitch = TakeMark(text, kPitchMark);
        const auto speed = TakeMark(text, kSpeedMark);
        marked.Pitch = pitch ? pitch : marked.Pitch;
        marked.Speed = speed ? speed : marked.Speed;
        found = pitch || speed;
    }
    marked.Words = text;
    return marked;
}

} // namespace kestrova
