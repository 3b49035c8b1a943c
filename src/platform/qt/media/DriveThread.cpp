// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/qt/media/DriveThread.h"

#include <deque>
#include <mutex>
#include <thread>

namespace kestrova {

struct DriveThread::Queue {
    std::mutex Guard;
    std::deque<std::function<void()>> Works;
    bool Running = false;

    // The next one; none ends the thread.
    std::function<void()> Next() {
        const std::lock_guard lock(Guard);
        if (Works.empty()) {
            Running = false;
            return {};
        }
        auto work = std::move(Works.front());
        Works.pop_front();
        return work;
    }
};

DriveThread::DriveThread() : queue_(std::make_shared<Queue>()) {}

void DriveThread::Do(std::function<void()> work) {
    const std::lock_guard lock(queue_->Guard);
    queue_->Works.push_back(std::move(work));
    if (!queue_->Running) {
        queue_->Running = true;
        std::thread([queue = queue_] {
            while (const auto next = queue->Next()) {
                next();
            }
        }).detach();
    }
}

} // namespace kestrova
