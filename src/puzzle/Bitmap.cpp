// SPDX-License-Identifier: GPL-3.0-or-later
#include "puzzle/Bitmap.h"

#include <type_traits>

namespace kestrova {

namespace {

constexpr std::uint16_t kBitmapMark = 0x4D42; // "BM"
constexpr std::uint16_t kInfoSize = 40;
constexpr std::uint32_t kMaxLength = 32767; // pixels of a side
constexpr std::uint64_t kColourBytes = 4;

// Reader and writer share the order of the fields.
template<typename Header, typename Visitor> void EachField(Header& header, Visitor visit) {
    visit(header.Type);
    visit(header.FileSize);
    visit(header.Reserved);
    visit(header.DataOffset);
    visit(header.InfoSizeLow);
    visit(header.InfoSizeHigh);
    visit(header.Width);
    visit(header.Height);
    visit(header.Planes);
    visit(header.BitCount);
    visit(header.Compression);
    visit(header.ImageSize);
    visit(header.PerMetreX);
    visit(header.PerMetreY);
    visit(header.ColoursUsed);
    visit(header.ColoursImportant);
}

Error Unfit(const char* why) {
    return {ErrorCode::Damaged, why};
}

// What is wrong with a header, whatever follows it; nothing when it is of a kind that is cut.
const char* FaultOf(const BitmapHeader& header) {
    if (header.Type != kBitmapMark || header.InfoSizeLow != kInfoSize || header.InfoSizeHigh != 0 ||
        header.Planes != 1) {
        return "not a bitmap";
    }
    if (header.Compression != 0 ||
        (header.BitCount != 4 && header.BitCount != 8 && header.BitCount != 24)) {
        return "a bitmap of another kind";
    }
    // A negative height, which means rows from the top down, is a huge one here.
    if (header.Width == 0 || header.Width > kMaxLength || header.Height == 0 ||
        header.Height > kMaxLength) {
        return "a bitmap of no sensible size";
    }
    return nullptr;
}

} // namespace

Result<BitmapHeader> GetHeader(std::string_view bytes) {
    if (bytes.size() < kBitmapHeaderSize) {
        return Unfit("not a bitmap");
    }
    BitmapHeader header;
    std::size_t at = 0;
    EachField(header, [&](auto& field) {
        std::uint32_t value = 0;
        for (std::size_t i = 0; i < sizeof field; ++i) {
            value |= static_cast<std::uint32_t>(static_cast<unsigned char>(bytes[at++])) << (8 * i);
        }
        field = static_cast<std::remove_reference_t<decltype(field)>>(value);
    });
    return header;
}

std::string PutHeader(const BitmapHeader& header) {
    std::string bytes;
    bytes.reserve(kBitmapHeaderSize);
    EachField(header, [&bytes](const auto& field) {
        for (std::size_t i = 0; i < sizeof field; ++i) {
            bytes += static_cast<char>(static_cast<std::uint32_t>(field) >> (8 * i) & 0xFFU);
        }
    });
    return bytes;
}

BitmapHeader HeaderOf(int width, int height, int bits, int colours) {
    const std::uint64_t offset =
        kBitmapHeaderSize + static_cast<std::uint64_t>(colours) * kColourBytes;
    const std::uint64_t rows = RowBytes(width, bits) * static_cast<std::uint64_t>(height);
    BitmapHeader header;
    header.Type = kBitmapMark;
    header.FileSize = static_cast<std::uint32_t>(offset + rows);
    header.DataOffset = static_cast<std::uint32_t>(offset);
    header.InfoSizeLow = kInfoSize;
    header.Width = static_cast<std::uint32_t>(width);
    header.Height = static_cast<std::uint32_t>(height);
    header.Planes = 1;
    header.BitCount = static_cast<std::uint16_t>(bits);
    header.ImageSize = static_cast<std::uint32_t>(rows);
    header.ColoursUsed = static_cast<std::uint32_t>(colours);
    return header;
}

Result<Bitmap> OpenBitmap(std::string_view bytes) {
    const auto header = GetHeader(bytes);
    if (!header) {
        return header.Failure();
    }
    if (const char* const fault = FaultOf(header.Value())) {
        return Unfit(fault);
    }
    Bitmap bitmap;
    bitmap.Header = header.Value();
    bitmap.Width = static_cast<int>(bitmap.Header.Width);
    bitmap.Height = static_cast<int>(bitmap.Header.Height);
    bitmap.Bits = bitmap.Header.BitCount;

    // Two numbers of 32 bits and a product of two small ones: 64 bits hold every sum.
    std::uint64_t colours = 0;
    if (bitmap.Bits < 24) {
        const std::uint64_t most = std::uint64_t{1} << static_cast<unsigned>(bitmap.Bits);
        colours = bitmap.Header.ColoursUsed == 0 ? most : bitmap.Header.ColoursUsed;
        if (colours > most) {
            return Unfit("a bitmap with too many colours");
        }
    }
    const std::uint64_t palette = colours * kColourBytes;
    const std::uint64_t rows =
        RowBytes(bitmap.Width, bitmap.Bits) * static_cast<std::uint64_t>(bitmap.Height);
    const std::uint64_t offset = bitmap.Header.DataOffset;
    if (offset < kBitmapHeaderSize + palette || offset + rows > bytes.size() ||
        bytes.size() > kMaxBitmapBytes) {
        return Unfit("a bitmap that is not whole");
    }
    bitmap.Palette = bytes.substr(kBitmapHeaderSize, palette);
    bitmap.Rows = bytes.substr(offset, rows);
    return bitmap;
}

} // namespace kestrova
