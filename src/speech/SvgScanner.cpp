// SPDX-License-Identifier: GPL-3.0-or-later
#include "speech/SvgScanner.h"

#include <algorithm>
#include <array>

namespace kestrova {

namespace {

constexpr int kMostElements = 4000;
constexpr std::size_t kMostNested = 12;
constexpr int kMostDigits = 5; // before the point

constexpr std::array<std::string_view, 14> kElements = {
    "g",    "defs", "title",    "desc",    "path",           "circle",         "ellipse",
    "rect", "line", "polyline", "polygon", "linearGradient", "radialGradient", "stop"};
constexpr std::string_view kBlanks = " \t\r\n";

bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

bool IsNameSign(char c) {
    return IsDigit(c) || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '-' || c == '_' ||
           c == ':' || c == '.';
}

std::string_view Stripped(std::string_view text) {
    const std::size_t begin = text.find_first_not_of(kBlanks);
    if (begin == std::string_view::npos) {
        return {};
    }
    return text.substr(begin, text.find_last_not_of(kBlanks) - begin + 1);
}

// Whether any number is so large that drawing with it could take for ever. Exponents are not needed
// for a picture of a few hundred units.
bool HasWildNumber(std::string_view value) {
    int digits = 0;
    bool fraction = false;
    for (std::size_t i = 0; i < value.size(); ++i) {
        const char c = value[i];
        if (IsDigit(c)) {
            digits += fraction ? 0 : 1;
            const char next = i + 1 < value.size() ? value[i + 1] : ' ';
            if (digits > kMostDigits || next == 'e' || next == 'E') {
                return true;
            }
        } else {
            fraction = c == '.';
            digits = 0;
        }
    }
    return false;
}

// Whether everything the value refers to is in this file.
bool RefersToItself(std::string_view value) {
    for (std::size_t at = value.find("url"); at != std::string_view::npos;
         at = value.find("url", at + 1)) {
        if (!value.substr(at).starts_with("url(#")) {
            return false;
        }
    }
    return true;
}

} // namespace

bool SvgScanner::Refuse(std::string what) {
    fault_.What = std::move(what);
    return false;
}

// Goes on behind the next place where this stands.
bool SvgScanner::Pass(std::string_view until) {
    const std::size_t at = rest_.find(until);
    if (at == std::string_view::npos) {
        return false;
    }
    rest_.remove_prefix(at + until.size());
    return true;
}

// Passes over texts, comments and the line that says which XML this is. Everything else that is no
// element, above all definitions of entities, is refused.
bool SvgScanner::SkipToTag() {
    while (true) {
        const std::size_t at = rest_.find('<');
        const std::string_view text = rest_.substr(0, at);
        if (at == std::string_view::npos || text.find('\0') != std::string_view::npos) {
            return false;
        }
        if (open_.empty() && !Stripped(text).empty()) {
            return false;
        }
        rest_.remove_prefix(at);
        if (rest_.starts_with("<!--")) {
            if (!Pass("-->")) {
                return false;
            }
        } else if (rest_.starts_with("<?xml ") && elements_ == 0) {
            if (!Pass("?>")) {
                return false;
            }
        } else if (rest_.starts_with("<!") || rest_.starts_with("<?")) {
            return Refuse(std::string(rest_.substr(0, rest_.find_first_of(" \t\r\n>["))));
        } else {
            return true;
        }
    }
}

bool SvgScanner::TakeAttribute(std::string_view& name, std::string_view& value) {
    const auto nameEnd = std::find_if_not(rest_.begin(), rest_.end(), IsNameSign);
    name = rest_.substr(0, static_cast<std::size_t>(nameEnd - rest_.begin()));
    rest_.remove_prefix(name.size());
    rest_.remove_prefix(std::min(rest_.find_first_not_of(kBlanks), rest_.size()));
    if (name.empty() || !rest_.starts_with('=')) {
        return false;
    }
    rest_.remove_prefix(1);
    rest_.remove_prefix(std::min(rest_.find_first_not_of(kBlanks), rest_.size()));
    if (rest_.empty() || (rest_.front() != '"' && rest_.front() != '\'')) {
        return false;
    }
    const std::size_t end = rest_.find(rest_.front(), 1);
    if (end == std::string_view::npos) {
        return false;
    }
    value = rest_.substr(1, end - 1);
    rest_.remove_prefix(end + 1);
    return value.find('<') == std::string_view::npos;
}

bool SvgScanner::CheckAttribute(std::string_view name, std::string_view value) {
    if (value.find('&') != std::string_view::npos || name.starts_with("on") ||
        name.find("dash") != std::string_view::npos) {
        return Refuse(std::string(name));
    }
    if (name == "href" || name.ends_with(":href")) {
        return value.starts_with('#') || Refuse(std::string(name));
    }
    if (name == "style") {
        return CheckStyle(value);
    }
    if (name.starts_with("xml") || name == "id" || name == "class") {
        return true;
    }
    if (!RefersToItself(value)) {
        return Refuse(std::string(name));
    }
    // A colour may look like a number with an exponent: "#1e30ff".
    const bool colour = value.find('#') != std::string_view::npos;
    return colour || !HasWildNumber(value) || Refuse(std::string(name));
}

bool SvgScanner::CheckStyle(std::string_view style) {
    while (!style.empty()) {
        const std::size_t end = std::min(style.find(';'), style.size());
        const std::string_view rule = style.substr(0, end);
        style.remove_prefix(std::min(end + 1, style.size()));
        const std::size_t colon = rule.find(':');
        if (colon == std::string_view::npos) {
            if (!Stripped(rule).empty()) {
                return Refuse("style");
            }
            continue;
        }
        const std::string_view name = Stripped(rule.substr(0, colon));
        if (name == "style" || rule.find_first_of("\\@{") != std::string_view::npos ||
            !CheckAttribute(name, rule.substr(colon + 1))) {
            return Refuse("style");
        }
    }
    return true;
}

void SvgScanner::Open(const Tag& tag, const char* begin, std::string_view id,
                      std::string_view viewBox) {
    if (open_.empty()) {
        parts_.RootTag = {begin, static_cast<std::size_t>(rest_.data() - begin)};
        parts_.ViewBox = viewBox;
    } else if (open_.size() == 1) {
        parts_.Parts.push_back({tag.Name, id, {}});
        partBegin_ = begin;
    }
    open_.push_back(tag.Name);
    if (tag.Closed) {
        Close();
    }
}

void SvgScanner::Close() {
    open_.pop_back();
    if (open_.size() == 1) {
        parts_.Parts.back().Bytes = {partBegin_,
                                     static_cast<std::size_t>(rest_.data() - partBegin_)};
    }
    done_ = open_.empty();
}

bool SvgScanner::TakeStart() {
    const char* const begin = rest_.data();
    rest_.remove_prefix(1);
    const auto nameEnd = std::find_if_not(rest_.begin(), rest_.end(), IsNameSign);
    Tag tag{rest_.substr(0, static_cast<std::size_t>(nameEnd - rest_.begin()))};
    rest_.remove_prefix(tag.Name.size());
    const bool isRoot = open_.empty();
    if (tag.Name.empty() || (isRoot && tag.Name != "svg")) {
        return false;
    }
    if (!isRoot && std::find(kElements.begin(), kElements.end(), tag.Name) == kElements.end()) {
        return Refuse("<" + std::string(tag.Name) + ">");
    }
    if (++elements_ > kMostElements || open_.size() >= kMostNested) {
        return Refuse(std::to_string(elements_) + " x <" + std::string(tag.Name) + ">");
    }
    std::string_view id;
    std::string_view viewBox;
    while (true) {
        rest_.remove_prefix(std::min(rest_.find_first_not_of(kBlanks), rest_.size()));
        if (rest_.starts_with("/>") || rest_.starts_with('>')) {
            tag.Closed = rest_.front() == '/';
            rest_.remove_prefix(tag.Closed ? 2 : 1);
            break;
        }
        std::string_view name;
        std::string_view value;
        if (!TakeAttribute(name, value) || !CheckAttribute(name, value)) {
            return false;
        }
        if (name == "id") {
            id = value;
        } else if (name == "viewBox") {
            viewBox = value;
        }
    }
    if (isRoot && tag.Closed) {
        return false;
    }
    Open(tag, begin, id, viewBox);
    return true;
}

bool SvgScanner::TakeEnd() {
    rest_.remove_prefix(2);
    const std::size_t end = rest_.find('>');
    if (end == std::string_view::npos || open_.empty() ||
        Stripped(rest_.substr(0, end)) != open_.back()) {
        return false;
    }
    rest_.remove_prefix(end + 1);
    Close();
    return true;
}

bool SvgScanner::TakeTag() {
    return SkipToTag() && (rest_.starts_with("</") ? TakeEnd() : TakeStart());
}

std::optional<SvgParts> SvgScanner::Scan() {
    while (!done_) {
        if (!TakeTag()) {
            return std::nullopt;
        }
    }
    // Nothing but comments may follow.
    while (!Stripped(rest_).empty()) {
        rest_ = Stripped(rest_);
        if (!rest_.starts_with("<!--") || !Pass("-->")) {
            return std::nullopt;
        }
    }
    return parts_;
}

} // namespace kestrova
