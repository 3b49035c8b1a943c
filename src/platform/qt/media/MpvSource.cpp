// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/qt/media/MpvSource.h"

#include <mpv/stream_cb.h>

namespace kestrova {

// Nothing may be thrown through mpv: running out of memory ends the program here as elsewhere.
struct MpvSource::Stream {
    std::shared_ptr<Offered> Origin;
    std::unique_ptr<ByteSource> Bytes;

    static Stream& Of(void* cookie) { return *static_cast<Stream*>(cookie); }

    static int64_t Read(void* cookie, char* into, uint64_t count) noexcept {
        auto& stream = Of(cookie);
        auto* const bytes = reinterpret_cast<std::byte*>(into);
        const auto got = stream.Bytes->Read(bytes, static_cast<std::size_t>(count));
        if (!got) {
            stream.Origin->Note(got.Failure());
            return -1;
        }
        return static_cast<int64_t>(got.Value());
    }
    static int64_t Seek(void* cookie, int64_t place) noexcept {
        auto& stream = Of(cookie);
        if (const auto done = stream.Bytes->Seek(place); !done) {
            stream.Origin->Note(done.Failure());
            return MPV_ERROR_GENERIC;
        }
        return place;
    }
    static int64_t Size(void* cookie) noexcept { return Of(cookie).Bytes->Size(); }
    static void Close(void* cookie) noexcept { delete &Of(cookie); }
};

void MpvSource::Offered::Note(const Error& error) {
    const std::lock_guard lock(Guard);
    if (!Trouble) { // the first is the cause of the others
        Trouble = error;
    }
}

std::string MpvSource::Offer(SourceOpener opener, const std::string& name) {
    const std::lock_guard lock(guard_);
    offered_ = std::make_shared<Offered>();
    offered_->Address = std::string(kMpvProtocol) + "://" + std::to_string(++number_) + "/" + name;
    offered_->Opener = std::move(opener);
    return offered_->Address;
}

std::optional<Error> MpvSource::Trouble() const {
    const std::lock_guard lock(guard_);
    if (!offered_) {
        return std::nullopt;
    }
    const std::lock_guard inner(offered_->Guard);
    return offered_->Trouble;
}

int MpvSource::Open(void* self, char* address, mpv_stream_cb_info* stream) noexcept {
    auto& source = *static_cast<MpvSource*>(self);
    std::shared_ptr<Offered> offered;
    {
        const std::lock_guard lock(source.guard_);
        offered = source.offered_;
    }
    if (!offered || offered->Address != address) {
        return MPV_ERROR_LOADING_FAILED;
    }
    auto bytes = offered->Opener();
    if (!bytes) {
        offered->Note(bytes.Failure());
        return MPV_ERROR_LOADING_FAILED;
    }
    auto opened = std::make_unique<Stream>();
    opened->Origin = std::move(offered);
    opened->Bytes = std::move(bytes.Value());
    stream->cookie = opened.release();
    stream->read_fn = Stream::Read;
    stream->seek_fn = Stream::Seek;
    stream->size_fn = Stream::Size;
    stream->close_fn = Stream::Close;
    return 0;
}

} // namespace kestrova
