// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/qt/QtInstanceLink.h"

#include "platform/qt/QtText.h"

#include <QLocalSocket>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

namespace kestrova {
namespace {

// The newcomer waits for the first program, so it must be another thread.
InstanceRole JoinElsewhere(const std::string& folder) {
    auto role = InstanceRole::Alone;
    std::unique_ptr<QThread> thread(QThread::create([&] {
        QtInstanceLink link(folder);
        role = link.Join();
    }));
    thread->start();
    EXPECT_TRUE(QTest::qWaitFor([&] { return thread->isFinished(); }, 8000));
    return role;
}

TEST(QtInstanceLinkTest, ANewcomerIsHeardAlsoBeforeAnyoneListens) {
    const QTemporaryDir folder;
    const std::string path = FromQt(folder.path());
    QtInstanceLink first(path);
    ASSERT_EQ(first.Join(), InstanceRole::First);
    EXPECT_EQ(JoinElsewhere(path), InstanceRole::Newcomer);
    int pokes = 0;
    first.OnPoke([&](std::string_view text) { pokes += text == kInstancePoke ? 1 : 0; });
    EXPECT_TRUE(QTest::qWaitFor([&] { return pokes == 1; }));
    EXPECT_EQ(JoinElsewhere(path), InstanceRole::Newcomer);
    EXPECT_TRUE(QTest::qWaitFor([&] { return pokes == 2; }));
}

TEST(QtInstanceLinkTest, TheNextIsFirstWhenTheFirstHasGone) {
    const QTemporaryDir folder;
    const std::string path = FromQt(folder.path());
    { // ends in order
        QtInstanceLink first(path);
        ASSERT_EQ(first.Join(), InstanceRole::First);
    }
    EXPECT_EQ(JoinElsewhere(path), InstanceRole::First);
}

TEST(QtInstanceLinkTest, AFolderThatOthersCanEnterIsNotUsed) {
    const QTemporaryDir folder;
    std::filesystem::permissions(FromQt(folder.path()), std::filesystem::perms::all);
    QtInstanceLink link(FromQt(folder.path()));
    EXPECT_EQ(link.Join(), InstanceRole::Alone);
}

} // namespace
} // namespace kestrova
