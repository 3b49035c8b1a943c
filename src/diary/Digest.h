// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string_view>

namespace kestrova {

// A 64-bit FNV-1a digest: tells a file's bytes from other bytes. No protection against forgery.
[[nodiscard]] constexpr std::uint64_t Digest(std::string_view bytes) {
    std::uint64_t digest = 0xCBF29CE484222325U;
    for (const char c : bytes) {
        digest ^= static_cast<unsigned char>(c);
        digest *= 0x100000001B3U;
    }
    return digest;
}

} // namespace kestrova
