// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/posix/PosixFileStore.h"

#include "platform/posix/FolderAnswers.h"
#include "platform/posix/OtherProcess.h"
#include "platform/posix/TemporaryFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fcntl.h>
#include <grp.h>
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace kestrova {
namespace {

using testing::UnorderedElementsAre;

constexpr std::size_t kEnough = 1 << 20;

class PosixFileStoreTest : public testing::Test {
protected:
    [[nodiscard]] std::vector<std::string> Names() const { return files_.List(folder_.Path()); }

    [[nodiscard]] mode_t ModeOf(const std::string& name) const {
        struct stat info {};
        return ::stat((folder_ / name).c_str(), &info) == 0 ? info.st_mode & 07777U : 0;
    }

    // What the work answers when it is done by a user who may read the folder, not write it.
    int AsReader(const std::function<int()>& work) const {
        ::chmod(folder_.Path().c_str(), 0555);
        const int answer = OtherProcess([&work] {
                               constexpr uid_t kNobody = 65534;
                               const bool strange = ::geteuid() != 0 || (::setgid(kNobody) == 0 &&
                                                                         ::setuid(kNobody) == 0);
                               return strange ? work() : 99;
                           }).Wait();
        ::chmod(folder_.Path().c_str(), 0755);
        return answer;
    }

    TemporaryFolder folder_;
    PosixFileStore files_;
};

template<typename T> int CodeOf(const Result<T>& result) {
    return result ? 50 : static_cast<int>(result.Failure().Code);
}
constexpr int kGood = 50;
constexpr int kBusy = static_cast<int>(ErrorCode::Busy);
constexpr int kFull = static_cast<int>(ErrorCode::Full);

TEST_F(PosixFileStoreTest, BytesComeBackAsTheyWereWritten) {
    std::string every;
    for (int byte = 0; byte < 256; ++byte) {
        every += static_cast<char>(byte);
    }
    const std::string contents[] = {"", "\r\n", every, std::string(300'000, 'x') + "end"};
    for (const std::string& bytes : contents) {
        SCOPED_TRACE(bytes.size());
        ASSERT_TRUE(files_.Replace(folder_ / "Data.dat", bytes));
        EXPECT_EQ(folder_.Content("Data.dat"), bytes);
        const auto read = files_.Read(folder_ / "Data.dat", kEnough);
        ASSERT_TRUE(read);
        EXPECT_EQ(read.Value(), bytes);
        EXPECT_THAT(Names(), UnorderedElementsAre("Data.dat"));
    }
}

TEST_F(PosixFileStoreTest, FilesLargerThanTheLimitAreNotRead) {
    folder_.Write("Data.dat", "12345");
    EXPECT_EQ(CodeOf(files_.Read(folder_ / "Data.dat", 5)), kGood);
    EXPECT_EQ(CodeOf(files_.Read(folder_ / "Data.dat", 4)), static_cast<int>(ErrorCode::TooLarge));
    EXPECT_EQ(CodeOf(files_.Read(folder_ / "Data.dat", 0)), static_cast<int>(ErrorCode::TooLarge));
    // A file that does not know its size, and one without an end.
    EXPECT_EQ(CodeOf(files_.Read("/proc/self/status", kEnough)), kGood);
    EXPECT_EQ(CodeOf(files_.Read("/proc/self/status", 10)), static_cast<int>(ErrorCode::TooLarge));
    EXPECT_NE(CodeOf(files_.Read("/dev/zero", kEnough)), kGood);
}

TEST_F(PosixFileStoreTest, WhatIsNotThereIsNotFound) {
    constexpr int kNotFound = static_cast<int>(ErrorCode::NotFound);
    folder_.Write("Data.dat", "x");
    EXPECT_EQ(CodeOf(files_.Read(folder_ / "None.dat", kEnough)), kNotFound);
    EXPECT_EQ(CodeOf(files_.Read(folder_ / "Data.dat/None", kEnough)), kNotFound);
    EXPECT_EQ(CodeOf(files_.Replace(folder_ / "none/Data.dat", "x")), kNotFound);
    EXPECT_EQ(CodeOf(files_.CopyToNew(folder_ / "None.dat", folder_ / "New.dat")), kNotFound);
    EXPECT_EQ(CodeOf(files_.MoveToNew(folder_ / "None.dat", folder_ / "New.dat")), kNotFound);
    EXPECT_EQ(files_.Stamp(folder_ / "None.dat"), std::nullopt);
    EXPECT_THAT(files_.List(folder_ / "none/"), testing::IsEmpty());
    EXPECT_TRUE(files_.Remove(folder_ / "None.dat"));
    EXPECT_THAT(Names(), UnorderedElementsAre("Data.dat"));
}

// Whoever puts something else in a file's place gets an answer, never a program that stands still.
TEST_F(PosixFileStoreTest, AFolderOrAPipeInPlaceOfAFileHangsNothing) {
    ASSERT_EQ(::mkfifo((folder_ / "Pipe").c_str(), 0644), 0);
    ASSERT_TRUE(files_.MakeFolder(folder_ / "Folder"));
    for (const char* const name : {"Pipe", "Folder"}) {
        SCOPED_TRACE(name);
        const std::string path = folder_ / name;
        EXPECT_EQ(OtherProcess([&] { return files_.Read(path, kEnough) ? 0 : 1; }).Wait(), 1);
        EXPECT_EQ(OtherProcess([&] { return files_.CopyToNew(path, path + "2") ? 0 : 1; }).Wait(),
                  1);
        for (const LockKind kind : {LockKind::Shared, LockKind::Exclusive}) {
            EXPECT_NE(OtherProcess([&] {
                          return CodeOf(files_.Lock(path, kind, std::chrono::milliseconds(50)));
                      }).Wait(),
                      -1);
        }
    }
    EXPECT_FALSE(files_.Replace(folder_ / "Folder", "bytes"));
    EXPECT_TRUE(std::filesystem::is_directory(folder_ / "Folder"));
    EXPECT_FALSE(std::filesystem::exists(folder_ / "Pipe2"));
}

TEST_F(PosixFileStoreTest, AReplacedFileKeepsItsModeAndANewOneTakesTheUsers) {
    const mode_t before = ::umask(027);
    EXPECT_TRUE(files_.Replace(folder_ / "New.dat", "new"));
    ::umask(before);
    EXPECT_EQ(ModeOf("New.dat"), 0640U);
    for (const mode_t mode : {0600U, 0664U, 0666U}) {
        ::chmod((folder_ / "New.dat").c_str(), mode);
        EXPECT_TRUE(files_.Replace(folder_ / "New.dat", "newer"));
        EXPECT_EQ(ModeOf("New.dat"), mode);
    }
}

TEST_F(PosixFileStoreTest, AReplacedFileStaysWithItsOwnerAndGroup) {
    constexpr uid_t kOwner = 4242;
    constexpr gid_t kGroup = 4243;
    const std::string path = folder_ / "Data.dat";
    folder_.Write("Data.dat", "theirs");
    if (::chown(path.c_str(), kOwner, kGroup) != 0) {
        GTEST_SKIP() << "only the administrator can give a file away";
    }
    ::chmod(path.c_str(), 0664);
    ::chmod(folder_.Path().c_str(), 0777);
    // A member of the group, who is not the owner, and then the administrator.
    EXPECT_EQ(OtherProcess([&] {
                  constexpr uid_t kMember = 4244;
                  return ::setgroups(1, &kGroup) == 0 && ::setgid(kMember) == 0 &&
                                 ::setuid(kMember) == 0 && files_.Replace(path, "edited")
                             ? 0
                             : 1;
              }).Wait(),
              0);
    struct stat info {};
    ASSERT_EQ(::stat(path.c_str(), &info), 0);
    EXPECT_EQ(info.st_gid, kGroup);
    EXPECT_EQ(info.st_mode & 07777U, 0664U) << "the owner can write it still";
    ASSERT_EQ(::chown(path.c_str(), kOwner, kGroup), 0);
    ASSERT_TRUE(files_.Replace(path, "edited again"));
    ASSERT_EQ(::stat(path.c_str(), &info), 0);
    EXPECT_EQ(info.st_uid, kOwner);
}

TEST_F(PosixFileStoreTest, ManyFilesAreReplacedAndRemovedTogether) {
    for (const int count : {0, 1, 40}) {
        SCOPED_TRACE(count);
        folder_.Write("Gone.txt", "old");
        folder_.Write("Target.txt", "old");
        ASSERT_EQ(::symlink("Target.txt", (folder_ / "Link.txt").c_str()), 0);
        ::chmod((folder_ / "Target.txt").c_str(), 0600);
        std::vector<FileChange> changes = {{folder_ / "Gone.txt", std::nullopt},
                                           {folder_ / "None.txt", std::nullopt},
                                           {folder_ / "Link.txt", "new"}};
        for (int i = 0; i < count; ++i) {
            changes.push_back({folder_ / std::to_string(i), "text"});
        }
        EXPECT_TRUE(files_.ReplaceMany(changes));
        EXPECT_EQ(folder_.Content("Target.txt"), "new");
        EXPECT_EQ(ModeOf("Target.txt"), 0600U);
        EXPECT_EQ(Names().size(), 2U + static_cast<std::size_t>(count)) << "and no temporaries";
        for (int i = 0; i < count; ++i) {
            EXPECT_EQ(folder_.Content(std::to_string(i)), "text");
        }
        EXPECT_FALSE(files_.ReplaceMany({{{folder_ / "none/x", "x"}}}));
        for (const std::string& name : Names()) {
            EXPECT_TRUE(files_.Remove(folder_ / name));
        }
    }
}

TEST_F(PosixFileStoreTest, ACopyIsNoMoreOpenThanItsSource) {
    folder_.Write("Data.dat", "private");
    ::chmod((folder_ / "Data.dat").c_str(), 0600);
    EXPECT_TRUE(files_.CopyToNew(folder_ / "Data.dat", folder_ / "Copy.dat"));
    EXPECT_EQ(ModeOf("Copy.dat"), 0600U);
}

TEST_F(PosixFileStoreTest, EveryRewriteChangesTheStamp) {
    const std::string path = folder_ / "Data.dat";
    std::optional<FileStamp> last = files_.Stamp(path);
    for (int i = 0; i < 50; ++i) {
        ASSERT_TRUE(files_.Replace(path, i % 2 == 0 ? "same size" : "SAME SIZE"));
        const auto stamp = files_.Stamp(path);
        ASSERT_TRUE(stamp);
        EXPECT_NE(stamp, last);
        EXPECT_EQ(stamp->Size, 9);
        EXPECT_EQ(files_.Stamp(path), stamp);
        last = stamp;
    }
}

TEST_F(PosixFileStoreTest, AFullDiscLeavesTheOldFileWhole) {
    folder_.Write("Data.dat", "old bytes");
    const auto onFullDisc = [this](const std::function<int()>& work) {
        return OtherProcess([&work] {
                   const rlimit limit{1000, 1000};
                   std::signal(SIGXFSZ, SIG_IGN);
                   return ::setrlimit(RLIMIT_FSIZE, &limit) == 0 ? work() : 99;
               })
            .Wait();
    };
    const std::string large(5000, 'x');
    EXPECT_EQ(onFullDisc([&] { return CodeOf(files_.Replace(folder_ / "Data.dat", large)); }),
              kFull);
    EXPECT_EQ(folder_.Content("Data.dat"), "old bytes");
    EXPECT_EQ(onFullDisc([&] { return CodeOf(files_.Replace(folder_ / "New.dat", large)); }),
              kFull);
    folder_.Write("Large.dat", large);
    EXPECT_EQ(onFullDisc([&] {
                  return CodeOf(files_.CopyToNew(folder_ / "Large.dat", folder_ / "Copy.dat"));
              }),
              kFull);
    EXPECT_THAT(Names(), UnorderedElementsAre("Data.dat", "Large.dat"));
}

TEST_F(PosixFileStoreTest, WhatAKilledWriteLeavesBehindIsFoundAndRemoved) {
    folder_.Write("Data.dat", "old bytes");
    folder_.Write("Data.dat.lock", "");
    folder_.Write("Mine.new", "x");
    folder_.Write("A new one.dat", "x");
    const int ended =
        OtherProcess([this] {
            const rlimit none{0, 0};
            const rlimit limit{1000, 1000};
            ::setrlimit(RLIMIT_CORE, &none);
            ::setrlimit(RLIMIT_FSIZE, &limit); // the write that passes it ends the program
            return files_.Replace(folder_ / "Data.dat", std::string(5000, 'x')) ? 0 : 1;
        }).Wait();
    EXPECT_EQ(ended, -1);
    EXPECT_EQ(folder_.Content("Data.dat"), "old bytes");
    EXPECT_EQ(Names().size(), 5U);
    files_.RemoveLeftovers(folder_.Path());
    EXPECT_THAT(Names(),
                UnorderedElementsAre("Data.dat", "Data.dat.lock", "Mine.new", "A new one.dat"));
    EXPECT_EQ(folder_.Content("Data.dat"), "old bytes");
    files_.RemoveLeftovers(folder_ / "none/");
}

TEST_F(PosixFileStoreTest, AFolderThatCannotBeWrittenIsBusy) {
    folder_.Write("Data.dat", "old bytes");
    folder_.Write("Private.dat", "x");
    ::chmod((folder_ / "Private.dat").c_str(), 0000);
    const std::string path = folder_ / "Data.dat";
    constexpr std::chrono::milliseconds kShort{20};
    const std::function<int()> attempts[] = {
        [&] { return CodeOf(files_.Replace(path, "new")); },
        [&] { return CodeOf(files_.Replace(folder_ / "New.dat", "new")); },
        [&] { return CodeOf(files_.CopyToNew(path, folder_ / "New.dat")); },
        [&] { return CodeOf(files_.MoveToNew(path, folder_ / "New.dat")); },
        [&] { return CodeOf(files_.Remove(path)); },
        [&] { return CodeOf(files_.MakeFolder(folder_ / "folder")); },
        [&] { return CodeOf(files_.Lock(path, LockKind::Exclusive, kShort)); },
        [&] { return CodeOf(files_.Read(folder_ / "Private.dat", kEnough)); },
    };
    for (std::size_t i = 0; i < std::size(attempts); ++i) {
        EXPECT_EQ(AsReader(attempts[i]), kBusy) << "attempt " << i;
    }
    EXPECT_EQ(AsReader([&] { return CodeOf(files_.Read(path, kEnough)); }), kGood);
    EXPECT_EQ(AsReader([&] { return CodeOf(files_.Lock(path, LockKind::Shared, kShort)); }), kGood);
    EXPECT_EQ(folder_.Content("Data.dat"), "old bytes");
    EXPECT_THAT(Names(), UnorderedElementsAre("Data.dat", "Private.dat"));
}

TEST_F(PosixFileStoreTest, NothingIsCopiedOrMovedOntoSomethingElse) {
    folder_.Write("Data.dat", "mine");
    folder_.Write("There.dat", "yours");
    ASSERT_TRUE(files_.MakeFolder(folder_ / "Folder"));
    for (const char* const there : {"There.dat", "Folder"}) {
        SCOPED_TRACE(there);
        EXPECT_EQ(CodeOf(files_.CopyToNew(folder_ / "Data.dat", folder_ / there)),
                  static_cast<int>(ErrorCode::Failed));
        EXPECT_EQ(CodeOf(files_.MoveToNew(folder_ / "Data.dat", folder_ / there)),
                  static_cast<int>(ErrorCode::Failed));
    }
    EXPECT_EQ(folder_.Content("Data.dat"), "mine");
    EXPECT_EQ(folder_.Content("There.dat"), "yours");

    EXPECT_TRUE(files_.CopyToNew(folder_ / "Data.dat", folder_ / "Copy.dat"));
    EXPECT_TRUE(files_.MoveToNew(folder_ / "Data.dat", folder_ / "Moved.dat"));
    EXPECT_EQ(folder_.Content("Copy.dat"), "mine");
    EXPECT_EQ(folder_.Content("Moved.dat"), "mine");
    EXPECT_THAT(Names(), UnorderedElementsAre("There.dat", "Copy.dat", "Moved.dat"));
}

TEST_F(PosixFileStoreTest, AListHoldsFilesAndWhatLeadsToFiles) {
    folder_.Write("One.dat", "1");
    folder_.Write("zw\xC3\xB6lf.txt", "12");
    EXPECT_TRUE(files_.MakeFolder(folder_ / "Folder/"));
    EXPECT_TRUE(files_.MakeFolder(folder_ / "Folder/"));
    folder_.Write("Folder/Inner.dat", "x");
    std::filesystem::create_symlink(folder_ / "One.dat", folder_ / "Link");
    std::filesystem::create_symlink(folder_ / "Folder", folder_ / "FolderLink");
    std::filesystem::create_symlink(folder_ / "Gone", folder_ / "Broken");
    EXPECT_THAT(Names(), UnorderedElementsAre("One.dat", "zw\xC3\xB6lf.txt", "Link"));
    EXPECT_TRUE(files_.Remove(folder_ / "One.dat"));
    EXPECT_FALSE(files_.Remove(folder_ / "Folder"));
    EXPECT_THAT(files_.List(folder_ / "Folder/"), UnorderedElementsAre("Inner.dat"));
}

TEST_F(PosixFileStoreTest, EntriesAreFoundWhateverTheirCase) {
    folder_.Write("DATA.DAT", "1");
    folder_.Write("data.dat", "2");
    folder_.Write("Zw\xC3\xB6lf.txt", "x");
    ASSERT_TRUE(files_.MakeFolder(folder_ / "diarydat"));
    EXPECT_EQ(files_.FindEntry(folder_.Path(), "data.dat"), "data.dat") << "the exact one first";
    EXPECT_EQ(files_.FindEntry(folder_.Path(), "Data.dat"), "DATA.DAT");
    EXPECT_EQ(files_.FindEntry(folder_.Path(), "DiaryDat"), "diarydat");
    EXPECT_EQ(files_.FindEntry(folder_.Path(), "zw\xC3\xB6LF.TXT"), "Zw\xC3\xB6lf.txt");
    EXPECT_EQ(files_.FindEntry(folder_.Path(), "Data.da"), std::nullopt);
    EXPECT_EQ(files_.FindEntry(folder_ / "none/", "Data.dat"), std::nullopt);
}

TEST_F(PosixFileStoreTest, AFolderAnswersWhenItIsThere) {
    folder_.Write("File", "x");
    ASSERT_TRUE(files_.MakeFolder(folder_ / "Closed"));
    ::chmod((folder_ / "Closed").c_str(), 0111);
    EXPECT_TRUE(FolderAnswers(folder_.Path()));
    EXPECT_FALSE(FolderAnswers(folder_ / "none/"));
    EXPECT_FALSE(FolderAnswers(folder_ / "File"));
    EXPECT_EQ(AsReader([&] { return FolderAnswers(folder_ / "Closed/") ? 1 : 0; }), 1)
        << "it cannot be listed, but what is in it can be reached";
}

class PosixLockTest : public PosixFileStoreTest {
protected:
    PosixLockTest() { folder_.Write("Data.dat", "bytes"); }

    Result<std::unique_ptr<FileLock>> Lock(LockKind kind, int milliseconds = 30) {
        return files_.Lock(path_, kind, std::chrono::milliseconds(milliseconds));
    }

    const std::string path_ = folder_ / "Data.dat";
};

struct LockPair {
    LockKind Held;
    LockKind Wanted;
    bool Given;
};
constexpr LockPair kLockPairs[] = {
    {LockKind::Shared, LockKind::Shared, true},
    {LockKind::Shared, LockKind::Exclusive, false},
    {LockKind::Exclusive, LockKind::Shared, false},
    {LockKind::Exclusive, LockKind::Exclusive, false},
};

TEST_F(PosixLockTest, OnlyReadersShareAFileWithinOneProgram) {
    PosixFileStore other;
    for (const LockPair& pair : kLockPairs) {
        SCOPED_TRACE(static_cast<int>(pair.Held) * 2 + static_cast<int>(pair.Wanted));
        {
            const auto held = other.Lock(path_, pair.Held, std::chrono::milliseconds(0));
            ASSERT_TRUE(held);
            EXPECT_EQ(CodeOf(Lock(pair.Wanted)), pair.Given ? kGood : kBusy);
            EXPECT_TRUE(
                files_.Lock(folder_ / "Another.dat", pair.Wanted, std::chrono::milliseconds(0)));
        }
        EXPECT_TRUE(Lock(pair.Wanted, 0));
    }
}

TEST_F(PosixLockTest, OnlyReadersShareAFileBetweenPrograms) {
    for (const LockPair& pair : kLockPairs) {
        SCOPED_TRACE(static_cast<int>(pair.Held) * 2 + static_cast<int>(pair.Wanted));
        Signpost locked;
        OtherProcess other([&] {
            const auto held = files_.Lock(path_, pair.Held, std::chrono::milliseconds(0));
            locked.Set();
            return ::pause();
        });
        ASSERT_TRUE(locked.Await());
        EXPECT_EQ(CodeOf(Lock(pair.Wanted)), pair.Given ? kGood : kBusy);
        // A program that was killed holds nothing any more.
        other.Kill();
        EXPECT_EQ(CodeOf(Lock(pair.Wanted, 0)), kGood);
    }
}

TEST_F(PosixLockTest, ALockIsWaitedForUntilTheLimit) {
    Signpost locked;
    Signpost release;
    OtherProcess other([&] {
        auto held = files_.Lock(path_, LockKind::Exclusive, std::chrono::milliseconds(0));
        locked.Set();
        return held && release.Await() ? 0 : 1;
    });
    ASSERT_TRUE(locked.Await());
    const auto begin = std::chrono::steady_clock::now();
    EXPECT_EQ(CodeOf(Lock(LockKind::Exclusive, 100)), kBusy);
    const auto waited = std::chrono::steady_clock::now() - begin;
    EXPECT_GE(waited, std::chrono::milliseconds(100));
    EXPECT_LT(waited, std::chrono::seconds(5));
    release.Set();
    EXPECT_EQ(CodeOf(Lock(LockKind::Exclusive, 5000)), kGood);
    EXPECT_EQ(other.Wait(), 0);
}

TEST_F(PosixLockTest, AReplacedFileStaysLocked) {
    const auto held = Lock(LockKind::Exclusive);
    ASSERT_TRUE(held);
    EXPECT_TRUE(files_.Replace(path_, "new bytes"));
    EXPECT_EQ(OtherProcess([this] { return CodeOf(Lock(LockKind::Exclusive)); }).Wait(), kBusy);
    EXPECT_EQ(OtherProcess([this] { return CodeOf(Lock(LockKind::Shared)); }).Wait(), kBusy);
}

TEST_F(PosixLockTest, AFileThatIsNotThereYetCanBeLocked) {
    ASSERT_TRUE(files_.Remove(path_));
    const auto held = Lock(LockKind::Exclusive);
    ASSERT_TRUE(held);
    EXPECT_EQ(OtherProcess([this] { return CodeOf(Lock(LockKind::Shared)); }).Wait(), kBusy);
    EXPECT_FALSE(std::filesystem::exists(path_));
}

// Programs that know nothing of the companion file lock the file itself, in one of two ways.
TEST_F(PosixLockTest, AForeignLockOnTheFileItselfIsRespected) {
    for (const bool range : {false, true}) {
        for (const LockPair& pair : kLockPairs) {
            SCOPED_TRACE((range ? 10 : 0) + static_cast<int>(pair.Held) * 2 +
                         static_cast<int>(pair.Wanted));
            Signpost locked;
            OtherProcess other([&] {
                const bool shared = pair.Held == LockKind::Shared;
                const int file = ::open(path_.c_str(), O_RDWR);
                struct flock whole {};
                whole.l_type = shared ? F_RDLCK : F_WRLCK;
                const bool done = range ? ::fcntl(file, F_SETLK, &whole) == 0
                                        : ::flock(file, shared ? LOCK_SH : LOCK_EX) == 0;
                if (done) {
                    locked.Set();
                }
                return ::pause();
            });
            ASSERT_TRUE(locked.Await());
            EXPECT_EQ(CodeOf(Lock(pair.Wanted)), pair.Given ? kGood : kBusy);
            other.Kill();
            EXPECT_EQ(CodeOf(Lock(pair.Wanted, 0)), kGood);
        }
    }
}

} // namespace
} // namespace kestrova
