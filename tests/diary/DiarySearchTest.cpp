// SPDX-License-Identifier: GPL-3.0-or-later
#include "diary/DiarySearch.h"

#include "diary/DiaryScene.h"
#include "diary/NoteName.h"
#include "text/Encoding.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <condition_variable>
#include <mutex>

namespace kestrova {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// The text with what was found in brackets.
std::string Bracketed(MarkedText text) {
    for (auto part = text.Found.rbegin(); part != text.Found.rend(); ++part) {
        text.Text.insert(part->End, "]").insert(part->Begin, "[");
    }
    return text.Text;
}

struct SearchScene {
    DiaryTable Table;
    NoteTexts Notes;

    void Put(const SlotPlace& place, const std::string& message, const std::string& note = {}) {
        Table.At(place) = MakeEvent(9, place.Slot, message);
        if (!note.empty()) {
            Notes.Texts[GetFile(place)] = SearchedNote(note);
        }
    }

    [[nodiscard]] DiarySearch Search() const {
        DiarySearch search(Table, 2027);
        search.TakeNotes(Notes);
        return search;
    }

    // What is found, each as "year-month-day message | note".
    [[nodiscard]] std::vector<std::string> Find(const std::string& typed) const {
        const DiarySearch search = Search();
        const auto words = DiarySearch::WordsOf(typed);
        std::vector<std::string> found;
        for (const std::size_t number : search.Find(words)) {
            const CalendarDate& date = search.At(number).Date;
            const auto note = search.Snippet(number, words);
            EXPECT_EQ(note.has_value(), search.HasSnippet(number, words));
            found.push_back(std::to_string(date.Year) + "-" + std::to_string(date.Month + 1) + "-" +
                            std::to_string(date.Day) + " " +
                            Bracketed(search.Message(number, words)) +
                            (note ? " | " + Bracketed(*note) : ""));
        }
        return found;
    }
};

TEST(DiarySearchTest, BothYearsHiddenEventsAndNoOthersInTheOrderOfTheirTime) {
    SearchScene scene;
    scene.Put({2, 1, 0, 1}, "Zahnärztin");
    scene.Put({1, 31, 11, 0}, "ZAHNARZT");
    scene.Put({2, 31, 11, 0}, "zahnarzt again");
    scene.Table.At({2, 31, 11, 0}).Hide = 1;
    scene.Put({1, 29, 1, 0}, "zahnarzt on no day of 2027");
    scene.Put({0, 5, 0, 0}, "zahnarzt in the slot that no page shows");
    scene.Put({1, 5, 12, 0}, "zahnarzt in no month");
    EXPECT_THAT(scene.Find("zahn"),
                ElementsAre("2027-12-31 [ZAHN]ARZT", "2027-12-31 [zahn]arzt again",
                            "2028-1-1 [Zahn]ärztin"));
    EXPECT_THAT(scene.Find("zahnärzt"), testing::SizeIs(3)) << "accents do not count";
    scene.Put({1, 29, 1, 1}, "leap day");
    EXPECT_THAT(scene.Find("leap"), ElementsAre("2028-2-29 [leap] day"));
}

TEST(DiarySearchTest, EachWordIsInTheMessageOrInTheNote) {
    SearchScene scene;
    scene.Put({1, 1, 0, 0}, "Dentist", "Doctor Lindqvist\nTake the insurance card along.");
    scene.Put({1, 2, 0, 0}, "Dentist");
    EXPECT_THAT(scene.Find("  dentist\tCARD "),
                ElementsAre("2027-1-1 [Dentist] | …Take the insurance [card] along."));
    EXPECT_THAT(scene.Find("dent"), testing::SizeIs(2));
    EXPECT_THAT(scene.Find("dentist cart"), IsEmpty());
    EXPECT_THAT(scene.Find(" "), IsEmpty());
    EXPECT_THAT(scene.Find("\n"), IsEmpty()) << "no word reaches into the next line";
}

TEST(DiarySearchTest, ASnippetIsAPieceOfWholeLetters) {
    SearchScene scene;
    std::string note;
    for (int i = 0; i < 300; ++i) {
        note += "éß";
    }
    scene.Put({1, 1, 0, 0}, "x", note + "Needle" + note);
    const auto found = scene.Find("needle");
    ASSERT_EQ(found.size(), 1U);
    EXPECT_NE(found.front().find("[Needle]"), std::string::npos);
    EXPECT_TRUE(IsUtf8(found.front()));
    EXPECT_LT(found.front().size(), 320U);
}

TEST(DiarySearchTest, OnlyNotesOfEventsAreReadAndWhatCannotBeIsSaid) {
    DiaryScene scene;
    scene.Insert({1, 0, 0}, MakeEvent(9, 0, "a"));
    const auto names = DiarySearch(scene.Store.Table(), 2026).NoteNames();
    EXPECT_THAT(names, ElementsAre(GetFile({1, 1, 0, 0})));
    const auto read = [&](const NoteLimits& limits = {}) {
        return ReadNoteTexts(scene.Files, kFolder, names, {}, limits);
    };
    EXPECT_TRUE(read().Complete);
    scene.Files.Put(scene.NotePath({1, 1, 0, 0}), "Caf\xE9\r\nzwei\r\n"); // an older program's
    scene.Files.Put(scene.NotePath({2, 1, 0, 0}), "of no event\r\n");
    ASSERT_THAT(read().Texts, testing::SizeIs(1));
    EXPECT_EQ(read().Texts[*names.begin()].Text, "Café\nzwei");
    EXPECT_TRUE(read().Complete);
    EXPECT_FALSE(read({4, 1000}).Complete);
    EXPECT_FALSE(read({1000, 4}).Complete);
    scene.Files.Put(scene.NotePath({1, 1, 0, 0}), std::string("a\0b", 3));
    EXPECT_FALSE(read().Complete);
    EXPECT_THAT(read().Texts, IsEmpty());
    std::stop_source stop;
    stop.request_stop();
    EXPECT_TRUE(ReadNoteTexts(scene.Files, kFolder, names, stop.get_token(), {0, 0}).Complete);
}

TEST(DiarySearchTest, AReadingThatHangsHoldsUpNobody) {
    struct Gate {
        std::mutex Guard;
        std::condition_variable Opened;
        bool Open = false;
        bool Stopped = false;
        bool Left = false;
    };
    const auto gate = std::make_shared<Gate>();
    {
        NoteReading reading([gate](const std::stop_token& stop) {
            std::unique_lock lock(gate->Guard);
            gate->Opened.wait(lock, [&] { return gate->Open; });
            gate->Stopped = stop.stop_requested();
            gate->Left = true;
            gate->Opened.notify_all();
            return NoteTexts();
        });
        EXPECT_FALSE(reading.Take());
    }
    std::unique_lock lock(gate->Guard);
    gate->Open = true;
    gate->Opened.notify_all();
    EXPECT_TRUE(gate->Opened.wait_for(lock, std::chrono::seconds(20), [&] { return gate->Left; }));
    EXPECT_TRUE(gate->Stopped);
}

} // namespace
} // namespace kestrova
