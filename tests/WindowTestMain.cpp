// SPDX-License-Identifier: GPL-3.0-or-later
#include <QApplication>

#include <gtest/gtest.h>

// Listing the tests happens while the program is being built, on machines that need no screen for
// that: windows exist only when tests run.
int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    if (testing::GTEST_FLAG(list_tests)) {
        return RUN_ALL_TESTS();
    }
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    const QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    return RUN_ALL_TESTS();
}
