// SPDX-License-Identifier: GPL-3.0-or-later
#include "text/Encoding.h"

#include <array>
#include <cstdint>
#include <cstring>

namespace kestrova {

namespace {

constexpr std::array<char16_t, 32> kWindows1252From80 = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

// Most lines are plain ASCII, and a diary has ninety thousand of them: eight bytes at a time.
std::size_t AsciiPrefix(std::string_view bytes) {
    constexpr std::uint64_t kHighBits = 0x8080808080808080U;
    std::size_t at = 0;
    for (; at + sizeof(std::uint64_t) <= bytes.size(); at += sizeof(std::uint64_t)) {
        std::uint64_t word = 0;
        std::memcpy(&word, bytes.data() + at, sizeof word);
        if ((word & kHighBits) != 0) {
            break;
        }
    }
    while (at < bytes.size() && static_cast<unsigned char>(bytes[at]) < 0x80U) {
        ++at;
    }
    return at;
}

// How many bytes the well-formed sequence at the front takes; 0 when it is malformed.
std::size_t SequenceLength(std::string_view bytes) {
    const auto byte = [bytes](std::size_t i) { return static_cast<unsigned char>(bytes[i]); };
    const unsigned char lead = byte(0);
    std::size_t length = 0;
    std::uint32_t value = 0;
    if (lead < 0x80U) {
        return 1;
    }
    if (lead >= 0xC2U && lead < 0xE0U) {
        length = 2;
        value = lead & 0x1FU;
    } else if (lead >= 0xE0U && lead < 0xF0U) {
        length = 3;
        value = lead & 0x0FU;
    } else if (lead >= 0xF0U && lead < 0xF5U) {
        length = 4;
        value = lead & 0x07U;
    } else {
        return 0;
    }
    if (bytes.size() < length) {
        return 0;
    }
    for (std::size_t i = 1; i < length; ++i) {
        if ((byte(i) & 0xC0U) != 0x80U) {
            return 0;
        }
        value = (value << 6U) | (byte(i) & 0x3FU);
    }
    const bool overlong = (length == 3 && value < 0x800U) || (length == 4 && value < 0x10000U);
    const bool surrogate = value >= 0xD800U && value <= 0xDFFFU;
    return overlong || surrogate || value > 0x10FFFFU ? 0 : length;
}

void AppendUtf8(std::string& out, char16_t unit) {
    if (unit < 0x80) {
        out += static_cast<char>(unit);
    } else if (unit < 0x800) {
        out += static_cast<char>(0xC0 | (unit >> 6));
        out += static_cast<char>(0x80 | (unit & 0x3F));
    } else {
        out += static_cast<char>(0xE0 | (unit >> 12));
        out += static_cast<char>(0x80 | ((unit >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (unit & 0x3F));
    }
}

} // namespace

bool IsUtf8(std::string_view bytes) {
    bytes.remove_prefix(AsciiPrefix(bytes));
    while (!bytes.empty()) {
        const std::size_t length = SequenceLength(bytes);
        if (length == 0) {
            return false;
        }
        bytes.remove_prefix(length);
    }
    return true;
}

std::string Utf8FromWindows1252(std::string_view bytes) {
    std::string out;
    out.reserve(bytes.size() + bytes.size() / 8);
    for (const char c : bytes) {
        const auto byte = static_cast<unsigned char>(c);
        const bool mapped = byte >= 0x80U && byte < 0xA0U;
        AppendUtf8(out, mapped ? kWindows1252From80[byte - 0x80U] : char16_t{byte});
    }
    return out;
}

std::string AsUtf8(std::string_view bytes) {
    return IsUtf8(bytes) ? std::string(bytes) : Utf8FromWindows1252(bytes);
}

} // namespace kestrova
