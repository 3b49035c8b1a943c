// SPDX-License-Identifier: GPL-3.0-or-later
#include "media/DibImage.h"

#include "media/ByteFields.h"

#include <algorithm>
#include <array>
#include <bit>

namespace kestrova {

namespace {

constexpr std::uint32_t kCoreHeaderSize = 12;
constexpr std::uint32_t kInfoHeaderSize = 40;
constexpr std::uint32_t kMaskedHeaderSize = 52; // from this size on the masks belong to it
constexpr int kMostSide = 32767;
constexpr std::uint32_t kOpaque = 0xFF000000U;

enum class Packing : std::uint32_t { None = 0, Rle8 = 1, Rle4 = 2, Masks = 3 };

struct Layout {
    int Width = 0;
    int Height = 0;
    bool BottomUp = true;
    int Bits = 0;
    Packing Pack = Packing::None;
    std::array<std::uint32_t, 3> Masks{}; // red, green, blue
    std::vector<std::uint32_t> Palette;
    std::string_view Rows;

    [[nodiscard]] std::size_t RowBytes() const {
        return (static_cast<std::size_t>(Width) * static_cast<std::size_t>(Bits) + 31) / 32 * 4;
    }
};

bool IsKnown(const Layout& layout) {
    switch (layout.Pack) {
    case Packing::None:
        return layout.Bits == 1 || layout.Bits == 4 || layout.Bits == 8 || layout.Bits == 16 ||
               layout.Bits == 24 || layout.Bits == 32;
    case Packing::Rle8: return layout.Bits == 8 && layout.BottomUp;
    case Packing::Rle4: return layout.Bits == 4 && layout.BottomUp;
    case Packing::Masks: return layout.Bits == 16 || layout.Bits == 32;
    }
    return false;
}

void ReadPalette(ByteFields& fields, Layout& layout, std::size_t count, DibColours colours,
                 bool triples) {
    for (std::size_t i = 0; i < count && fields.Ok(); ++i) {
        if (colours == DibColours::PaletteIndices) {
            const unsigned grey = fields.UInt16() & 0xFFU;
            layout.Palette.push_back(kOpaque | grey * 0x010101U);
            continue;
        }
        const auto blue = static_cast<std::uint32_t>(fields.Byte());
        const auto green = static_cast<std::uint32_t>(fields.Byte());
        const auto red = static_cast<std::uint32_t>(fields.Byte());
        layout.Palette.push_back(kOpaque | red << 16U | green << 8U | blue);
        if (!triples) {
            fields.Byte();
        }
    }
}

std::optional<Layout> ReadLayout(std::string_view bytes, DibColours colours) {
    ByteFields fields(bytes);
    Layout layout;
    const std::uint32_t size = fields.UInt32();
    const bool core = size == kCoreHeaderSize;
    if (!core && (size < kInfoHeaderSize || size > bytes.size())) {
        return std::nullopt;
    }
    std::int32_t height = 0;
    std::uint32_t used = 0;
    if (core) {
        layout.Width = static_cast<int>(fields.UInt16());
        height = static_cast<std::int32_t>(fields.UInt16());
    } else {
        layout.Width = fields.Int32();
        height = fields.Int32();
    }
    fields.UInt16(); // planes: always one
    layout.Bits = static_cast<int>(fields.UInt16());
    if (!core) {
        layout.Pack = static_cast<Packing>(fields.UInt32());
        fields.Bytes(12); // bytes of the rows, resolution
        used = fields.UInt32();
        fields.UInt32(); // important colours
    }
    layout.BottomUp = height > 0;
    if (layout.Width < 1 || layout.Width > kMostSide || height == 0 || height > kMostSide ||
        height < -kMostSide || !IsKnown(layout)) {
        return std::nullopt;
    }
    layout.Height = std::abs(height);
    layout.Masks = layout.Bits == 16 ? std::array<std::uint32_t, 3>{0x7C00, 0x03E0, 0x001F}
                                     : std::array<std::uint32_t, 3>{0xFF0000, 0xFF00, 0xFF};
    std::size_t behindHeader = core ? 0 : size - kInfoHeaderSize;
    if (layout.Pack == Packing::Masks) {
        for (std::uint32_t& mask : layout.Masks) {
            mask = fields.UInt32();
        }
        behindHeader = size >= kMaskedHeaderSize ? size - kMaskedHeaderSize : 0;
    }
    fields.Bytes(behindHeader);
    if (layout.Bits <= 8) {
        const std::size_t most = std::size_t{1} << static_cast<unsigned>(layout.Bits);
        ReadPalette(fields, layout, used == 0 ? most : std::min<std::size_t>(used, most), colours,
                    core);
        layout.Palette.resize(most, kOpaque);
    }
    if (!fields.Ok()) {
        return std::nullopt;
    }
    layout.Rows = fields.Rest();
    return layout;
}

std::uint32_t Part(std::uint32_t value, std::uint32_t mask) {
    if (mask == 0) {
        return 0;
    }
    const auto shift = static_cast<unsigned>(std::countr_zero(mask));
    const std::uint64_t most = mask >> shift;
    return static_cast<std::uint32_t>(std::uint64_t{(value & mask) >> shift} * 255U / most);
}

std::uint32_t PixelAt(const Layout& layout, std::string_view row, std::size_t x) {
    const auto byte = [row](std::size_t i) {
        return static_cast<std::uint32_t>(static_cast<unsigned char>(row[i]));
    };
    switch (layout.Bits) {
    case 1: return layout.Palette[byte(x / 8) >> (7U - x % 8) & 1U];
    case 4: return layout.Palette[byte(x / 2) >> (x % 2 == 0 ? 4U : 0U) & 0x0FU];
    case 8: return layout.Palette[byte(x)];
    case 24: return kOpaque | byte(3 * x + 2) << 16U | byte(3 * x + 1) << 8U | byte(3 * x);
    default: break;
    }
    std::uint32_t value = 0;
    const std::size_t size = static_cast<std::size_t>(layout.Bits) / 8;
    for (std::size_t i = size; i > 0; --i) {
        value = value << 8U | byte(size * x + i - 1);
    }
    return kOpaque | Part(value, layout.Masks[0]) << 16U | Part(value, layout.Masks[1]) << 8U |
           Part(value, layout.Masks[2]);
}

// Runs of colours and plain stretches, row by row from the bottom. What goes beyond a row or the
// picture is lost; what is never said keeps the first colour.
class Runs {
public:
    Runs(const Layout& layout, DibImage& image) : layout_(layout), image_(image) {}

    void Decode() {
        ByteFields fields(layout_.Rows);
        while (fields.Left() >= 2 && row_ < layout_.Height) {
            const int count = fields.Byte();
            const int value = fields.Byte();
            if (count > 0) {
                Run(count, value);
            } else if (value == 1) {
                return;
            } else {
                Escape(fields, value);
            }
        }
    }

private:
    void Put(std::size_t index) {
        if (column_ < layout_.Width && row_ < layout_.Height) {
            const auto width = static_cast<std::size_t>(layout_.Width);
            const auto line = static_cast<std::size_t>(layout_.Height - 1 - row_);
            image_.Pixels[line * width + static_cast<std::size_t>(column_)] =
                layout_.Palette[index];
            ++column_;
        }
    }

    void Run(int count, int value) {
        const auto byte = static_cast<std::size_t>(value);
        count = std::min(count, layout_.Width - column_);
        for (int i = 0; i < count; ++i) {
            Put(layout_.Bits == 8 ? byte : (i % 2 == 0 ? byte >> 4U : byte & 0x0FU));
        }
    }

    void Escape(ByteFields& fields, int value) {
        if (value == 0) {
            column_ = 0;
            ++row_;
        } else if (value == 2) {
            column_ = std::min(column_ + fields.Byte(), layout_.Width);
            row_ += fields.Byte();
        } else {
            const int bytes = layout_.Bits == 8 ? value : (value + 1) / 2;
            for (int i = 0; i < bytes; ++i) {
                const int here = layout_.Bits == 8 ? 1 : std::min(2, value - 2 * i);
                Run(here, fields.Byte());
            }
            fields.Bytes(static_cast<std::size_t>(bytes % 2));
        }
    }

    const Layout& layout_;
    DibImage& image_;
    int column_ = 0;
    int row_ = 0;
};

} // namespace

std::optional<DibImage> DecodeDib(std::string_view bytes, DibColours colours,
                                  std::size_t mostPixels) {
    const auto layout = ReadLayout(bytes, colours);
    if (!layout) {
        return std::nullopt;
    }
    const auto width = static_cast<std::size_t>(layout->Width);
    const auto height = static_cast<std::size_t>(layout->Height);
    const bool runs = layout->Pack == Packing::Rle8 || layout->Pack == Packing::Rle4;
    if (width * height > mostPixels ||
        (!runs && layout->Rows.size() / layout->RowBytes() < height)) {
        return std::nullopt;
    }
    DibImage image{layout->Width, layout->Height, layout->BottomUp, {}};
    image.Pixels.resize(width * height, runs ? layout->Palette.front() : kOpaque);
    if (runs) {
        Runs(*layout, image).Decode();
        return image;
    }
    for (std::size_t y = 0; y < height; ++y) {
        const std::size_t line = layout->BottomUp ? height - 1 - y : y;
        const auto row = layout->Rows.substr(line * layout->RowBytes(), layout->RowBytes());
        for (std::size_t x = 0; x < width; ++x) {
            image.Pixels[y * width + x] = PixelAt(*layout, row, x);
        }
    }
    return image;
}

} // namespace kestrova
