// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "print/PageLayout.h"

#include <map>
#include <memory>
#include <string>

namespace kestrova {

// The files of the pictures on the page. They are read beside the window, which is painted
// meanwhile, no larger than a sheet takes at 300 dots to the inch. A picture that is on the page
// already is not read again, and all together take no more memory than a machine has to spare.
class PageFiles : public PagePictures {
public:
    [[nodiscard]] Result<PagePicturePtr> Load(const std::string& path) override;

private:
    struct Shown {
        std::string Stamp; // what the file was like
        std::weak_ptr<const PagePicture> Picture;
    };

    [[nodiscard]] std::int64_t PixelsShown() const;

    std::map<std::string, Shown> shown_;
};

} // namespace kestrova
