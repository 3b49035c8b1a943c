// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/SettingsFile.h"

#include "text/Encoding.h"
#include "text/Lines.h"
#include "text/Numbers.h"

#include <algorithm>
#include <charconv>
#include <limits>

namespace kestrova {

namespace {

constexpr std::int16_t kMin16 = std::numeric_limits<std::int16_t>::min();
constexpr std::int16_t kMax16 = std::numeric_limits<std::int16_t>::max();

// Reads one line a field; stops for good at the first that is wrong.
class FieldSource {
public:
    explicit FieldSource(std::string_view bytes) : lines_(bytes) {}

    void Text(std::string& field) {
        if (const auto line = Next()) {
            field = AsUtf8(*line);
        }
    }

    void Number(std::int16_t& field, std::int16_t low = kMin16, std::int16_t high = kMax16) {
        if (const auto line = Next()) {
            const auto number = ReadInt16(*line);
            if (Expect(number && *number >= low && *number <= high)) {
                field = *number;
            }
        }
    }

    void Number(std::int32_t& field) {
        if (const auto line = Next()) {
            const auto number = ReadInt32(*line);
            if (Expect(number && *number >= 0 && *number <= 0xFFFFFF)) {
                field = *number;
            }
        }
    }

    void Number(float& field) {
        if (const auto line = Next()) {
            const auto number = ReadFloat(*line);
            if (Expect(number && *number >= 0 && *number <= kMax16)) {
                field = *number;
            }
        }
    }

    [[nodiscard]] bool Good() const { return good_; }
    [[nodiscard]] int Line() const { return line_; }

private:
    // The next line from its first character that is no blank up to a comma.
    std::optional<std::string_view> Next() {
        if (!good_) {
            return std::nullopt;
        }
        ++line_;
        auto line = lines_.Next();
        if (!Expect(line.has_value())) {
            return std::nullopt;
        }
        line->remove_prefix(std::min(line->find_first_not_of(' '), line->size()));
        return line->substr(0, line->find(','));
    }

    bool Expect(bool holds) {
        good_ = good_ && holds;
        return good_;
    }

    LineReader lines_;
    bool good_ = true;
    int line_ = 0;
};

class FieldSink {
public:
    void Text(const std::string& field) { bytes_.append(AsOneLine(field)).append(kLineEnd); }

    void Number(std::int32_t field, std::int16_t /*low*/ = 0, std::int16_t /*high*/ = 0) {
        AppendNumber(bytes_, field);
        bytes_ += kLineEnd;
    }

    void Number(float field) {
        char digits[32];
        const auto [end, error] = std::to_chars(digits, digits + sizeof digits, field);
        bytes_.append(" ").append(digits, end).append(" ").append(kLineEnd);
    }

    std::string Take() {
        // A first text that begins with the mark would lose it to the reader, who takes it for the
        // file's.
        if (bytes_.starts_with(kByteOrderMark)) {
            bytes_.insert(0, kByteOrderMark);
        }
        return std::move(bytes_);
    }

private:
    std::string bytes_;
};

// The one list of the lines in their order, for reading and for writing.
template<typename Fields, typename Settings> void EachLine(Fields& fields, Settings& settings) {
    fields.Text(settings.Reserved1);
    fields.Number(settings.DataYear);
    for (std::size_t role = 0; role < kColourRoles; ++role) {
        fields.Number(settings.Colours[role].Red, 0, 255);
        fields.Number(settings.Colours[role].Green, 0, 255);
        fields.Number(settings.Colours[role].Blue, 0, 255);
        fields.Text(settings.StoredNumbers[role]);
    }
    fields.Number(settings.KeepAspect);
    fields.Number(settings.StartMaximised);
    fields.Number(settings.ReminderOnClose);
    fields.Number(settings.Packed, 0, kMax16);
    fields.Number(settings.SpeechEnabled);
    fields.Number(settings.SpeakPicture);
    fields.Number(settings.SpeakWeekDay);
    fields.Number(settings.SpeakDate);
    fields.Text(settings.DiaryViewName);
    fields.Number(settings.HelpTextOn);
    fields.Number(settings.SpeechPitch);
    fields.Number(settings.SpeechSpeed);
    fields.Text(settings.ModemPort);
    fields.Text(settings.ModemDescription);
    fields.Number(settings.LanguageIndex, 0, kMax16);
    fields.Number(settings.BeepAcknowledge);
    fields.Text(settings.CharacterName);
    fields.Text(settings.PhoneRepeat);
    fields.Text(settings.SpeakRepeat);
    fields.Text(settings.ModemName);
    for (auto& style : settings.PrintStyles) {
        fields.Text(style.FontName);
        fields.Number(style.Size);
        fields.Number(style.Flag1);
        fields.Number(style.Flag2);
        fields.Number(style.Colour);
    }
    for (auto& value : settings.PrintValues) {
        fields.Text(value);
    }
    fields.Number(settings.PrintNumber1);
    fields.Number(settings.PrintNumber2);
    fields.Text(settings.ChimeType);
    fields.Text(settings.ChimeInterval);
    fields.Text(settings.ChimeSound);
    fields.Text(settings.Greeting);
    fields.Text(settings.Farewell);
    fields.Number(settings.WeekNumber, 0, 2);
}

// The record as the lines have it: three flags share one line, and the week start is a number.
struct FileSettings : AppSettings {
    explicit FileSettings(const AppSettings& settings)
        : AppSettings(settings),
          Packed(static_cast<std::int16_t>((StartOnBoot & 3) + (VideoRepeat != 0 ? 4 : 0) +
                                           (VideoFullScreen != 0 ? 16 : 0))),
          WeekNumber(static_cast<std::int16_t>(Week)) {}

    void Unpack() {
        StartOnBoot = static_cast<std::int16_t>(Packed & 3);
        VideoRepeat = (Packed & 12) != 0 ? 1 : 0;
        VideoFullScreen = (Packed & 48) != 0 ? 1 : 0;
        Week = static_cast<WeekStart>(WeekNumber);
    }

    std::int16_t Packed;
    std::int16_t WeekNumber;
};

} // namespace

Status ReadSettings(std::string_view bytes, AppSettings& settings) {
    FieldSource source(bytes);
    FileSettings read(settings);
    EachLine(source, read);
    read.Unpack();
    settings = read;
    if (!source.Good()) {
        return Error{ErrorCode::Damaged, "line " + std::to_string(source.Line())};
    }
    return Done{};
}

std::string WriteSettings(const AppSettings& settings) {
    FieldSink sink;
    FileSettings written(settings);
    EachLine(sink, written);
    return sink.Take();
}

} // namespace kestrova
