// SPDX-License-Identifier: GPL-3.0-or-later
#include "diary/FolderProbe.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <future>
#include <mutex>
#include <thread>

namespace kestrova {
namespace {

using testing::ElementsAre;
using namespace std::chrono_literals;
using Moment = std::chrono::steady_clock;

constexpr auto kLong = 20s;

// A server that hangs until it is let go.
struct HangingServer {
    std::mutex Guard;
    std::vector<std::string> Asked;
    std::promise<void> LetGo;
    std::shared_future<void> Gone = LetGo.get_future().share();

    // Shared with the threads that ask, which outlive a test.
    static FolderProbe::Look Look(const std::shared_ptr<HangingServer>& server) {
        return [server](const std::string& folder) {
            {
                const std::lock_guard lock(server->Guard);
                server->Asked.push_back(folder);
            }
            if (folder.starts_with("/hung")) {
                server->Gone.wait();
            }
            return folder != "/none/";
        };
    }

    std::size_t Questions() {
        const std::lock_guard lock(Guard);
        return Asked.size();
    }
};

TEST(FolderProbeTest, AFolderSaysWhetherItIsThereAndTheOwnOneIsNotAsked) {
    const auto server = std::make_shared<HangingServer>();
    FolderProbe probe("/hung own/", HangingServer::Look(server), kLong);
    EXPECT_TRUE(probe.Answers("/net/bob/"));
    EXPECT_FALSE(probe.Answers("/none/"));
    EXPECT_TRUE(probe.Answers("/hung own/"));
    EXPECT_TRUE(probe.IsOwn("/hung own/"));
    EXPECT_EQ(server->Questions(), 2U);
}

TEST(FolderProbeTest, AHungFolderIsWaitedForOnceAndAskedAgainWhenItHasAnswered) {
    const auto server = std::make_shared<HangingServer>();
    FolderProbe probe("/own/", HangingServer::Look(server), 50ms);
    const auto begin = Moment::now();
    EXPECT_FALSE(probe.Answers("/hung/"));
    EXPECT_GE(Moment::now() - begin, 50ms);
    for (int i = 0; i < 100; ++i) {
        EXPECT_FALSE(probe.Answers("/hung/"));
    }
    EXPECT_LT(Moment::now() - begin, kLong) << "a hundred waits would be five seconds";
    EXPECT_EQ(server->Questions(), 1U) << "a question that waits is not put again";
    server->LetGo.set_value();
    while (!probe.Answers("/hung/") && Moment::now() - begin < kLong) {
    }
    EXPECT_TRUE(probe.Answers("/hung/"));
}

TEST(FolderProbeTest, ManyHungFoldersTakeNoLongerThanOne) {
    const auto server = std::make_shared<HangingServer>();
    FolderProbe probe("/own/", HangingServer::Look(server), 200ms);
    std::vector<std::string> folders{"/net/bob/", "/own/", "/net/bob/"};
    for (int i = 0; i < 100; ++i) {
        folders.push_back("/hung/" + std::to_string(i) + "/");
    }
    const auto begin = Moment::now();
    EXPECT_THAT(probe.Answering(folders), ElementsAre("/net/bob/", "/own/"));
    EXPECT_LT(Moment::now() - begin, 1s) << "one after the other would be twenty";
    server->LetGo.set_value();
}

TEST(FolderProbeTest, AQuestionMayOutliveTheProbe) {
    const auto server = std::make_shared<HangingServer>();
    {
        FolderProbe probe("/own/", HangingServer::Look(server), 1ms);
        EXPECT_FALSE(probe.Answers("/hung/"));
    }
    server->LetGo.set_value();
    // The thread that asks holds the server until the look at it has returned.
    const auto begin = Moment::now();
    while (server.use_count() > 1 && Moment::now() - begin < kLong) {
        std::this_thread::yield();
    }
    EXPECT_EQ(server.use_count(), 1);
}

} // namespace
} // namespace kestrova
