// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "diary/DiaryFiles.h"
#include "diary/FolderProbe.h"
#include "diary/NetUsers.h"
#include "language/StringTable.h"
#include "platform/Clock.h"

#include <optional>
#include <string>
#include <vector>

namespace kestrova {

enum class RegisterResult {
    Done,
    NoDiary,      // the file chosen is no diary
    NameTaken,    // there is a diary of this name, or the list uses the name itself
    MyDiaryStays, // the own diary is not removed
    NotSaved      // the register cannot be written
};

// The diaries that can be shown: the user's own, and those of the users in the register that lies
// in the program folder. It is read anew each time, for another program may write it.
class SharedDiaries {
public:
    struct Rooms {
        FileStore& Files;
        const Clock& Time;
        const DiaryFiles& Diaries;
        const StringTable& Texts;
        FolderProbe& Probe; // knows the program folder
    };

    explicit SharedDiaries(const Rooms& rooms) : rooms_(rooms) {}

    // The names of the diaries to offer: "My Diary" first, then every user whose diary is there and
    // whose folder answers. A register that is missing or damaged is written anew with the own
    // diary alone, the damaged file kept beside it. As long as it cannot be read, which may be a
    // matter of moments, it is taken for what it was when it last could.
    [[nodiscard]] std::vector<std::string> DoNetUsers();

    // Writes the register anew with only the own diary.
    Status CreateNetFile();

    // Registers the diary whose file the user has chosen.
    RegisterResult Add(const std::string& path, const std::string& name);

    // Takes a user off the register.
    RegisterResult Remove(const std::string& name);

    // The folder of a diary that is offered; nothing when the register does not have it.
    [[nodiscard]] std::optional<std::string> FolderOf(const std::string& name);

    // Whether the file is a user's diary that can be reached.
    [[nodiscard]] bool IsDiary(const std::string& path);

    // Where to begin looking for another user's diary.
    [[nodiscard]] std::string FirstFolder() const {
        return NoteFolder(rooms_.Files, rooms_.Probe.OwnFolder());
    }

private:
    [[nodiscard]] std::string Path() const { return rooms_.Probe.OwnFolder() + "NetUsers.txt"; }
    [[nodiscard]] bool IsTaken(const std::vector<NetUser>& users, const std::string& name) const;
    std::optional<std::vector<NetUser>> Read();
    [[nodiscard]] std::vector<NetUser> Known();
    RegisterResult Write(const std::vector<NetUser>& users);

    Rooms rooms_;
    std::vector<NetUser> known_; // as last read
};

} // namespace kestrova
