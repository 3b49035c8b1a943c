// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Notice.h"

#include <QApplication>
#include <QMessageBox>

#include <gtest/gtest.h>

namespace kestrova {
namespace {

QMessageBox* Standing() {
    for (QWidget* const window : QApplication::topLevelWidgets()) {
        if (window->objectName() == QStringLiteral("Notice") && window->isVisible()) {
            return qobject_cast<QMessageBox*>(window);
        }
    }
    return nullptr;
}

TEST(NoticeTest, WhatComesWhileOneStandsIsAddedOnceAndNothingWaits) {
    Notice notice;
    notice.Tell(QStringLiteral("Kestrova Messenger"), QStringLiteral("<b>554</b>"));
    notice.Tell(QStringLiteral("Kestrova Messenger"), QStringLiteral("gone"));
    notice.Tell(QStringLiteral("Kestrova Messenger"), QStringLiteral("gone"));
    ASSERT_NE(Standing(), nullptr);
    EXPECT_EQ(Standing()->text(), QStringLiteral("<b>554</b>\n\ngone"));
    EXPECT_EQ(Standing()->textFormat(), Qt::PlainText);
    EXPECT_FALSE(Standing()->isModal());

    Standing()->accept();
    notice.Tell(QStringLiteral("Kestrova Messenger"), QStringLiteral("later"));
    ASSERT_NE(Standing(), nullptr);
    EXPECT_EQ(Standing()->text(), QStringLiteral("later"));
}

} // namespace
} // namespace kestrova
