// SPDX-License-Identifier: GPL-3.0-or-later
#include "puzzle/PieceFiles.h"

#include "fakes/MemoryFileStore.h"
#include "platform/posix/PosixFileStore.h"
#include "platform/posix/TemporaryFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace kestrova {
namespace {

using testing::UnorderedElementsAre;

// A black picture of 8 x 7 pixels.
std::string SmallPicture() {
    return PutHeader(HeaderOf(8, 7, 24, 0)) + std::string(RowBytes(8, 24) * 7, '\0');
}

TEST(PieceFilesTest, EveryPieceIsAFileUntilItIsTaken) {
    const TemporaryFolder folder;
    PosixFileStore disc;
    PieceFiles pieces(disc, PlainScratchWriter(disc), folder.Path());
    folder.Write("Temp2.bmp", "of a game that was interrupted");
    const auto plan = pieces.SplitUp(SmallPicture(), 3);
    ASSERT_TRUE(plan) << plan.Failure().Text;
    EXPECT_EQ(plan.Value().AreaOf(9), (PieceArea{4, 4, 4, 3}));
    EXPECT_THAT(disc.List(folder.Path()),
                UnorderedElementsAre("Temp1.bmp", "Temp2.bmp", "Temp3.bmp", "Temp4.bmp",
                                     "Temp5.bmp", "Temp6.bmp", "Temp7.bmp", "Temp8.bmp",
                                     "Temp9.bmp"));
    for (int k = 1; k <= 9; ++k) {
        const auto bytes = pieces.TakePiece(k);
        ASSERT_TRUE(bytes) << k;
        EXPECT_EQ(static_cast<int>(GetHeader(bytes.Value()).Value().Width), k % 3 == 0 ? 4 : 2);
    }
    EXPECT_THAT(disc.List(folder.Path()), testing::IsEmpty());
    EXPECT_EQ(pieces.TakePiece(9).Failure().Code, ErrorCode::NotFound);
}

// A disc that is full after so many files, for every number of files.
TEST(PieceFilesTest, AFullDiscLeavesNothingBehind) {
    for (int room = 0; room < 10; ++room) {
        MemoryFileStore disc;
        int left = room;
        PieceFiles pieces(
            disc,
            [&](const std::string& path, std::string_view bytes) -> Status {
                if (left-- == 0) {
                    return Error{ErrorCode::Full, path};
                }
                return disc.Replace(path, bytes);
            },
            "/k/");
        const auto plan = pieces.SplitUp(SmallPicture(), 3);
        ASSERT_FALSE(plan) << room;
        EXPECT_EQ(plan.Failure().Code, ErrorCode::Full);
        EXPECT_TRUE(disc.Paths().empty()) << room;
    }
}

TEST(PieceFilesTest, AFolderThatIsGoneAndAFolderInTheWayAreFailures) {
    const TemporaryFolder folder;
    PosixFileStore disc;
    PieceFiles nowhere(disc, PlainScratchWriter(disc), folder / "gone/");
    EXPECT_FALSE(nowhere.SplitUp(SmallPicture(), 3));
    ASSERT_TRUE(disc.MakeFolder(folder / "Temp5.bmp"));
    PieceFiles pieces(disc, PlainScratchWriter(disc), folder.Path());
    EXPECT_FALSE(pieces.SplitUp(SmallPicture(), 3));
    EXPECT_THAT(disc.List(folder.Path()), testing::IsEmpty());
}

TEST(PieceFilesTest, ALinkInAFilesPlaceIsNotFollowed) {
    const TemporaryFolder folder;
    folder.Write("letter.txt", "Dear Anna");
    std::filesystem::create_symlink(folder / "letter.txt", folder / "Temp.bmp");
    PosixFileStore disc;
    PieceFiles pieces(disc, PlainScratchWriter(disc), folder.Path());
    EXPECT_TRUE(pieces.SplitUp(SmallPicture(), 3));
    EXPECT_EQ(folder.Content("letter.txt"), "Dear Anna");
}

TEST(PieceFilesTest, LeftoversAreTheGamesOwnNamesAndNoOthers) {
    MemoryFileStore disc;
    for (const char* const name :
         {"Temp.bmp", "Temp1.bmp", "Temp99.bmp", "Temp400.bmp", "Temp0.bmp", "Temp01.bmp",
          "Temp401.bmp", "Temp+1.bmp", "Temp-1.bmp", "Temp1x.bmp", "Temp 1.bmp", "temp1.bmp",
          "Temp1.BMP", "Temp1.bmp.bmp", "Temp99999999999.bmp", "MyTemp1.bmp", "Te.bmp", "Temp"}) {
        disc.Put("/k/" + std::string(name), "x");
    }
    disc.Put("/k/sub/Temp1.bmp", "x");
    PieceFiles(disc, PlainScratchWriter(disc), "/k/").RemoveLeftovers();
    EXPECT_THAT(disc.Paths(),
                UnorderedElementsAre("/k/Temp0.bmp", "/k/Temp01.bmp", "/k/Temp401.bmp",
                                     "/k/Temp+1.bmp", "/k/Temp-1.bmp", "/k/Temp1x.bmp",
                                     "/k/Temp 1.bmp", "/k/temp1.bmp", "/k/Temp1.BMP",
                                     "/k/Temp1.bmp.bmp", "/k/Temp99999999999.bmp", "/k/MyTemp1.bmp",
                                     "/k/Te.bmp", "/k/Temp", "/k/sub/Temp1.bmp"));
}

} // namespace
} // namespace kestrova
