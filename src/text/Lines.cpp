// SPDX-License-Identifier: GPL-3.0-or-later
#include "text/Lines.h"

#include <algorithm>

namespace kestrova {

LineReader::LineReader(std::string_view bytes) : rest_(bytes) {
    if (rest_.starts_with(kByteOrderMark)) {
        rest_.remove_prefix(kByteOrderMark.size());
    }
}

std::optional<std::string_view> LineReader::Next() {
    if (rest_.empty()) {
        return std::nullopt;
    }
    const std::size_t end = std::min(rest_.find('\n'), rest_.size());
    std::string_view line = rest_.substr(0, end);
    rest_.remove_prefix(std::min(end + 1, rest_.size()));
    if (line.ends_with('\r')) {
        line.remove_suffix(1);
    }
    return line;
}

std::string AsOneLine(std::string_view text) {
    std::string line(text);
    std::replace_if(
        line.begin(), line.end(), [](char c) { return c == '\r' || c == '\n' || c == '\0'; }, ' ');
    return line;
}

} // namespace kestrova
