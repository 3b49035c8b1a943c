// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <csignal>
#include <functional>
#include <sys/wait.h>
#include <unistd.h>

namespace kestrova {

// A second program, forked from the test. It ends with what its work returns, or when the test is
// done with it; after some seconds at the latest, so that nothing hangs for good.
class OtherProcess {
public:
    explicit OtherProcess(const std::function<int()>& work) : id_(::fork()) {
        if (id_ == 0) {
            constexpr unsigned kLongestSeconds = 10;
            ::alarm(kLongestSeconds);
            ::_exit(work());
        }
    }
    ~OtherProcess() { Kill(); }
    OtherProcess(const OtherProcess&) = delete;
    OtherProcess& operator=(const OtherProcess&) = delete;

    // What the work has returned; -1 when it was ended by a signal.
    int Wait() {
        int state = 0;
        if (id_ <= 0 || ::waitpid(id_, &state, 0) != id_) {
            return -1;
        }
        id_ = -1;
        return WIFEXITED(state) ? WEXITSTATUS(state) : -1;
    }

    void Kill() {
        if (id_ > 0) {
            ::kill(id_, SIGKILL);
            (void)Wait();
        }
    }

private:
    pid_t id_;
};

// By which one process lets another know how far it is.
class Signpost {
public:
    Signpost() { ready_ = ::pipe(ends_) == 0; }
    ~Signpost() {
        ::close(ends_[0]);
        ::close(ends_[1]);
    }
    Signpost(const Signpost&) = delete;
    Signpost& operator=(const Signpost&) = delete;

    void Set() { (void)!::write(ends_[1], "x", 1); }

    // Waits until it is set; false when that cannot be.
    bool Await() {
        char byte = 0;
        return ready_ && ::read(ends_[0], &byte, 1) == 1;
    }

private:
    int ends_[2] = {-1, -1};
    bool ready_ = false;
};

} // namespace kestrova
