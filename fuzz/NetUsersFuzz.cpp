// SPDX-License-Identifier: GPL-3.0-or-later
// The register of users and the notes: what is read and written reads back equal.
#include "Expect.h"

#include "diary/EventNote.h"
#include "diary/NetUsers.h"
#include "text/Encoding.h"
#include "text/Lines.h"

#include <algorithm>

using kestrova::NetUser;
using kestrova::fuzz::Expect;

namespace {

void CheckUser(const NetUser& user) {
    Expect(kestrova::IsUtf8(user.Folder) && kestrova::IsUtf8(user.Name), "texts are UTF-8");
    Expect(user.Folder.ends_with('/') && !user.Name.empty(), "pairs are whole");
    Expect(user.Folder.find('\\') == std::string::npos, "one kind of separator");
}

void CheckRegister(std::string_view input) {
    const auto users = kestrova::ReadNetUsers(input);
    if (!users) {
        return;
    }
    std::for_each(users->begin(), users->end(), CheckUser);
    // One whose own pair had no folder gets it before it is written.
    if (!users->empty() && users->front().Name == kestrova::kMyDiary) {
        Expect(kestrova::ReadNetUsers(kestrova::WriteNetUsers(*users)) == users,
               "a register that was read is written for good");
    }
}

void CheckNote(std::string_view input) {
    const auto text = kestrova::NoteTextOf(input);
    if (text) {
        Expect(kestrova::IsUtf8(*text), "a note is UTF-8");
        const std::string bytes = kestrova::NoteBytes(*text);
        const bool marked = bytes.starts_with(kestrova::kByteOrderMark);
        Expect(marked || kestrova::NoteTextOf(bytes) == text, "a note is written for good");
    }
}

} // namespace

int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
    const std::string_view input = kestrova::fuzz::View(data, size);
    CheckRegister(input);
    CheckRegister("/me/\nMy Diary\n" + std::string(input));
    CheckNote(input);
    if (const auto folder = kestrova::FolderOfDiaryFile(input)) {
        Expect(folder->ends_with('/') && folder->size() + 17 == size, "a folder is cut off whole");
    }
    return 0;
}
