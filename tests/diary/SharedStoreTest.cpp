// SPDX-License-Identifier: GPL-3.0-or-later
// The diary of another user, shown and changed by this one.
#include "diary/DiaryStore.h"

#include "diary/DiaryScene.h"
#include "language/ProgramTexts.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace kestrova {
namespace {

constexpr DayPlace kDay{14, 4, 0};

// Bob's diary with one event is shown.
struct SharedScene : DiaryScene {
    SharedScene() {
        Insert(kDay, MakeEvent(8, 0, "mine"));
        Files.Put(kBobsPath, WriteDiary(DiaryTable()));
        WriteFromOutside(kDay, {MakeEvent(9, 0, "bob's")}, kBobsPath);
        Store.GetData(kBobsFolder);
        EXPECT_TRUE(Store.IsShared());
    }

    [[nodiscard]] std::string Shown() const { return Messages(Store.Table(), kDay); }
    const std::string OutOfReach = TextOf(Texts, ProgramText::DiaryOutOfReach);

    [[nodiscard]] std::string LastMessage() const {
        return Boxes.Shown.empty() ? "" : Boxes.Shown.back().Text;
    }
};

TEST(SharedStoreTest, ASharedDiaryIsShownAndWrittenInItsOwnFolder) {
    SharedScene scene;
    const auto own = scene.Files.Content(kDataPath);
    EXPECT_EQ(scene.Shown(), "bob's");
    EXPECT_EQ(scene.Insert(kDay, MakeEvent(10, 0, "for bob")), ChangeResult::Saved);
    EXPECT_EQ(Messages(scene.OnFile(kBobsPath), kDay), "bob's for bob");
    EXPECT_EQ(scene.Files.Content(kDataPath), own);
    scene.Store.GetData(kFolder);
    EXPECT_EQ(scene.Shown(), "mine");
    EXPECT_TRUE(scene.Boxes.Shown.empty());
}

TEST(SharedStoreTest, ADiaryOutOfReachIsNeitherChosenNorSavedAndEndsNothing) {
    const std::function<void(SharedScene&)> losses[] = {
        [](SharedScene& scene) { *scene.Network = false; },
        [](SharedScene& scene) { (void)scene.Files.Remove(kBobsPath); },
    };
    for (const auto& lose : losses) {
        SCOPED_TRACE(&lose - losses);
        SharedScene scene;
        lose(scene);
        const auto paths = scene.Files.Paths();
        EXPECT_EQ(scene.Insert(kDay, MakeEvent(10, 0, "x")), ChangeResult::NotSaved);
        EXPECT_EQ(scene.LastMessage(), scene.OutOfReach);
        EXPECT_EQ(scene.Boxes.Shown.back().Title, "Kestrova Messenger");
        EXPECT_EQ(scene.Boxes.Shown.back().Icon, DialogIcon::Critical);
        EXPECT_EQ(scene.Store.Refresh(), DiaryNews::FolderGone);
        EXPECT_EQ(scene.Shown(), "bob's") << "what is shown stays until something else is";

        scene.Store.GetData(kFolder);
        scene.Boxes.Shown.clear();
        scene.Store.GetData(kBobsFolder);
        EXPECT_EQ(scene.LastMessage(), scene.OutOfReach);
        EXPECT_EQ(scene.Store.Folder(), kFolder);
        EXPECT_EQ(scene.Shown(), "mine");
        EXPECT_EQ(scene.Files.Paths(), paths) << "nothing is made in another's folder";
        EXPECT_TRUE(scene.Boxes.Asked.empty());
        EXPECT_EQ(scene.Stops, 0);
    }
}

TEST(SharedStoreTest, ADiaryThatComesBackIsSavedIntoAgain) {
    SharedScene scene;
    *scene.Network = false;
    EXPECT_EQ(scene.Insert(kDay, MakeEvent(10, 0, "x")), ChangeResult::NotSaved);
    *scene.Network = true;
    EXPECT_EQ(scene.Store.Refresh(), DiaryNews::Same);
    EXPECT_EQ(scene.Insert(kDay, MakeEvent(10, 0, "x")), ChangeResult::Saved);
    EXPECT_EQ(Messages(scene.OnFile(kBobsPath), kDay), "bob's x");
}

TEST(SharedStoreTest, TroubleWithASharedDiaryIsToldAndEndsNothing) {
    const struct {
        ErrorCode Code;
        std::string Text;
    } rows[] = {{ErrorCode::Busy, "Diary Busy"},
                {ErrorCode::Full, "the words of the system"},
                {ErrorCode::Failed, SharedScene().OutOfReach}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.Text);
        SharedScene scene;
        scene.Files.FailWrites(Error{row.Code, "the words of the system"});
        EXPECT_EQ(scene.Insert(kDay, MakeEvent(10, 0, "x")), ChangeResult::NotSaved);
        EXPECT_EQ(scene.LastMessage(), row.Text);
        EXPECT_TRUE(scene.Boxes.Asked.empty());
        EXPECT_EQ(scene.Stops, 0);
    }
}

TEST(SharedStoreTest, ALockedDiaryIsBusyAndTheClockDoesNotWaitForIt) {
    SharedScene scene;
    scene.WriteFromOutside(kDay, {MakeEvent(9, 0, "new")}, kBobsPath);
    scene.Files.HoldLock(kBobsPath);
    EXPECT_EQ(scene.Store.Refresh(), DiaryNews::Same);
    EXPECT_EQ(scene.Files.Waited.count(), 0);
    scene.Files.Put("/net/bob/DiaryDat/Saving.tmp", "left behind");
    scene.Store.GetData(kBobsFolder);
    EXPECT_EQ(scene.LastMessage(), "Diary Busy");
    EXPECT_LE(scene.Files.Waited.count(), 350) << "two waits are no longer than one";
    EXPECT_EQ(scene.Shown(), "bob's");
    scene.Files.ReleaseLock(kBobsPath);
    EXPECT_EQ(scene.Store.Refresh(), DiaryNews::Reloaded);
    EXPECT_EQ(scene.Shown(), "new");
}

TEST(SharedStoreTest, ADamagedSharedDiaryIsKeptAsideAndFormatted) {
    SharedScene scene;
    scene.Store.GetData(kFolder);
    scene.Files.Put(kBobsPath, "no diary");
    scene.Store.GetData(kBobsFolder);
    EXPECT_EQ(scene.LastMessage(), "Your Diary Data Files Are Corrupt or Missing\n"
                                   " The Files Will Be  Re-Formatted ");
    EXPECT_TRUE(scene.FindPathWith("/net/bob/DiaryDat/Data damaged"));
    EXPECT_EQ(scene.Store.Folder(), kBobsFolder);
    EXPECT_EQ(scene.Shown(), "");
    EXPECT_EQ(Messages(scene.OnFile(), kDay), "mine");
}

TEST(SharedStoreTest, ADamagedSharedDiaryThatCannotBeFormattedIsNotShown) {
    SharedScene scene;
    scene.Store.GetData(kFolder);
    scene.Files.Put(kBobsPath, "no diary");
    scene.Boxes.WhileOpen = [&] { *scene.Network = false; };
    scene.Store.GetData(kBobsFolder);
    EXPECT_EQ(scene.LastMessage(), scene.OutOfReach);
    EXPECT_EQ(scene.Store.Folder(), kFolder);
    EXPECT_EQ(scene.Shown(), "mine");
    EXPECT_EQ(scene.Files.Content(kBobsPath), "no diary");
}

TEST(SharedStoreTest, AnOwnDiaryThatIsDamagedDoesNotGetTheEventsOfAnother) {
    SharedScene scene;
    scene.Files.Put(kDataPath, "no diary");
    scene.Files.HoldLock(kDataPath);
    scene.Boxes.WhileOpen = [&] { scene.Files.HoldLock(kDataPath); };
    scene.Files.ReleaseLock(kDataPath);
    scene.Store.GetData(kFolder);
    EXPECT_EQ(scene.LastMessage(), "Diary Busy") << "it was locked while the message was read";
    EXPECT_EQ(scene.Shown(), "");
}

TEST(SharedStoreTest, FilesAreFoundWhateverTheirCase) {
    DiaryScene scene;
    const char* const path = "/net/bob/DIARYDAT/DATA.DAT";
    scene.Files.Put(path, WriteDiary(DiaryTable()));
    scene.WriteFromOutside(kDay, {MakeEvent(9, 0, "first")}, path);
    scene.Files.Put("/net/bob/DIARYDAT/bOEA.txt", "note of first"); // slot 1
    scene.Files.Put("/net/bob/DIARYDAT/boea.TXT", "an older one of the same name");
    scene.Store.GetData(kBobsFolder);
    EXPECT_THAT(scene.Store.SlotsWithNotes(kDay), testing::ElementsAre(1));
    EXPECT_EQ(scene.Insert(kDay, MakeEvent(8, 0, "earlier")), ChangeResult::Saved);
    EXPECT_EQ(Messages(scene.OnFile(path), kDay), "earlier first");
    EXPECT_THAT(scene.Store.SlotsWithNotes(kDay), testing::ElementsAre(2));
    EXPECT_EQ(scene.Store.Note({2, kDay}).Value(), "note of first");
    for (const char* const name : {"bOEA.txt", "boea.TXT"}) {
        EXPECT_FALSE(scene.Files.Content(std::string("/net/bob/DIARYDAT/") + name)) << name;
    }
    EXPECT_FALSE(scene.FindPathWith("/net/bob/DiaryDat"));
}

TEST(SharedStoreTest, TheMarksOfTheClockDoNotReachAnothersFile) {
    SharedScene scene;
    scene.Store.Table().At({1, kDay}).Rmd = "None";
    EXPECT_EQ(scene.Insert(kDay, MakeEvent(10, 0, "for bob")), ChangeResult::Saved);
    EXPECT_EQ(Messages(scene.OnFile(kBobsPath), kDay), "bob's for bob");
    EXPECT_EQ(scene.OnFile(kBobsPath).At({1, kDay}).Rmd, "Screen");
}

TEST(SharedStoreTest, ASharedDiaryThatGetsDamagedIsLeftToItsOwner) {
    SharedScene scene;
    scene.Files.Put(kBobsPath, "no diary");
    const auto paths = scene.Files.Paths();
    EXPECT_EQ(scene.Store.Refresh(), DiaryNews::Same) << "someone may be writing it just now";
    for (int look = 0; look < 3; ++look) {
        EXPECT_EQ(scene.Store.Refresh(), DiaryNews::FolderGone);
        EXPECT_TRUE(scene.Store.IsSpoilt());
    }
    EXPECT_TRUE(scene.Boxes.Shown.empty());
    EXPECT_EQ(scene.Insert(kDay, MakeEvent(10, 0, "x")), ChangeResult::NotSaved);
    EXPECT_EQ(scene.LastMessage(), scene.OutOfReach);
    EXPECT_EQ(scene.Files.Content(kBobsPath), "no diary");
    EXPECT_EQ(scene.Files.Paths(), paths);
    EXPECT_TRUE(scene.Store.TryShow(kFolder));
    EXPECT_FALSE(scene.Store.IsSpoilt());
    EXPECT_EQ(scene.Shown(), "mine");
}

TEST(SharedStoreTest, ADiaryOfAnotherYearIsNotShown) {
    const struct {
        const char* Year; // nullptr: it does not say
        bool Shown;
    } rows[] = {{nullptr, true}, {"2026\r\n", true}, {"2027\r\n", false}, {"2025\r\n", false}};
    for (const auto& row : rows) {
        SCOPED_TRACE(&row - rows);
        SharedScene scene;
        scene.Store.GetData(kFolder);
        if (row.Year != nullptr) {
            scene.Files.Put("/net/bob/DiaryDat/Year.dat", row.Year);
        }
        scene.Store.GetData(kBobsFolder, 2026);
        EXPECT_EQ(scene.Shown(), row.Shown ? "bob's" : "mine");
        EXPECT_EQ(scene.LastMessage(), row.Shown ? ""
                                                 : TextOf(scene.Texts, ProgramText::OtherYear,
                                                          std::string(row.Year).substr(0, 4)));
    }
}

} // namespace
} // namespace kestrova
