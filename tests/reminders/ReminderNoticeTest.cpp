// SPDX-License-Identifier: GPL-3.0-or-later
#include "reminders/ReminderNotice.h"

#include "fakes/FakeNotifier.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace kestrova {
namespace {

struct NoticeScene {
    FakeNotifier Desktop;
    StringTable Texts = MsgDefaults();
    int Shown = 0;
    std::vector<int> Snoozed;
    ReminderNotice Notice{
        Desktop, Texts, {[this] { ++Shown; }, [this](int minutes) { Snoozed.push_back(minutes); }}};
};

TEST(ReminderNoticeTest, OnlyNewLinesMakeANotification) {
    NoticeScene scene;
    scene.Notice.Shown({"09:00    a"});
    scene.Notice.Shown({"09:00    a"});
    EXPECT_EQ(scene.Desktop.Shows, 1);
    scene.Notice.Shown({"09:00    a", "09:01    b"});
    EXPECT_EQ(scene.Desktop.Shows, 2);
    EXPECT_EQ(scene.Desktop.OnShow->Body, "09:00    a\n09:01    b");
    scene.Notice.Shown({"09:01    b"});
    EXPECT_EQ(scene.Desktop.Shows, 2) << "one less is nothing new";
    scene.Notice.Shown({"09:00    a", "09:01    b"});
    EXPECT_EQ(scene.Desktop.Shows, 3) << "one that comes back is";

    scene.Notice.Done();
    EXPECT_FALSE(scene.Desktop.OnShow);
    scene.Notice.Shown({"09:01    b"});
    EXPECT_EQ(scene.Desktop.Shows, 4) << "sent away, and due again";
    scene.Notice.Withdraw();
    EXPECT_FALSE(scene.Desktop.OnShow);
    scene.Notice.Shown({"09:01    b"});
    EXPECT_EQ(scene.Desktop.Shows, 4) << "the day page only stood before it";
}

TEST(ReminderNoticeTest, AnswersAreShowAndSnooze) {
    NoticeScene scene;
    scene.Notice.Shown({"x"});
    for (const NotificationAction& action : scene.Desktop.OnShow->Actions) {
        EXPECT_FALSE(action.Caption.empty());
        scene.Desktop.Choose(action.Key);
    }
    EXPECT_EQ(scene.Shown, 2) << "the button, and the notification itself";
    EXPECT_THAT(scene.Snoozed, testing::ElementsAre(kUsualSnooze));
    scene.Desktop.Choose("nothing of ours");
    EXPECT_EQ(scene.Shown, 2);
}

} // namespace
} // namespace kestrova
