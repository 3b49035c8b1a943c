// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace kestrova {

// The 342 lines of one language, each text saying where it stands: "De 3.17" is entry 3.17.
inline std::vector<std::string> LanguageBlock(const std::string& heading, const std::string& mark) {
    std::vector<std::string> lines = {heading, mark + " Font", "13.5", "True", "False"};
    for (int month = 1; month <= 12; ++month) {
        lines.push_back(mark + " month " + std::to_string(month));
        lines.push_back(mark + " &menu " + std::to_string(month));
    }
    for (const char* const day : {"Mo", "Tu", "We", "Th", "Fr", "Sa", "Su"}) {
        lines.push_back(mark + " " + day);
    }
    for (int group = 0; group < 6; ++group) {
        for (int entry = 0; entry < 51; ++entry) {
            lines.push_back(mark + " " + std::to_string(group) + "." + std::to_string(entry));
        }
    }
    return lines;
}

inline std::string FileOf(const std::vector<std::string>& lines, std::string_view end = "\r\n") {
    std::string bytes;
    for (const std::string& line : lines) {
        bytes.append(line).append(end);
    }
    return bytes;
}

// Where entry group.entry stands among a block's lines, counted from 0.
inline std::size_t LineOfText(int group, int entry) {
    return static_cast<std::size_t>(36 + group * 51 + entry);
}

} // namespace kestrova
