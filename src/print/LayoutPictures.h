// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Result.h"
#include "print/PageLayout.h"

#include <chrono>
#include <cstdint>
#include <map>
#include <string>

namespace kestrova {

// Loads the pictures of one layout: each file once, and no more of them when together they take
// more time, or have more pixels, than any page that is meant to be printed. Refuses with TooLarge.
class LayoutPictures : public PagePictures {
public:
    struct Limits {
        std::chrono::milliseconds Time{3'000}; // while the user waits
        std::int64_t Pixels = std::int64_t{256} << 20U;
    };

    LayoutPictures(PagePictures& source, Limits limits) : source_(source), limits_(limits) {}

    [[nodiscard]] Result<PagePicturePtr> Load(const std::string& path) override;

private:
    PagePictures& source_;
    Limits limits_;
    std::map<std::string, Result<PagePicturePtr>> loaded_;
    std::chrono::steady_clock::duration spent_{};
    std::int64_t pixels_ = 0;
};

} // namespace kestrova
