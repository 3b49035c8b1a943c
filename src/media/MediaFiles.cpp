// SPDX-License-Identifier: GPL-3.0-or-later
#include "media/MediaFiles.h"

#include "platform/FileStore.h"

#include <algorithm>
#include <iterator>

namespace kestrova {

namespace {

bool HasEnding(std::string_view path, std::string_view ending) {
    return path.size() >= ending.size() &&
           IsSameName(path.substr(path.size() - ending.size()), ending);
}

} // namespace

bool IsWaveFile(std::string_view path) {
    return HasEnding(path, "wav");
}

bool IsVideoFile(std::string_view path) {
    constexpr std::string_view kEndings[] = {".mpeg", ".mpg", ".avi", ".mov", ".vob", ".ifo"};
    return std::any_of(std::begin(kEndings), std::end(kEndings),
                       [path](std::string_view ending) { return HasEnding(path, ending); });
}

} // namespace kestrova
