// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/Printer.h"

#include <array>
#include <utility>

namespace kestrova {

namespace {

constexpr int Millimetres(int length) {
    return (length * 14400 + 127) / 254;
}

constexpr int kInch = 1440;

constexpr PageSize kLetter{8 * kInch + kInch / 2, 11 * kInch};
constexpr PageSize kA4{Millimetres(210), Millimetres(297)};

constexpr std::array<PageSize, kPaperSizes> kPapers = {
    kLetter,
    kLetter,                                                 // Letter Small
    PageSize{11 * kInch, 17 * kInch},                        // Tabloid
    PageSize{17 * kInch, 11 * kInch},                        // Ledger, which lies on its side
    PageSize{8 * kInch + kInch / 2, 14 * kInch},             // Legal
    PageSize{5 * kInch + kInch / 2, 8 * kInch + kInch / 2},  // Statement
    PageSize{7 * kInch + kInch / 4, 10 * kInch + kInch / 2}, // Executive
    PageSize{Millimetres(297), Millimetres(420)},            // A3
    kA4,
    kA4,                                          // A4 Small
    PageSize{Millimetres(148), Millimetres(210)}, // A5
    PageSize{Millimetres(257), Millimetres(364)}, // B4
    PageSize{Millimetres(182), Millimetres(257)}, // B5
};

} // namespace

PageSize PaperSizeOf(const PrinterSetup& setup) {
    const bool known = setup.Paper >= 1 && setup.Paper <= kPaperSizes;
    PageSize size = kPapers[static_cast<std::size_t>((known ? setup.Paper : kPaperA4) - 1)];
    if (setup.Turned == Orientation::Landscape) {
        std::swap(size.Width, size.Height);
    }
    return size;
}

PageSize PrintableArea(const PrinterSetup& setup) {
    const PageSize paper = PaperSizeOf(setup);
    return {paper.Width - 2 * kPaperEdge, paper.Height - 2 * kPaperEdge};
}

} // namespace kestrova
