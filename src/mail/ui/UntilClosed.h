// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QApplication>
#include <QEvent>
#include <QEventLoop>
#include <QWidget>
#include <QWindow>

namespace kestrova {

// Handles events until a window that is shown has been hidden, or the program ends. The window
// stands over the one that the user was at.
inline void WaitUntilClosed(QWidget& window) {
    class Watch : public QObject {
    public:
        explicit Watch(QEventLoop& loop) : loop_(loop) {}
        bool eventFilter(QObject* /*watched*/, QEvent* event) override {
            // A window that is minimised is hidden, too, but not by us.
            if (event->type() == QEvent::Hide && !event->spontaneous()) {
                loop_.quit();
            }
            return false;
        }

    private:
        QEventLoop& loop_;
    };
    QEventLoop loop;
    Watch watch(loop);
    window.installEventFilter(&watch);
    if (window.isVisible()) {
        loop.exec();
    }
    window.removeEventFilter(&watch);
}

// Puts a window over the one that the user is at, for as long as it is shown.
inline void StandOver(QWidget& window, const QWidget* under) {
    window.winId(); // a window of the screen's, whose place can be told
    if (window.windowHandle() != nullptr && under != &window) {
        window.windowHandle()->setTransientParent(under == nullptr ? nullptr
                                                                   : under->windowHandle());
    }
}

} // namespace kestrova
