// SPDX-License-Identifier: GPL-3.0-or-later
#include "diary/NetUsers.h"

#include "platform/FileStore.h"
#include "text/Encoding.h"
#include "text/Lines.h"
#include "text/Numbers.h"

#include <algorithm>

namespace kestrova {

namespace {

constexpr std::string_view kDiaryFile = "Diarydat/Data.dat";

std::string WithSeparators(std::string text) {
    std::replace(text.begin(), text.end(), '\\', '/');
    return text;
}

// The line as a text that one line of a file can carry.
std::string LineText(std::string_view line) {
    return AsOneLine(AsUtf8(line));
}

std::string FolderOf(std::string_view line) {
    std::string folder = WithSeparators(LineText(line));
    if (!Trim(folder).empty() && folder.back() != '/') {
        folder += '/';
    }
    return folder;
}

} // namespace

std::optional<std::vector<NetUser>> ReadNetUsers(std::string_view bytes) {
    std::vector<NetUser> users;
    LineReader lines(bytes);
    bool first = true;
    while (const auto folder = lines.Next()) {
        const auto name = lines.Next();
        if (first && name != kMyDiary) {
            return std::nullopt;
        }
        first = false;
        NetUser user{FolderOf(*folder), LineText(name.value_or(""))};
        if (Trim(user.Folder).empty() || Trim(user.Name).empty()) {
            continue;
        }
        if (users.size() == kMostNetUsers) {
            return std::nullopt;
        }
        users.push_back(std::move(user));
    }
    return first ? std::nullopt : std::optional(std::move(users));
}

std::string WriteNetUsers(const std::vector<NetUser>& users) {
    std::string bytes;
    for (const NetUser& user : users) {
        bytes.append(AsOneLine(user.Folder)).append(kLineEnd);
        bytes.append(AsOneLine(user.Name)).append(kLineEnd);
    }
    // A reader passes over one mark at the front.
    return bytes.starts_with(kByteOrderMark) ? std::string(kByteOrderMark) + bytes : bytes;
}

std::optional<std::string> FolderOfDiaryFile(std::string_view path) {
    if (path.size() <= kDiaryFile.size() || AsOneLine(path) != path) {
        return std::nullopt;
    }
    const std::size_t length = path.size() - kDiaryFile.size();
    std::string folder = WithSeparators(std::string(path.substr(0, length)));
    const std::string file = WithSeparators(std::string(path.substr(length)));
    if (folder.back() != '/' || !IsSameName(file, kDiaryFile)) {
        return std::nullopt;
    }
    return folder;
}

} // namespace kestrova
