// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

#include <atomic>
#include <functional>
#include <utility>

namespace kestrova {

// Rung from any thread, answered on the thread that made it: once for any number of rings before
// the answer, and never after its end. Whoever rings sees to it that he stops before the end.
class Doorbell {
public:
    explicit Doorbell(std::function<void()> answer) : answer_(std::move(answer)) {}

    void Ring() {
        if (!rung_.exchange(true)) {
            QMetaObject::invokeMethod(
                &thread_, [this] { Answer(); }, Qt::QueuedConnection);
        }
    }

private:
    void Answer() {
        rung_ = false;
        answer_();
    }

    QObject thread_; // what is queued for it goes with it
    std::atomic<bool> rung_ = false;
    std::function<void()> answer_;
};

} // namespace kestrova
