// SPDX-License-Identifier: GPL-3.0-or-later
#include "text/Folding.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace kestrova {

namespace {

// What the letters from U+00C0 on, and the Greek ones from U+0386 on, are without case and accent.
// Those that become two letters are in Ligature.
constexpr std::u16string_view kLatin =
    u"aaaaaaæceeeeiiiidnooooo×ouuuuyþßaaaaaaæceeeeiiiidnooooo÷ouuuuyþy"
    u"aaaaaaccccccccddddeeeeeeeeeegggggggghhhhiiiiiiiiiiĳĳjjkkĸllllllŀ"
    u"ŀllnnnnnnŉŋŋooooooœœrrrrrrssssssssttttttuuuuuuuuuuuuwwyyyzzzzzzs";
constexpr char32_t kFirstLatin = 0xC0;
constexpr std::u16string_view kGreek = u"α·εηι\x38Bο\x38Dυωιαβγδεζηθικλμνξοπρ\x3A2στυφχψωιυαεηι"
                                       u"υαβγδεζηθικλμνξοπρσστυφχψωιυουω";
constexpr char32_t kFirstGreek = 0x386;

struct Decoded {
    char32_t Code = 0;
    std::size_t Length = 1; // in bytes
};

// The character at the front. A byte that is no part of UTF-8 stands for itself, which is no
// letter of the tables.
Decoded DecodeFirst(std::string_view text) {
    const auto byte = [text](std::size_t i) -> std::uint32_t {
        return i < text.size() ? static_cast<unsigned char>(text[i]) : 0U;
    };
    const auto follows = [byte](std::size_t i) { return (byte(i) & 0xC0U) == 0x80U; };
    const std::uint32_t lead = byte(0);
    if (lead >= 0xC2U && lead < 0xE0U && follows(1)) {
        return {(lead & 0x1FU) << 6U | (byte(1) & 0x3FU), 2};
    }
    if (lead >= 0xE0U && lead < 0xF0U && follows(1) && follows(2)) {
        return {(lead & 0x0FU) << 12U | (byte(1) & 0x3FU) << 6U | (byte(2) & 0x3FU), 3};
    }
    return {0, 1};
}

void AppendCode(std::string& out, char32_t code) {
    if (code < 0x80U) {
        out += static_cast<char>(code);
        return;
    }
    out += static_cast<char>(0xC0U | code >> 6U);
    out += static_cast<char>(0x80U | (code & 0x3FU));
}

bool IsInvisible(char32_t code) {
    const bool accent = code >= 0x300 && code <= 0x36F; // beside its letter
    return accent || code == 0xAD || code == 0x200B || code == 0xFEFF;
}

// What becomes more than one letter, or plain.
std::string_view Ligature(char32_t code) {
    switch (code) {
    case 0xE6:
    case 0xC6: return "ae";
    case 0x152:
    case 0x153: return "oe";
    case 0x132:
    case 0x133: return "ij";
    case 0xDF:
    case 0x1E9E: return "ss";
    case 0xAA: return "a";
    case 0xBA: return "o";
    case 0xA0:
    case 0x202F: return " ";
    case 0x2018:
    case 0x2019: return "'";
    case 0xAB:
    case 0xBB:
    case 0x201C:
    case 0x201D:
    case 0x201E: return "\"";
    case 0x2010:
    case 0x2011:
    case 0x2013:
    case 0x2014: return "-";
    default: return {};
    }
}

char32_t Plain(char32_t code) {
    if (code >= kFirstLatin && code - kFirstLatin < kLatin.size()) {
        return kLatin[code - kFirstLatin];
    }
    if (code >= kFirstGreek && code - kFirstGreek < kGreek.size()) {
        return kGreek[code - kFirstGreek];
    }
    if (code >= 0x400 && code < 0x410) {
        return code + 0x50;
    }
    return code >= 0x410 && code < 0x430 ? code + 0x20 : code;
}

// Appends what the character at the front becomes; how many bytes it takes.
std::size_t FoldFirst(std::string_view text, std::string& out) {
    const auto first = static_cast<unsigned char>(text.front());
    if (first < 0x80U) {
        const bool capital = first >= 'A' && first <= 'Z';
        out += static_cast<char>(capital ? first | 0x20U : first);
        return 1;
    }
    const Decoded decoded = DecodeFirst(text);
    if (IsInvisible(decoded.Code)) {
        return decoded.Length;
    }
    if (const std::string_view ligature = Ligature(decoded.Code); !ligature.empty()) {
        out += ligature;
        return decoded.Length;
    }
    const char32_t plain = Plain(decoded.Code);
    if (plain == decoded.Code) {
        out += text.substr(0, decoded.Length);
    } else {
        AppendCode(out, plain);
    }
    return decoded.Length;
}

// A folded text with the place in the original from which each of its bytes comes.
struct Traced {
    std::string Text;
    std::vector<std::size_t> Origins; // and the end, in which what is invisible is taken in

    explicit Traced(std::string_view original) {
        for (std::size_t at = 0; at < original.size();) {
            const std::size_t begin = at;
            at += FoldFirst(original.substr(at), Text);
            Origins.resize(Text.size(), begin);
        }
        Origins.push_back(original.size());
    }

    // The part of the original from which these bytes come, whole letters.
    [[nodiscard]] TextPart Origin(std::size_t begin, std::size_t end) const {
        const std::size_t last = Origins[end - 1];
        while (Origins[end] == last && end + 1 < Origins.size()) {
            ++end;
        }
        return {Origins[begin], Origins[end]};
    }
};

} // namespace

std::string Fold(std::string_view text) {
    std::string folded;
    folded.reserve(text.size());
    while (!text.empty()) {
        text.remove_prefix(FoldFirst(text, folded));
    }
    return folded;
}

std::vector<TextPart> FindFolded(std::string_view text, const std::vector<std::string>& words) {
    const Traced folded(text);
    std::vector<TextPart> found;
    for (const std::string& word : words) {
        for (std::size_t at = 0; !word.empty(); at += word.size()) {
            at = folded.Text.find(word, at);
            if (at == std::string::npos) {
                break;
            }
            found.push_back(folded.Origin(at, at + word.size()));
        }
    }
    std::sort(found.begin(), found.end(),
              [](const TextPart& a, const TextPart& b) { return a.Begin < b.Begin; });
    std::vector<TextPart> parts;
    for (const TextPart& part : found) {
        if (!parts.empty() && part.Begin <= parts.back().End) {
            parts.back().End = std::max(parts.back().End, part.End);
        } else {
            parts.push_back(part);
        }
    }
    return parts;
}

} // namespace kestrova
