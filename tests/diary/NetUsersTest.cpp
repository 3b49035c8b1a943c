// SPDX-License-Identifier: GPL-3.0-or-later
#include "diary/NetUsers.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace kestrova {
namespace {

using testing::ElementsAre;
using testing::Optional;

TEST(NetUsersTest, PairsAreReadWhateverTheirLineEndsAndSeparators) {
    EXPECT_THAT(
        ReadNetUsers("/home/me/\r\nMy Diary\r\n"
                     "\\\\server\\bob\\\r\nBob\r\n"
                     "/net/caf\xE9\nC\xC3\xA9line\n"
                     "\nno folder\n"
                     "/no/name/\n  \n"
                     "/odd/\n"),
        Optional(ElementsAre(NetUser{"/home/me/", "My Diary"}, NetUser{"//server/bob/", "Bob"},
                             NetUser{"/net/caf\xC3\xA9/", "C\xC3\xA9line"})));
}

TEST(NetUsersTest, WhatDoesNotBeginWithTheOwnDiaryIsDamaged) {
    std::string many = "/me/\nMy Diary\n";
    for (std::size_t i = 0; i < kMostNetUsers; ++i) {
        many += "/a/\nb\n";
    }
    for (const std::string& bytes :
         {std::string(), std::string("/home/me/"), std::string("/net/bob/\nBob\n/me/\nMy Diary\n"),
          std::string("/home/me/\nmy diary\n"), std::string("\0\0\0\0", 4), many}) {
        EXPECT_EQ(ReadNetUsers(bytes), std::nullopt) << bytes.substr(0, 30);
    }
}

TEST(NetUsersTest, WhatIsWrittenReadsBack) {
    const std::vector<NetUser> users{{"/home/me/", "My Diary"}, {"/net/bob/", "Bob, \"B\""}};
    EXPECT_EQ(WriteNetUsers(users), "/home/me/\r\nMy Diary\r\n/net/bob/\r\nBob, \"B\"\r\n");
    EXPECT_EQ(ReadNetUsers(WriteNetUsers(users)), users);
    EXPECT_EQ(WriteNetUsers({{"/a\n/", "My\rDiary"}}), "/a /\r\nMy Diary\r\n");
}

TEST(NetUsersTest, TheFolderIsThePathWithoutItsLastSeventeenCharacters) {
    const struct {
        const char* Path;
        const char* Folder; // nullptr: no diary's file
    } rows[] = {
        {"/net/bob/Diarydat/Data.dat", "/net/bob/"},
        {"/net/bob/DIARYDAT/data.DAT", "/net/bob/"},
        {"\\\\net\\bob\\Diarydat\\Data.dat", "//net/bob/"},
        {"/Diarydat/Data.dat", "/"},
        {"Diarydat/Data.dat", nullptr},
        {"/net/bob/MyDiarydat/Data.dat", nullptr},
        {"/net/bob/Diarydat/Year.dat", nullptr},
        {"/net/bob/Diarydat/Data.txt", nullptr},
        {"/net/bob/DiarydatxData.dat", nullptr},
        {"/net/b\nob/Diarydat/Data.dat", nullptr},
        {"", nullptr},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.Path);
        const auto folder = FolderOfDiaryFile(row.Path);
        EXPECT_EQ(folder,
                  row.Folder != nullptr ? std::optional<std::string>(row.Folder) : std::nullopt);
    }
}

} // namespace
} // namespace kestrova
