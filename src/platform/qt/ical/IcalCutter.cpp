// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/qt/ical/IcalCutter.h"

#include "platform/qt/ical/IcalOwner.h"
#include "text/Encoding.h"
#include "text/Lines.h"
#include "text/Numbers.h"

#include <algorithm>
#include <optional>
#include <set>

namespace kestrova {

namespace {

constexpr std::size_t kMostEvents = 50'000;
constexpr std::size_t kMostZones = 200;
constexpr std::size_t kMostHead = 4096;    // bytes of a name and its parameters
constexpr std::size_t kMostValue = 65'536; // bytes of what is no text
constexpr int kMostOwnLines = 32;

enum class Part { Outside, Calendar, Zone, ZoneRule, Event, Alarm };

const std::set<std::string, std::less<>> kTimeNames = {"DTSTART", "RRULE",  "EXRULE",
                                                       "RDATE",   "EXDATE", "RECURRENCE-ID"};
const std::set<std::string, std::less<>> kTexts = {"UID", "SUMMARY", "DESCRIPTION"};
const std::set<std::string, std::less<>> kEventNames = {"DTEND", "DURATION", "STATUS"};
const std::set<std::string, std::less<>> kZoneRuleNames = {"DTSTART", "TZOFFSETFROM", "TZOFFSETTO",
                                                           "RRULE", "RDATE"};

std::string UpperCase(std::string_view text) {
    std::string result(text);
    std::transform(result.begin(), result.end(), result.begin(),
                   [](char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 0x20) : c; });
    return result;
}

// The name with which a line begins, in capitals; empty when it begins with none.
std::string NameOf(std::string_view line) {
    const auto inName = [](char c) {
        return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') ||
               c == '-';
    };
    const auto* const end = std::find_if_not(line.begin(), line.end(), inName);
    const bool ends = end != line.end() && (*end == ':' || *end == ';');
    return ends ? UpperCase(line.substr(0, static_cast<std::size_t>(end - line.begin()))) : "";
}

// Where the value begins, behind the colon that stands in no quotes; nothing without one.
std::optional<std::size_t> ValueAt(std::string_view line) {
    bool quoted = false;
    for (std::size_t i = 0; i < std::min(line.size(), kMostHead); ++i) {
        if (line[i] == '"') {
            quoted = !quoted;
        } else if (line[i] == ':' && !quoted) {
            return i + 1;
        }
    }
    return std::nullopt;
}

// A line with a text in which each backslash has a meaning: for one that has none, the library
// takes the byte behind it away, which may be a part of a letter.
std::string WithSoundEscapes(std::string_view line, std::size_t valueAt) {
    constexpr std::string_view kEscaped = "\\,;nN";
    constexpr std::string_view kNeedless = ":\"";
    std::string sound(line.substr(0, valueAt));
    for (std::size_t i = valueAt; i < line.size(); ++i) {
        const char next = i + 1 < line.size() ? line[i + 1] : '\0';
        if (line[i] != '\\') {
            sound += line[i];
        } else if (next != '\0' && kEscaped.find(next) != std::string_view::npos) {
            sound.append({line[i], next});
            ++i;
        } else if (next == '\0' || kNeedless.find(next) == std::string_view::npos) {
            sound += "\\\\";
        }
    }
    return sound;
}

// The folded lines of a file as those they were before.
class UnfoldedLines {
public:
    explicit UnfoldedLines(std::string_view bytes) : lines_(bytes), next_(lines_.Next()) {}

    std::optional<std::string> Next() {
        if (!next_) {
            return std::nullopt;
        }
        std::string line(*next_);
        while ((next_ = lines_.Next()) && (next_->starts_with(' ') || next_->starts_with('\t'))) {
            line += next_->substr(1);
        }
        // A fold may have parted the bytes of a letter. The library takes a NUL for the end.
        line = AsUtf8(line);
        std::replace(line.begin(), line.end(), '\0', ' ');
        return line;
    }

private:
    LineReader lines_;
    std::optional<std::string_view> next_;
};

class Cutter {
public:
    // Whether the line fits in where it stands.
    bool Take(const std::string& line) {
        const std::string name = NameOf(line);
        if (name == "BEGIN" || name == "END") {
            const auto value = ValueAt(line);
            const std::string component = UpperCase(value ? Trim(line.substr(*value)) : "");
            return name == "BEGIN" ? Begin(component) : End(component);
        }
        if (skipped_ == 0 && block_ != nullptr && Matters(name)) {
            Keep(line, name);
        }
        return true;
    }

    [[nodiscard]] bool IsWhole() const { return seen_ && part_ == Part::Outside; }
    [[nodiscard]] bool IsTooLarge() const {
        return cut_.Events.size() > kMostEvents || cut_.Zones.size() > kMostZones;
    }
    [[nodiscard]] CutCalendar& Cut() { return cut_; }

private:
    bool Begin(const std::string& component) {
        if (skipped_ == 0) {
            if (part_ == Part::Outside) {
                part_ = Part::Calendar;
                seen_ = true;
                return component == "VCALENDAR";
            }
            if (part_ == Part::Calendar && (component == "VEVENT" || component == "VTIMEZONE")) {
                const bool event = component == "VEVENT";
                block_ = &(event ? cut_.Events : cut_.Zones).emplace_back();
                ownLines_ = 0;
                return Enter(event ? Part::Event : Part::Zone, component);
            }
            if (part_ == Part::Event && component == "VALARM") {
                return Enter(Part::Alarm, component);
            }
            if (part_ == Part::Zone && (component == "STANDARD" || component == "DAYLIGHT")) {
                return Enter(Part::ZoneRule, component);
            }
        }
        ++skipped_;
        return true;
    }

    bool Enter(Part part, const std::string& component) {
        part_ = part;
        open_ = component;
        Append("BEGIN:" + component);
        return true;
    }

    bool End(const std::string& component) {
        if (skipped_ > 0) {
            --skipped_;
            return true;
        }
        switch (part_) {
        case Part::Outside: return false;
        case Part::Calendar: part_ = Part::Outside; return component == "VCALENDAR";
        case Part::Event:
        case Part::Zone: {
            const bool fits = component == (part_ == Part::Event ? "VEVENT" : "VTIMEZONE");
            Append("END:" + component);
            block_ = nullptr;
            part_ = Part::Calendar;
            return fits;
        }
        case Part::Alarm:
        case Part::ZoneRule:
            Append("END:" + component);
            part_ = part_ == Part::Alarm ? Part::Event : Part::Zone;
            return component == open_;
        }
        return false;
    }

    [[nodiscard]] bool Matters(const std::string& name) const {
        switch (part_) {
        case Part::Event:
            return kTimeNames.contains(name) || kTexts.contains(name) ||
                   kEventNames.contains(name) || name.starts_with(kOwnPrefix);
        case Part::Alarm: return name == "ACTION";
        case Part::Zone: return name == "TZID";
        case Part::ZoneRule: return kZoneRuleNames.contains(name);
        case Part::Outside:
        case Part::Calendar: break;
        }
        return false;
    }

    void Keep(const std::string& line, const std::string& name) {
        const bool own = name.starts_with(kOwnPrefix);
        const bool text = own || kTexts.contains(name);
        const auto value = ValueAt(line);
        if (!value || (!text && line.size() - *value > kMostValue) ||
            (own && ++ownLines_ > kMostOwnLines)) {
            block_->Damaged = true;
            return;
        }
        if (part_ == Part::Event && kTimeNames.contains(name)) {
            ++block_->TimeLines[name];
        }
        Append(text ? WithSoundEscapes(line, *value) : line);
    }

    void Append(const std::string& line) { block_->Lines.push_back(line); }

    CutCalendar cut_;
    IcalBlock* block_ = nullptr; // being cut
    Part part_ = Part::Outside;
    std::string open_;        // the component inside the event or zone
    std::size_t skipped_ = 0; // how many components deep in one that does not matter
    int ownLines_ = 0;
    bool seen_ = false;
};

} // namespace

Result<CutCalendar> CutIcal(std::string_view bytes) {
    UnfoldedLines lines(bytes);
    Cutter cutter;
    while (const auto line = lines.Next()) {
        if (!cutter.Take(*line)) {
            return Error{ErrorCode::Damaged, *line};
        }
        if (cutter.IsTooLarge()) {
            return Error{ErrorCode::TooLarge, {}};
        }
    }
    if (!cutter.IsWhole()) {
        return Error{ErrorCode::Damaged, {}};
    }
    return std::move(cutter.Cut());
}

} // namespace kestrova
