// SPDX-License-Identifier: GPL-3.0-or-later
#include "puzzle/ui/PuzzlePicture.h"

#include "puzzle/Bitmap.h"

#include <gtest/gtest.h>

namespace kestrova {
namespace {

QImage Noise(const QSize& size, QImage::Format format) {
    QImage picture(size, QImage::Format_RGB32);
    for (int i = 0; i < size.width() * size.height(); ++i) {
        picture.setPixel(i % size.width(), i / size.width(),
                         0xFF000000U | static_cast<unsigned>(i) * 2654435761U);
    }
    return picture.convertToFormat(format);
}

TEST(PuzzlePictureTest, EveryKindOfPictureIsABitmapThatCanBeCut) {
    const QSize size(13, 7);
    for (const auto format :
         {QImage::Format_RGB32, QImage::Format_RGB888, QImage::Format_RGB16,
          QImage::Format_Indexed8, QImage::Format_Grayscale8, QImage::Format_Mono}) {
        SCOPED_TRACE(format);
        const QImage picture = Noise(size, format);
        const auto bytes = BitmapOf(picture);
        ASSERT_TRUE(bytes);
        const auto bitmap = OpenBitmap(bytes.Value());
        ASSERT_TRUE(bitmap) << bitmap.Failure().Text;
        EXPECT_EQ(bitmap.Value().Bits, format == QImage::Format_Indexed8 ? 8 : 24);
        const auto back = PictureOf(bytes.Value());
        ASSERT_TRUE(back);
        EXPECT_EQ(back.Value(), picture.convertToFormat(QImage::Format_RGB32));
    }
}

TEST(PuzzlePictureTest, WhatIsTransparentShowsTheGround) {
    QImage picture(4, 4, QImage::Format_ARGB32);
    picture.fill(Qt::transparent);
    picture.setPixelColor(1, 2, Qt::red);
    const QImage seen = PuzzlePicture(picture, {100, 100}, Qt::blue);
    EXPECT_EQ(seen.pixelColor(0, 0), QColor(Qt::blue));
    EXPECT_EQ(seen.pixelColor(1, 2), QColor(Qt::red));
}

TEST(PuzzlePictureTest, NoMorePixelsAreCutThanAScreenShows) {
    const auto size = [](const QSize& picture, const QSize& screen) {
        return PuzzlePicture(Noise(picture, QImage::Format_RGB32), screen, Qt::black).size();
    };
    EXPECT_EQ(size({400, 300}, {100, 60}), QSize(100, 75));
    EXPECT_EQ(size({40, 300}, {100, 60}), QSize(40, 300));
}

TEST(PuzzlePictureTest, WhatIsNoPictureIsAFailure) {
    EXPECT_FALSE(BitmapOf(QImage()));
    EXPECT_FALSE(BitmapOf(PuzzlePicture(QImage(), {100, 100}, Qt::black)));
    EXPECT_FALSE(PictureOf(""));
    EXPECT_FALSE(PictureOf("BM and nothing else"));
}

} // namespace
} // namespace kestrova
