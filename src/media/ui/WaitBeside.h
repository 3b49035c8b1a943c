// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <utility>

namespace kestrova {

// How long a piece of work that reads or writes a picture may keep the user waiting.
inline constexpr std::chrono::milliseconds kPicturePatience{60'000};

// Does a piece of work in a thread of its own, while windows are painted and timers run, but the
// user's clicks and keys wait until it is done. False when it was not done in time, or there was no
// thread for it; it may still go on then, so it must own everything that it needs.
[[nodiscard]] bool WaitBeside(std::function<void()> work,
                              std::chrono::milliseconds patience = kPicturePatience);

// The same for a piece of work that has an outcome.
template<typename Work>
[[nodiscard]] auto OutcomeBeside(Work work, std::chrono::milliseconds patience = kPicturePatience)
    -> std::optional<decltype(work())> {
    // Shared with the thread, which may come to its end when nobody waits any more.
    auto outcome = std::make_shared<std::optional<decltype(work())>>();
    const bool done = WaitBeside(
        [outcome, work = std::move(work)]() mutable { outcome->emplace(work()); }, patience);
    return done ? std::move(*outcome) : std::nullopt;
}

} // namespace kestrova
