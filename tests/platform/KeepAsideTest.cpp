// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/KeepAside.h"

#include "fakes/MemoryFileStore.h"

#include <gtest/gtest.h>

namespace kestrova {
namespace {

constexpr WallTime kLate{2026, 10, 22, 23, 59, 1};
constexpr WallTime kEarly{2027, 0, 3, 4, 5, 6};

TEST(KeepAsideTest, TheNameSaysWhyAndWhen) {
    struct Row {
        const char* Path;
        const char* Mark;
        WallTime Now;
        const char* Kept;
    };
    const Row rows[] = {
        {"/k/Settings.dat", "damaged", kLate, "/k/Settings damaged 2026-11-22 23.59.01.dat"},
        {"/k/Settings.dat", "damaged", kEarly, "/k/Settings damaged 2027-01-03 04.05.06.dat"},
        {"/k/DiaryDat/Data.dat", "before 2027", kEarly,
         "/k/DiaryDat/Data before 2027 2027-01-03 04.05.06.dat"},
        {"/k/a.b.dat", "damaged", kLate, "/k/a.b damaged 2026-11-22 23.59.01.dat"},
        {"/k/note", "damaged", kLate, "/k/note damaged 2026-11-22 23.59.01"},
        {"/home/.kestrova/note", "damaged", kLate,
         "/home/.kestrova/note damaged 2026-11-22 23.59.01"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.Path);
        MemoryFileStore files;
        files.Put(row.Path, "bytes");
        EXPECT_TRUE(CopyAside(files, row.Now, row.Path, row.Mark));
        EXPECT_EQ(files.Paths(), (std::set<std::string>{row.Path, row.Kept}));
        EXPECT_EQ(files.Content(row.Kept), "bytes");

        MemoryFileStore moved;
        moved.Put(row.Path, "bytes");
        EXPECT_TRUE(MoveAside(moved, row.Now, row.Path, row.Mark));
        EXPECT_EQ(moved.Paths(), (std::set<std::string>{row.Kept}));
        EXPECT_EQ(moved.Content(row.Kept), "bytes");
    }
}

TEST(KeepAsideTest, NothingThatStandsThereIsOverwritten) {
    MemoryFileStore files;
    std::set<std::string> kept;
    for (int i = 1; i <= 100; ++i) {
        files.Put("/k/Data.dat", "version " + std::to_string(i));
        ASSERT_TRUE(MoveAside(files, kLate, "/k/Data.dat", "damaged"));
        const std::string number = i == 1 ? "" : " " + std::to_string(i);
        EXPECT_EQ(files.Content("/k/Data damaged 2026-11-22 23.59.01" + number + ".dat"),
                  "version " + std::to_string(i));
    }
    // More than a hundred in one second is a program gone wrong: the file stays where it is.
    files.Put("/k/Data.dat", "last");
    EXPECT_FALSE(MoveAside(files, kLate, "/k/Data.dat", "damaged"));
    EXPECT_FALSE(CopyAside(files, kLate, "/k/Data.dat", "damaged"));
    EXPECT_EQ(files.Content("/k/Data.dat"), "last");
    EXPECT_EQ(files.Paths().size(), 101U);
    EXPECT_TRUE(MoveAside(files, kEarly, "/k/Data.dat", "damaged"));
}

TEST(KeepAsideTest, AFileThatCannotBeKeptStaysAsItIs) {
    MemoryFileStore files;
    files.Put("/k/Data.dat", "bytes");
    files.FailWrites(Error{ErrorCode::Full, "disc full"});
    for (const auto keep : {&MoveAside, &CopyAside}) {
        const Status kept = keep(files, kLate, "/k/Data.dat", "damaged");
        ASSERT_FALSE(kept);
        EXPECT_EQ(kept.Failure().Code, ErrorCode::Full);
        EXPECT_EQ(files.Content("/k/Data.dat"), "bytes");
    }
    files.FailWrites({});
    EXPECT_FALSE(MoveAside(files, kLate, "/k/NotThere.dat", "damaged"));
}

} // namespace
} // namespace kestrova
