// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Result.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>

namespace kestrova {

// The bytes of what is played. Opened, read and closed by a thread of the player.
class ByteSource {
public:
    virtual ~ByteSource() = default;

    [[nodiscard]] virtual std::int64_t Size() const = 0;
    virtual Status Seek(std::int64_t place) = 0;

    // Fills in `count` bytes at most and says how many; 0 at the end.
    virtual Result<std::size_t> Read(std::byte* into, std::size_t count) = 0;
};

using SourceOpener = std::function<Result<std::unique_ptr<ByteSource>>()>;

} // namespace kestrova
