// SPDX-License-Identifier: GPL-3.0-or-later
#include "diary/EventEditor.h"

#include "diary/DayPage.h"
#include "diary/EditorScene.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace kestrova {
namespace {

using testing::ElementsAre;

TEST(EventEditorTest, TimeBoxesTakeTimes) {
    for (const char* const good : {"", "0", "5", "09", "23"}) {
        EXPECT_TRUE(IsTimeText(good, kMaxHour)) << good;
    }
    for (const char* const bad : {"24", "-1", "1a", " 1", "001", "+1", "1.5", "９"}) {
        EXPECT_FALSE(IsTimeText(bad, kMaxHour)) << bad;
    }
    EXPECT_TRUE(IsTimeText("59", kMaxMinute));
    EXPECT_FALSE(IsTimeText("60", kMaxMinute));
    EXPECT_EQ(PadTime(""), "00");
    EXPECT_EQ(PadTime("5"), "05");
    EXPECT_EQ(PadTime("23"), "23");
}

TEST(EventEditorTest, NewEventsAreSortedInAndSaved) {
    EditorScene page;
    EXPECT_EQ(page.Add("10", "ten"), AcceptResult::Accepted);
    EXPECT_EQ(page.Add("09", "nine"), AcceptResult::Accepted);
    EXPECT_EQ(page.Day(), "nine ten");
    EXPECT_EQ(page.Store.Table().At({kScratchSlot, kDay}), DiaryEvent{});
    EXPECT_EQ(page.Files.Content(page.NotePath({1, kDay})), "") << "its note, still empty";
}

TEST(EventEditorTest, AnEmptyMessageWritesNothing) {
    EditorScene page;
    const int writes = page.Files.Writes();
    EXPECT_EQ(page.Add("10", ""), AcceptResult::Accepted);
    EXPECT_EQ(page.Files.Writes(), writes);
}

TEST(EventEditorTest, EditsMoveTheEventAndItsNote) {
    EditorScene page;
    page.Add("08", "a");
    page.Add("10", "b");
    page.Files.Put(page.NotePath({1, kDay}), "note of a");
    EXPECT_EQ(page.Change(1, "12", "a later"), AcceptResult::Accepted);
    EXPECT_EQ(page.Day(), "b a later");
    EXPECT_EQ(page.Files.Content(page.NotePath({2, kDay})), "note of a");
}

TEST(EventEditorTest, AnEmptiedMessageDeletesAndUndoBringsItBack) {
    EditorScene page;
    page.Add("08", "a");
    page.Add("10", "b");
    page.Files.Put(page.NotePath({1, kDay}), "note of a");
    EXPECT_EQ(page.Change(1, "08", ""), AcceptResult::Accepted);
    EXPECT_EQ(page.Day(), "b");
    EXPECT_EQ(page.Files.Content(page.NotePath({1, kDay})), "");
    EXPECT_FALSE(page.Files.Content(page.NotePath({2, kDay})));
    ASSERT_TRUE(page.Editor.CanUndo());
    EXPECT_EQ(page.Editor.Undo(), AcceptResult::Accepted);
    EXPECT_EQ(page.Day(), "a b");
    EXPECT_EQ(page.Files.Content(page.NotePath({1, kDay})), "note of a");
    EXPECT_FALSE(page.Editor.CanUndo());
}

TEST(EventEditorTest, AllAlikeAreDeletedTogetherAndComeBackTogether) {
    EditorScene page;
    page.Add("08", "daily", "Daily");
    page.Add("09", "other");
    const DiaryTable before = page.OnFile();
    ASSERT_EQ(page.Editor.BeginEdit(1), AcceptResult::Accepted);
    EXPECT_EQ(page.Editor.DeleteAllAlike(), AcceptResult::Accepted);
    EXPECT_EQ(page.Day(), "other");
    const DiaryTable after = page.OnFile();
    EachStoredSlot([&](const SlotPlace& place) { EXPECT_NE(after.At(place).Msg, "daily"); });
    page.Editor.Undo();
    EXPECT_TRUE(page.OnFile() == before);
}

TEST(EventEditorTest, UndoBringsBackIntoTheDiaryThatItWasTakenFrom) {
    EditorScene page;
    page.Add("08", "mine");
    page.Change(1, "08", "");
    page.Files.Put(kBobsPath, WriteDiary(DiaryTable()));
    page.Store.GetData(kBobsFolder);
    EXPECT_FALSE(page.Editor.CanUndo());
    EXPECT_EQ(page.Editor.Undo(), AcceptResult::Refused);
    EXPECT_TRUE(page.OnFile(kBobsPath) == DiaryTable());
    page.Store.GetData(kFolder);
    // A note that somebody has left there is not this event's.
    (void)page.Files.Remove(page.NotePath({1, kDay}));
    page.Files.Put(page.NotePath({kScratchSlot, kDay}), "theirs");
    EXPECT_EQ(page.Editor.Undo(), AcceptResult::Accepted);
    EXPECT_EQ(page.Day(), "mine");
    EXPECT_EQ(page.Files.Content(page.NotePath({1, kDay})).value_or(""), "");
    EXPECT_EQ(page.Files.Content(page.FindPathWith("Notes left").value_or("")), "theirs");
}

TEST(EventEditorTest, AnEventWhoseNoteCannotBeReadIsNotDeleted) {
    for (const bool all : {false, true}) {
        SCOPED_TRACE(all);
        EditorScene page;
        page.Add("08", "a");
        page.Files.Put(page.NotePath({1, kDay}), "note of a");
        page.Files.FailReads(Error{ErrorCode::Failed, "Input/output error"},
                             page.NotePath({1, kDay}));
        EXPECT_EQ(page.Editor.BeginEdit(1), AcceptResult::Accepted);
        EventDraft draft;
        EXPECT_EQ(all ? page.Editor.DeleteAllAlike() : page.Editor.Accept(draft),
                  AcceptResult::Refused);
        EXPECT_EQ(page.Boxes.Shown.size(), 1U);
        page.Files.FailReads({});
        EXPECT_EQ(page.Day(), "a");
        EXPECT_EQ(page.Files.Content(page.NotePath({1, kDay})), "note of a");
        EXPECT_FALSE(page.Editor.CanUndo());
    }
}

TEST(EventEditorTest, RefusedRepeatsWriteNothing) {
    const struct {
        int Month, Day;
        const char* Rpt;
        const char* Message; // nullptr: accepted
    } rows[] = {
        {2, 28, "Monthly", nullptr},
        {2, 29, "Monthly", "Cannot Set Monthly Repeats For Dates Above The 28th"},
        {2, 29, "Last Saturday", nullptr},
        {1, 29, "Annually", "Cannot Repeat Leap Days Annually"},
        {2, 29, "Annually", nullptr},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(std::string(row.Rpt) + " " + std::to_string(row.Day));
        EditorScene page;
        page.Dates = {2028, 2028, row.Month, row.Day, 0, 1};
        const AcceptResult result = page.Add("09", "x", row.Rpt);
        const std::string day = Messages(page.OnFile(), {row.Day, row.Month, 0});
        if (row.Message == nullptr) {
            EXPECT_EQ(result, AcceptResult::Accepted);
            EXPECT_EQ(day, "x");
        } else {
            EXPECT_EQ(result, AcceptResult::Refused);
            EXPECT_EQ(page.Boxes.Shown.at(0).Text, row.Message);
            EXPECT_EQ(page.Boxes.Shown.at(0).Title, "Kestrova");
            EXPECT_EQ(day, "");
        }
    }
}

TEST(EventEditorTest, RemindersThatCannotBeGivenBecomeScreen) {
    const struct {
        const char* Rmd;
        const char* Message;
    } rows[] = {
        {"Speak", "Cannot Speak Message With Speech Disabled\n"
                  "Download Speech system from Downloads Page on Web site and\n"
                  "Enable Speech in Kestrova Settings Window."},
        {"Phone", "Cannot Make Phone Call With Modem Disabled\nEnable Modem in Kestrova Settings"},
        {"Media", "No WAV Sounds Available\n At The Moment"},
        {"Music", "The CD Player is Inactive\n At The Moment"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.Rmd);
        EditorScene page;
        EXPECT_EQ(page.Add("09", "x", "Never", row.Rmd), AcceptResult::Accepted);
        ASSERT_EQ(page.Boxes.Shown.size(), 1U);
        EXPECT_EQ(page.Boxes.Shown[0].Text, row.Message);
        EXPECT_EQ(page.Boxes.Shown[0].Title, "Kestrova Messenger");
        EXPECT_EQ(page.OnFile().At({1, kDay}).Rmd, "Screen");
    }
}

TEST(EventEditorTest, RemindersCollectTheirDetails) {
    EditorScene page;
    page.Settings.SpeechEnabled = 1;
    page.Settings.ModemDescription = "A modem";
    page.Details.ModemIs = ModemState::On;
    page.Details.Sound = true;
    page.Details.Cd = true;
    page.Boxes.Files = {"/music/bell.wav"};
    for (const char* const rmd : {"Speak", "Phone", "Media", "Music", "Email", "None"}) {
        EXPECT_EQ(page.Add("09", rmd, "Never", rmd), AcceptResult::Accepted);
    }
    EXPECT_TRUE(page.Boxes.Shown.empty());
    const DiaryTable table = page.OnFile();
    for (int slot = 1; slot <= 6; ++slot) {
        EXPECT_EQ(table.At({slot, kDay}).Rmd, table.At({slot, kDay}).Msg);
    }
    EXPECT_EQ(table.At({2, kDay}).Extra[1], "5551234");
    EXPECT_EQ(table.At({3, kDay}).Extra[1], "/music/bell.wav");
    EXPECT_THAT(page.Details.Previews, ElementsAre("/music/bell.wav"));
    EXPECT_EQ(table.At({4, kDay}).Extra, ReminderExtra())
        << "one event's details are not another's";
    EXPECT_EQ(table.At({5, kDay}).Extra[2], "bob@example.org");
}

TEST(EventEditorTest, AReminderWhoseDetailsCannotBeAskedForNowIsNotExchangedForAnother) {
    EditorScene page;
    page.Settings.ModemDescription = "A modem";
    page.Details.ModemIs = ModemState::On;
    EXPECT_EQ(page.Add("09", "x", "Never", "Phone"), AcceptResult::Accepted);
    page.Details.MailAnswer = DetailsAnswer::NotNow;
    EXPECT_EQ(page.Editor.BeginEdit(1), AcceptResult::Accepted);
    EventDraft draft{"10", "00", "y", "Never", "Email", false};
    EXPECT_EQ(page.Editor.Accept(draft), AcceptResult::Refused);
    EXPECT_EQ(draft.Rmd, "Email");
    EXPECT_EQ(page.OnFile().At({1, kDay}).Msg, "x");
    // Whoever takes the telephone after all finds its numbers.
    page.Details.Asked = {};
    draft.Rmd = "Phone";
    EXPECT_EQ(page.Editor.Accept(draft), AcceptResult::Accepted);
    EXPECT_EQ(page.Details.Asked[1], "5551234");
    page.Details.MailAnswer = DetailsAnswer::SwitchedOff;
    EXPECT_EQ(page.Add("11", "z", "Never", "Email"), AcceptResult::Accepted);
    EXPECT_EQ(page.OnFile().At({2, kDay}).Rmd, "Screen");
}

TEST(EventEditorTest, TheReminderListOffersWhatThereIs) {
    EditorScene page;
    EXPECT_THAT(page.Editor.BuildRmdList(),
                ElementsAre("Screen", "Speak", "Phone", "Email", "Media", "Music", "None"));
    page.Details.ModemIs = ModemState::NoModem;
    page.Details.Mail = false;
    EXPECT_THAT(page.Editor.BuildRmdList(),
                ElementsAre("Screen", "Speak", "Media", "Music", "None"));
}

TEST(EventEditorTest, AnEleventhEventIsRefusedBeforeAnythingIsWritten) {
    EditorScene page;
    for (int i = 0; i < kEventsPerDay; ++i) {
        page.Add("09", "x" + std::to_string(i));
    }
    EXPECT_EQ(page.Editor.BeginNew(), AcceptResult::Refused);
    EXPECT_EQ(page.Boxes.Shown.size(), 1U);

    // The day has filled up only after editing began.
    EditorScene late;
    ASSERT_EQ(late.Editor.BeginNew(), AcceptResult::Accepted);
    late.WriteFromOutside(kDay, std::vector<DiaryEvent>(kEventsPerDay, MakeEvent(9, 0, "x")));
    const auto before = late.Files.Content(kDataPath);
    EventDraft draft{"10", "00", "eleventh", "Never", "Screen", false};
    EXPECT_EQ(late.Editor.Accept(draft), AcceptResult::Refused);
    EXPECT_EQ(late.Boxes.Shown.size(), 1U);
    EXPECT_EQ(late.Files.Content(kDataPath), before);
}

TEST(EventEditorTest, AnEventThatAnotherProgramHasMovedIsFoundAgain) {
    EditorScene page;
    page.Add("09", "mine");
    ASSERT_EQ(page.Editor.BeginEdit(1), AcceptResult::Accepted);
    DiaryEvent used = MakeEvent(9, 0, "mine", "Never", "None"); // its reminder was given there
    page.WriteFromOutside(kDay, {MakeEvent(8, 0, "theirs"), used});
    EventDraft draft{"09", "30", "mine, later", "Never", "Screen", false};
    EXPECT_EQ(page.Editor.Accept(draft), AcceptResult::Accepted);
    EXPECT_EQ(page.Day(), "theirs mine, later");
}

TEST(EventEditorTest, AnEditOfAnEventThatIsGoneIsNotThrownAway) {
    EditorScene page;
    page.Add("09", "mine");
    ASSERT_EQ(page.Editor.BeginEdit(1), AcceptResult::Accepted);
    page.WriteFromOutside(kDay, {MakeEvent(8, 0, "theirs")});
    EventDraft draft{"09", "00", "mine, edited", "Never", "Screen", false};
    EXPECT_EQ(page.Editor.Accept(draft), AcceptResult::Accepted);
    EXPECT_EQ(page.Day(), "theirs mine, edited");
}

TEST(EventEditorTest, ABusyDiaryLeavesTheRowInTheEditor) {
    EditorScene page;
    page.Files.HoldLock(kDataPath);
    EXPECT_EQ(page.Add("09", "x"), AcceptResult::Refused);
    EXPECT_EQ(page.Boxes.Shown.at(0).Text, "Diary Busy");
    page.Files.ReleaseLock(kDataPath);
    EventDraft draft{"09", "00", "x", "Never", "Screen", false};
    EXPECT_EQ(page.Editor.Accept(draft), AcceptResult::Accepted);
    EXPECT_EQ(page.Day(), "x");
}

TEST(EventEditorTest, DailyEventsAreHiddenFromTheFirst) {
    EditorScene page;
    page.Add("09", "x", "Daily");
    EXPECT_EQ(page.OnFile().At({1, kDay}).Hide, 1);
    EXPECT_EQ(page.OnFile().At({1, 15, 4, 0}).Hide, 1);
    EXPECT_EQ(DayMark(page.OnFile(), kDay), std::nullopt);
}

TEST(DayPageTest, RowsHeadingAndMark) {
    DiaryTable table;
    table.At({1, kDay}) = MakeEvent(7, 3, "hidden", "Weekly", "None");
    table.At({1, kDay}).Hide = 1;
    table.At({2, kDay}) = MakeEvent(23, 45, "seen");
    const auto rows = DayRows(table, kDay);
    EXPECT_EQ(rows[0].Time, "07:03");
    EXPECT_EQ(rows[0].Repeat, "Weekly");
    EXPECT_EQ(rows[0].Reminder, "None");
    EXPECT_TRUE(rows[0].Hidden);
    EXPECT_EQ(rows[1].Time, "23:45");
    EXPECT_TRUE(rows[2].IsFree());
    EXPECT_EQ(rows[2].Time, "");
    EXPECT_EQ(DayMark(table, kDay), "seen");
    EXPECT_EQ(DayHeading(MsgDefaults(), {2003, 1, 9}), "Sunday  9    February    2003");
}

} // namespace
} // namespace kestrova
