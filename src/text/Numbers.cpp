// SPDX-License-Identifier: GPL-3.0-or-later
#include "text/Numbers.h"

#include <charconv>

namespace kestrova {

namespace {

template<typename T> std::optional<T> Read(std::string_view text) {
    text = Trim(text);
    if (text.starts_with('+')) {
        text.remove_prefix(1);
        if (text.starts_with('-')) {
            return std::nullopt;
        }
    }
    T value{};
    const char* end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, value);
    if (error != std::errc{} || stop != end) {
        return std::nullopt;
    }
    return value;
}

} // namespace

std::string_view Trim(std::string_view text) {
    constexpr std::string_view kBlanks = " \t";
    const std::size_t first = text.find_first_not_of(kBlanks);
    if (first == std::string_view::npos) {
        return {};
    }
    return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

std::optional<std::int16_t> ReadInt16(std::string_view text) {
    return Read<std::int16_t>(text);
}

std::optional<std::int32_t> ReadInt32(std::string_view text) {
    return Read<std::int32_t>(text);
}

std::optional<float> ReadFloat(std::string_view text) {
    return Read<float>(text);
}

void AppendNumber(std::string& out, std::int32_t value) {
    if (value >= 0) {
        out += ' ';
    }
    char digits[16];
    const auto [end, error] = std::to_chars(digits, digits + sizeof digits, value);
    out.append(digits, end);
    out += ' ';
}

std::string TwoDigits(int value) {
    std::string text = std::to_string(value);
    if (value >= 0 && value <= 9) {
        text.insert(text.begin(), '0');
    }
    return text;
}

} // namespace kestrova
