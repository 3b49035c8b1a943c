// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/qt/MediaModule.h"

#include <QColor>
#include <QTemporaryDir>
#include <QTest>

#include <memory>
#include <string>
#include <vector>

namespace kestrova {

constexpr int kLongestWait = 30000; // milliseconds; a machine may be busy

template<typename Condition> [[nodiscard]] bool WaitFor(const Condition& condition) {
    return QTest::qWaitFor(condition, kLongestWait);
}

// A player out of the real module, and what it has told.
class WatchedPlayer {
public:
    explicit WatchedPlayer(MediaKind kind) : pixels_(std::size_t{kWidth} * kHeight * 4) {
        MediaPlayer::Events events;
        events.Ended = [this](MediaEnd end, const std::string& words) {
            Ends.push_back(end);
            Words = words;
        };
        events.FrameReady = [this] { ++Frames; };
        events.Moved = [this] { ++Moves; };
        Player = module_.MakePlayer(kind, std::move(events));
    }

    MediaPlayer* operator->() const { return Player.get(); }
    [[nodiscard]] bool WaitForEnd() const {
        return WaitFor([this] { return !Ends.empty(); });
    }

    // The picture in a field of its own size.
    bool Draw() {
        return Player->Render({pixels_.data(), kWidth, kHeight, std::ptrdiff_t{kWidth} * 4});
    }
    [[nodiscard]] QColor ColourAt(int x, int y) const {
        const auto* const pixel =
            &pixels_[(static_cast<std::size_t>(y) * kWidth + static_cast<std::size_t>(x)) * 4];
        return {static_cast<int>(pixel[2]), static_cast<int>(pixel[1]), static_cast<int>(pixel[0])};
    }

    static constexpr int kWidth = 320;
    static constexpr int kHeight = 320;

    std::unique_ptr<MediaPlayer> Player;
    std::vector<MediaEnd> Ends;
    std::string Words;
    int Frames = 0;
    int Moves = 0;

private:
    MediaModule module_{KESTROVA_MEDIA};
    std::vector<std::byte> pixels_;
};

} // namespace kestrova
