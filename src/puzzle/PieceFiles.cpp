// SPDX-License-Identifier: GPL-3.0-or-later
#include "puzzle/PieceFiles.h"

#include "puzzle/Board.h"

#include <charconv>
#include <fstream>
#include <utility>

namespace kestrova {

namespace {

constexpr std::string_view kFront = "Temp";
constexpr std::string_view kTail = ".bmp";
constexpr std::string_view kPictureName = "Temp.bmp";

std::string PieceName(int piece) {
    return std::string(kFront) + std::to_string(piece) + std::string(kTail);
}

// Whether a name is one that a game gives to its files.
bool IsGameFile(std::string_view name) {
    if (!name.starts_with(kFront) || !name.ends_with(kTail) ||
        name.size() < kFront.size() + kTail.size()) {
        return false;
    }
    if (name == kPictureName) {
        return true;
    }
    const char* const begin = name.data() + kFront.size();
    const char* const end = name.data() + name.size() - kTail.size();
    int piece = 0;
    const auto read = std::from_chars(begin, end, piece);
    // Written again, a number with leading zeros is another name.
    return read.ec == std::errc() && read.ptr == end && piece >= 1 && piece <= kMaxPieces &&
           name == PieceName(piece);
}

} // namespace

ScratchWriter PlainScratchWriter(FileStore& files) {
    return [&files](const std::string& path, std::string_view bytes) -> Status {
        if (const Status removed = files.Remove(path); !removed) {
            return removed;
        }
        std::ofstream file(path, std::ios::binary);
        file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
        file.close();
        if (file) {
            return Done{};
        }
        // That the half of a file cannot be removed adds nothing to what has failed already.
        (void)files.Remove(path);
        return Error{ErrorCode::Failed, path};
    };
}

PieceFiles::PieceFiles(FileStore& files, ScratchWriter write, std::string folder)
    : files_(files), write_(std::move(write)), folder_(std::move(folder)) {}

Result<CutPlan> PieceFiles::SplitUp(std::string_view picture, int side) {
    const Status saved = write_(folder_ + std::string(kPictureName), picture);
    auto plan = saved ? WritePieces(side) : Result<CutPlan>(saved.Failure());
    if (!plan) {
        RemoveLeftovers();
    }
    return plan;
}

Result<CutPlan> PieceFiles::WritePieces(int side) {
    const auto bytes = TakeFile(kPictureName);
    if (!bytes) {
        return bytes.Failure();
    }
    const auto cutter = Cutter::SplitUp(bytes.Value(), side);
    if (!cutter) {
        return cutter.Failure();
    }
    std::string piece;
    for (int k = 1; k <= side * side; ++k) {
        cutter.Value().FillIn(k, piece);
        if (const Status written = write_(folder_ + PieceName(k), piece); !written) {
            return written.Failure();
        }
    }
    return cutter.Value().Plan();
}

Result<std::string> PieceFiles::TakePiece(int piece) {
    return TakeFile(PieceName(piece));
}

Result<std::string> PieceFiles::TakeFile(std::string_view name) {
    const std::string path = folder_ + std::string(name);
    auto bytes = files_.Read(path, kMaxBitmapBytes);
    if (const Status removed = files_.Remove(path); bytes && !removed) {
        return removed.Failure();
    }
    return bytes;
}

void PieceFiles::RemoveLeftovers() {
    for (const std::string& name : files_.List(folder_)) {
        if (IsGameFile(name)) {
            (void)files_.Remove(folder_ + name);
        }
    }
}

} // namespace kestrova
