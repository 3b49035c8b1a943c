// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/qt/ical/IcalEdges.h"

namespace kestrova {

namespace {

constexpr std::string_view kBlanks = " \t";
constexpr std::string_view kMiddle = "][";

} // namespace

std::string InBrackets(std::string_view text) {
    return "[" + std::string(text) + "]";
}

std::optional<std::string> OutOfBrackets(std::string_view value) {
    if (value.size() < 2 || value.front() != '[' || value.back() != ']') {
        return std::nullopt;
    }
    return std::string(value.substr(1, value.size() - 2));
}

std::string EdgesOf(std::string_view text) {
    const std::size_t first = text.find_first_not_of(kBlanks);
    if (first == std::string_view::npos) {
        return text.empty() ? std::string() : InBrackets(std::string(text) + std::string(kMiddle));
    }
    const std::size_t last = text.find_last_not_of(kBlanks);
    if (first == 0 && last + 1 == text.size()) {
        return {};
    }
    return InBrackets(std::string(text.substr(0, first)) + std::string(kMiddle) +
                      std::string(text.substr(last + 1)));
}

std::string WithEdges(std::string text, std::string_view edges) {
    const auto both = OutOfBrackets(edges);
    const std::size_t middle = both ? both->find(kMiddle) : std::string::npos;
    if (middle == std::string::npos) {
        return text;
    }
    const std::string before = both->substr(0, middle);
    const std::string after = both->substr(middle + kMiddle.size());
    if ((before + after).find_first_not_of(kBlanks) != std::string::npos) {
        return text;
    }
    return before + text + after;
}

} // namespace kestrova
