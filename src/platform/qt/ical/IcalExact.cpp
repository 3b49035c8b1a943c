// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/qt/ical/IcalExact.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdio>

namespace kestrova {

namespace {

constexpr char kMark = '%';

bool IsControl(char c) {
    constexpr unsigned kDelete = 0x7F;
    const auto code = static_cast<unsigned char>(c);
    return code < ' ' || code == kDelete;
}

// What no program drops.
std::string Core(std::string_view text) {
    std::string core(text);
    std::erase_if(core, [](char c) { return c == ' ' || IsControl(c); });
    return core;
}

} // namespace

std::string InBrackets(std::string_view text) {
    std::string value = "[";
    for (const char c : text) {
        if (IsControl(c) || c == kMark) {
            std::array<char, 4> code{};
            std::snprintf(code.data(), code.size(), "%%%02X", static_cast<unsigned char>(c));
            value += code.data();
        } else {
            value += c;
        }
    }
    return value + "]";
}

std::optional<std::string> OutOfBrackets(std::string_view value) {
    constexpr std::size_t kDigits = 2;
    constexpr int kHexadecimal = 16;
    if (value.size() < 2 || value.front() != '[' || value.back() != ']') {
        return std::nullopt;
    }
    value = value.substr(1, value.size() - 2);
    std::string text;
    for (std::size_t i = 0; i < value.size(); ++i) {
        if (value[i] != kMark) {
            text += value[i];
            continue;
        }
        unsigned code = 0;
        const std::string_view digits = value.substr(i + 1, kDigits);
        const auto read =
            std::from_chars(digits.data(), digits.data() + digits.size(), code, kHexadecimal);
        if (digits.size() < kDigits || read.ptr != digits.data() + kDigits || code == 0 ||
            code >= 0x80U) {
            return std::nullopt;
        }
        text += static_cast<char>(code);
        i += kDigits;
    }
    return text;
}

bool ComesBack(std::string_view text) {
    constexpr std::string_view kBlanks = " \t";
    return text.empty() || (kBlanks.find(text.front()) == std::string_view::npos &&
                            kBlanks.find(text.back()) == std::string_view::npos &&
                            std::none_of(text.begin(), text.end(), [](char c) {
                                return IsControl(c) && c != '\t' && c != '\n';
                            }));
}

std::string AsItWas(const std::string& text, const std::optional<std::string>& exact) {
    return exact && Core(*exact) == Core(text) ? *exact : text;
}

} // namespace kestrova
