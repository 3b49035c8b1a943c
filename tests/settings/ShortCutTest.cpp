// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/ShortCut.h"

#include "fakes/MemoryFileStore.h"
#include "platform/posix/PosixFileStore.h"
#include "platform/posix/TemporaryFolder.h"
#include "settings/SettingsRules.h"

#include <gtest/gtest.h>

#include <cstdlib>

namespace kestrova {
namespace {

constexpr const char* kEntry = "/k/Kestrova.desktop";
constexpr const char* kStarted = "/home/me/.config/autostart/Kestrova.desktop";

AppSettings StartedAs(int startOnBoot) {
    AppSettings settings;
    settings.StartOnBoot = static_cast<std::int16_t>(startOnBoot);
    return settings;
}

TEST(ShortCutTest, TheEntryIsMadeRenewedCopiedAndRemoved) {
    MemoryFileStore files;
    ShortCut shortCut(files, "/k/", "/home/me/.config/autostart/", "/k/Kestrova");
    ASSERT_TRUE(shortCut.GetShortCut(StartedAs(0)));
    EXPECT_TRUE(files.Content(kEntry));
    EXPECT_FALSE(files.Content(kStarted));

    files.Put(kEntry, "of an older program");
    ASSERT_TRUE(shortCut.GetShortCut(StartedAs(0)));
    EXPECT_EQ(files.Content(kEntry), "of an older program"); // one that is there is enough
    ASSERT_TRUE(shortCut.SetShortCut(StartedAs(kStartsOnBoot)));
    EXPECT_NE(files.Content(kEntry)->find("\nTryExec=/k/Kestrova\nExec=\"/k/Kestrova\"\n"),
              std::string::npos);
    EXPECT_EQ(files.Content(kStarted), files.Content(kEntry));

    ASSERT_TRUE(shortCut.SetShortCut(StartedAs(kStartsOnBoot | kStartsHidden)));
    EXPECT_NE(files.Content(kStarted)->find("\nExec=\"/k/Kestrova\" --hidden\n"),
              std::string::npos);
    ASSERT_TRUE(shortCut.SetShortCut(StartedAs(kStartsHidden)));
    EXPECT_TRUE(files.Content(kEntry));
    EXPECT_FALSE(files.Content(kStarted));

    ASSERT_TRUE(shortCut.SetShortCut(StartedAs(kStartsOnBoot)));
    ASSERT_TRUE(shortCut.Remove());
    EXPECT_EQ(files.Paths(), std::set<std::string>{});
}

TEST(ShortCutTest, WhatCannotBeWrittenIsTold) {
    MemoryFileStore files;
    ShortCut broken(files, "/k/", "/a/", "/k/Kes\ntrova");
    EXPECT_FALSE(broken.SetShortCut(StartedAs(kStartsOnBoot)));
    EXPECT_EQ(files.Paths(), std::set<std::string>{});
    ShortCut full(files, "/k/", "/a/", "/k/Kestrova");
    files.FailWrites(Error{ErrorCode::Full, "disc full"});
    EXPECT_EQ(full.SetShortCut(StartedAs(kStartsOnBoot)).Failure().Text, "disc full");
}

// The judge is the desktop's own, for paths as people have them.
TEST(ShortCutTest, TheDesktopTakesTheEntry) {
    if (std::system("command -v desktop-file-validate >/dev/null") != 0) {
        GTEST_SKIP() << "desktop-file-validate is not installed";
    }
    const TemporaryFolder folder;
    for (const char* const path : {"/opt/kestrova/Kestrova", "/home/Zoë Müller/50% $off/Kestrova",
                                   "/home/a\"b`c\\d/Kestrova"}) {
        SCOPED_TRACE(path);
        PosixFileStore files;
        ShortCut shortCut(files, folder.Path(), folder.Path() + "autostart/", path);
        ASSERT_TRUE(shortCut.SetShortCut(StartedAs(kStartsOnBoot | kStartsHidden)));
        const std::string judge =
            "desktop-file-validate '" + folder.Path() + "autostart/Kestrova.desktop'";
        EXPECT_EQ(std::system(judge.c_str()), 0);
    }
}

} // namespace
} // namespace kestrova
