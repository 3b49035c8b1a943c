// SPDX-License-Identifier: GPL-3.0-or-later
#include "print/LayoutValues.h"

#include "print/LayoutFile.h"
#include "text/Encoding.h"
#include "text/Lines.h"
#include "text/Numbers.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace kestrova {

namespace {

// Where a value ends: at a comma or at the line's end.
std::size_t EndOf(std::string_view text) {
    return std::min(text.find_first_of(",\n"), text.size());
}

std::string_view UpToEnd(std::string_view text) {
    const std::string_view value = text.substr(0, EndOf(text));
    return value.ends_with('\r') ? value.substr(0, value.size() - 1) : value;
}

// The text with CR LF where it has LF alone.
std::string WithLineEnds(std::string_view text) {
    std::string out;
    out.reserve(text.size());
    for (const char c : text) {
        if (c == '\n' && !out.ends_with('\r')) {
            out += '\r';
        }
        out += c;
    }
    return out;
}

} // namespace

LayoutValues::LayoutValues(std::string_view bytes) : rest_(bytes) {
    if (rest_.starts_with(kByteOrderMark)) {
        rest_.remove_prefix(kByteOrderMark.size());
    }
}

std::string LayoutValues::Line() const {
    return "line " + std::to_string(begun_);
}

void LayoutValues::Begin() {
    rest_.remove_prefix(std::min(rest_.find_first_not_of(" \t"), rest_.size()));
    begun_ = line_;
}

void LayoutValues::Pass(std::size_t end) {
    if (end < rest_.size()) {
        line_ += rest_[end] == '\n' ? 1 : 0;
        ++end;
    }
    rest_.remove_prefix(end);
}

bool LayoutValues::Text(std::string& text) {
    Begin();
    const std::size_t close = rest_.starts_with('"') ? rest_.find('"', 1) : rest_.npos;
    if (close == rest_.npos || close - 1 > kLayoutTextLimit) {
        return false;
    }
    const std::string_view inner = rest_.substr(1, close - 1);
    const std::string_view behind = rest_.substr(close + 1);
    if (inner.find('\0') != inner.npos || !Trim(UpToEnd(behind)).empty()) {
        return false;
    }
    std::string value = AsUtf8(WithLineEnds(inner));
    if (value.size() > kLayoutTextLimit) {
        return false;
    }
    text = std::move(value);
    line_ += static_cast<int>(std::count(inner.begin(), inner.end(), '\n'));
    rest_ = behind;
    Pass(EndOf(behind));
    return true;
}

bool LayoutValues::Number(std::int32_t& value, std::int32_t least, std::int32_t most) {
    Begin();
    const auto number = ReadInt32(UpToEnd(rest_));
    if (!number || *number < least || *number > most) {
        return false;
    }
    value = *number;
    Pass(EndOf(rest_));
    return true;
}

bool LayoutValues::Flag(bool& value) {
    std::int32_t number = 0;
    const bool read = Number(number, std::numeric_limits<std::int32_t>::min(),
                             std::numeric_limits<std::int32_t>::max());
    value = read ? number != 0 : value;
    return read;
}

// A font's size. Other programs may have written a fraction.
bool LayoutValues::Points(double& size) {
    Begin();
    const auto points = ReadFloat(UpToEnd(rest_));
    if (!points || !(*points >= 1 && *points <= kLargestFontSize)) {
        return false;
    }
    size = *points;
    Pass(EndOf(rest_));
    return true;
}

bool LayoutValues::Box(LayoutItem& item) {
    item.Fitted = false; // the sizes of a layout are the user's
    return Flag(item.Enabled) && Number(item.Left, -kFarthestTwip, kFarthestTwip) &&
           Number(item.Top, -kFarthestTwip, kFarthestTwip) &&
           Number(item.Width, 0, std::min(kFarthestTwip, kFarthestTwip - item.Left)) &&
           Number(item.Height, 0, std::min(kFarthestTwip, kFarthestTwip - item.Top));
}

bool LayoutValues::Full(LayoutItem& item) {
    return Box(item) && Flag(item.Visible) && Number(item.ForeColor, 0, kLastColour) &&
           Text(item.FontName) && Points(item.FontSize) && Flag(item.FontBold) &&
           Flag(item.FontItalic) && Text(item.Caption);
}

} // namespace kestrova
