// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <functional>
#include <string>

namespace kestrova {

enum class MediaKind {
    Sound, // what a file holds of pictures is not even decoded
    Video
};

enum class MediaEnd {
    Finished, // played to its end, or to where a file that was cut off breaks off
    Failed    // cannot be opened, or nothing in it can be played
};

// Where the pixels of a video picture go: rows from the top, four bytes a pixel (blue, green, red,
// one unused).
struct PixelRows {
    std::byte* Pixels = nullptr;
    int Width = 0; // pixels
    int Height = 0;
    std::ptrdiff_t RowBytes = 0;
};

// One file playing. No call waits for the file; what it sets going is told through the events,
// which come on the window's thread and never from within a call.
class MediaPlayer {
public:
    struct Events {
        // The file has ended by itself. `words` say why it failed, for the user.
        std::function<void(MediaEnd end, const std::string& words)> Ended;
        std::function<void()> FrameReady; // Render has a new picture to give
        std::function<void()> Moved; // position, length or pause have changed; a few times a second
    };

    virtual ~MediaPlayer() = default;

    // Begins a file; one that is playing is ended first, without an event.
    virtual void Play(const std::string& path) = 0;

    // The same with the bytes of a wave file that is on no disc.
    virtual void PlayBytes(std::string wave) = 0;

    // Ends the file without an event. It is silent when this returns.
    virtual void Stop() = 0;

    [[nodiscard]] virtual bool IsPlaying() const = 0; // a paused file is one that plays
    virtual void SetPaused(bool paused) = 0;
    [[nodiscard]] virtual bool IsPaused() const = 0;

    // Moves by seconds, forward or (negative) back, not beyond the ends.
    virtual void Seek(double seconds) = 0;

    // Moves to a place, in seconds from the beginning.
    virtual void SeekTo(double seconds) = 0;

    // Shows the next picture and pauses there.
    virtual void StepFrame() = 0;

    // Whether the file begins anew at its end; Ended does not come then.
    virtual void SetRepeat(bool repeat) = 0;

    [[nodiscard]] virtual double Position() const = 0; // seconds
    [[nodiscard]] virtual double Duration() const = 0; // seconds; 0 while it is not known

    // Draws the present picture as large as it fits, its shape kept, black around it. False when
    // there is none.
    virtual bool Render(const PixelRows& target) = 0;
};

} // namespace kestrova
