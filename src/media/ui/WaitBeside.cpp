// SPDX-License-Identifier: GPL-3.0-or-later
#include "media/ui/WaitBeside.h"

#include <QAbstractEventDispatcher>
#include <QEventLoop>
#include <QThread>
#include <QTimer>

#include <mutex>
#include <system_error>
#include <thread>

namespace kestrova {

namespace {

struct Waiting {
    std::mutex Guard;
    QAbstractEventDispatcher* Waiter = nullptr; // null when nobody waits any more
    bool Done = false;

    void Tell() {
        const std::lock_guard lock(Guard);
        Done = true;
        if (Waiter != nullptr) {
            Waiter->wakeUp();
        }
    }
    bool IsDone() {
        const std::lock_guard lock(Guard);
        return Done;
    }
    void Leave() {
        const std::lock_guard lock(Guard);
        Waiter = nullptr;
    }
};

} // namespace

bool WaitBeside(std::function<void()> work, std::chrono::milliseconds patience) {
    const auto waiting = std::make_shared<Waiting>();
    waiting->Waiter = QThread::currentThread()->eventDispatcher();
    try {
        std::thread([waiting, work = std::move(work)] {
            work();
            waiting->Tell();
        }).detach();
    } catch (const std::system_error&) {
        return false;
    }
    bool inTime = true;
    QTimer end;
    end.setSingleShot(true);
    QObject::connect(&end, &QTimer::timeout, &end, [&inTime] { inTime = false; });
    end.start(patience);
    // Events are handled without a loop that the end of the program would leave: whoever asked for
    // the work gets its outcome before everything else comes to an end.
    QEventLoop events;
    while (inTime && !waiting->IsDone()) {
        events.processEvents(QEventLoop::ExcludeUserInputEvents | QEventLoop::WaitForMoreEvents);
    }
    waiting->Leave();
    return waiting->IsDone();
}

} // namespace kestrova
