// SPDX-License-Identifier: GPL-3.0-or-later
// What a puzzle costs before the first piece can be moved.
#include "BoundedWork.h"
#include "ScratchFolder.h"

#include "platform/posix/PosixFileStore.h"
#include "puzzle/PieceFiles.h"

#include <cstring>

namespace kestrova::bench {

namespace {

constexpr int kWidth = 4000; // 12 megapixels
constexpr int kHeight = 3000;
constexpr int kSide = 20;

// The bitmap file of a large photograph.
std::string LargeBitmap() {
    const std::size_t rows = RowBytes(kWidth, 24) * kHeight;
    std::string bytes = PutHeader(HeaderOf(kWidth, kHeight, 24, 0));
    for (std::size_t i = 0; i < rows; ++i) {
        bytes += static_cast<char>(i * 2654435761U >> 24U);
    }
    return bytes;
}

void Cut(benchmark::State& state) {
    const std::string picture = LargeBitmap();
    std::string piece;
    for ([[maybe_unused]] auto _ : state) {
        const auto cutter = Cutter::SplitUp(picture, kSide);
        if (!cutter) {
            state.SkipWithError("the picture was refused");
            return;
        }
        for (int k = 1; k <= kSide * kSide; ++k) {
            cutter.Value().FillIn(k, piece);
            benchmark::DoNotOptimize(piece.data());
            benchmark::ClobberMemory();
        }
    }
}

// Into memory that is there already, as a piece's is.
void CopyPixels(benchmark::State& state) {
    const std::string picture = LargeBitmap();
    std::string copy(picture.size(), '\0');
    for ([[maybe_unused]] auto _ : state) {
        std::memcpy(copy.data(), picture.data(), picture.size());
        benchmark::DoNotOptimize(copy.data());
        benchmark::ClobberMemory();
    }
}

// The whole way over the disc, as a game begins.
void CutToFiles(benchmark::State& state) {
    const std::string picture = LargeBitmap();
    const ScratchFolder scratch;
    PosixFileStore files;
    PieceFiles pieces(files, PlainScratchWriter(files), scratch.Path());
    for ([[maybe_unused]] auto _ : state) {
        bool whole = pieces.SplitUp(picture, kSide).Ok();
        for (int k = 1; whole && k <= kSide * kSide; ++k) {
            whole = pieces.TakePiece(k).Ok();
        }
        if (!whole) {
            state.SkipWithError("the pieces could not be written");
            return;
        }
    }
}

const AtMost kCut = AtMost::TimesTheLimit(3, "cut 12 megapixels into 400 pieces", Cut, CopyPixels);
const AtMost kFiles = AtMost::Seconds(0.5, "the same, by way of files", CutToFiles);

} // namespace

} // namespace kestrova::bench
