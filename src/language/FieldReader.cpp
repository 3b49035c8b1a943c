// SPDX-License-Identifier: GPL-3.0-or-later
#include "language/FieldReader.h"

#include "text/Encoding.h"

#include <algorithm>

namespace kestrova {

std::optional<std::string_view> FieldReader::NextRaw() {
    if (!line_) {
        line_ = lines_.Next();
        if (!line_) {
            return std::nullopt;
        }
    }
    std::string_view rest = *line_;
    rest.remove_prefix(std::min(rest.find_first_not_of(' '), rest.size()));
    std::string_view field;
    if (rest.starts_with('"')) {
        rest.remove_prefix(1);
        const std::size_t quote = std::min(rest.find('"'), rest.size());
        field = rest.substr(0, quote);
        rest.remove_prefix(std::min(quote + 1, rest.size()));
        rest.remove_prefix(std::min(rest.find(','), rest.size()));
    } else {
        field = rest.substr(0, rest.find(','));
        rest.remove_prefix(field.size());
    }
    if (rest.empty()) {
        line_.reset();
    } else {
        line_ = rest.substr(1);
    }
    return field;
}

std::optional<std::string> FieldReader::Next() {
    const auto field = NextRaw();
    return field ? std::optional(AsUtf8(*field)) : std::nullopt;
}

bool FieldReader::Skip(int count) {
    for (int i = 0; i < count; ++i) {
        if (!NextRaw()) {
            return false;
        }
    }
    return true;
}

} // namespace kestrova
