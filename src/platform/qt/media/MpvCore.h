// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/qt/media/ByteSource.h"

#include <chrono>
#include <memory>
#include <optional>
#include <string>

struct mpv_event;
struct mpv_handle;
struct mpv_render_context;

namespace kestrova {

enum class MpvContent {
    Sound,
    Video,
    Samples // no file format around them: 16 bits, stereo, 44,100 a second, as on an audio disc
};

// One libmpv, set up to play what we hand it and nothing else: it is given bytes, never a name, so
// that no path out of a diary and no text that calls itself a film makes it open anything.
class MpvCore {
public:
    using Wake = void (*)(void* context); // from any thread; must only pass it on

    // Null when libmpv does not start.
    [[nodiscard]] static std::unique_ptr<MpvCore> Make(MpvContent content, Wake wake,
                                                       void* context);

    // Ends what plays. A core that no longer answers is left to end in a thread of its own.
    ~MpvCore();
    MpvCore(const MpvCore&) = delete;
    MpvCore& operator=(const MpvCore&) = delete;

    [[nodiscard]] mpv_handle* Handle() const;
    [[nodiscard]] mpv_render_context* Renderer() const; // null unless it shows videos

    // The address under which mpv finds the source; what was offered before is found no more. The
    // name is a hint at the file's format.
    [[nodiscard]] std::string Offer(SourceOpener opener, const std::string& name);

    // What went wrong while the source last offered was opened or read.
    [[nodiscard]] std::optional<Error> SourceTrouble() const;

    // Ends the file and waits until it is silent. Swallows all events up to there. False when the
    // core does not answer in time, as when the sound server hangs; it is of no use any more then.
    [[nodiscard]] bool Stop();

    // Keeps count of whether a file is under way. For every event that is taken from the handle.
    void Note(const mpv_event& event);

private:
    struct Parts;
    explicit MpvCore(std::unique_ptr<Parts> parts);

    std::unique_ptr<Parts> parts_; // apart, so that a thread can take them over
    bool inFile_ = false;
    bool answers_ = true;
};

} // namespace kestrova
