// SPDX-License-Identifier: GPL-3.0-or-later
#include "media/ui/PictureReader.h"

#include "fakes/MemoryFileStore.h"
#include "media/ui/PictureFiles.h"
#include "platform/posix/TemporaryFolder.h"
#include "platform/qt/QtText.h"

#include <QElapsedTimer>

#include <gtest/gtest.h>

#include <random>

#include <sys/stat.h>

namespace kestrova {
namespace {

class PictureReaderTest : public testing::Test {
protected:
    Result<QImage> Read(const std::string& bytes, const QSize& area = {}) {
        folder_.Write("picture.jpg", bytes);
        return ReadPicture(ToQt(folder_ / "picture.jpg"), area);
    }
    TemporaryFolder folder_;
};

bool IsNear(const QColor& colour, const QColor& expected) {
    return std::abs(colour.red() - expected.red()) < 12 &&
           std::abs(colour.green() - expected.green()) < 12 &&
           std::abs(colour.blue() - expected.blue()) < 12;
}

void ExpectRedAndBlue(const QImage& image) {
    const int y = image.height() / 2;
    EXPECT_TRUE(IsNear(image.pixelColor(image.width() / 4, y), Qt::red));
    EXPECT_TRUE(IsNear(image.pixelColor(image.width() * 3 / 4, y), Qt::blue));
}

TEST_F(PictureReaderTest, EveryFormatIsKnownByItsContent) {
    struct Row {
        const char* Name;
        std::string Bytes;
        QSize Size;
    };
    const Row rows[] = {
        {"jpg", Written(RedAndBlue(64, 32), "jpg"), {64, 32}},
        {"png", Written(RedAndBlue(64, 32), "png"), {64, 32}},
        {"bmp, 1 bit", BitmapOf(1), {2, 1}},
        {"bmp, 4 bits", BitmapOf(4), {2, 1}},
        {"bmp, 8 bits", BitmapOf(8), {2, 1}},
        {"bmp, 24 bits", BitmapOf(24), {2, 1}},
        {"bmp, 32 bits", BitmapOf(32), {2, 1}},
        {"gif: the first picture", GifBytes(), {2, 1}},
        {"ico: the largest", IconBytes(), {48, 48}},
        {"wmf", WmfFileBytes(), {1024, 512}},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.Name);
        const auto picture = Read(row.Bytes);
        ASSERT_TRUE(picture) << picture.Failure().Text;
        EXPECT_EQ(picture.Value().size(), row.Size);
        ExpectRedAndBlue(picture.Value());
    }
}

TEST_F(PictureReaderTest, AnAreaIsCoveredAndNoMore) {
    struct Row {
        const char* Name;
        std::string Bytes;
        QSize Area;
        QSize Size;
    };
    const Row rows[] = {
        {"a wide one", Written(RedAndBlue(400, 200), "jpg"), {100, 100}, {200, 100}},
        {"a bitmap", Written(RedAndBlue(400, 200), "bmp"), {100, 20}, {100, 50}},
        {"none made larger", Written(RedAndBlue(40, 20), "png"), {100, 100}, {40, 20}},
        {"a drawing is", WmfFileBytes(), {3000, 100}, {3000, 1500}},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.Name);
        const auto picture = Read(row.Bytes, row.Area);
        ASSERT_TRUE(picture);
        EXPECT_EQ(picture.Value().size(), row.Size);
        ExpectRedAndBlue(picture.Value());
    }
}

TEST_F(PictureReaderTest, APhotographIsTurnedAsItWasTaken) {
    const std::string bytes = TurnedPhotograph(RedAndBlue(64, 32));
    for (const auto& [area, size] :
         {std::pair{QSize(), QSize(32, 64)}, std::pair{QSize(16, 16), QSize(16, 32)}}) {
        const auto picture = Read(bytes, area);
        ASSERT_TRUE(picture);
        ASSERT_EQ(picture.Value().size(), size);
        EXPECT_TRUE(IsNear(picture.Value().pixelColor(8, 4), Qt::red));
        EXPECT_TRUE(IsNear(picture.Value().pixelColor(8, size.height() - 4), Qt::blue));
    }
}

TEST_F(PictureReaderTest, ADrawingShowsWhatItSays) {
    // A ground of black, a red circle, a green line, a bitmap of one blue pixel, all but a corner
    // behind a clip, and letters.
    const std::string bytes =
        WmfBytes()
            .Window(1000, 1000)
            .NoPen(0)
            .Brush(1, 0x000000)
            .Box(0, 0, 1000, 1000)
            .Brush(2, 0x0000FF)
            .Add(0x0418, Words({500, 500, 100, 100}))
            .Add(0x02FA, Words({0, 20, 0}) + Longs({0x00FF00}))
            .Add(0x012D, Words({3}))
            .Add(0x0214, Words({700, 100}))
            .Add(0x0213, Words({700, 900}))
            .Add(0x0B41, Longs({0x00CC0020}) + Words({1, 1, 0, 0, 100, 100, 100, 800}) +
                             DibOf(1, 1, {0x0000FF}))
            .Add(0x0104, Words({7})) // exclusive or
            .Add(0x012D, Words({0}))
            .Box(200, 200, 300, 300)
            .Add(0x0104, Words({13}))
            .Add(0x02FB, Words({-100, 0, 0, 0, 400, 0, 0, 0, 0}) + "DejaVu Sans" + '\0')
            .Add(0x012D, Words({4}))
            .Add(0x0201, Longs({0xFFFFFF}))
            .Add(0x0521, Words({3}) + "W\xC4W" + '\0' + Words({750, 100}))
            .Add(0x0416, Words({900, 900, 850, 850}))
            .Add(0x061D, Longs({0x00FF0062}) + Words({1000, 1000, 0, 0}))
            .Plain();
    const auto picture = Read(bytes, {500, 500});
    ASSERT_TRUE(picture);
    const QImage& image = picture.Value();
    ASSERT_EQ(image.size(), QSize(500, 500));
    const auto colour = [&image](int x, int y) { return image.pixelColor(x, y); };
    EXPECT_EQ(colour(10, 10), QColor(Qt::black));
    EXPECT_EQ(colour(200, 200), QColor(Qt::red));
    EXPECT_EQ(colour(60, 60), QColor(Qt::black)) << "outside of the circle";
    EXPECT_EQ(colour(125, 125), QColor(Qt::black)) << "red on red";
    EXPECT_EQ(colour(250, 350), QColor(Qt::green));
    EXPECT_EQ(colour(425, 75), QColor(Qt::blue));
    EXPECT_EQ(colour(437, 437), QColor(Qt::white)) << "within the clip";
    EXPECT_EQ(colour(420, 420), QColor(Qt::black));
    int white = 0;
    int black = 0;
    for (int x = 50; x < 150; ++x) {
        white += colour(x, 400) == QColor(Qt::white) ? 1 : 0;
        black += colour(x, 400) == QColor(Qt::black) ? 1 : 0;
    }
    EXPECT_GT(white, 20) << "the ground of the letters";
    EXPECT_GT(black, 5) << "the letters";
}

TEST_F(PictureReaderTest, AnEnhancedMetafileIsDrawnByAProcessOfItsOwn) {
    const auto picture = Read(EmfBytes(0x0000FF), {400, 200});
    ASSERT_TRUE(picture) << picture.Failure().Text;
    EXPECT_EQ(picture.Value().size(), QSize(400, 200));
    EXPECT_TRUE(IsNear(picture.Value().pixelColor(100, 100), Qt::red));
    EXPECT_TRUE(IsNear(picture.Value().pixelColor(300, 100), Qt::white));

    // What makes that process crash or run is no picture, and nothing else.
    const std::string whole = EmfBytes(0x0000FF);
    std::mt19937 random(20261123);
    for (int round = 0; round < 6; ++round) {
        std::string bytes = whole;
        for (std::size_t at = 88; at < bytes.size(); at += 3) {
            bytes[at] = static_cast<char>(random());
        }
        (void)Read(bytes, {40, 20});
    }
    EXPECT_FALSE(Read(whole.substr(0, 60)));
}

TEST_F(PictureReaderTest, WhatIsNoPictureIsSaid) {
    const std::string jpeg = Written(RedAndBlue(64, 32), "jpg");
    const std::string bitmap = Written(RedAndBlue(64, 32), "bmp");
    std::string huge = BitmapOf(24);
    huge.replace(18, 8, Longs({30000, 30000}));
    std::string hugeGif = GifBytes();
    hugeGif.replace(6, 4, Words({65000, 65000}));
    std::string random(5000, '\0');
    std::mt19937 numbers(7);
    for (char& byte : random) {
        byte = static_cast<char>(numbers());
    }
    const std::pair<const char*, std::string> rows[] = {
        {"nothing", ""},
        {"NULs", std::string(1000, '\0')},
        {"anything", random},
        {"text", "a picture of a cat"},
        {"the beginning of a photograph", jpeg.substr(0, 20)},
        {"a photograph of noise", jpeg.substr(0, 20) + random},
        {"half a bitmap", bitmap.substr(0, bitmap.size() / 2)},
        {"a huge bitmap", huge},
        {"half a png", Written(RedAndBlue(640, 320), "png").substr(0, 60)},
        {"the beginning of a gif", GifBytes().substr(0, 20)},
        {"half an icon", IconBytes().substr(0, 60)},
        {"the header of a drawing", WmfFileBytes().substr(0, 40)},
        {"a gif that claims too much", hugeGif + random},
    };
    for (const auto& [name, bytes] : rows) {
        SCOPED_TRACE(name);
        const auto picture = Read(bytes, {100, 100});
        if (name == std::string("a gif that claims too much") && picture) {
            EXPECT_LT(picture.Value().width(), 1000) << "what it claims is not believed";
            continue;
        }
        ASSERT_FALSE(picture);
        EXPECT_EQ(picture.Failure().Code, ErrorCode::Damaged);
    }
}

TEST_F(PictureReaderTest, WhatIsNoFileIsNotWaitedFor) {
    ASSERT_EQ(::mkfifo((folder_ / "pipe.jpg").c_str(), 0600), 0);
    const std::pair<std::string, ErrorCode> rows[] = {
        {folder_ / "gone.jpg", ErrorCode::NotFound},
        {folder_ / "", ErrorCode::Damaged},
        {folder_ / "pipe.jpg", ErrorCode::Damaged},
        {"/dev/zero", ErrorCode::Damaged},
    };
    for (const auto& [path, code] : rows) {
        SCOPED_TRACE(path);
        const auto picture = ReadPicture(ToQt(path));
        ASSERT_FALSE(picture);
        EXPECT_EQ(picture.Failure().Code, code);
    }
    folder_.Write("huge.bmp", "BM");
    ASSERT_EQ(::truncate((folder_ / "huge.bmp").c_str(), off_t{1} << 40), 0);
    EXPECT_EQ(ReadPicture(ToQt(folder_ / "huge.bmp")).Failure().Code, ErrorCode::TooLarge);
}

TEST_F(PictureReaderTest, ReadingEndsWhenItIsNotWantedAnyMore) {
    folder_.Write("picture.jpg", Written(RedAndBlue(64, 32), "jpg"));
    std::stop_source stop;
    stop.request_stop();
    EXPECT_FALSE(ReadPicture(ToQt(folder_ / "picture.jpg"), {}, stop.get_token()));
}

TEST_F(PictureReaderTest, APictureIsSavedAsABitmap) {
    QImage half(3, 2, QImage::Format_ARGB32);
    half.fill(Qt::transparent);
    half.setPixelColor(0, 0, Qt::red);
    folder_.Write("half.png", Written(half, "png"));
    folder_.Write("turned.jpg", TurnedPhotograph(RedAndBlue(64, 32)));
    MemoryFileStore disc;
    ASSERT_TRUE(SavePicture(disc, folder_ / "half.png", "/out.bmp"));
    const std::string row = std::string("\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF\0\0\0", 12);
    const std::string first = std::string("\0\0\xFF\xFF\xFF\xFF\xFF\xFF\xFF\0\0\0", 12);
    const std::string saved = disc.Content("/out.bmp").value_or("");
    ASSERT_EQ(saved.size(), 54U + 24U);
    EXPECT_EQ(saved.substr(0, 2), "BM");
    EXPECT_EQ(saved.substr(10, 24), Longs({54, 40, 3, 2, 1U | 24U << 16U, 0}));
    EXPECT_EQ(saved.substr(54), row + first) << "the lowest row first";

    ASSERT_TRUE(SavePicture(disc, folder_ / "turned.jpg", "/out.bmp"));
    EXPECT_EQ(disc.Content("/out.bmp").value_or("").substr(18, 8), Longs({32, 64}));

    disc.FailWrites(Error{ErrorCode::Full, "no room"});
    const Status full = SavePicture(disc, folder_ / "half.png", "/out.bmp");
    ASSERT_FALSE(full);
    EXPECT_EQ(full.Failure().Code, ErrorCode::Full);
    EXPECT_FALSE(SavePicture(disc, folder_ / "gone.jpg", "/other.bmp"));
    EXPECT_FALSE(CheckPicture(folder_ / "gone.jpg"));
    EXPECT_TRUE(CheckPicture(folder_ / "turned.jpg"));
}

} // namespace
} // namespace kestrova
