// SPDX-License-Identifier: GPL-3.0-or-later
#include "diary/DiaryStore.h"

#include "diary/DiaryScene.h"
#include "diary/Repeats.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace kestrova {
namespace {

constexpr DayPlace kDay{14, 4, 0};
constexpr const char* kJournalPath = "/home/me/DiaryDat/Saving.tmp";

TEST(DiaryStoreTest, AMissingDiaryIsMadeWithAMessage) {
    DiaryScene scene;
    (void)scene.Files.Remove(kDataPath);
    scene.Store.GetData(kFolder);
    ASSERT_EQ(scene.Boxes.Shown.size(), 1U);
    EXPECT_EQ(scene.Boxes.Shown[0].Title, "Kestrova Messenger");
    EXPECT_EQ(scene.Boxes.Shown[0].Text, "Your Diary Data Files Are Corrupt or Missing\n"
                                         " The Files Will Be  Re-Formatted ");
    EXPECT_EQ(scene.Boxes.Shown[0].Icon, DialogIcon::Critical);
    scene.Store.GetData(kFolder);
    EXPECT_EQ(scene.Boxes.Shown.size(), 1U) << "the new file loads without a message";
}

TEST(DiaryStoreTest, ADamagedDiaryIsKeptAside) {
    DiaryScene scene;
    scene.Files.Put(kDataPath, "no diary");
    scene.Store.GetData(kFolder);
    EXPECT_EQ(scene.Boxes.Shown.size(), 1U);
    const auto aside = scene.FindPathWith("Data damaged 2026-11-22 09.00.00");
    ASSERT_TRUE(aside);
    EXPECT_EQ(scene.Files.Content(*aside), "no diary");
    EXPECT_TRUE(scene.OnFile() == DiaryTable());
    EXPECT_EQ(scene.Store.Table().At({1, kDay}), DiaryEvent{});
}

TEST(DiaryStoreTest, ADiaryThatCannotBeKeptAsideIsNotReplaced) {
    DiaryScene scene;
    scene.Files.Put(kDataPath, "no diary");
    scene.Files.FailWrites(Error{ErrorCode::Full, "No space left on device"});
    scene.Store.GetData(kFolder);
    EXPECT_EQ(scene.Files.Content(kDataPath), "no diary");
    EXPECT_EQ(scene.Stops, 1) << "the user was asked and gave up";
}

TEST(DiaryStoreTest, ABusyDiaryIsLeftAlone) {
    DiaryScene scene;
    scene.Insert(kDay, MakeEvent(9, 0, "mine"));
    scene.Files.HoldLock(kDataPath);
    scene.Store.GetData(kFolder);
    EXPECT_EQ(scene.Insert(kDay, MakeEvent(10, 0, "later")), ChangeResult::NotSaved);
    ASSERT_EQ(scene.Boxes.Shown.size(), 2U);
    for (const Message& message : scene.Boxes.Shown) {
        EXPECT_EQ(message.Text, "Diary Busy");
        EXPECT_EQ(message.Title, "Kestrova");
    }
    EXPECT_EQ(Messages(scene.Store.Table(), kDay), "mine");
    scene.Files.ReleaseLock(kDataPath);
    EXPECT_EQ(scene.Insert(kDay, MakeEvent(10, 0, "later")), ChangeResult::Saved);
    EXPECT_EQ(Messages(scene.OnFile(), kDay), "mine later");
    EXPECT_EQ(scene.Files.LocksHeld(), 0);
}

TEST(DiaryStoreTest, NoPermissionIsBusyToo) {
    DiaryScene scene;
    scene.Files.FailWrites(Error{ErrorCode::Busy, "Permission denied"});
    EXPECT_EQ(scene.Insert(kDay, MakeEvent(9, 0, "x")), ChangeResult::NotSaved);
    EXPECT_EQ(scene.Boxes.Shown.at(0).Text, "Diary Busy");
    EXPECT_EQ(scene.Stops, 0);
}

TEST(DiaryStoreTest, AFullDiscEndsTheProgramUnlessTheUserTriesAgain) {
    DiaryScene scene;
    const auto before = scene.Files.Content(kDataPath);
    scene.Files.FailWrites(Error{ErrorCode::Full, "No space left on device"});
    EXPECT_EQ(scene.Insert(kDay, MakeEvent(9, 0, "x")), ChangeResult::NotSaved);
    EXPECT_EQ(scene.Boxes.Asked.at(0).Title, "Kestrova Messenger");
    EXPECT_EQ(scene.Boxes.Asked.at(0).Text, "No space left on device");
    EXPECT_EQ(scene.Stops, 1);
    EXPECT_EQ(scene.Files.Content(kDataPath), before);
    EXPECT_EQ(Messages(scene.Store.Table(), kDay), "") << "memory and file agree";

    scene.Boxes.Answers = {true};
    scene.Boxes.WhileOpen = [&] {
        EXPECT_EQ(scene.Files.LocksHeld(), 0) << "others can work while the user reads";
        scene.Files.FailWrites({});
    };
    EXPECT_EQ(scene.Insert(kDay, MakeEvent(9, 0, "x")), ChangeResult::Saved);
    EXPECT_EQ(scene.Stops, 1);
    EXPECT_EQ(Messages(scene.OnFile(), kDay), "x");
}

TEST(DiaryStoreTest, TwoPeopleKeepBothTheirEdits) {
    DiaryScene scene;
    scene.Insert(kDay, MakeEvent(9, 0, "mine"));
    scene.WriteFromOutside(kDay, {MakeEvent(8, 0, "theirs"), MakeEvent(9, 0, "mine")});
    EXPECT_EQ(scene.Insert(kDay, MakeEvent(10, 0, "mine too")), ChangeResult::Saved);
    EXPECT_EQ(Messages(scene.OnFile(), kDay), "theirs mine mine too");
    EXPECT_TRUE(scene.OnFile() == scene.Store.Table());
}

TEST(DiaryStoreTest, AnEditWaitsForTheOtherAndSeesWhatItWrote) {
    DiaryScene scene;
    scene.Files.BeforeLock = [&] {
        scene.Files.BeforeLock = {};
        scene.WriteFromOutside(kDay, {MakeEvent(8, 0, "just in time")});
    };
    scene.Insert(kDay, MakeEvent(9, 0, "mine"));
    EXPECT_EQ(Messages(scene.OnFile(), kDay), "just in time mine");
}

TEST(DiaryStoreTest, SavingOverADamagedFileKeepsBothTheFileAndTheMemory) {
    DiaryScene scene;
    scene.Insert(kDay, MakeEvent(9, 0, "in memory"));
    scene.Files.Put(kDataPath, "someone's accident");
    EXPECT_EQ(scene.Insert(kDay, MakeEvent(10, 0, "new")), ChangeResult::NotSaved)
        << "someone may be writing it just now";
    EXPECT_EQ(scene.Insert(kDay, MakeEvent(10, 0, "new")), ChangeResult::Saved);
    EXPECT_EQ(Messages(scene.OnFile(), kDay), "in memory new");
    const auto aside = scene.FindPathWith("damaged");
    ASSERT_TRUE(aside);
    EXPECT_EQ(scene.Files.Content(*aside), "someone's accident");
}

TEST(DiaryStoreTest, AnEditThatLeavesAllAsItIsWritesNothing) {
    DiaryScene scene;
    const int writes = scene.Files.Writes();
    const auto leave = [](EventList& events) {
        events.Table().At({1, kDay}).Msg = "never mind";
        return EditVerdict::Leave;
    };
    EXPECT_EQ(scene.Store.Change(leave), ChangeResult::Left);
    EXPECT_EQ(scene.Files.Writes(), writes);
    EXPECT_EQ(Messages(scene.Store.Table(), kDay), "");
}

TEST(DiaryStoreTest, AChangeFromOutsideIsNoticed) {
    DiaryScene scene;
    EXPECT_EQ(scene.Store.Refresh(), DiaryNews::Same);
    scene.Insert(kDay, MakeEvent(9, 0, "own"));
    EXPECT_EQ(scene.Store.Refresh(), DiaryNews::Same) << "own saves are no news";
    scene.WriteFromOutside(kDay, {MakeEvent(8, 0, "theirs")});
    EXPECT_EQ(scene.Store.Refresh(), DiaryNews::Reloaded);
    EXPECT_EQ(Messages(scene.Store.Table(), kDay), "theirs");
    EXPECT_EQ(scene.Store.Refresh(), DiaryNews::Same);
}

TEST(DiaryStoreTest, AFileThatIsBeingWrittenIsNotTakenForDamaged) {
    DiaryScene scene;
    scene.Insert(kDay, MakeEvent(9, 0, "kept"));
    const std::string whole = *scene.Files.Content(kDataPath);
    scene.Files.Put(kDataPath, whole.substr(0, 1000));
    EXPECT_EQ(scene.Store.Refresh(), DiaryNews::Same);
    scene.Files.Put(kDataPath, whole.substr(0, 2000)); // it grows
    EXPECT_EQ(scene.Store.Refresh(), DiaryNews::Same);
    EXPECT_TRUE(scene.Boxes.Shown.empty());
    EXPECT_EQ(Messages(scene.Store.Table(), kDay), "kept");
    scene.Boxes.WhileOpen = [&] {
        for (int look = 0; look < 3; ++look) {
            EXPECT_EQ(scene.Store.Refresh(), DiaryNews::Same) << "no box over the box";
        }
        EXPECT_FALSE(scene.Store.TryShow(kFolder));
    };
    EXPECT_EQ(scene.Store.Refresh(), DiaryNews::Reloaded) << "it grows no more: it is damaged";
    EXPECT_EQ(scene.Boxes.Shown.size(), 1U);
    EXPECT_TRUE(scene.FindPathWith("damaged"));
    const auto memory = scene.FindPathWith("before damage");
    ASSERT_TRUE(memory);
    EXPECT_EQ(scene.Files.Content(*memory), whole) << "what memory held is kept as well";
}

TEST(DiaryStoreTest, DamageThatCannotBePutRightIsToldOnce) {
    DiaryScene scene;
    scene.Insert(kDay, MakeEvent(9, 0, "kept"));
    const std::string whole = *scene.Files.Content(kDataPath);
    scene.Files.Put(kDataPath, "no diary");
    scene.Files.FailWrites(Error{ErrorCode::Busy, "Permission denied"});
    for (int look = 0; look < 10; ++look) {
        (void)scene.Store.Refresh();
    }
    EXPECT_EQ(scene.Boxes.Shown.size(), 2U) << "that it is damaged, and that it is busy";
    EXPECT_EQ(Messages(scene.Store.Table(), kDay), "kept");
    scene.Files.Put(kDataPath, whole);
    EXPECT_EQ(scene.Store.Refresh(), DiaryNews::Reloaded) << "it is looked at all the same";
}

TEST(DiaryStoreTest, TheNoteOfARepeatedEventIsWrittenDownOnce) {
    DiaryScene scene;
    DiaryFiles files(scene.Files, scene.Clock, 300'000);
    DiaryStore store(files, scene.Boxes, scene.Texts, scene.Probe, [&] { ++scene.Stops; });
    store.GetData(kFolder);
    const auto addDaily = [&](const char* msg, std::size_t notes) {
        return store.Change([&](EventList& events) {
            for (std::size_t i = 0; i < notes; ++i) {
                const SlotPlace scratch(kScratchSlot, {1 + static_cast<int>(i), 0, 0});
                events.Table().At(scratch) = MakeEvent(9, 0, msg, "Daily");
                events.Notes().Put(scratch, std::string(100'000, static_cast<char>('a' + i)));
                const auto slot = events.SortMsg(scratch.InDay());
                RepeatMsg(events, scene.Texts, 2026, {*slot, scratch.InDay()});
            }
            return EditVerdict::Save;
        });
    };
    EXPECT_EQ(addDaily("fits", 1), ChangeResult::Saved);
    EXPECT_EQ(scene.Files.Content(scene.NotePath({1, 31, 11, 1})), std::string(100'000, 'a'));
    EXPECT_FALSE(scene.Files.Content(kJournalPath));

    // What a later start could not read is not written.
    const int writes = scene.Files.Writes();
    EXPECT_EQ(addDaily("does not", 3), ChangeResult::NotSaved);
    EXPECT_EQ(scene.Files.Writes(), writes);
    ASSERT_EQ(scene.Boxes.Shown.size(), 1U);
    EXPECT_THAT(scene.Boxes.Shown[0].Text, testing::StartsWith("File too large\n"));
    EXPECT_TRUE(scene.Boxes.Asked.empty());
    EXPECT_EQ(Messages(scene.OnFile(), {1, 0, 0}), "fits");
}

TEST(DiaryStoreTest, ADiaryThatArrivesDuringTheMessageIsNotReplaced) {
    DiaryScene scene;
    DiaryTable theirs;
    theirs.At({1, kDay}) = MakeEvent(9, 0, "arrived");
    (void)scene.Files.Remove(kDataPath);
    scene.Boxes.WhileOpen = [&] { scene.Files.Put(kDataPath, WriteDiary(theirs)); };
    scene.Store.GetData(kFolder);
    EXPECT_EQ(Messages(scene.Store.Table(), kDay), "arrived");
    EXPECT_EQ(scene.Files.Content(kDataPath), WriteDiary(theirs));
}

TEST(DiaryStoreTest, ASaveThatCannotBeCompletedIsNotWrittenOver) {
    DiaryScene scene;
    scene.Insert(kDay, MakeEvent(9, 0, "a"));
    scene.Files.Put(scene.NotePath({1, kDay}), "note of a");
    scene.Files.CrashAfter(2); // the journal and the diary are written, the notes are not
    const auto insertBefore = [](EventList& events) {
        events.Table().At({kScratchSlot, kDay}) = MakeEvent(8, 0, "b");
        events.SortMsg(kDay);
        return EditVerdict::Save;
    };
    EXPECT_EQ(scene.Store.Change(insertBefore), ChangeResult::Saved);
    EXPECT_EQ(scene.Insert(kDay, MakeEvent(7, 0, "c")), ChangeResult::NotSaved);
    scene.Files.Recover();
    EXPECT_EQ(scene.Insert(kDay, MakeEvent(7, 0, "c")), ChangeResult::Saved);
    EXPECT_EQ(Messages(scene.OnFile(), kDay), "c b a");
    EXPECT_EQ(scene.Files.Content(scene.NotePath({3, kDay})), "note of a");
}

TEST(DiaryStoreTest, AnEmptyNoteThatIsCopiedLeavesNobodyElsesNoteThere) {
    DiaryScene scene;
    const DayPlace next{21, 4, 0};
    scene.Insert(kDay, MakeEvent(8, 0, "weekly", "Weekly"));
    scene.Insert(next, MakeEvent(10, 0, "other"));
    scene.Files.Put(scene.NotePath({1, kDay}), "");
    scene.Files.Put(scene.NotePath({1, next}), "note of other");
    (void)scene.Store.Change([&](EventList& events) {
        events.Table().At({kScratchSlot, next}) = events.Table().At({1, kDay});
        events.Notes().Copy({1, kDay}, {kScratchSlot, next});
        events.SortMsg(next);
        return EditVerdict::Save;
    });
    EXPECT_EQ(Messages(scene.OnFile(), next), "weekly other");
    EXPECT_EQ(scene.Files.Content(scene.NotePath({1, next})), std::nullopt);
    EXPECT_EQ(scene.Files.Content(scene.NotePath({2, next})), "note of other");
}

TEST(DiaryStoreTest, AFolderThatHasGoneIsNoDamage) {
    DiaryScene scene;
    (void)scene.Files.Remove(kDataPath);
    EXPECT_EQ(scene.Store.Refresh(), DiaryNews::FolderGone);
    EXPECT_TRUE(scene.Boxes.Shown.empty());
}

TEST(DiaryStoreTest, LinesThatNoRecordUsesAreKeptAside) {
    DiaryScene scene;
    const std::string longer = *scene.Files.Content(kDataPath) + "a precious line\r\n";
    scene.Files.Put(kDataPath, longer);
    scene.Store.GetData(kFolder);
    EXPECT_TRUE(scene.Boxes.Shown.empty());
    EXPECT_FALSE(scene.FindPathWith("with more lines")) << "looking at it leaves nothing behind";
    EXPECT_EQ(scene.Insert(kDay, MakeEvent(9, 0, "x")), ChangeResult::Saved);
    const auto aside = scene.FindPathWith("with more lines");
    ASSERT_TRUE(aside);
    EXPECT_EQ(scene.Files.Content(*aside), longer);
}

TEST(DiaryStoreTest, FormattingClearsEventsAndNotes) {
    DiaryScene scene;
    scene.Insert(kDay, MakeEvent(9, 0, "x"));
    scene.Files.Put(scene.NotePath({1, kDay}), "note\r\n");
    scene.Files.Put("/home/me/DiaryDat/letter.txt", "not a note");
    const auto before = scene.Files.Content(kDataPath);
    EXPECT_EQ(scene.Store.DataFormat(2026), ChangeResult::Saved);
    EXPECT_EQ(scene.Files.Content(scene.FindPathWith("Data before formatting").value_or("")),
              before);
    EXPECT_EQ(scene.Files.Content(scene.FindPathWith("Notes before formatting").value_or("")),
              "1 2026-05-14 09:00 x\r\nnote\r\n\r\n");
    EXPECT_TRUE(scene.OnFile() == DiaryTable());
    EXPECT_FALSE(scene.Files.Content(scene.NotePath({1, kDay})));
    EXPECT_TRUE(scene.Files.Content("/home/me/DiaryDat/letter.txt"));
}

// Crashes an operation at each of its writes in turn, and looks at what the next start finds.
template<typename Operation, typename Check>
void CrashEverywhere(Operation operation, Check check) {
    for (int at = 0; at < 20; ++at) {
        SCOPED_TRACE("crash before write " + std::to_string(at));
        DiaryScene scene;
        for (int slot = 1; slot <= 3; ++slot) {
            const std::string name = "event " + std::to_string(slot);
            scene.Insert(kDay, MakeEvent(slot, 0, name));
            scene.Files.Put(scene.NotePath({slot, kDay}), "note of " + name);
        }
        scene.Files.CrashAfter(at);
        operation(scene);
        scene.Files.Recover();
        DiaryStore restarted(scene.OnDisc, scene.Boxes, scene.Texts, scene.Probe, [] {});
        restarted.GetData(kFolder);
        check(scene, restarted);
        EXPECT_FALSE(scene.Files.Content(kJournalPath));
    }
}

TEST(DiaryStoreTest, ACrashNeverPartsAnEventFromItsNote) {
    bool oldSeen = false;
    bool newSeen = false;
    CrashEverywhere(
        [](DiaryScene& scene) {
            (void)scene.Store.Change([](EventList& events) {
                events.DeleteMsg({2, kDay});
                events.ReSortMsg(kDay);
                return EditVerdict::Save;
            });
        },
        [&](DiaryScene& scene, DiaryStore& restarted) {
            const std::string after = Messages(restarted.Table(), kDay);
            oldSeen = oldSeen || after == "event 1 event 2 event 3";
            newSeen = newSeen || after == "event 1 event 3";
            EXPECT_TRUE(after == "event 1 event 2 event 3" || after == "event 1 event 3") << after;
            for (int slot = 1; slot <= 4; ++slot) {
                const DiaryEvent& event = restarted.Table().At({slot, kDay});
                const auto note = scene.Files.Content(scene.NotePath({slot, kDay}));
                EXPECT_EQ(note.value_or(""), event.IsFree() ? "" : "note of " + event.Msg);
            }
        });
    EXPECT_TRUE(oldSeen);
    EXPECT_TRUE(newSeen);
}

TEST(DiaryStoreTest, ACrashedRollOverIsFoundOrNeverHappened) {
    bool oldSeen = false;
    bool newSeen = false;
    CrashEverywhere(
        [](DiaryScene& scene) {
            scene.Insert({14, 4, 1}, MakeEvent(5, 0, "next year"));
            (void)scene.Store.BringForward(kFolder, 2025, 2026, SaveMessages::Keep);
        },
        [&](DiaryScene& scene, DiaryStore& restarted) {
            const std::string after = Messages(restarted.Table(), kDay);
            const bool rolled = after == "next year" || after.empty();
            EXPECT_EQ(restarted.RolledTo(kFolder).has_value(), rolled);
            oldSeen = oldSeen || !rolled;
            newSeen = newSeen || rolled;
            if (rolled) {
                EXPECT_TRUE(scene.FindPathWith("Data before 2026")) << "the old year is kept";
                EXPECT_FALSE(scene.Files.Content(scene.NotePath({1, kDay})).has_value());
            }
        });
    EXPECT_TRUE(oldSeen);
    EXPECT_TRUE(newSeen);
}

TEST(DiaryStoreTest, OfSeveralProgramsOneRollsTheDiaryOver) {
    DiaryScene scene;
    scene.Insert({14, 4, 1}, MakeEvent(9, 0, "next year"));
    DiaryStore other(scene.OnDisc, scene.Boxes, scene.Texts, scene.Probe, [] {});
    other.GetData(kFolder);
    for (DiaryStore* const store : {&scene.Store, &other, &scene.Store}) {
        EXPECT_EQ(store->BringForward(kFolder, 2025, 2026, SaveMessages::Keep),
                  ChangeResult::Saved);
        EXPECT_EQ(Messages(store->Table(), kDay), "next year");
    }
    (void)other.Change([](EventList& events) {
        events.Table().At({kScratchSlot, kDay}) = MakeEvent(10, 0, "theirs");
        events.Notes().Put({kScratchSlot, kDay}, "their note");
        events.SortMsg(kDay);
        return EditVerdict::Save;
    });
    EXPECT_EQ(scene.Store.RolledTo(kFolder), 2026);
    EXPECT_EQ(scene.Store.BringForward(kFolder, 2025, 2026, SaveMessages::Keep),
              ChangeResult::Saved);
    EXPECT_EQ(Messages(scene.OnFile(), kDay), "next year theirs");
}

TEST(SaveJournalTest, ComesBackAndRefusesWhatIsNone) {
    SaveJournal journal;
    journal.DiaryDigest = 18446744073709551615U;
    journal.DiarySize = 12;
    journal.RolledTo = -2026;
    journal.Texts = {std::string("end\nNUL \0 and\r\nall", 19), ""};
    journal.Notes["BBAA.txt"] = 0;
    journal.Notes["b2aa.txt"] = std::nullopt;
    journal.Notes["CBAA.txt"] = 1;
    journal.Notes["DBAA.txt"] = 0;
    const std::string bytes = WriteJournal(journal);
    EXPECT_EQ(ReadJournal(bytes), journal);
    for (std::size_t length = 0; length < bytes.size(); ++length) {
        EXPECT_FALSE(ReadJournal(bytes.substr(0, length))) << length;
    }
    EXPECT_TRUE(ReadJournal("Kestrova save 2\ntext 1\nx\nnote BBAA.txt 0\nend\n"));
    EXPECT_FALSE(ReadJournal("Kestrova save 2\ngone ../../passwd\nend\n"));
    EXPECT_FALSE(ReadJournal("Kestrova save 2\ntext 99999999999\nx\nend\n"));
    EXPECT_FALSE(ReadJournal("Kestrova save 2\ntext 1\nx\nnote BBAA.txt 1\nend\n"));
}

} // namespace
} // namespace kestrova
