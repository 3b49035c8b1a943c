// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/FileStore.h"
#include "puzzle/Cutter.h"

#include <functional>
#include <string>
#include <string_view>

namespace kestrova {

// Writes a file that need not outlive the program, without waiting for the disc: a game of 400
// pieces would wait 400 times. On failure no file is left.
using ScratchWriter = std::function<Status(const std::string& path, std::string_view bytes)>;

// The writer for the real disc. What stands at the path is removed first, so that a pipe or a link
// in the file's place is not written through.
[[nodiscard]] ScratchWriter PlainScratchWriter(FileStore& files);

// The bitmap files of a game, in the program's folder: "Temp.bmp" for the picture, "Temp1.bmp" and
// so on for the pieces. They live only while a game is being prepared.
class PieceFiles {
public:
    // The folder ends in the separator.
    PieceFiles(FileStore& files, ScratchWriter write, std::string folder);

    // Writes the picture, reads it back, writes the file of every piece and removes the picture's.
    // On any failure no file is left behind.
    Result<CutPlan> SplitUp(std::string_view picture, int side);

    // What the file of piece k holds; the file is gone then.
    Result<std::string> TakePiece(int piece);

    // Removes what an interrupted game has left: the names above and no others. A file that cannot
    // be removed is passed over: the next game that it would disturb tells.
    void RemoveLeftovers();

private:
    Result<CutPlan> WritePieces(int side);
    Result<std::string> TakeFile(std::string_view name);

    FileStore& files_;
    ScratchWriter write_;
    std::string folder_;
};

} // namespace kestrova
