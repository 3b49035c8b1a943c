// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/qt/QtEventLoop.h"

#include <QEventLoop>
#include <QTimer>

namespace kestrova {

namespace {

// How often a predicate is asked that no event announces.
constexpr int kAskEvery = 20; // milliseconds

} // namespace

bool QtEventLoop::WaitUntil(const std::function<bool()>& predicate,
                            std::chrono::milliseconds limit) {
    if (predicate()) {
        return true;
    }
    QEventLoop loop;
    QTimer ask;
    bool holds = false;
    QObject::connect(&ask, &QTimer::timeout, &loop, [&] {
        holds = holds || predicate(); // what has held once may not hold any more before we are back
        if (holds) {
            loop.quit();
        }
    });
    ask.start(kAskEvery);
    QTimer::singleShot(limit, &loop, &QEventLoop::quit);
    loop.exec();
    return holds || predicate();
}

} // namespace kestrova
