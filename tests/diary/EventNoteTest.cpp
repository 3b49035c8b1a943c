// SPDX-License-Identifier: GPL-3.0-or-later
#include "diary/EventNote.h"

#include "diary/EditorScene.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace kestrova {
namespace {

const SlotPlace kScratch{kScratchSlot, kDay};

// An editor window without a window.
struct NoteScene : EditorScene {
    std::string Shown;

    bool Open() {
        return Editor.Note().Open([this](const std::string& text) {
            Shown = text;
            return true;
        });
    }

    bool Type(const std::string& text) { return Editor.Note().Save(text, SaveMessages::Show); }

    AcceptResult Accept(const std::string& hour, const std::string& msg) {
        EventDraft draft{hour, "00", msg, "Never", "Screen", false};
        return Editor.Accept(draft);
    }

    [[nodiscard]] std::optional<std::string> NoteAt(int slot) const {
        return Files.Content(NotePath({slot, kDay}));
    }

    [[nodiscard]] std::string LastMessage() const {
        return Boxes.Shown.empty() ? "" : Boxes.Shown.back().Text;
    }
};

TEST(EventNoteTest, ATextReadsBackAsItWasWritten) {
    const struct {
        const char* Text;
        const char* Bytes;
    } rows[] = {
        {"", ""},
        {"one", "one\r\n"},
        {"one\ntwo", "one\r\ntwo\r\n"},
        {"\none\n\n\n", "\r\none\r\n\r\n\r\n\r\n"},
        {"\n", "\r\n\r\n"},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(NoteBytes(row.Text), row.Bytes);
        EXPECT_EQ(NoteTextOf(row.Bytes), row.Text);
    }
    EXPECT_EQ(NoteTextOf("no end"), "no end");
    EXPECT_EQ(NoteTextOf("a\nb\n"), "a\nb");
    EXPECT_EQ(NoteTextOf("Caf\xE9\r\nCaf\xC3\xA9\r\n"), "Caf\xC3\xA9\nCaf\xC3\xA9");
    for (const std::string& bytes : {std::string("a\0b", 3), std::string("a\rb"),
                                     std::string("a\r\r\nb"), std::string("\0", 1)}) {
        EXPECT_EQ(NoteTextOf(bytes), std::nullopt);
    }
}

TEST(EventNoteTest, TheNoteOfANewEventEndsUpWithIt) {
    NoteScene scene;
    scene.Add("08", "early");
    scene.Add("12", "late");
    ASSERT_EQ(scene.Editor.BeginNew(), AcceptResult::Accepted);
    ASSERT_TRUE(scene.Open());
    EXPECT_EQ(scene.Shown, "");
    EXPECT_EQ(scene.NoteAt(kScratchSlot), "") << "an empty note is left behind";
    EXPECT_TRUE(scene.Type("two\nlines"));
    EXPECT_EQ(scene.NoteAt(kScratchSlot), "two\r\nlines\r\n");
    // Another program has a new event on the same day and uses the same file.
    scene.Files.Put(scene.NotePath(kScratch), "theirs");
    EXPECT_EQ(scene.Accept("10", "new"), AcceptResult::Accepted);
    EXPECT_EQ(scene.Day(), "early new late");
    EXPECT_EQ(scene.NoteAt(2), "two\r\nlines\r\n");
    EXPECT_FALSE(scene.NoteAt(kScratchSlot));
}

TEST(EventNoteTest, ANoteThatACrashHasLeftIsOfferedOrKept) {
    for (const bool opened : {true, false}) {
        SCOPED_TRACE(opened);
        NoteScene scene;
        scene.Files.Put(scene.NotePath(kScratch), "left\nbehind");
        ASSERT_EQ(scene.Editor.BeginNew(), AcceptResult::Accepted);
        if (opened) {
            ASSERT_TRUE(scene.Open());
            EXPECT_EQ(scene.Shown, "left\nbehind");
            EXPECT_TRUE(scene.Editor.Note().HasText());
        }
        EXPECT_EQ(scene.Accept("10", "new"), AcceptResult::Accepted);
        EXPECT_EQ(scene.NoteAt(1), opened ? "left\nbehind" : "") << "not a byte is changed";
        EXPECT_EQ(scene.Files.Content(scene.FindPathWith("Notes left 2026").value_or("")),
                  opened ? std::nullopt : std::optional<std::string>("left\nbehind"));
        EXPECT_FALSE(scene.NoteAt(kScratchSlot));
    }
}

TEST(EventNoteTest, OfTwoEqualEventsTheOneThatWasChosenIsEdited) {
    const struct {
        const char* Hour;
        const char* Msg;
        const char* Notes[2]; // of slots 1 and 2 afterwards
    } rows[] = {{"08", "twin", {"second", "first"}},
                {"10", "twin", {"first", "second"}},
                {"09", "", {"first", ""}}};
    for (const auto& row : rows) {
        SCOPED_TRACE(&row - rows);
        NoteScene scene;
        scene.Add("09", "twin");
        scene.Add("09", "twin");
        scene.Files.Put(scene.NotePath({1, kDay}), "first");
        scene.Files.Put(scene.NotePath({2, kDay}), "second");
        ASSERT_EQ(scene.Editor.BeginEdit(2), AcceptResult::Accepted);
        ASSERT_TRUE(scene.Open());
        EXPECT_EQ(scene.Shown, "second");
        EXPECT_EQ(scene.Accept(row.Hour, row.Msg), AcceptResult::Accepted);
        EXPECT_EQ(scene.NoteAt(1), row.Notes[0]);
        EXPECT_EQ(scene.NoteAt(2).value_or(""), row.Notes[1]);
    }
}

TEST(EventNoteTest, GivingUpANewEventRemovesTheNoteThatWasOpened) {
    NoteScene scene;
    scene.Files.Put(scene.NotePath(kScratch), "left behind");
    ASSERT_EQ(scene.Editor.BeginNew(), AcceptResult::Accepted);
    scene.Editor.Note().GiveUp();
    EXPECT_EQ(scene.NoteAt(kScratchSlot), "left behind") << "it was never looked at";
    ASSERT_TRUE(scene.Open());
    scene.Editor.Note().GiveUp();
    EXPECT_FALSE(scene.NoteAt(kScratchSlot));
}

TEST(EventNoteTest, ANoteFollowsTheEventThatAnotherProgramHasMoved) {
    NoteScene scene;
    scene.Add("09", "mine");
    ASSERT_EQ(scene.Editor.BeginEdit(1), AcceptResult::Accepted);
    scene.WriteFromOutside(kDay, {MakeEvent(8, 0, "theirs"), MakeEvent(9, 0, "mine")});
    scene.Files.Put(scene.NotePath({1, kDay}), "note of theirs");
    scene.Files.Put(scene.NotePath({2, kDay}), "note of mine\r\n");
    ASSERT_TRUE(scene.Open());
    EXPECT_EQ(scene.Shown, "note of mine");
    const auto diary = scene.Files.Content(kDataPath);
    const auto stamp = scene.Files.Stamp(kDataPath);
    EXPECT_TRUE(scene.Type("changed"));
    EXPECT_EQ(scene.NoteAt(1), "note of theirs");
    EXPECT_EQ(scene.NoteAt(2), "changed\r\n");
    EXPECT_EQ(scene.Files.Stamp(kDataPath), stamp) << "the diary itself is not written";
    EXPECT_EQ(scene.Store.Refresh(), DiaryNews::Reloaded) << "the other's change is still news";
    EXPECT_TRUE(scene.Type("changed again"));
    EXPECT_EQ(scene.Store.Refresh(), DiaryNews::Same) << "a note is none";
}

TEST(EventNoteTest, ANoteWhoseEventIsGoneIsToldAndKeptWithTheEdit) {
    NoteScene scene;
    scene.Add("09", "mine");
    ASSERT_EQ(scene.Editor.BeginEdit(1), AcceptResult::Accepted);
    ASSERT_TRUE(scene.Open());
    scene.WriteFromOutside(kDay, {MakeEvent(8, 0, "theirs")});
    EXPECT_FALSE(scene.Type("typed"));
    EXPECT_EQ(scene.LastMessage(), TextOf(scene.Texts, ProgramText::NoteWithoutEvent));
    EXPECT_FALSE(scene.Type("typed"));
    EXPECT_EQ(scene.Boxes.Shown.size(), 1U) << "told once for the same text";
    EXPECT_EQ(scene.Accept("09", "mine, edited"), AcceptResult::Accepted);
    EXPECT_EQ(scene.NoteAt(2), "typed\r\n");
}

TEST(EventNoteTest, WhatCannotBeSavedIsToldAndSavedWithTheEvent) {
    const struct {
        Error Failure;
        const char* Title;
        const char* Text;
    } rows[] = {
        {{ErrorCode::Full, "No space"}, "Kestrova Messenger", "A File Handling Error Occured"},
        {{ErrorCode::Busy, "Permission denied"}, "Kestrova", "Diary Busy"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.Text);
        NoteScene scene;
        scene.Add("09", "mine");
        ASSERT_EQ(scene.Editor.BeginEdit(1), AcceptResult::Accepted);
        ASSERT_TRUE(scene.Open());
        scene.Files.FailWrites(row.Failure);
        EXPECT_FALSE(scene.Type("typed"));
        EXPECT_EQ(scene.LastMessage(), row.Text);
        EXPECT_EQ(scene.Boxes.Shown.back().Title, row.Title);
        EXPECT_EQ(scene.Boxes.Shown.back().Icon, DialogIcon::Critical);
        EXPECT_EQ(scene.NoteAt(1), "");
        scene.Files.FailWrites({});
        EXPECT_EQ(scene.Accept("08", "mine"), AcceptResult::Accepted);
        EXPECT_EQ(scene.NoteAt(1), "typed\r\n");
    }
}

TEST(EventNoteTest, ATextThatCannotBeSavedIsLeftOnlyWhenTheUserLetsItGo) {
    NoteScene scene;
    scene.Add("09", "mine");
    ASSERT_EQ(scene.Editor.BeginEdit(1), AcceptResult::Accepted);
    ASSERT_TRUE(scene.Open());
    scene.Files.FailWrites(Error{ErrorCode::Full, "No space"});
    EXPECT_FALSE(scene.Editor.Note().Leave("typed"));
    EXPECT_TRUE(scene.Boxes.Asked.empty()) << "at first it is only told";
    scene.Boxes.Answers = {false, true};
    EXPECT_FALSE(scene.Editor.Note().Leave("typed"));
    EXPECT_TRUE(scene.Editor.Note().Leave("typed"));
    EXPECT_EQ(scene.Boxes.Asked.size(), 2U);
    EXPECT_FALSE(scene.Editor.Note().IsUnsaved());
}

TEST(EventNoteTest, WhatIsNoNoteIsLeftUntouched) {
    const struct {
        std::string Bytes;
        ProgramText Message;
    } rows[] = {
        {std::string("a\0b", 3), ProgramText::NoteIsNoText},
        {std::string(kEditedNoteLimit + 1, 'x'), ProgramText::NoteTooLarge},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.Bytes.size());
        NoteScene scene;
        scene.Add("09", "mine");
        scene.Files.Put(scene.NotePath({1, kDay}), row.Bytes);
        ASSERT_EQ(scene.Editor.BeginEdit(1), AcceptResult::Accepted);
        EXPECT_FALSE(scene.Open());
        EXPECT_EQ(scene.LastMessage(), TextOf(scene.Texts, row.Message));
        EXPECT_EQ(scene.Accept("07", "mine"), AcceptResult::Accepted);
        EXPECT_EQ(scene.NoteAt(1), row.Bytes);
    }
}

TEST(EventNoteTest, ErrorsWhileOpeningEndItQuietly) {
    NoteScene scene;
    scene.Add("09", "mine");
    ASSERT_EQ(scene.Editor.BeginEdit(1), AcceptResult::Accepted);
    scene.Files.FailReads(Error{ErrorCode::Failed, "Input/output error"});
    EXPECT_FALSE(scene.Open());
    scene.Files.FailReads({});
    scene.Files.HoldLock(kDataPath);
    EXPECT_FALSE(scene.Open());
    EXPECT_TRUE(scene.Boxes.Shown.empty());
}

TEST(EventNoteTest, NotesOfASharedDiaryLieInItsFolderAndMayBeOutOfReach) {
    NoteScene scene;
    scene.Files.Put(kBobsPath, WriteDiary(DiaryTable()));
    scene.WriteFromOutside(kDay, {MakeEvent(9, 0, "bob's")}, kBobsPath);
    scene.Store.GetData(kBobsFolder);
    ASSERT_EQ(scene.Editor.BeginEdit(1), AcceptResult::Accepted);
    ASSERT_TRUE(scene.Open());
    EXPECT_TRUE(scene.Type("for bob"));
    EXPECT_EQ(scene.Files.Content("/net/bob/DiaryDat/" + GetFile({1, kDay})), "for bob\r\n");
    EXPECT_FALSE(scene.NoteAt(1));
    *scene.Network = false;
    EXPECT_FALSE(scene.Type("later"));
    EXPECT_EQ(scene.LastMessage(), TextOf(scene.Texts, ProgramText::DiaryOutOfReach));
}

TEST(EventNoteTest, ACrashNeverLosesTheNoteOfANewEvent) {
    for (int at = 0; at < 12; ++at) {
        SCOPED_TRACE("crash before write " + std::to_string(at));
        NoteScene scene;
        scene.Add("12", "late");
        ASSERT_EQ(scene.Editor.BeginNew(), AcceptResult::Accepted);
        ASSERT_TRUE(scene.Open());
        ASSERT_TRUE(scene.Type("first"));
        scene.Files.CrashAfter(at);
        (void)scene.Editor.Note().Save("second", SaveMessages::Keep);
        (void)scene.Accept("08", "new");
        scene.Files.Recover();
        scene.Store.GetData(kFolder);
        const bool accepted = Messages(scene.OnFile(), kDay) == "new late";
        EXPECT_TRUE(accepted || Messages(scene.OnFile(), kDay) == "late");
        const auto note = scene.NoteAt(accepted ? 1 : kScratchSlot);
        EXPECT_TRUE(note == "second\r\n" || (!accepted && note == "first\r\n"))
            << note.value_or("-");
    }
}

TEST(EventNoteTest, AnEventKeepsItsDetailsWhenTheLanguageChangesMeanwhile) {
    NoteScene scene;
    scene.Settings.ModemDescription = "A modem";
    scene.Details.ModemIs = ModemState::On;
    DiaryEvent event = MakeEvent(9, 0, "call", "Never", "Phone");
    event.Extra[2] = "5550000";
    scene.Insert(kDay, event);
    ASSERT_EQ(scene.Editor.BeginEdit(1), AcceptResult::Accepted);
    scene.Texts.Texts[2][32] = "Telefon";
    EventDraft draft{"09", "30", "call", "Never", "Telefon", false};
    EXPECT_EQ(scene.Editor.Accept(draft), AcceptResult::Accepted);
    EXPECT_EQ(scene.OnFile().At({1, kDay}).Extra[2], "5550000");
}

} // namespace
} // namespace kestrova
