// SPDX-License-Identifier: GPL-3.0-or-later
#include "diary/SaveJournal.h"

#include "diary/Digest.h"
#include "diary/NoteName.h"

#include <algorithm>
#include <charconv>

namespace kestrova {

namespace {

constexpr std::string_view kFirstLine = "Kestrova save 2";

// Reads the lines and runs of bytes of a journal.
class JournalReader {
public:
    explicit JournalReader(std::string_view bytes) : rest_(bytes) {}

    std::optional<std::string_view> Line() {
        const std::size_t end = rest_.find('\n');
        if (end == std::string_view::npos) {
            return std::nullopt;
        }
        const std::string_view line = rest_.substr(0, end);
        rest_.remove_prefix(end + 1);
        return line;
    }

    std::optional<std::string_view> Bytes(std::uint64_t length) {
        if (length >= rest_.size() || rest_[length] != '\n') {
            return std::nullopt;
        }
        const std::string_view bytes = rest_.substr(0, length);
        rest_.remove_prefix(length + 1);
        return bytes;
    }

private:
    std::string_view rest_;
};

template<typename T> std::optional<T> Number(std::string_view text) {
    T value{};
    const char* end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, value);
    return error == std::errc{} && stop == end ? std::optional(value) : std::nullopt;
}

// The first word of a line, taken off it.
std::string_view TakeWord(std::string_view& line) {
    const std::size_t end = std::min(line.find(' '), line.size());
    const std::string_view word = line.substr(0, end);
    line.remove_prefix(std::min(end + 1, line.size()));
    return word;
}

template<typename T, typename Field> bool Assign(std::string_view text, Field& field) {
    const auto value = Number<T>(text);
    if (value) {
        field = *value;
    }
    return value.has_value();
}

bool ReadNote(std::string_view line, SaveJournal& journal) {
    const std::string name(TakeWord(line));
    const auto text = Number<std::size_t>(line);
    if (!text || *text >= journal.Texts.size() || !IsNoteName(name)) {
        return false;
    }
    journal.Notes[name] = *text;
    return true;
}

bool ReadText(JournalReader& reader, std::string_view line, SaveJournal& journal) {
    const auto length = Number<std::uint64_t>(line);
    const auto text = length ? reader.Bytes(*length) : std::nullopt;
    if (text) {
        journal.Texts.emplace_back(*text);
    }
    return text.has_value();
}

bool ReadLine(JournalReader& reader, std::string_view line, SaveJournal& journal) {
    const std::string_view word = TakeWord(line);
    if (word == "digest") {
        return Assign<std::uint64_t>(line, journal.DiaryDigest);
    }
    if (word == "size") {
        return Assign<std::uint64_t>(line, journal.DiarySize);
    }
    if (word == "year") {
        return Assign<int>(line, journal.RolledTo);
    }
    if (word == "note") {
        return ReadNote(line, journal);
    }
    if (word == "text") {
        return ReadText(reader, line, journal);
    }
    const std::string name(line);
    if (word != "gone" || !IsNoteName(name)) {
        return false;
    }
    journal.Notes[name] = std::nullopt;
    return true;
}

} // namespace

bool SaveJournal::BelongsTo(std::string_view diaryBytes) const {
    return diaryBytes.size() == DiarySize && Digest(diaryBytes) == DiaryDigest;
}

std::string WriteJournal(const SaveJournal& journal) {
    std::string bytes(kFirstLine);
    bytes += "\ndigest " + std::to_string(journal.DiaryDigest);
    bytes += "\nsize " + std::to_string(journal.DiarySize) + "\n";
    if (journal.RolledTo) {
        bytes += "year " + std::to_string(*journal.RolledTo) + "\n";
    }
    for (const std::string& text : journal.Texts) {
        bytes.append("text ").append(std::to_string(text.size())).append("\n");
        bytes.append(text).append("\n");
    }
    for (const auto& [name, text] : journal.Notes) {
        if (text) {
            bytes += "note " + name + " " + std::to_string(*text) + "\n";
        } else {
            bytes += "gone " + name + "\n";
        }
    }
    return bytes += "end\n";
}

std::optional<SaveJournal> ReadJournal(std::string_view bytes) {
    JournalReader reader(bytes);
    SaveJournal journal;
    if (reader.Line() != kFirstLine) {
        return std::nullopt;
    }
    while (const auto line = reader.Line()) {
        if (*line == "end") {
            return journal;
        }
        if (!ReadLine(reader, *line, journal)) {
            return std::nullopt;
        }
    }
    return std::nullopt;
}

} // namespace kestrova
