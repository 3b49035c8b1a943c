// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/qt/media/ByteSource.h"

#include <algorithm>
#include <cstring>
#include <string>
#include <utility>

namespace kestrova {

// Bytes that are in memory already. Shared with whoever opens them, perhaps late.
class MemoryBytes : public ByteSource {
public:
    [[nodiscard]] static Result<std::unique_ptr<ByteSource>>
    Open(std::shared_ptr<const std::string> bytes) {
        return std::unique_ptr<ByteSource>(new MemoryBytes(std::move(bytes)));
    }

    [[nodiscard]] std::int64_t Size() const override {
        return static_cast<std::int64_t>(bytes_->size());
    }

    Status Seek(std::int64_t place) override {
        if (place < 0 || place > Size()) {
            return Error{ErrorCode::Failed, {}};
        }
        place_ = static_cast<std::size_t>(place);
        return Done{};
    }

    Result<std::size_t> Read(std::byte* into, std::size_t count) override {
        const std::size_t taken = std::min(count, bytes_->size() - place_);
        std::memcpy(into, bytes_->data() + place_, taken);
        place_ += taken;
        return taken;
    }

private:
    explicit MemoryBytes(std::shared_ptr<const std::string> bytes) : bytes_(std::move(bytes)) {}

    std::shared_ptr<const std::string> bytes_;
    std::size_t place_ = 0;
};

} // namespace kestrova
