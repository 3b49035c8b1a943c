// SPDX-License-Identifier: GPL-3.0-or-later
#include "print/FreeObjects.h"

#include "print/PageComposer.h"
#include "print/WholeTwips.h"

#include <algorithm>

namespace kestrova {

namespace {

constexpr int kTwipsPerPixel = 15;
constexpr int kHighest = 2000;
constexpr int kWidest = 5000;

PageSize AddedSize(const PagePicture& picture) {
    const std::int64_t pixelsWide = picture.Width();
    const std::int64_t pixelsHigh = picture.Height();
    std::int64_t width = pixelsWide * kTwipsPerPixel;
    std::int64_t height = pixelsHigh * kTwipsPerPixel;
    if (height > kHighest) {
        width = WholeTwips(kHighest * pixelsWide, pixelsHigh);
        height = kHighest;
    }
    if (width > kWidest) {
        height = WholeTwips(kWidest * pixelsHigh, pixelsWide);
        width = kWidest;
    }
    // A picture as thin as a hair is still to be seen.
    return {std::max(1, static_cast<int>(width)), std::max(1, static_cast<int>(height))};
}

} // namespace

LayoutRef AddPicture(PageLayout& page, const std::string& path, PagePicturePtr picture) {
    const auto index = static_cast<int>(page.ImgUser.size()) + 1;
    if (index <= kMaxImagePaths) {
        const PageSize size = picture ? AddedSize(*picture) : PageSize{kHighest, kHighest};
        LayoutItem& item = page.ImgUser.emplace_back();
        item.Width = size.Width;
        item.Height = size.Height;
        item.Picture = std::move(picture);
        page.ImagePaths[static_cast<std::size_t>(index)] = path;
    }
    return {LayoutKind::ImgUser, index};
}

LayoutRef AddFreeText(PageLayout& page, const PrintStyle& style, const TextMeasure& measure) {
    const auto index = static_cast<int>(page.LabUser.size()) + 1;
    if (index <= kMaxLabels) {
        LayoutItem& item = page.LabUser.emplace_back();
        TakeStyle(item, style);
        item.Caption = "New Text";
        item.Width = measure.TextWidth(item.Font(), item.Caption);
        item.Height = measure.LineHeight(item.Font());
    }
    return {LayoutKind::LabUser, index};
}

void KeepInsidePage(PageLayout& page) {
    const auto keep = [&page](LayoutItem& item) {
        item.Left = std::max(0, std::min(item.Left, page.Surface.Width - item.Width));
        item.Top = std::max(0, std::min(item.Top, page.Surface.Height - item.Height));
    };
    std::for_each(page.ImgUser.begin(), page.ImgUser.end(), keep);
    std::for_each(page.LabUser.begin(), page.LabUser.end(), keep);
}

} // namespace kestrova
