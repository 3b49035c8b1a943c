// SPDX-License-Identifier: GPL-3.0-or-later
// Starts a program and measures, from outside, how long it takes until its window shows something:
// from before the process is made until the X server reports the first drawing into a mapped window
// of some size. Prints two numbers in milliseconds: the first drawing, and the last one before the
// window has been still for a while. Then ends the program.
//
//   FirstPaint PROGRAM [ARGUMENT...]
//
// Meant for a virtual display that nothing else draws on, without a window manager.
#include <X11/Xlib.h>
#include <X11/extensions/Xdamage.h>

#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <optional>
#include <poll.h>
#include <set>
#include <spawn.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace {

using namespace std::chrono_literals;
using Moment = std::chrono::steady_clock::time_point;

constexpr int kLeastWidth = 200; // below that it is no main window
constexpr int kLeastHeight = 150;
constexpr auto kStill = 300ms;
constexpr auto kLongestWait = 30s;

Moment Now() {
    return std::chrono::steady_clock::now();
}

// A window may be gone before a request about it arrives, which is no error of ours.
int IgnoreError(Display* /*display*/, XErrorEvent* /*error*/) {
    return 0;
}

class PaintWatch {
public:
    explicit PaintWatch(Display* display) : display_(display) {
        int errorBase = 0;
        if (XDamageQueryExtension(display_, &damageBase_, &errorBase) == 0) {
            std::fprintf(stderr, "the display has no damage extension\n");
            std::exit(1);
        }
        XSetErrorHandler(IgnoreError);
        XSelectInput(display_, DefaultRootWindow(display_), SubstructureNotifyMask);
        XSync(display_, False);
    }

    // Watches until a window has been painted and is still, or the time is up.
    void Watch() {
        const Moment end = Now() + kLongestWait;
        while (Now() < end && !(last_ && Now() - *last_ > kStill)) {
            while (XPending(display_) > 0) {
                XEvent event;
                XNextEvent(display_, &event);
                Handle(event);
            }
            pollfd readable{ConnectionNumber(display_), POLLIN, 0};
            ::poll(&readable, 1, 5);
        }
    }

    [[nodiscard]] std::optional<Moment> First() const { return first_; }
    [[nodiscard]] std::optional<Moment> Last() const { return last_; }

private:
    void Handle(const XEvent& event) {
        if (event.type == CreateNotify && event.xcreatewindow.override_redirect == False) {
            XDamageCreate(display_, event.xcreatewindow.window, XDamageReportRawRectangles);
            XFlush(display_);
        } else if (event.type == MapNotify) {
            mapped_.insert(event.xmap.window);
        } else if (event.type == damageBase_ + XDamageNotify) {
            const auto& damage = reinterpret_cast<const XDamageNotifyEvent&>(event);
            const bool large =
                damage.geometry.width >= kLeastWidth && damage.geometry.height >= kLeastHeight;
            if (large && mapped_.count(damage.drawable) > 0) {
                last_ = Now();
                first_ = first_.value_or(*last_);
            }
        }
    }

    Display* display_;
    int damageBase_ = 0;
    std::set<Window> mapped_;
    std::optional<Moment> first_;
    std::optional<Moment> last_;
};

void End(pid_t program) {
    ::kill(program, SIGTERM);
    for (int i = 0; i < 100; ++i) {
        if (::waitpid(program, nullptr, WNOHANG) == program) {
            return;
        }
        std::this_thread::sleep_for(20ms);
    }
    ::kill(program, SIGKILL);
    ::waitpid(program, nullptr, 0);
}

double Milliseconds(Moment from, Moment to) {
    return std::chrono::duration<double, std::milli>(to - from).count();
}

} // namespace

int main(int argc, char* argv[]) {
    if (argc < 2) {
        std::fprintf(stderr, "usage: FirstPaint PROGRAM [ARGUMENT...]\n");
        return 2;
    }
    Display* const display = XOpenDisplay(nullptr);
    if (display == nullptr) {
        std::fprintf(stderr, "there is no display\n");
        return 1;
    }
    PaintWatch watch(display);
    const Moment start = Now();
    pid_t program = 0;
    if (::posix_spawn(&program, argv[1], nullptr, nullptr, argv + 1, environ) != 0) {
        std::perror(argv[1]);
        return 1;
    }
    watch.Watch();
    End(program);
    if (!watch.First()) {
        std::fprintf(stderr, "%s has painted no window\n", argv[1]);
        return 1;
    }
    std::printf("%.1f %.1f\n", Milliseconds(start, *watch.First()),
                Milliseconds(start, *watch.Last()));
    return 0;
}
