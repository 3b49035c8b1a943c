// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/qt/SignalWatch.h"

#include <QSocketNotifier>

#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace kestrova {

namespace {

constexpr int kSignals[] = {SIGTERM, SIGHUP, SIGINT};

// A signal handler may do next to nothing; writing a byte into a pipe is among what it may.
int signalPipe[2] = {-1, -1};

void OnSignal(int /*number*/) {
    const char byte = 0;
    // A full pipe has been told already.
    [[maybe_unused]] const ssize_t written = ::write(signalPipe[1], &byte, 1);
}

} // namespace

SignalWatch::SignalWatch(std::function<void()> onEnd) {
    if (::pipe2(signalPipe, O_CLOEXEC | O_NONBLOCK) != 0) {
        return; // the signals then end the program as they do any other
    }
    notifier_ = std::make_unique<QSocketNotifier>(signalPipe[0], QSocketNotifier::Read);
    QObject::connect(notifier_.get(), &QSocketNotifier::activated, notifier_.get(),
                     [onEnd = std::move(onEnd)] {
                         char byte = 0;
                         while (::read(signalPipe[0], &byte, 1) > 0) {
                         }
                         onEnd();
                     });
    struct sigaction action {};
    action.sa_handler = OnSignal;
    action.sa_flags = SA_RESTART;
    for (const int number : kSignals) {
        struct sigaction before {};
        ::sigaction(number, nullptr, &before);
        if (before.sa_handler != SIG_IGN) { // nohup, say, has its reasons
            ::sigaction(number, &action, nullptr);
        }
    }
}

SignalWatch::~SignalWatch() {
    if (!notifier_) {
        return;
    }
    for (const int number : kSignals) {
        ::signal(number, SIG_DFL);
    }
    notifier_.reset();
    ::close(signalPipe[0]);
    ::close(signalPipe[1]);
}

} // namespace kestrova
