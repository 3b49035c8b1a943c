// SPDX-License-Identifier: GPL-3.0-or-later
#include "print/FreeObjects.h"

#include "fakes/FakePictures.h"

#include <gtest/gtest.h>

namespace kestrova {
namespace {

TEST(FreeObjectsTest, ThereAreNoMorePicturesThanHavePaths) {
    PageLayout page;
    for (int i = 1; i <= kMaxImagePaths; ++i) {
        ASSERT_NE(page.Find(AddPicture(page, std::to_string(i), nullptr)), nullptr);
    }
    EXPECT_EQ(page.ImagePaths.back(), "100");
    const PageLayout full = page;
    EXPECT_EQ(page.Find(AddPicture(page, "101", std::make_shared<FakePicture>(9, 9))), nullptr);
    EXPECT_EQ(page, full);
}

} // namespace
} // namespace kestrova
