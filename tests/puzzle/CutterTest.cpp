// SPDX-License-Identifier: GPL-3.0-or-later
#include "puzzle/Cutter.h"

#include "puzzle/Board.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace kestrova {
namespace {

void AddNumber(std::string& bytes, unsigned value, int width) {
    for (int i = 0; i < width; ++i) {
        bytes += static_cast<char>(value >> (8 * i) & 0xFFU);
    }
}

unsigned NumberAt(const std::string& bytes, std::size_t at, int width) {
    unsigned value = 0;
    for (int i = width - 1; i >= 0; --i) {
        value =
            value << 8U | static_cast<unsigned char>(bytes.at(at + static_cast<std::size_t>(i)));
    }
    return value;
}

std::size_t PaddedRow(int width, int bits) {
    const int bytes = (width * bits + 7) / 8;
    return static_cast<std::size_t>((bytes + 3) / 4 * 4);
}

// A pixel's value, different enough from its neighbours'.
unsigned PixelOf(int x, int y, int bits) {
    const unsigned mixed =
        static_cast<unsigned>(x) * 2654435761U ^ static_cast<unsigned>(y) * 40503U;
    return bits == 24 ? (mixed >> 7U & 0xFFFFFFU) : (mixed >> 7U & ((1U << bits) - 1));
}

// A bitmap file written field by field, with the padding of its rows filled with something.
std::string HandMade(int width, int height, int bits) {
    const unsigned colours = bits == 24 ? 0 : 1U << bits;
    const auto row = PaddedRow(width, bits);
    const auto rows = static_cast<unsigned>(row) * static_cast<unsigned>(height);
    std::string bytes = "BM";
    AddNumber(bytes, 54 + colours * 4 + rows, 4);
    AddNumber(bytes, 0, 4);
    AddNumber(bytes, 54 + colours * 4, 4);
    AddNumber(bytes, 40, 4);
    AddNumber(bytes, static_cast<unsigned>(width), 4);
    AddNumber(bytes, static_cast<unsigned>(height), 4);
    AddNumber(bytes, 1, 2);
    AddNumber(bytes, static_cast<unsigned>(bits), 2);
    AddNumber(bytes, 0, 4);
    AddNumber(bytes, rows, 4);
    AddNumber(bytes, 2835, 4);
    AddNumber(bytes, 2836, 4);
    AddNumber(bytes, 0, 4);
    AddNumber(bytes, 0, 4);
    for (unsigned i = 0; i < colours; ++i) {
        AddNumber(bytes, i * 0x010307U, 4);
    }
    for (int y = height - 1; y >= 0; --y) {
        std::string line(row, '\x5A');
        for (int x = 0; x < width; ++x) {
            const unsigned pixel = PixelOf(x, y, bits);
            const auto at = static_cast<std::size_t>(x * bits / 8);
            if (bits == 4) {
                const auto half = static_cast<unsigned char>(line[at]);
                line[at] = static_cast<char>(x % 2 == 0 ? (pixel << 4U | (half & 0x0FU))
                                                        : ((half & 0xF0U) | pixel));
            } else {
                for (int i = 0; i < bits / 8; ++i) {
                    line[at + static_cast<std::size_t>(i)] =
                        static_cast<char>(pixel >> (8 * i) & 0xFFU);
                }
            }
        }
        bytes += line;
    }
    return bytes;
}

// The pixel at (x, y) from the top left of a bitmap file.
unsigned PixelIn(const std::string& file, int x, int y) {
    const int width = static_cast<int>(NumberAt(file, 18, 4));
    const int height = static_cast<int>(NumberAt(file, 22, 4));
    const int bits = static_cast<int>(NumberAt(file, 28, 2));
    const std::size_t row =
        NumberAt(file, 10, 4) + PaddedRow(width, bits) * static_cast<std::size_t>(height - 1 - y);
    const unsigned bytes =
        NumberAt(file, row + static_cast<std::size_t>(x * bits / 8), (bits + 7) / 8);
    return bits != 4 ? bytes : (x % 2 == 0 ? bytes >> 4U : bytes & 0x0FU);
}

// How many pixels of a piece are not those of the picture.
int WrongPixels(const std::string& piece, const PieceArea& area, int bits) {
    int wrong = 0;
    for (int y = 0; y < area.Height; ++y) {
        for (int x = 0; x < area.Width; ++x) {
            wrong += PixelIn(piece, x, y) == PixelOf(area.Left + x, area.Top + y, bits) ? 0 : 1;
        }
    }
    return wrong;
}

// The pieces of a picture, one after another through the same string.
void ExpectPiecesArePicture(int width, int height, int bits, int side) {
    const std::string picture = HandMade(width, height, bits);
    const auto cutter = Cutter::SplitUp(picture, side);
    ASSERT_TRUE(cutter) << cutter.Failure().Text;
    std::vector<int> covered(static_cast<std::size_t>(width * height), 0);
    std::string piece;
    for (int k = 1; k <= side * side; ++k) {
        SCOPED_TRACE(k);
        const PieceArea area = cutter.Value().Plan().AreaOf(k);
        const bool last = k % side == 0;
        EXPECT_EQ(area.Left, (k - 1) % side * (width / side));
        EXPECT_EQ(area.Width, width / side + (last ? width % side : 0));
        EXPECT_EQ(area.Height, height / side + (k > side * (side - 1) ? height % side : 0));
        cutter.Value().FillIn(k, piece);
        ASSERT_EQ(NumberAt(piece, 2, 4), piece.size());
        ASSERT_EQ(NumberAt(piece, 18, 4), static_cast<unsigned>(area.Width));
        ASSERT_EQ(NumberAt(piece, 22, 4), static_cast<unsigned>(area.Height));
        ASSERT_EQ(piece.size(), NumberAt(piece, 10, 4) + PaddedRow(area.Width, bits) *
                                                             static_cast<std::size_t>(area.Height));
        EXPECT_EQ(piece.substr(54, NumberAt(piece, 10, 4) - 54),
                  picture.substr(54, NumberAt(picture, 10, 4) - 54));
        EXPECT_EQ(WrongPixels(piece, area, bits), 0);
        for (int i = 0; i < area.Width * area.Height; ++i) {
            ++covered[static_cast<std::size_t>((area.Top + i / area.Width) * width + area.Left +
                                               i % area.Width)];
        }
    }
    EXPECT_EQ(std::count(covered.begin(), covered.end(), 1), width * height);
}

TEST(CutterTest, ThePiecesArePictureToThePixel) {
    for (const int bits : {4, 8, 24}) {
        for (const PuzzleSize& size : kPuzzleSizes) {
            const int side = size.Side();
            // As many pixels as pieces, one more, just less than another column, odd pieces.
            for (const int width : {side, side + 1, 2 * side - 1, 3 * side + 2}) {
                SCOPED_TRACE(std::to_string(bits) + " bits, " + std::to_string(width) +
                             " wide, side " + std::to_string(side));
                ExpectPiecesArePicture(width, 3 * side - 1, bits, side);
            }
        }
    }
}

TEST(CutterTest, NothingOfTheNeighboursStandsInThePadding) {
    const std::string picture = HandMade(11, 6, 4);
    const auto cutter = Cutter::SplitUp(picture, 3);
    ASSERT_TRUE(cutter);
    std::string piece(1000, 'x'); // used before
    cutter.Value().FillIn(2, piece);
    const std::size_t rows = NumberAt(piece, 10, 4);
    ASSERT_EQ(piece.size(), rows + 2 * 4);
    EXPECT_EQ(NumberAt(piece, rows + 1, 1) & 0x0FU, 0U);
    EXPECT_EQ(NumberAt(piece, rows + 2, 2), 0U);
}

TEST(CutterTest, ThePictureMustHaveAPixelForEveryPiece) {
    EXPECT_FALSE(Cutter::SplitUp(HandMade(19, 40, 24), 20));
    EXPECT_FALSE(Cutter::SplitUp(HandMade(40, 19, 24), 20));
    EXPECT_TRUE(Cutter::SplitUp(HandMade(20, 20, 24), 20));
}

// A palette of fewer colours, something between it and the pixels and something after them: other
// programs write such files. The pieces do without.
TEST(CutterTest, WhatStandsBetweenThePartsIsLeftOut) {
    std::string picture = HandMade(6, 6, 8);
    picture.erase(54 + 4 * 10, 4 * 246);
    picture.insert(54 + 4 * 10, "gap");
    picture += "more";
    picture.replace(10, 4, {97, 0, 0, 0});
    picture.replace(46, 4, {10, 0, 0, 0});
    const auto cutter = Cutter::SplitUp(picture, 3);
    ASSERT_TRUE(cutter) << cutter.Failure().Text;
    std::string piece;
    cutter.Value().FillIn(5, piece);
    EXPECT_EQ(piece.size(), 54U + 40 + 2 * 4);
    EXPECT_EQ(NumberAt(piece, 10, 4), 94U);
    EXPECT_EQ(NumberAt(piece, 46, 4), 10U);
    EXPECT_EQ(WrongPixels(piece, {2, 2, 2, 2}, 8), 0);
}

TEST(CutterTest, HostileHeadersAreRefused) {
    const struct {
        const char* What;
        std::size_t At;
        int Width;
        unsigned Value;
    } rows[] = {
        {"no bitmap", 0, 2, 0x4142},
        {"the pixels begin within the header", 10, 4, 53},
        {"the pixels begin within the palette", 10, 4, 54 + 1023},
        {"the pixels begin behind the end", 10, 4, 54 + 1024 + 1},
        {"the pixels begin far away", 10, 4, 0xFFFFFFFF},
        {"another header", 14, 4, 124},
        {"an info size whose upper half counts", 14, 4, 0x10028},
        {"no width", 18, 4, 0},
        {"a negative width", 18, 4, 0xFFFFFFF8},
        {"more width than bytes", 18, 4, 13},
        {"a width whose rows are more than 32 bits hold", 18, 4, 0x7FFFFFFF},
        {"no height", 22, 4, 0},
        {"rows from the top down", 22, 4, 0xFFFFFFF4},
        {"more height than bytes", 22, 4, 13},
        {"a huge height", 22, 4, 0x7FFFFFFF},
        {"planes", 26, 2, 3},
        {"1 bit", 28, 2, 1},
        {"16 bits", 28, 2, 16},
        {"32 bits", 28, 2, 32},
        {"more bits than bytes", 28, 2, 24},
        {"compressed", 30, 4, 1},
        {"more colours than there can be", 46, 4, 257},
        {"colours beyond counting", 46, 4, 0x40000001},
    };
    const std::string sound = HandMade(12, 12, 8);
    ASSERT_TRUE(Cutter::SplitUp(sound, 3));
    for (const auto& row : rows) {
        SCOPED_TRACE(row.What);
        std::string bytes = sound;
        std::string field;
        AddNumber(field, row.Value, row.Width);
        bytes.replace(row.At, field.size(), field);
        const auto cutter = Cutter::SplitUp(bytes, 3);
        ASSERT_FALSE(cutter);
        EXPECT_EQ(cutter.Failure().Code, ErrorCode::Damaged);
    }
    for (const std::size_t length : {std::size_t{0}, std::size_t{53}, sound.size() - 1}) {
        EXPECT_FALSE(Cutter::SplitUp(std::string_view(sound).substr(0, length), 3)) << length;
    }
}

TEST(CutterTest, TheHeaderIsWrittenAsItWasRead) {
    std::string bytes;
    for (int i = 0; i < 54; ++i) {
        bytes += static_cast<char>(200 - i);
    }
    const auto header = GetHeader(bytes);
    ASSERT_TRUE(header);
    EXPECT_EQ(PutHeader(header.Value()), bytes);
    EXPECT_EQ(header.Value().Height, 0xAFB0B1B2U);
    EXPECT_EQ(header.Value().BitCount, 0xABACU);
}

} // namespace
} // namespace kestrova
