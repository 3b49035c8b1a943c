// SPDX-License-Identifier: GPL-3.0-or-later
#include "speech/CharacterFigure.h"

#include "speech/SvgScanner.h"
#include "text/Numbers.h"

#include <algorithm>
#include <array>

namespace kestrova {

namespace {

constexpr double kSmallestSide = 32; // of the view box
constexpr double kLargestSide = 4096;
constexpr double kLongestShape = 3; // the longer side in shorter ones

constexpr std::array<std::string_view, 10> kLayers = {
    "body",        "eyes-open",  "eyes-closed", "mouth-closed", "mouth-open",
    "mouth-small", "mouth-wide", "mouth-round", "mouth-teeth",  "rest"};
constexpr std::size_t kRequired = 5; // the first ones

using Outcome = std::variant<CharacterFigure, CharacterFault>;

Outcome Fail(CharacterFault::Reason why, std::string_view detail = {}) {
    return CharacterFault{why, std::string(detail)};
}

bool TakeViewBox(std::string_view text, CharacterFigure& figure) {
    std::array<float, 4> numbers{};
    for (float& number : numbers) {
        const std::size_t begin = text.find_first_not_of(" ,\t\r\n");
        if (begin == std::string_view::npos) {
            return false;
        }
        const std::size_t end = std::min(text.find_first_of(" ,\t\r\n", begin), text.size());
        const auto read = ReadFloat(text.substr(begin, end - begin));
        if (!read) {
            return false;
        }
        number = *read;
        text.remove_prefix(end);
    }
    figure.Width = numbers[2];
    figure.Height = numbers[3];
    const double smaller = std::min(figure.Width, figure.Height);
    const double larger = std::max(figure.Width, figure.Height);
    return smaller >= kSmallestSide && larger <= kLargestSide && larger <= kLongestShape * smaller;
}

// The number of a gesture's frame; 0 for any other layer.
int FrameOf(std::string_view id) {
    constexpr std::string_view kFrame = "gesture-";
    return id.starts_with(kFrame) ? ReadInt16(id.substr(kFrame.size())).value_or(0) : 0;
}

bool IsLayer(std::string_view id) {
    const int frame = FrameOf(id);
    return (frame >= 1 && frame <= kMostGestureFrames) || id.starts_with("body-") ||
           std::find(kLayers.begin(), kLayers.end(), id) != kLayers.end();
}

} // namespace

bool CharacterFigure::Has(std::string_view layer) const {
    return std::any_of(Layers.begin(), Layers.end(),
                       [layer](const CharacterLayer& each) { return each.Id == layer; });
}

Outcome ReadFigure(std::string_view bytes) {
    using Reason = CharacterFault::Reason;
    if (bytes.size() > kCharacterLimit) {
        return Fail(Reason::TooLarge);
    }
    SvgScanner scanner(bytes);
    const auto picture = scanner.Scan();
    if (!picture) {
        const std::string& what = scanner.Fault().What;
        return Fail(what.empty() ? Reason::Unreadable : Reason::Forbidden, what);
    }
    CharacterFigure figure;
    if (!TakeViewBox(picture->ViewBox, figure)) {
        return Fail(Reason::Forbidden, "viewBox");
    }
    std::string head(picture->RootTag);
    for (const SvgPart& part : picture->Parts) {
        if (part.Element == "defs") {
            head += part.Bytes;
        }
    }
    for (const SvgPart& part : picture->Parts) {
        if (part.Element == "defs" || part.Element == "title" || part.Element == "desc") {
            continue;
        }
        if (part.Element != "g" || !IsLayer(part.Id) || figure.Has(part.Id)) {
            return Fail(Reason::Forbidden, part.Id.empty() ? "<" + std::string(part.Element) + ">"
                                                           : std::string(part.Id));
        }
        figure.Layers.push_back({std::string(part.Id), head + std::string(part.Bytes) + "</svg>"});
    }
    for (std::size_t i = 0; i < kRequired; ++i) {
        if (!figure.Has(kLayers[i])) {
            return Fail(Reason::LayerMissing, kLayers[i]);
        }
    }
    while (figure.Has("gesture-" + std::to_string(figure.GestureFrames + 1))) {
        ++figure.GestureFrames;
    }
    return figure;
}

} // namespace kestrova
