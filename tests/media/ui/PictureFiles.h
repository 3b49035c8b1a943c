// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "media/WmfBytes.h"

#include <QBuffer>
#include <QImage>

#include <string>

namespace kestrova {

// Pictures as other programs write them. Those of two colours are red on the left and blue on the
// right.

inline std::string Written(const QImage& image, const char* format, int quality = 95) {
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, format, quality);
    return buffer.data().toStdString();
}

inline QImage RedAndBlue(int width, int height) {
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(Qt::blue);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width / 2; ++x) {
            image.setPixelColor(x, y, Qt::red);
        }
    }
    return image;
}

// A bitmap of one row of two pixels.
inline std::string BitmapOf(int bits) {
    const std::string palette = Longs({0x0000FF, 0xFF0000});
    std::string colours;
    std::string row;
    switch (bits) {
    case 1: colours = palette, row = Longs({0x80}); break;
    case 4: colours = palette, row = Longs({0x10}); break;
    case 8: colours = palette, row = Longs({0x0001}); break;
    case 24: row = std::string("\0\0\xFF\xFF\0\0\0\0", 8); break;
    default: row = Longs({0x00FF0000, 0x000000FF}); break;
    }
    const auto used = static_cast<std::uint32_t>(colours.size() / 4);
    const auto offset = static_cast<std::uint32_t>(54 + colours.size());
    return "BM" +
           Longs({offset + static_cast<std::uint32_t>(row.size()), 0, offset, 40, 2, 1,
                  1U | static_cast<std::uint32_t>(bits) << 16U, 0, 0, 0, 0, used, 0}) +
           colours + row;
}

// Two pictures of 2 x 1 pixels, the second of which is green.
inline std::string GifBytes() {
    const std::string screen = Words({2, 1}) + std::string("\xF1\0\0", 3) +
                               std::string("\xFF\0\0\0\0\xFF\0\xFF\0\0\0\0", 12);
    const auto frame = [](const std::string& codes) {
        return std::string("\x2C\0\0\0\0\2\0\1\0\0\2", 11) + static_cast<char>(codes.size()) +
               codes + '\0';
    };
    // Codes of three bits, the lowest first: clear, two colours, end.
    return "GIF89a" + screen + frame("\x44\x0A") + frame("\x94\x0A") + ";";
}

// A small picture, then a larger one.
inline std::string IconBytes() {
    const std::string small = Written(QImage(RedAndBlue(16, 16)), "png");
    const std::string large = Written(QImage(RedAndBlue(48, 48)), "png");
    const auto entry = [](int side, std::size_t size, std::size_t offset) {
        return std::string(2, static_cast<char>(side)) + Words({0, 1, 32}) +
               Longs({static_cast<std::uint32_t>(size), static_cast<std::uint32_t>(offset)});
    };
    return Words({0, 1, 2}) + entry(16, small.size(), 38) +
           entry(48, large.size(), 38 + small.size()) + small + large;
}

// A photograph that was taken with the camera on its side: turned by a quarter with the clock, its
// red half is above.
inline std::string TurnedPhotograph(const QImage& image) {
    const std::string plain = Written(image, "jpg");
    const std::string exif = std::string("Exif\0\0", 6) + "II*" + std::string(1, '\0') +
                             Longs({8}) + Words({1, 0x0112, 3}) + Longs({1}) + Words({6, 0}) +
                             Longs({0});
    const auto size = static_cast<char>(exif.size() + 2);
    return plain.substr(0, 2) + std::string("\xFF\xE1\0", 3) + size + exif + plain.substr(2);
}

inline std::string WmfFileBytes() {
    return WmfBytes()
        .Window(200, 100)
        .NoPen(0)
        .Brush(1, 0x0000FF)
        .Box(0, 0, 100, 100)
        .Brush(2, 0xFF0000)
        .Box(100, 0, 200, 100)
        .Placeable(200, 100, 100);
}

// A box of a brush of this colour over the left half.
inline std::string EmfBytes(std::uint32_t colour) {
    const auto record = [](std::uint32_t type, const std::string& fields) {
        return Longs({type, static_cast<std::uint32_t>(fields.size() + 8)}) + fields;
    };
    const std::string records = record(39, Longs({1, 0, colour, 0})) + record(37, Longs({1})) +
                                record(37, Longs({0x80000008})) + // no pen
                                record(43, Longs({0, 0, 99, 99})) + record(14, Longs({0, 0, 20}));
    const auto size = static_cast<std::uint32_t>(88 + records.size());
    return record(1, Longs({0,    0, 199, 99, 0, 0, 5292, 2646, 0x464D4520, 0x10000,
                            size, 6, 2,   0,  0, 0, 1000, 500,  265,        132})) +
           records;
}

} // namespace kestrova
