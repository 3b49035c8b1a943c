// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/qt/media/ByteSource.h"

#include <memory>
#include <mutex>
#include <optional>
#include <string>

struct mpv_stream_cb_info;

namespace kestrova {

inline constexpr const char* kMpvProtocol = "kestrova";

// The source that is on offer to mpv, which opens it from threads of its own, perhaps late.
class MpvSource {
public:
    std::string Offer(SourceOpener opener, const std::string& name);
    [[nodiscard]] std::optional<Error> Trouble() const;

    // Called by mpv to open an address; `self` is a MpvSource.
    static int Open(void* self, char* address, mpv_stream_cb_info* stream) noexcept;

private:
    // Shared with the streams that are open, so that one that mpv closes late writes its trouble
    // where nobody looks any more.
    struct Offered {
        std::string Address;
        SourceOpener Opener;
        mutable std::mutex Guard;
        std::optional<Error> Trouble;

        void Note(const Error& error);
    };
    struct Stream;

    mutable std::mutex guard_;
    std::shared_ptr<Offered> offered_;
    int number_ = 0;
};

} // namespace kestrova
