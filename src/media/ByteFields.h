// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace kestrova {

// Little-endian numbers taken one after another from bytes that nobody vouches for. Where the bytes
// end too early every number is 0, and Ok says so from then on.
class ByteFields {
public:
    explicit ByteFields(std::string_view bytes) : bytes_(bytes) {}

    [[nodiscard]] bool Ok() const { return ok_; }
    [[nodiscard]] std::size_t Left() const { return bytes_.size(); }

    int Byte() { return static_cast<int>(Number(1)); }
    int Int16() { return static_cast<std::int16_t>(Number(2)); }
    unsigned UInt16() { return Number(2); }
    std::int32_t Int32() { return static_cast<std::int32_t>(Number(4)); }
    std::uint32_t UInt32() { return Number(4); }

    // So many bytes as they stand; none when there are fewer.
    std::string_view Bytes(std::size_t count) {
        if (count > bytes_.size()) {
            ok_ = false;
            bytes_ = {};
            return {};
        }
        const std::string_view taken = bytes_.substr(0, count);
        bytes_.remove_prefix(count);
        return taken;
    }
    std::string_view Rest() { return Bytes(bytes_.size()); }

private:
    std::uint32_t Number(std::size_t size) {
        std::uint32_t value = 0;
        unsigned shift = 0;
        for (const char byte : Bytes(size)) {
            value |= static_cast<std::uint32_t>(static_cast<unsigned char>(byte)) << shift;
            shift += 8;
        }
        return value;
    }

    std::string_view bytes_;
    bool ok_ = true;
};

} // namespace kestrova
