// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <initializer_list>
#include <string>

namespace kestrova {

inline std::string Words(std::initializer_list<int> values) {
    std::string bytes;
    for (const int value : values) {
        bytes += static_cast<char>(value & 0xFF);
        bytes += static_cast<char>(value >> 8 & 0xFF);
    }
    return bytes;
}

inline std::string Longs(std::initializer_list<std::uint32_t> values) {
    std::string bytes;
    for (const std::uint32_t value : values) {
        bytes += Words({static_cast<int>(value & 0xFFFFU), static_cast<int>(value >> 16U)});
    }
    return bytes;
}

// A Windows metafile, put together order by order.
class WmfBytes {
public:
    WmfBytes& Add(int function, const std::string& fields) {
        records_ += Longs({static_cast<std::uint32_t>(fields.size() / 2 + 3)});
        records_ += Words({function}) + fields;
        return *this;
    }
    WmfBytes& Window(int width, int height) {
        return Add(0x020B, Words({0, 0})).Add(0x020C, Words({height, width}));
    }
    // Makes a brush of this colour (0xBBGGRR), the so-many-th object, and takes it up.
    WmfBytes& Brush(int object, std::uint32_t colour) {
        return Add(0x02FC, Words({0}) + Longs({colour}) + Words({0})).Add(0x012D, Words({object}));
    }
    WmfBytes& NoPen(int object) {
        return Add(0x02FA, Words({5, 0, 0}) + Longs({0})).Add(0x012D, Words({object}));
    }
    WmfBytes& Box(int left, int top, int right, int bottom) {
        return Add(0x041B, Words({bottom, right, top, left}));
    }

    [[nodiscard]] std::string Plain() const {
        return Words({1, 9, 0x0300}) + Longs({0}) + Words({16}) + Longs({0}) + Words({0}) +
               records_ + Longs({3}) + Words({0});
    }
    [[nodiscard]] std::string Placeable(int width, int height, int unitsPerInch) const {
        return Longs({0x9AC6CDD7}) + Words({0, 0, 0, width, height, unitsPerInch, 0, 0, 0}) +
               Plain();
    }

private:
    std::string records_;
};

// A bitmap within a drawing: 24 bits, rows from the bottom up, colours as 0xRRGGBB.
inline std::string DibOf(int width, int height, std::initializer_list<std::uint32_t> fromBottom) {
    std::string bytes =
        Longs({40, static_cast<std::uint32_t>(width), static_cast<std::uint32_t>(height),
               1U | 24U << 16U, 0, 0, 0, 0, 0, 0});
    int column = 0;
    for (const std::uint32_t colour : fromBottom) {
        for (const unsigned shift : {0U, 8U, 16U}) {
            bytes += static_cast<char>(colour >> shift & 0xFFU);
        }
        if (++column == width) {
            bytes.append(static_cast<std::size_t>(width % 4), '\0');
            column = 0;
        }
    }
    return bytes;
}

} // namespace kestrova
