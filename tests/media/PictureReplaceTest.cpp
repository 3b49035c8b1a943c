// SPDX-License-Identifier: GPL-3.0-or-later
#include "media/PictureReplace.h"

#include "fakes/MemoryFileStore.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace kestrova {
namespace {

using testing::Contains;
using testing::Not;

constexpr WallTime kNow{2026, 2, 15, 10, 20, 30};
constexpr Selection kMarch15{.BaseYear = 2026, .TodayMonth = 2, .TodayDay = 15};

// The folders as they are supplied, and a picture of the user's elsewhere.
class PictureReplaceTest : public testing::Test {
protected:
    PictureReplaceTest() {
        for (const char* const month : {"January", "February", "March"}) {
            Disc.Put("/k/Images/" + std::string(month) + ".jpg", month);
            Disc.Put("/k/Speech/" + std::string(month) + ".txt", month);
        }
        Disc.Put("/home/mine.gif", "mine");
        Table = ScanPictures(Disc, "/k/", kMarch15);
    }

    Result<std::string> Replace(const PictureChoice& choice) {
        return ReplacePicture(Disc, kNow, "/k/", choice, [this](const std::string& /*path*/) {
            return Fit ? Status(Done{}) : Status(Error{ErrorCode::Damaged, "no picture"});
        });
    }
    Result<std::string> ReplaceAndEnter(const PictureChoice& choice) {
        auto path = Replace(choice);
        if (path) {
            EnterPicture(Table, Disc, "/k/", kMarch15, choice, path.Value());
        }
        return path;
    }
    [[nodiscard]] std::string Holds(const std::string& path) const {
        return Disc.Content("/k/" + path).value_or("(nothing)");
    }

    MemoryFileStore Disc;
    PictureTable Table;
    bool Fit = true;
};

TEST_F(PictureReplaceTest, AMonthGetsItsPictureAndLosesItsText) {
    ASSERT_TRUE(ReplaceAndEnter({1, {}, "/home/mine.gif"}));
    EXPECT_EQ(Holds("Images/February.jpg"), "mine");
    EXPECT_EQ(Holds("Speech/February.txt"), "(nothing)");
    EXPECT_EQ(Table.MonthPicture[1], "/k/Images/February.jpg");
    EXPECT_EQ(Table.MonthSpeech[1], "");
    for (const char* const month : {"January", "February", "March"}) {
        EXPECT_EQ(Holds("Images/Original/" + std::string(month) + ".jpg"), month);
        EXPECT_EQ(Holds("Speech/Original/" + std::string(month) + ".txt"), month);
    }
    EXPECT_EQ(Disc.Paths().size(), 12U) << "what is in the backup is not kept twice";
    EXPECT_EQ(ScanPictures(Disc, "/k/", kMarch15), Table) << "the next start shows the same";
}

TEST_F(PictureReplaceTest, ADaysPictureIsSeenFromThatDayOn) {
    const std::string march = Table.MonthPicture[2];
    ASSERT_TRUE(ReplaceAndEnter({2, 16, "/home/mine.gif"}));
    EXPECT_EQ(Holds("Images/March16.jpg"), "mine");
    EXPECT_EQ(Table.MonthPicture[2], march) << "tomorrow's";
    EXPECT_EQ(Table.MonthSpeech[2], "");
    ASSERT_TRUE(ReplaceAndEnter({1, 3, "/home/mine.gif"}));
    EXPECT_EQ(Table.MonthPicture[1], "/k/Images/February.jpg") << "another month's";
    ASSERT_TRUE(ReplaceAndEnter({2, 9, "/home/mine.gif"}));
    EXPECT_EQ(Table.MonthPicture[2], "/k/Images/March9.jpg");
    ASSERT_TRUE(ReplaceAndEnter({2, 3, "/home/mine.gif"}));
    EXPECT_EQ(Table.MonthPicture[2], "/k/Images/March9.jpg") << "a later one is seen";
}

TEST_F(PictureReplaceTest, OtherPicturesOfTheNameMakeRoom) {
    Disc.Put("/k/Images/January.bmp", "bitmap");
    ASSERT_TRUE(ReplaceAndEnter({0, {}, "/home/mine.gif"}));
    EXPECT_EQ(Holds("Images/January.bmp"), "(nothing)");
    EXPECT_EQ(Holds("Images/Original/January.bmp"), "bitmap");
    Disc.Put("/k/Images/january.GIF", "put there later");
    ASSERT_TRUE(ReplaceAndEnter({0, {}, "/home/mine.gif"}));
    EXPECT_EQ(Holds("Images/january replaced 2026-03-15 10.20.30.GIF"), "put there later");
    EXPECT_EQ(ScanPictures(Disc, "/k/", kMarch15).MonthPicture[0], "/k/Images/January.jpg");
}

TEST_F(PictureReplaceTest, TheUsersOwnEarlierPictureAndTextAreKept) {
    ASSERT_TRUE(Replace({1, {}, "/home/mine.gif"}));
    Disc.Put("/home/other.bmp", "other");
    Disc.Put("/k/Speech/February.txt", "my words");
    ASSERT_TRUE(Replace({1, {}, "/home/other.bmp"}));
    EXPECT_EQ(Holds("Images/February.jpg"), "other");
    EXPECT_EQ(Holds("Images/February replaced 2026-03-15 10.20.30.jpg"), "mine");
    EXPECT_EQ(Holds("Speech/February replaced 2026-03-15 10.20.30.txt"), "my words");
    EXPECT_EQ(Holds("Images/Original/February.jpg"), "February") << "the backup is the first state";
}

TEST_F(PictureReplaceTest, ThePictureItselfIsNotCopied) {
    Disc.FailReads(Error{ErrorCode::Failed, "no"}, "/k/Images/March.jpg");
    ASSERT_TRUE(Replace({2, {}, "/k/Images/March.jpg"}));
    EXPECT_EQ(Holds("Images/March.jpg"), "March");
}

TEST_F(PictureReplaceTest, WhatCannotBeReadChangesNothing) {
    const auto before = Disc.Paths();
    Fit = false;
    EXPECT_FALSE(Replace({1, {}, "/home/mine.gif"}));
    EXPECT_EQ(Disc.Paths(), before);
    Fit = true;
    EXPECT_EQ(Replace({1, {}, "/home/gone.jpg"}).Failure().Code, ErrorCode::NotFound);
    EXPECT_EQ(Holds("Images/February.jpg"), "February");
    EXPECT_EQ(Holds("Speech/February.txt"), "February");
}

TEST_F(PictureReplaceTest, AfterACrashAtAnyMomentNothingIsLostAndTheNextTimeAllIsDone) {
    Disc.Put("/k/Images/February.gif", "a second one");
    const MemoryFileStore before = Disc;
    for (int writes = 0;; ++writes) {
        SCOPED_TRACE(writes);
        Disc = before;
        Disc.CrashAfter(writes);
        const bool done = Replace({1, {}, "/home/mine.gif"}).Ok();
        Disc.Recover();
        const bool backedUp = Disc.Content("/k/Images/Original/January.jpg").has_value();
        if (!backedUp) {
            EXPECT_EQ(Holds("Images/February.jpg"), "February") << "replaced without a backup";
            EXPECT_EQ(Holds("Speech/February.txt"), "February");
        }
        ASSERT_TRUE(Replace({1, {}, "/home/mine.gif"}));
        EXPECT_EQ(Holds("Images/February.jpg"), "mine");
        EXPECT_EQ(Holds("Images/Original/January.jpg"), "January");
        EXPECT_EQ(Holds("Images/Original/February.jpg"), "February");
        EXPECT_EQ(Holds("Images/Original/February.gif"), "a second one");
        EXPECT_EQ(Holds("Speech/Original/March.txt"), "March");
        EXPECT_THAT(Disc.Paths(), Not(Contains("/k/Images/February.gif")));
        EXPECT_THAT(Disc.Paths(), Not(Contains("/k/Speech/February.txt")));
        if (done) {
            EXPECT_GT(writes, 7);
            break;
        }
    }
}

} // namespace
} // namespace kestrova
