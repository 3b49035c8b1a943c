// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/qt/media/SoundServer.h"

#include <pulse/context.h>
#include <pulse/mainloop.h>

#include <memory>

namespace kestrova {

namespace {

struct LoopEnd {
    void operator()(pa_mainloop* loop) const { pa_mainloop_free(loop); }
};

struct ContextEnd {
    void operator()(pa_context* context) const {
        pa_context_disconnect(context);
        pa_context_unref(context);
    }
};

} // namespace

// The server itself is asked, through its library, which knows all the places where it may listen:
// a socket that is there may belong to a server that has crashed, or hangs.
bool SoundServerAnswers(std::chrono::milliseconds limit) {
    using MonotonicClock = std::chrono::steady_clock;
    const auto deadline = MonotonicClock::now() + limit;
    const std::unique_ptr<pa_mainloop, LoopEnd> loop(pa_mainloop_new());
    if (!loop) {
        return false;
    }
    const std::unique_ptr<pa_context, ContextEnd> context(
        pa_context_new(pa_mainloop_get_api(loop.get()), "Kestrova"));
    // Starting a server would hold up the window without bound, and sessions do it themselves.
    if (!context ||
        pa_context_connect(context.get(), nullptr, PA_CONTEXT_NOAUTOSPAWN, nullptr) < 0) {
        return false;
    }
    while (true) {
        const pa_context_state_t state = pa_context_get_state(context.get());
        if (state == PA_CONTEXT_READY) {
            return true;
        }
        const auto left =
            std::chrono::duration_cast<std::chrono::microseconds>(deadline - MonotonicClock::now());
        if (!PA_CONTEXT_IS_GOOD(state) || left.count() <= 0 ||
            pa_mainloop_prepare(loop.get(), static_cast<int>(left.count())) < 0 ||
            pa_mainloop_poll(loop.get()) < 0 || pa_mainloop_dispatch(loop.get()) < 0) {
            return false;
        }
    }
}

} // namespace kestrova
