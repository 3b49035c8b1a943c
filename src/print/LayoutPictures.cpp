// SPDX-License-Identifier: GPL-3.0-or-later
#include "print/LayoutPictures.h"

namespace kestrova {

Result<PagePicturePtr> LayoutPictures::Load(const std::string& path) {
    if (const auto known = loaded_.find(path); known != loaded_.end()) {
        return known->second;
    }
    if (spent_ >= limits_.Time || pixels_ >= limits_.Pixels) {
        return Error{ErrorCode::TooLarge, path};
    }
    const auto begin = std::chrono::steady_clock::now();
    auto picture = source_.Load(path);
    spent_ += std::chrono::steady_clock::now() - begin;
    if (picture) {
        pixels_ += std::int64_t{picture.Value()->Width()} * picture.Value()->Height();
    }
    loaded_.emplace(path, picture);
    return picture;
}

} // namespace kestrova
