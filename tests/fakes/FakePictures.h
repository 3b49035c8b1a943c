// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "print/PageLayout.h"

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace kestrova {

// A picture that has nothing but a size.
class FakePicture : public PagePicture {
public:
    FakePicture(int width, int height) : width_(width), height_(height) {}
    [[nodiscard]] int Width() const override { return width_; }
    [[nodiscard]] int Height() const override { return height_; }

private:
    int width_;
    int height_;
};

// The picture files there are.
class FakePictures : public PagePictures {
public:
    std::map<std::string, PageSize> Files; // their sizes in pixels
    std::vector<std::string> Asked;
    std::function<void()> WhileLoading;

    [[nodiscard]] Result<PagePicturePtr> Load(const std::string& path) override {
        Asked.push_back(path);
        if (WhileLoading) {
            WhileLoading();
        }
        const auto file = Files.find(path);
        if (file == Files.end()) {
            return Error{ErrorCode::NotFound, path};
        }
        return PagePicturePtr(
            std::make_shared<FakePicture>(file->second.Width, file->second.Height));
    }
};

} // namespace kestrova
