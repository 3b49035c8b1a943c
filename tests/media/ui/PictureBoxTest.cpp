// SPDX-License-Identifier: GPL-3.0-or-later
#include "media/ui/PictureBox.h"

#include "media/ui/PictureFiles.h"
#include "media/ui/WaitBeside.h"
#include "platform/posix/TemporaryFolder.h"
#include "platform/qt/QtText.h"

#include <QElapsedTimer>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <filesystem>
#include <thread>

namespace kestrova {
namespace {

constexpr int kLong = 60'000; // milliseconds; under a sanitizer a large picture takes its time

class PictureBoxTest : public testing::Test {
protected:
    PictureBoxTest() {
        box_.resize(300, 200);
        box_.show();
    }
    void WriteColour(const std::string& name, const QColor& colour, int side = 40) {
        QImage image(side, side, QImage::Format_RGB32);
        image.fill(colour);
        folder_.Write(name, Written(image, "png"));
    }
    QString Path(const std::string& name) { return ToQt(folder_ / name); }
    QColor Centre() { return box_.grab().toImage().pixelColor(150, 100); }
    bool Comes(const QColor& colour, int patience = 10'000) {
        return QTest::qWaitFor([&] { return Centre() == colour; }, patience);
    }

    TemporaryFolder folder_;
    PictureBox box_{nullptr};
};

TEST_F(PictureBoxTest, TheNewestPictureIsShownAndABadOneIsNot) {
    WriteColour("red.png", Qt::red);
    WriteColour("green.png", Qt::green);
    folder_.Write("bad.png", "no picture");
    EXPECT_FALSE(box_.HasPicture());
    box_.SetPicture(Path("red.png"));
    box_.SetPicture(Path("green.png"));
    ASSERT_TRUE(Comes(Qt::green));
    EXPECT_EQ(box_.Path(), Path("green.png"));
    box_.SetPicture(Path("bad.png"));
    box_.SetPicture(QString());
    QTest::qWait(100);
    EXPECT_EQ(Centre(), QColor(Qt::green));
    EXPECT_EQ(box_.Path(), Path("green.png"));
}

TEST_F(PictureBoxTest, AFileThatIsReplacedIsSeen) {
    WriteColour("month.png", Qt::red);
    box_.SetPicture(Path("month.png"));
    ASSERT_TRUE(Comes(Qt::red));
    WriteColour("month.png", Qt::green, 41);
    box_.SetPicture(Path("month.png"));
    ASSERT_TRUE(Comes(Qt::green));
}

TEST_F(PictureBoxTest, AHugePictureHoldsUpNobody) {
    // 100 megapixels; not of one colour, which would be read in no time.
    QImage huge(10'000, 10'000, QImage::Format_RGB888);
    for (int y = 0; y < huge.height(); ++y) {
        uchar* const row = huge.scanLine(y);
        for (int x = 0; x < 3 * huge.width(); ++x) {
            row[x] = static_cast<uchar>(x / 3 * 7 ^ y * 5);
        }
    }
    ASSERT_TRUE(huge.save(Path("huge.jpg"), "jpg", 80));
    huge = QImage();
    folder_.Write("huge.bmp", "BM" + Longs({54 + 300'000'000, 0, 54, 40, 10'000, 10'000,
                                            1U | 24U << 16U, 0, 0, 0, 0, 0, 0}));
    std::filesystem::resize_file(folder_ / "huge.bmp", 54 + 300'000'000);
    WriteColour("red.png", Qt::red);

    QElapsedTimer sinceTick;
    qint64 longest = 0;
    QTimer ticks;
    QObject::connect(&ticks, &QTimer::timeout, &ticks,
                     [&] { longest = std::max(longest, sinceTick.restart()); });
    for (const char* const name : {"huge.jpg", "huge.bmp"}) {
        SCOPED_TRACE(name);
        longest = 0;
        sinceTick.start();
        ticks.start(10);
        QElapsedTimer all;
        all.start();
        box_.SetPicture(Path(name));
        ASSERT_TRUE(QTest::qWaitFor([&] { return box_.Path() == Path(name); }, kLong));
        box_.repaint();
        QTest::qWait(20);
        ticks.stop();
        RecordProperty(name, static_cast<int>(longest));
        std::printf("%s: there after %lld ms, longest pause %lld ms\n", name, all.elapsed(),
                    longest);
        EXPECT_LT(longest, 500);
    }
    // One that is not wanted any more does not keep the next one waiting.
    box_.SetPicture(Path("huge.jpg"));
    box_.SetPicture(Path("red.png"));
    EXPECT_TRUE(Comes(Qt::red, kLong));
}

TEST_F(PictureBoxTest, ABoxMayGoWhileItsPictureIsOnTheWay) {
    WriteColour("red.png", Qt::red, 2000);
    for (int i = 0; i < 20; ++i) {
        PictureBox box(nullptr);
        box.resize(300, 200);
        box.show();
        QTest::qWait(1);
        box.SetPicture(Path("red.png"));
        QTest::qWait(i);
    }
}

TEST(WaitBesideTest, WindowsLiveOnWhileAPieceOfWorkIsDone) {
    std::atomic<bool> ticked = false;
    QTimer::singleShot(20, [&ticked] { ticked = true; });
    const auto seen = OutcomeBeside([&ticked] {
        while (!ticked) {
            std::this_thread::yield();
        }
        return 7;
    });
    EXPECT_EQ(seen, 7);
}

TEST(WaitBesideTest, WorkThatHangsIsGivenUp) {
    auto go = std::make_shared<std::atomic<bool>>(false);
    const bool done = WaitBeside(
        [go] {
            while (!*go) {
                std::this_thread::yield();
            }
        },
        std::chrono::milliseconds(50));
    EXPECT_FALSE(done);
    *go = true;
}

} // namespace
} // namespace kestrova
