// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kestrova {

// "NetUsers.txt", the register of the users whose diaries can be shown: two lines for each, the
// folder of the diary with the separator at its end, and the name. The first user is the owner of
// the program folder, whose name is "My Diary" in every language.
struct NetUser {
    std::string Folder;
    std::string Name;

    bool operator==(const NetUser&) const = default;
};

inline constexpr std::string_view kMyDiary = "My Diary";

// What is far beyond any office is no register.
inline constexpr std::size_t kNetUsersLimit = std::size_t{1} << 20U; // bytes
inline constexpr std::size_t kMostNetUsers = 250;

// Backslashes in folders count as separators, and a separator that is missing at the end is added.
// A pair without a folder or a name is left out, and so is an odd last line. Nothing when the
// register is damaged: it does not begin with "My Diary", or has more users than there can be.
[[nodiscard]] std::optional<std::vector<NetUser>> ReadNetUsers(std::string_view bytes);

[[nodiscard]] std::string WriteNetUsers(const std::vector<NetUser>& users);

// The diary folder of a file that is "Diarydat/Data.dat", in any case, below it: its path without
// the last 17 characters. Nothing for any other file, and for a folder that no line can hold.
[[nodiscard]] std::optional<std::string> FolderOfDiaryFile(std::string_view path);

} // namespace kestrova
