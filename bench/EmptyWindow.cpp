// SPDX-License-Identifier: GPL-3.0-or-later
#include <QApplication>
#include <QWidget>

// The least that a window takes: what start-up and idling of the program are measured against.
int main(int argc, char* argv[]) {
    const QApplication application(argc, argv);
    QWidget window;
    window.setWindowTitle(QStringLiteral("Empty window"));
    window.resize(1080, 640); // as large as the program's first window
    window.show();
    return QApplication::exec();
}
