// SPDX-License-Identifier: GPL-3.0-or-later
#include "print/LineBreaks.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <utility>

namespace kestrova {

namespace {

constexpr std::string_view kEllipsis = "\xE2\x80\xA6";
constexpr std::string_view kBlanks = " \t";

// A text that goes on for longer than any line is not measured whole.
constexpr std::size_t kMeasuredPiece = 256;

// Bytes with which the search for as much as fits begins.
constexpr std::size_t kFirstGuess = 16;

bool IsContinuation(char c) {
    return (static_cast<unsigned char>(c) & 0xC0U) == 0x80U;
}

// The code point at a place of a well-formed text.
char32_t CodePointAt(std::string_view text, std::size_t at) {
    const auto lead = static_cast<unsigned char>(text[at]);
    char32_t value = lead < 0x80U   ? lead
                     : lead < 0xE0U ? lead & 0x1FU
                     : lead < 0xF0U ? lead & 0x0FU
                                    : lead & 0x07U;
    for (++at; at < text.size() && IsContinuation(text[at]); ++at) {
        value = value << 6U | (static_cast<unsigned char>(text[at]) & 0x3FU);
    }
    return value;
}

constexpr char32_t kJoiner = 0x200D;

// Whether a code point belongs to the character before it.
bool IsMark(char32_t c) {
    constexpr std::array<std::pair<char32_t, char32_t>, 8> kMarks = {{{0x0300, 0x036F},
                                                                      {0x0483, 0x0489},
                                                                      {0x1AB0, 0x1AFF},
                                                                      {0x1DC0, 0x1DFF},
                                                                      {0x20D0, 0x20FF},
                                                                      {0xFE00, 0xFE0F},
                                                                      {0xFE20, 0xFE2F},
                                                                      {0x1F3FB, 0x1F3FF}}};
    return c == kJoiner || std::any_of(kMarks.begin(), kMarks.end(), [c](const auto& range) {
               return c >= range.first && c <= range.second;
           });
}

// Whether a text may be cut at a place inside it.
bool IsBoundary(std::string_view text, std::size_t at) {
    if (IsContinuation(text[at]) || IsMark(CodePointAt(text, at))) {
        return false;
    }
    std::size_t before = at - 1;
    while (before > 0 && IsContinuation(text[before])) {
        --before;
    }
    return CodePointAt(text, before) != kJoiner;
}

// The first place after `at` where the text may be cut; its end is one.
std::size_t BoundaryAfter(std::string_view text, std::size_t at) {
    std::size_t place = std::min(at + 1, text.size());
    while (place < text.size() && !IsBoundary(text, place)) {
        ++place;
    }
    return place;
}

// The last such place at or before `at`, which is inside the text; its beginning is one.
std::size_t BoundaryBefore(std::string_view text, std::size_t at) {
    while (at > 0 && !IsBoundary(text, at)) {
        --at;
    }
    return at;
}

std::string_view WithoutEndBlanks(std::string_view text) {
    const std::size_t last = text.find_last_not_of(kBlanks);
    return text.substr(0, last == std::string_view::npos ? 0 : last + 1);
}

// Breaks one line.
class Breaker {
public:
    Breaker(int width, const FontChoice& font, const TextMeasure& measure)
        : width_(width), font_(font), measure_(measure) {}

    // Whether the whole text fits.
    [[nodiscard]] bool Fits(std::string_view text) const { return WidthOf(text) <= width_; }

    // How much of the text, which does not fit, the next line takes, and where the one after it
    // begins.
    struct Cut {
        std::size_t End;
        std::size_t Next;
    };
    [[nodiscard]] Cut NextLine(std::string_view text) const {
        std::int64_t used = 0;
        std::size_t end = 0; // of the words that fit
        while (end < text.size()) {
            const std::size_t word = std::min(text.find_first_not_of(kBlanks, end), text.size());
            const std::size_t stop = std::min(text.find_first_of(kBlanks, word), text.size());
            used += WidthOf(text.substr(end, stop - end));
            // Words set together are not as wide as the sum of their roundings.
            if (used > width_ && used <= width_ + width_ / 32 + 20) {
                used = WidthOf(text.substr(0, stop));
            }
            if (used > width_) {
                break;
            }
            end = stop;
        }
        if (end == 0) {
            end = Prefix(text, width_);
        }
        const std::size_t next = std::min(text.find_first_not_of(kBlanks, end), text.size());
        return {end, next};
    }

    // The text cut so that it fits with an ellipsis behind it.
    [[nodiscard]] std::string Elided(std::string_view text) const {
        const int room = width_ - measure_.TextWidth(font_, kEllipsis);
        std::size_t end = Prefix(text, room);
        if (WidthOf(text.substr(0, end)) > room) {
            end = 0;
        }
        return std::string(WithoutEndBlanks(text.substr(0, end))).append(kEllipsis);
    }

private:
    // The width of a text; of one that is too wide, what is enough to know that.
    [[nodiscard]] std::int64_t WidthOf(std::string_view text) const {
        std::int64_t width = 0;
        for (std::size_t some = 2 * kFirstGuess; some < std::min(text.size(), kMeasuredPiece);
             some *= 2) {
            width = measure_.TextWidth(font_, text.substr(0, BoundaryAfter(text, some)));
            if (width > width_) {
                return width;
            }
        }
        width = 0;
        while (text.size() > kMeasuredPiece && width <= width_) {
            const std::size_t piece = BoundaryAfter(text, kMeasuredPiece);
            width += measure_.TextWidth(font_, text.substr(0, piece));
            text.remove_prefix(piece);
        }
        return width <= width_ ? width + measure_.TextWidth(font_, text) : width;
    }

    // The most bytes, at least one character, that are no wider than `room`.
    [[nodiscard]] std::size_t Prefix(std::string_view text, int room) const {
        const auto fits = [&](std::size_t end) {
            return measure_.TextWidth(font_, text.substr(0, end)) <= room;
        };
        std::size_t good = BoundaryAfter(text, 0);
        std::size_t bad = BoundaryAfter(text, good + kFirstGuess);
        while (bad < text.size() && fits(bad)) {
            good = bad;
            bad = BoundaryAfter(text, 2 * bad);
        }
        while (good < bad) {
            std::size_t middle = BoundaryBefore(text, good + (bad - good) / 2);
            if (middle <= good) {
                middle = BoundaryAfter(text, good);
            }
            if (fits(middle)) {
                good = middle;
            } else {
                bad = BoundaryBefore(text, middle - 1);
            }
        }
        return good;
    }

    int width_;
    const FontChoice& font_;
    const TextMeasure& measure_;
};

// Breaks a line to so many lines, as BreakLine does, and adds them to `lines` until there are
// `stop` in all.
void AddBroken(std::vector<std::string>& lines, std::string_view line, int most, std::size_t stop,
               const Breaker& breaker) {
    for (int count = 1; lines.size() < stop; ++count) {
        if (breaker.Fits(line)) {
            lines.emplace_back(line);
            return;
        }
        if (const auto seen = WithoutEndBlanks(line); breaker.Fits(seen)) {
            lines.emplace_back(seen); // nothing to be seen is left out
            return;
        }
        if (count >= most) {
            lines.push_back(breaker.Elided(line));
            return;
        }
        const auto cut = breaker.NextLine(line);
        lines.emplace_back(line.substr(0, cut.End));
        line.remove_prefix(cut.Next);
        if (line.empty()) {
            return;
        }
    }
}

} // namespace

std::vector<std::string> CaptionLines(std::string_view caption, std::size_t first) {
    std::vector<std::string> lines;
    while (lines.size() < first) {
        const std::size_t feed = caption.find('\n');
        std::string_view line = caption.substr(0, feed);
        if (feed != std::string_view::npos && line.ends_with('\r')) {
            line.remove_suffix(1);
        }
        lines.emplace_back(line);
        if (feed == std::string_view::npos) {
            break;
        }
        caption.remove_prefix(feed + 1);
    }
    return lines;
}

std::vector<std::string> BreakLine(std::string_view line, int width, int most,
                                   const FontChoice& font, const TextMeasure& measure) {
    std::vector<std::string> lines;
    AddBroken(lines, line, most, kAllLines, Breaker(width, font, measure));
    return lines;
}

std::vector<std::string> ItemLines(const LayoutItem& item, LayoutKind kind,
                                   const TextMeasure& measure, std::size_t first) {
    std::vector<std::string> own = CaptionLines(item.Caption, first);
    const bool breaks = kind == LayoutKind::LabEvent || kind == LayoutKind::LabUser;
    if (!breaks || item.Width <= 0) {
        return own;
    }
    const FontChoice font = item.Font();
    const Breaker breaker(item.Width, font, measure);
    const int room = item.Height / std::max(1, measure.LineHeight(font));
    auto below = std::count(item.Caption.begin(), item.Caption.end(), '\n'); // own lines to come
    std::vector<std::string> lines;
    for (const std::string& line : own) {
        const auto taken = static_cast<std::int64_t>(lines.size()) + below--;
        const auto most = static_cast<int>(std::max<std::int64_t>(1, room - taken));
        AddBroken(lines, line, most, first, breaker);
    }
    return lines;
}

std::vector<std::string> LinesOnPage(const LayoutItem& item, LayoutKind kind,
                                     const TextMeasure& measure, int pageHeight) {
    if (item.Top > pageHeight) {
        return {};
    }
    const std::int64_t room = std::int64_t{pageHeight} - item.Top;
    const auto first = room / std::max(1, measure.LineHeight(item.Font())) + 1;
    return ItemLines(item, kind, measure, static_cast<std::size_t>(first));
}

} // namespace kestrova
