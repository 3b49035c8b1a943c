// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/qt/QtEventLoop.h"

#include <QTimer>

#include <gtest/gtest.h>

namespace kestrova {
namespace {

using namespace std::chrono_literals;

TEST(QtEventLoopTest, WhatHasHeldWhileSomebodyElseWaitedHasHeld) {
    QTimer::singleShot(0, [] { (void)QtEventLoop().WaitUntil([] { return false; }, 200ms); });
    int asked = 0;
    EXPECT_TRUE(QtEventLoop().WaitUntil([&asked] { return ++asked == 3; }, 10s));
    EXPECT_FALSE(QtEventLoop().WaitUntil([] { return false; }, 30ms));
}

} // namespace
} // namespace kestrova
