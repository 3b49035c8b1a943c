// SPDX-License-Identifier: GPL-3.0-or-later
#include "diary/SharedDiaries.h"

#include "language/ProgramTexts.h"
#include "platform/KeepAside.h"
#include "text/Lines.h"
#include "text/Numbers.h"

#include <algorithm>

namespace kestrova {

namespace {

// What the last item of the list is called in English, in which the register is kept.
constexpr std::string_view kAddNetUser = "Add Net User";

} // namespace

Status SharedDiaries::CreateNetFile() {
    const NetUser own{rooms_.Probe.OwnFolder(), std::string(kMyDiary)};
    return rooms_.Files.Replace(Path(), WriteNetUsers({own}));
}

// The users of the register, the own diary first; nothing when it cannot be read, or not be
// mended: it is not to be written over then.
std::optional<std::vector<NetUser>> SharedDiaries::Read() {
    const auto bytes = rooms_.Files.Read(Path(), kNetUsersLimit);
    auto users = bytes ? ReadNetUsers(bytes.Value()) : std::nullopt;
    NetUser own{rooms_.Probe.OwnFolder(), std::string(kMyDiary)};
    if (users) {
        // The program folder may have been moved since.
        std::erase_if(*users, [](const NetUser& user) { return user.Name == kMyDiary; });
        users->insert(users->begin(), std::move(own));
        return users;
    }
    const ErrorCode code = bytes ? ErrorCode::Damaged : bytes.Failure().Code;
    const bool damaged = code == ErrorCode::Damaged || code == ErrorCode::TooLarge;
    if (!damaged && code != ErrorCode::NotFound) {
        return std::nullopt;
    }
    if (damaged && !MoveAside(rooms_.Files, rooms_.Time.Now(), Path(), kDamagedMark)) {
        return std::nullopt;
    }
    if (!CreateNetFile()) {
        return std::nullopt;
    }
    return std::vector<NetUser>{std::move(own)};
}

// For looking only: what is written is based on what the file holds.
std::vector<NetUser> SharedDiaries::Known() {
    if (auto users = Read()) {
        known_ = std::move(*users);
    }
    return known_;
}

RegisterResult SharedDiaries::Write(const std::vector<NetUser>& users) {
    const std::string bytes = WriteNetUsers(users);
    // What could not be read again would be taken for damage.
    if (users.size() > kMostNetUsers || bytes.size() > kNetUsersLimit) {
        return RegisterResult::NotSaved;
    }
    return rooms_.Files.Replace(Path(), bytes) ? RegisterResult::Done : RegisterResult::NotSaved;
}

std::vector<std::string> SharedDiaries::DoNetUsers() {
    std::vector<std::string> names{std::string(kMyDiary)};
    const std::vector<NetUser> users = Known();
    std::vector<std::string> folders(users.size());
    std::transform(users.begin(), users.end(), folders.begin(),
                   [](const NetUser& user) { return user.Folder; });
    const std::set<std::string> answering = rooms_.Probe.Answering(folders);
    for (const NetUser& user : users) {
        const bool listed = std::find(names.begin(), names.end(), user.Name) != names.end();
        if (!listed && answering.contains(user.Folder) && rooms_.Diaries.Stamp(user.Folder)) {
            names.push_back(user.Name);
        }
    }
    return names;
}

bool SharedDiaries::IsTaken(const std::vector<NetUser>& users, const std::string& name) const {
    return name == kMyDiary || name == kAddNetUser ||
           name == TextOf(rooms_.Texts, ProgramText::MyDiary) ||
           name == TextOf(rooms_.Texts, ProgramText::AddNetUser) ||
           std::any_of(users.begin(), users.end(),
                       [&](const NetUser& user) { return user.Name == name; });
}

bool SharedDiaries::IsDiary(const std::string& path) {
    const auto folder = FolderOfDiaryFile(path);
    return folder && rooms_.Probe.Answers(*folder) && rooms_.Diaries.Stamp(*folder);
}

RegisterResult SharedDiaries::Add(const std::string& path, const std::string& name) {
    const auto folder = FolderOfDiaryFile(path);
    if (!folder || !IsDiary(path)) {
        return RegisterResult::NoDiary;
    }
    auto users = Read();
    if (!users) {
        return RegisterResult::NotSaved;
    }
    const std::string line = AsOneLine(name);
    const std::string shown(Trim(line));
    if (shown.empty() || IsTaken(*users, shown)) {
        return RegisterResult::NameTaken;
    }
    users->push_back({*folder, shown});
    return Write(*users);
}

RegisterResult SharedDiaries::Remove(const std::string& name) {
    if (name == kMyDiary) {
        return RegisterResult::MyDiaryStays;
    }
    auto users = Read();
    if (!users) {
        return RegisterResult::NotSaved;
    }
    std::erase_if(*users, [&](const NetUser& user) { return user.Name == name; });
    return Write(*users);
}

std::optional<std::string> SharedDiaries::FolderOf(const std::string& name) {
    if (name == kMyDiary) {
        return rooms_.Probe.OwnFolder();
    }
    const std::vector<NetUser> users = Known();
    const auto user = std::find_if(users.begin(), users.end(),
                                   [&](const NetUser& one) { return one.Name == name; });
    return user == users.end() ? std::nullopt : std::optional(user->Folder);
}

} // namespace kestrova
