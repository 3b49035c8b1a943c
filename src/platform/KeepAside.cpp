// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/KeepAside.h"

#include "text/Numbers.h"

namespace kestrova {

namespace {

constexpr int kMaxNames = 100;

std::string AsideName(const WallTime& now, const std::string& path, std::string_view mark,
                      int number) {
    // A dot at the beginning of the name, or in a folder's, parts no ending off.
    const std::size_t nameStart = path.rfind('/') + 1;
    const std::size_t lastDot = path.rfind('.');
    const bool hasEnding = lastDot != std::string::npos && lastDot > nameStart;
    const std::size_t dot = hasEnding ? lastDot : std::string::npos;
    std::string name = path.substr(0, dot);
    name.append(" ").append(mark);
    name += " " + std::to_string(now.Year) + "-" + TwoDigits(now.Month + 1) + "-" +
            TwoDigits(now.Day) + " " + TwoDigits(now.Hour) + "." + TwoDigits(now.Minute) + "." +
            TwoDigits(now.Second);
    if (number > 1) {
        name += " " + std::to_string(number);
    }
    return dot == std::string::npos ? name : name + path.substr(dot);
}

template<typename Keep>
Status KeepAside(const FileStore& files, const WallTime& now, const std::string& path,
                 std::string_view mark, Keep keep) {
    for (int number = 1; number <= kMaxNames; ++number) {
        const std::string name = AsideName(now, path, mark, number);
        if (!files.Stamp(name)) {
            return keep(name);
        }
    }
    return Error{ErrorCode::Failed, path};
}

} // namespace

Status MoveAside(FileStore& files, const WallTime& now, const std::string& path,
                 std::string_view mark) {
    return KeepAside(files, now, path, mark,
                     [&](const std::string& name) { return files.MoveToNew(path, name); });
}

Status CopyAside(FileStore& files, const WallTime& now, const std::string& path,
                 std::string_view mark) {
    return KeepAside(files, now, path, mark,
                     [&](const std::string& name) { return files.CopyToNew(path, name); });
}

Status WriteNewAside(FileStore& files, const WallTime& now, const std::string& path,
                     std::string_view mark, std::string_view bytes) {
    return KeepAside(files, now, path, mark,
                     [&](const std::string& name) { return files.Replace(name, bytes); });
}

} // namespace kestrova
