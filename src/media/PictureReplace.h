// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "media/PictureTable.h"
#include "platform/Clock.h"

#include <functional>
#include <optional>
#include <string>

namespace kestrova {

// What the user wants to see instead of a month's picture: for the month, or for one day of it.
struct PictureChoice {
    int Month = 0;          // 0-11
    std::optional<int> Day; // 1-31
    std::string Path;
};

// Puts a picture of the user's in the place of a month's or a day's.
//
// Before the first time, the files of `Images` and `Speech` are copied into a folder `Original` in
// each; January's picture goes last, so that its presence there says that all the others are. Then
// the file is copied to "Images/<Month>.jpg" or "Images/<Month><Day>.jpg", whatever it is, as one
// step; other pictures of that name, which the next start might find first, and the month's text
// go. Nothing that is not in `Original` is lost: it stays beside as "January replaced 2026-11-22
// 23.59.01.jpg".
//
// All of this may take a while and may be called in any thread; the table is told afterwards.
// `check` says whether a file is a picture. Returns the path of the picture's new file. After an
// error before that file stands nothing has changed; after a later one the picture stands, but an
// old one of its name, or the text, is still there. TooLarge for a file beyond what is read as a
// picture.
using PictureCheck = std::function<Status(const std::string& path)>;
[[nodiscard]] Result<std::string> ReplacePicture(FileStore& files, const WallTime& now,
                                                 const std::string& dataFolder,
                                                 const PictureChoice& choice,
                                                 const PictureCheck& check);

// Enters the new picture into the table: a month's at once, a day's when it is the one to be seen
// today. The month has no text any more.
void EnterPicture(PictureTable& table, const FileStore& files, const std::string& dataFolder,
                  const Selection& today, const PictureChoice& choice, const std::string& path);

} // namespace kestrova
