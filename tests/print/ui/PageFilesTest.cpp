// SPDX-License-Identifier: GPL-3.0-or-later
#include "print/ui/PageFiles.h"

#include "platform/qt/QtText.h"

#include <QFile>
#include <QImage>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace kestrova {
namespace {

class PageFilesTest : public testing::Test {
protected:
    [[nodiscard]] std::string Put(const char* name, const QSize& size) {
        const QString path = folder_.filePath(QLatin1String(name));
        QImage image(size, QImage::Format_Mono); // small files of large pictures
        image.fill(1);
        EXPECT_TRUE(image.save(path, "bmp"));
        return FromQt(path);
    }

    QTemporaryDir folder_;
    PageFiles pictures_;
};

TEST_F(PageFilesTest, APictureIsNoLargerThanPaperNeedsIt) {
    const auto small = pictures_.Load(Put("small.bmp", {30, 20}));
    ASSERT_TRUE(small);
    EXPECT_EQ(small.Value()->Width(), 30);
    EXPECT_EQ(small.Value()->Height(), 20);
    const auto large = pictures_.Load(Put("large.bmp", {7016, 4960}));
    ASSERT_TRUE(large);
    EXPECT_EQ(large.Value()->Width(), 3508);
    EXPECT_EQ(large.Value()->Height(), 2480);
}

TEST_F(PageFilesTest, APictureThatIsShownIsNotReadAgainUnlessItHasChanged) {
    const std::string path = Put("a.bmp", {30, 20});
    auto first = pictures_.Load(path);
    const auto again = pictures_.Load(path);
    ASSERT_TRUE(first && again);
    EXPECT_EQ(first.Value(), again.Value());
    static_cast<void>(Put("a.bmp", {40, 20}));
    const auto changed = pictures_.Load(path);
    ASSERT_TRUE(changed);
    EXPECT_EQ(changed.Value()->Width(), 40);
    EXPECT_EQ(first.Value()->Width(), 30);
}

TEST_F(PageFilesTest, WhatIsNoPictureIsRefused) {
    const auto missing = pictures_.Load(FromQt(folder_.filePath(QStringLiteral("none.jpg"))));
    ASSERT_FALSE(missing);
    EXPECT_EQ(missing.Failure().Code, ErrorCode::NotFound);
    QFile text(folder_.filePath(QStringLiteral("text.jpg")));
    ASSERT_TRUE(text.open(QIODevice::WriteOnly) && text.write("no picture") > 0);
    text.close();
    const auto broken = pictures_.Load(FromQt(text.fileName()));
    ASSERT_FALSE(broken);
    EXPECT_EQ(broken.Failure().Code, ErrorCode::Damaged);
    EXPECT_FALSE(pictures_.Load(FromQt(folder_.path())));
}

TEST_F(PageFilesTest, MorePicturesThanTheMachineCanHoldAreRefused) {
    std::vector<PagePicturePtr> shown;
    ErrorCode refused = ErrorCode::Failed;
    for (int i = 0; i < 40; ++i) {
        const auto picture = pictures_.Load(Put(qPrintable(QString::number(i)), {3508, 2480}));
        if (!picture) {
            refused = picture.Failure().Code;
            break;
        }
        shown.push_back(picture.Value());
    }
    EXPECT_EQ(refused, ErrorCode::TooLarge);
    EXPECT_GT(shown.size(), 15U);
    shown.clear(); // taken off the page
    EXPECT_TRUE(pictures_.Load(Put("next", {3508, 2480})));
}

} // namespace
} // namespace kestrova
