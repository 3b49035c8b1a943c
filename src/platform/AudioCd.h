// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Result.h"

#include <functional>

namespace kestrova {

enum class CdState {
    Closed,
    Opening, // the drive is asked; commands given meanwhile are carried out when it is ready
    Stopped,
    Playing,
    Paused
};

struct CdPosition {
    int Track = 0;   // from 1; 0 while there is none
    int Minutes = 0; // within the track
    int Seconds = 0;

    bool operator==(const CdPosition&) const = default;
};

// A player of audio discs: a drive, or the image of a disc. A drive may take seconds to answer, so
// every call returns at once and the events tell, on the window's thread.
class AudioCd {
public:
    struct Events {
        std::function<void()> Status;             // once a second while it plays, and at a change
        std::function<void(const Error&)> Failed; // no disc, no audio tracks, disc taken out: it is
                                                  // closed then. A tray that will not open, too.
    };

    virtual ~AudioCd() = default;

    // Reads the table of the disc that lies in the drive. Nothing happens to one that is open.
    virtual void Open() = 0;

    // Silent, and the drive free for others, when this returns.
    virtual void Close() = 0;

    virtual void Prev() = 0;  // the track before; the beginning of this one when it has played 3 s
    virtual void Next() = 0;  // nothing when there is none
    virtual void Play() = 0;  // goes on where it was paused
    virtual void Pause() = 0; // and on again
    virtual void Stop() = 0;  // back to the beginning of the first track, as at the disc's end
    virtual void Eject() = 0; // closes, then opens the tray

    [[nodiscard]] virtual CdState State() const = 0;
    [[nodiscard]] virtual CdPosition Position() const = 0;
    [[nodiscard]] virtual int Tracks() const = 0; // audio tracks; 0 while closed
};

} // namespace kestrova
