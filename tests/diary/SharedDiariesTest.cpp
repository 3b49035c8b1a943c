// SPDX-License-Identifier: GPL-3.0-or-later
#include "diary/SharedDiaries.h"

#include "diary/DiaryScene.h"
#include "language/ProgramTexts.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace kestrova {
namespace {

using testing::ElementsAre;

constexpr const char* kRegister = "/home/me/NetUsers.txt";
constexpr const char* kOwnPair = "/home/me/\r\nMy Diary\r\n";
constexpr const char* kBobsPair = "/net/bob/\r\nBob\r\n";

struct RegisterScene : DiaryScene {
    SharedDiaries Shared{{Files, Clock, OnDisc, Texts, Probe}};

    RegisterScene() { Files.Put(kBobsPath, WriteDiary(DiaryTable())); }
};

TEST(SharedDiariesTest, AFreshInstallationGetsARegisterOfItsOwnDiary) {
    RegisterScene scene;
    EXPECT_THAT(scene.Shared.DoNetUsers(), ElementsAre("My Diary"));
    EXPECT_EQ(scene.Files.Content(kRegister), kOwnPair);
}

TEST(SharedDiariesTest, UsersAreAddedOfferedAndRemoved) {
    RegisterScene scene;
    EXPECT_EQ(scene.Shared.Add(kBobsPath, " Bob "), RegisterResult::Done);
    EXPECT_EQ(scene.Files.Content(kRegister), std::string(kOwnPair) + kBobsPair);
    EXPECT_THAT(scene.Shared.DoNetUsers(), ElementsAre("My Diary", "Bob"));
    EXPECT_EQ(scene.Shared.FolderOf("Bob"), kBobsFolder);
    EXPECT_EQ(scene.Shared.FolderOf("My Diary"), kFolder);
    EXPECT_EQ(scene.Shared.FolderOf("Ann"), std::nullopt);

    EXPECT_EQ(scene.Shared.Remove("My Diary"), RegisterResult::MyDiaryStays);
    EXPECT_EQ(scene.Shared.Remove("Bob"), RegisterResult::Done);
    EXPECT_THAT(scene.Shared.DoNetUsers(), ElementsAre("My Diary"));
    EXPECT_EQ(scene.Files.Content(kRegister), kOwnPair);
}

TEST(SharedDiariesTest, OnlyDiariesThatAreThereAreOfferedButAllStayRegistered) {
    RegisterScene scene;
    const std::string bytes =
        std::string(kOwnPair) + "/net/ann/\r\nAnn\r\n" + kBobsPair + "/net/bob/\r\nBob\r\n";
    scene.Files.Put(kRegister, bytes);
    EXPECT_THAT(scene.Shared.DoNetUsers(), ElementsAre("My Diary", "Bob"));
    *scene.Network = false;
    EXPECT_THAT(scene.Shared.DoNetUsers(), ElementsAre("My Diary"));
    *scene.Network = true;
    scene.Files.Put("/net/ann/DIARYDAT/DATA.DAT", "whatever");
    EXPECT_THAT(scene.Shared.DoNetUsers(), ElementsAre("My Diary", "Ann", "Bob"));
    EXPECT_EQ(scene.Files.Content(kRegister), bytes);
}

TEST(SharedDiariesTest, NamesAndFilesThatWillNotDoAreRefused) {
    RegisterScene scene;
    ASSERT_EQ(scene.Shared.Add(kBobsPath, "Bob"), RegisterResult::Done);
    scene.Texts.ProgramLanguage = 2;
    const std::string bytes = *scene.Files.Content(kRegister);
    for (const std::string& name :
         {std::string("Bob"), std::string("My Diary"), std::string("Add Net User"),
          TextOf(scene.Texts, ProgramText::MyDiary), TextOf(scene.Texts, ProgramText::AddNetUser),
          std::string(" ")}) {
        EXPECT_EQ(scene.Shared.Add(kBobsPath, name), RegisterResult::NameTaken) << name;
    }
    for (const char* const path : {"/net/ann/DiaryDat/Data.dat", "/net/bob/Data.dat"}) {
        EXPECT_EQ(scene.Shared.Add(path, "Ann"), RegisterResult::NoDiary) << path;
    }
    *scene.Network = false;
    EXPECT_EQ(scene.Shared.Add(kBobsPath, "Ann"), RegisterResult::NoDiary);
    EXPECT_EQ(scene.Files.Content(kRegister), bytes);
}

TEST(SharedDiariesTest, ADamagedRegisterIsKeptAsideAndBeginsAnew) {
    RegisterScene scene;
    const std::string damaged = std::string(kBobsPair) + kOwnPair;
    scene.Files.Put(kRegister, damaged);
    EXPECT_THAT(scene.Shared.DoNetUsers(), ElementsAre("My Diary"));
    EXPECT_EQ(scene.Files.Content(kRegister), kOwnPair);
    const auto aside = scene.FindPathWith("NetUsers damaged");
    ASSERT_TRUE(aside);
    EXPECT_EQ(scene.Files.Content(*aside), damaged);
}

TEST(SharedDiariesTest, ARegisterThatCannotBeReadOrWrittenIsNotReplaced) {
    RegisterScene scene;
    ASSERT_EQ(scene.Shared.Add(kBobsPath, "Bob"), RegisterResult::Done);
    const auto bytes = scene.Files.Content(kRegister);
    EXPECT_THAT(scene.Shared.DoNetUsers(), ElementsAre("My Diary", "Bob"));
    scene.Files.FailReads(Error{ErrorCode::Busy, "Permission denied"});
    EXPECT_THAT(scene.Shared.DoNetUsers(), ElementsAre("My Diary", "Bob")) << "as it was";
    EXPECT_EQ(scene.Shared.FolderOf("Bob"), kBobsFolder);
    SharedDiaries fresh({scene.Files, scene.Clock, scene.OnDisc, scene.Texts, scene.Probe});
    EXPECT_THAT(fresh.DoNetUsers(), ElementsAre("My Diary"));
    EXPECT_EQ(scene.Shared.Remove("Bob"), RegisterResult::NotSaved);
    scene.Files.FailReads({});
    scene.Files.FailWrites(Error{ErrorCode::Full, "No space left on device"});
    EXPECT_EQ(scene.Shared.Add(kBobsPath, "Robert"), RegisterResult::NotSaved);
    EXPECT_EQ(scene.Files.Content(kRegister), bytes);
    scene.Files.Put(kRegister, "damaged, and there is no room to keep it aside");
    EXPECT_THAT(scene.Shared.DoNetUsers(), ElementsAre("My Diary", "Bob"));
    EXPECT_EQ(scene.Files.Content(kRegister), "damaged, and there is no room to keep it aside");
}

TEST(SharedDiariesTest, AMovedProgramFolderIsWrittenWithTheNextChange) {
    RegisterScene scene;
    scene.Files.Put(kRegister, "/old/home/\r\nMy Diary\r\n");
    EXPECT_EQ(scene.Shared.Add(kBobsPath, "Bob"), RegisterResult::Done);
    EXPECT_EQ(scene.Files.Content(kRegister), std::string(kOwnPair) + kBobsPair);
}

} // namespace
} // namespace kestrova
