// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <memory>

namespace kestrova {

// Does what may wait for a drive, one thing after another, in a thread of its own, which runs only
// while there is something to do. What a drive still holds up at the end is left to it: that thread
// may not touch anything of whoever asked.
class DriveThread {
public:
    DriveThread();

    void Do(std::function<void()> work);

private:
    struct Queue;
    std::shared_ptr<Queue> queue_;
};

} // namespace kestrova
