// SPDX-License-Identifier: GPL-3.0-or-later
// A program that saves one event after the other is killed at a random moment, again and again. No
// event that it has reported as accepted may be missing afterwards, and no file may be damaged.
#include "diary/DiaryFiles.h"
#include "diary/NoteName.h"
#include "fakes/SetClock.h"
#include "platform/posix/PosixFileStore.h"

#include <gtest/gtest.h>

#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <random>
#include <set>
#include <sys/wait.h>
#include <unistd.h>

namespace kestrova {
namespace {

constexpr int kKills = 200;

// Runs the saver, kills it after so many microseconds, and returns the last number it has reported.
int RunAndKill(const std::string& folder, int from, useconds_t after) {
    int channel[2] = {-1, -1};
    EXPECT_EQ(::pipe(channel), 0);
    const pid_t child = ::fork();
    if (child == 0) {
        ::dup2(channel[1], STDOUT_FILENO);
        ::close(channel[0]);
        ::close(channel[1]);
        const std::string number = std::to_string(from);
        ::execl(ENDLESS_SAVER, ENDLESS_SAVER, folder.c_str(), number.c_str(), nullptr);
        ::_exit(127);
    }
    ::close(channel[1]);
    std::string reported;
    char buffer[4096];
    // Loading takes its time; the moments to kill in are those after the first save.
    if (const ssize_t got = ::read(channel[0], buffer, sizeof buffer); got > 0) {
        reported.append(buffer, static_cast<std::size_t>(got));
    }
    ::usleep(after);
    ::kill(child, SIGKILL);
    int status = 0;
    ::waitpid(child, &status, 0);
    EXPECT_TRUE(WIFSIGNALED(status)) << "it ended by itself with " << WEXITSTATUS(status);
    for (ssize_t got = 0; (got = ::read(channel[0], buffer, sizeof buffer)) > 0;) {
        reported.append(buffer, static_cast<std::size_t>(got));
    }
    ::close(channel[0]);
    // A line that the kill has cut short was not reported.
    reported.resize(reported.rfind('\n') == std::string::npos ? 0 : reported.rfind('\n'));
    const std::size_t last = reported.rfind('\n');
    return reported.empty()
               ? from - 1
               : std::atoi(reported.c_str() + (last == std::string::npos ? 0 : last + 1));
}

TEST(KillTest, NoAcceptedEventIsLostAndNoFileIsDamaged) {
    std::string pattern =
        (std::filesystem::temp_directory_path() / "kestrova-kill-XXXXXX").string();
    ASSERT_NE(::mkdtemp(pattern.data()), nullptr);
    const std::string folder = pattern + "/";
    PosixFileStore files;
    std::filesystem::create_directory(NoteFolder(files, folder));
    ASSERT_TRUE(files.Replace(DiaryPath(files, folder), WriteDiary(DiaryTable())).Ok());

    const unsigned seed = std::random_device{}();
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 random(seed);
    const SetClock clock;
    DiaryFiles diary(files, clock);
    int accepted = -1;
    for (int kill = 0; kill < kKills; ++kill) {
        accepted = RunAndKill(folder, accepted + 1, static_cast<useconds_t>(random() % 20'000));
        const auto opened = diary.Open(folder, LockKind::Exclusive);
        ASSERT_TRUE(opened.Ok());
        const auto loaded = diary.Read(folder);
        ASSERT_TRUE(loaded.Ok()) << "damaged after kill " << kill;
        std::set<std::string> events;
        const auto notes = diary.NoteNames(folder);
        EachStoredSlot([&](const SlotPlace& place) {
            const DiaryEvent& event = loaded.Value().Table.At(place);
            if (event.IsFree()) {
                EXPECT_FALSE(notes.contains(GetFile(place))) << "a note without its event";
                return;
            }
            const auto note = diary.ReadNote(folder, GetFile(place));
            EXPECT_TRUE(events.insert(event.Msg).second) << event.Msg << " stands there twice";
            EXPECT_EQ(note.Ok() ? note.Value() : "", "note of " + event.Msg);
        });
        // 336 days of ten events hold far more than are saved here, so none has made room yet.
        for (int number = 0; number <= accepted; ++number) {
            EXPECT_TRUE(events.contains("event " + std::to_string(number)))
                << "event " << number << " of " << accepted << " is lost after kill " << kill;
        }
        if (HasFailure()) {
            break;
        }
        // It may have saved one more than it came to report.
        if (events.contains("event " + std::to_string(accepted + 1))) {
            ++accepted;
        }
    }
    (void)diary.Open(folder, LockKind::Exclusive);
    for (const auto& file : std::filesystem::directory_iterator(NoteFolder(files, folder))) {
        const std::string name = file.path().filename().string();
        EXPECT_TRUE(name == "Data.dat" || name == "Data.dat.lock" || IsNoteName(name))
            << name << " was left behind";
    }
    std::filesystem::remove_all(pattern);
}

} // namespace
} // namespace kestrova
